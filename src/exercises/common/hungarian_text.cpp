#include "exercises/common/hungarian_text.h"

#include <QTextBoundaryFinder>
#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

/// Letters of more than one character. Those of three come first, so that they win over the two they begin with.
const std::array többjegyűek{
    u"dzs"_s, u"ccs"_s, u"ddz"_s, u"ggy"_s, u"lly"_s, u"nny"_s, u"ssz"_s, u"tty"_s, u"zzs"_s,
    u"cs"_s,  u"dz"_s,  u"gy"_s,  u"ly"_s,  u"ny"_s,  u"sz"_s,  u"ty"_s,  u"zs"_s,
};

/// Compound words in which two letters meet that look like one, with a blank between their letters.
const std::array összetettek{
    u"r a j z sz ö g"_s,
    u"r a j z sz e g"_s,
    u"k a r o s sz é k"_s,
    u"m a g á n ny o m o z ó"_s,
};

/// Lower case, character by character: as long as `szöveg`.
QString kisbetűs(const QString &szöveg) {
    QString kicsi = szöveg;
    for (QChar &karakter : kicsi)
        karakter = karakter.toLower();
    return kicsi;
}

/// Lengths of the letters of a listed compound word; empty for every other text.
QVector<qsizetype> összetett_betűhosszai(const QString &kisbetűs_szó) {
    for (const QString &összetett : összetettek) {
        const QStringList betűk = összetett.split(u' ');
        if (betűk.join(QString()) != kisbetűs_szó)
            continue;
        QVector<qsizetype> hosszak;
        for (const QString &betű : betűk)
            hosszak.append(betű.size());
        return hosszak;
    }
    return {};
}

/// Length of the letter of more than one character that stands at `hol`; 0 when none does.
qsizetype többjegyű_hossza(const QString &kisbetűs_szó, qsizetype hol) {
    const QStringView vége = QStringView(kisbetűs_szó).mid(hol);
    const auto talált = std::find_if(többjegyűek.begin(), többjegyűek.end(),
                                     [vége](const QString &egyik) { return vége.startsWith(egyik); });
    return talált == többjegyűek.end() ? 0 : talált->size();
}

/// Length of what is read as one character at `hol`: one unit, but for one that needs two or bears marks of its own.
qsizetype karakter_hossza(QTextBoundaryFinder &határok, qsizetype hol) {
    határok.setPosition(hol);
    return határok.toNextBoundary() - hol;
}

}  // namespace

void kszöveg::value(const QString &szöveg) {
    szöveg_ = szöveg;
    betűkre_bont();
}

void kszöveg::szövegnyelv(int nyelv) {
    if (nyelv == magyar || nyelv == angol)
        nyelv_ = nyelv;
}

void kszöveg::szövegnyelv(const QString &nyelv) {
    const QString kicsi = nyelv.toLower();
    if (kicsi == u"magyar")
        nyelv_ = magyar;
    else if (kicsi == u"english" || kicsi == u"angol")
        nyelv_ = angol;
}

void kszöveg::betűkre_bont() {
    betűk_.clear();
    betűk_.reserve(szöveg_.size());
    const QString kicsi = kisbetűs(szöveg_);
    const QVector<qsizetype> kivétel = nyelv_ == magyar ? összetett_betűhosszai(kicsi) : QVector<qsizetype>();
    QTextBoundaryFinder karakterek(QTextBoundaryFinder::Grapheme, szöveg_);
    for (qsizetype hol = 0; hol < szöveg_.size();) {
        qsizetype hossz = 0;
        if (!kivétel.isEmpty())
            hossz = kivétel.at(betűk_.size());
        else if (nyelv_ == magyar)
            hossz = többjegyű_hossza(kicsi, hol);
        if (hossz == 0)
            hossz = karakter_hossza(karakterek, hol);
        betűk_.append(szöveg_.mid(hol, hossz));
        hol += hossz;
    }
}

QString kszöveg::szóbetűje(int i) const {
    i = std::min(i, MAGYARBETŰKSZÁMA());
    return i > 0 ? betűk_.at(i - 1) : QString();
}

bool kszöveg::EzabetűMagánhangzóE(int i) const {
    static const QString magánhangzók = u"aáeéiíoóöőuúüű"_s;
    const QString betű = szóbetűje(i);
    return betű.size() == 1 && magánhangzók.contains(betű);
}

QString kszöveg::magyarleft(int n) const {
    return betűk_.mid(0, std::max(n, 0)).join(QString());
}

QString kszöveg::magyarright(int n) const {
    return betűk_.mid(MAGYARBETŰKSZÁMA() - std::clamp(n, 0, MAGYARBETŰKSZÁMA())).join(QString());
}

QString kszöveg::VesszősSzöveg() const {
    QString vesszős = u","_s;
    for (const QString &betű : betűk_)
        vesszős += betű + u',';
    return vesszős;
}

bool kszöveg::vanebenne(const QString &betű) const {
    return VesszősSzöveg().contains(u',' + betű + u',');
}

QString kszöveg::Névelővel(bool nagybetűs) const {
    const QString névelő = EzabetűMagánhangzóE(1) ? u"az "_s : u"a "_s;
    return (nagybetűs ? névelő.at(0).toUpper() + névelő.mid(1) : névelő) + szöveg_;
}

void kszöveg::lenght(int n) {
    const int hiány = n - lenght();
    if (hiány > 0)
        szöveg_ += töltelék_.repeated(hiány);
    else
        szöveg_.truncate(std::max(n, 0));
}

QString kszöveg::jobbrólvágott(int n) const {
    return szöveg_.chopped(std::clamp(n, 0, lenght()));
}

QString kszöveg::balrólvágott(int n) const {
    return szöveg_.mid(std::clamp(n, 0, lenght()));
}

QString kszöveg::beszúr_nem_változik(int p, const QString &s) const {
    const int előtte = std::clamp(p, 1, lenght() + 1) - 1;
    return szöveg_.left(előtte) + s + szöveg_.mid(előtte);
}

void kszöveg::csere(const QString &régi, const QString &új) {
    // Nothing stands everywhere and is replaced nowhere.
    if (!régi.isEmpty())
        szöveg_.replace(régi, új);
    betűkre_bont();
}
