#include "forms/hungarian_analysis.h"

#include <QRegularExpression>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

/// What a compound has in common and its alternatives: "a ( b | c )" is "a b" and "a c".
QStringList változatok(const QString &szöveg) {
    const qsizetype nyitó = szöveg.indexOf(u" ( ");
    const qsizetype záró = szöveg.lastIndexOf(u')');
    if (nyitó < 0 || záró < nyitó)
        return {szöveg};
    QStringList egészek;
    for (const QString &változat : szöveg.mid(nyitó + 3, záró - nyitó - 3).split(u'|'))
        egészek.append(szöveg.left(nyitó) + u' ' + változat + szöveg.mid(záró + 1));
    return egészek;
}

/// Collects the fields of one analysis.
class mezőgyűjtő {
  public:
    void mező(const QString &kulcs, const QString &érték) {
        if (kulcs == u"pa")
            részek_.append(érték);
        else if (kulcs == u"sp")
            most_.igekötő += érték;
        else if (kulcs == u"st")
            tövet_kezd(érték);
        else if (kulcs == u"po")
            szófaj(érték);
        else if (kulcs == u"ip" && érték != u"PREF")
            fok_ = kulcs + u':' + érték;
        else if (kulcs == u"ts" || kulcs == u"ds" || kulcs == u"is")
            most_.címkék.append(kulcs + u':' + érték);
    }

    /// A stem of several words: "st:üzembe helyezés".
    void folytatás(const QString &szó) {
        if (!most_.tő.isEmpty() && most_.szófaj.isEmpty())
            most_.tő += u' ' + szó;
    }

    [[nodiscard]] elemzés kész() && {
        // The last part is the one that the rest is about.
        if (!részek_.isEmpty())
            most_.előtagok = részek_.mid(0, részek_.size() - 1);
        else if (tövetlen_rész_)
            most_.előtagok = {QString()};
        if (!fok_.isEmpty())
            most_.címkék.prepend(fok_);
        return std::move(most_);
    }

  private:
    void tövet_kezd(const QString &tő) {
        most_.tő = tő;
        most_.szófaj.clear();
        most_.címkék.clear();
    }

    void szófaj(const QString &érték) {
        tövetlen_rész_ = tövetlen_rész_ || most_.tő.isEmpty();
        if (most_.szófaj.isEmpty())
            most_.szófaj = érték;
    }

    elemzés most_;
    QStringList részek_;
    QString fok_;
    /// A numeral in front has a part of speech, but no stem.
    bool tövetlen_rész_ = false;
};

elemzés egy_elemzés(const QString &szöveg) {
    mezőgyűjtő gyűjtő;
    for (QString szó : szöveg.simplified().split(u' ')) {
        if (szó.endsWith(u'+'))
            szó.chop(1);
        // The clitic "-e" is a word of its own, which asks.
        if (szó == u"st:-e") {
            gyűjtő.mező(u"is"_s, u"-e"_s);
            break;
        }
        if (szó.size() > 2 && szó.at(2) == u':')
            gyűjtő.mező(szó.left(2), szó.mid(3));
        else
            gyűjtő.folytatás(szó);
    }
    return std::move(gyűjtő).kész();
}

}  // namespace

std::vector<elemzés> elemzések_szövegből(const QByteArray &szöveg) {
    std::vector<elemzés> mind;
    for (const QString &változat : változatok(QString::fromUtf8(szöveg))) {
        elemzés egy = egy_elemzés(változat);
        if (!egy.tő.isEmpty())
            mind.push_back(std::move(egy));
    }
    return mind;
}
