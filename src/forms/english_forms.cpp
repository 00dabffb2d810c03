#include "forms/english_forms.h"

#include <QDir>
#include <QMutexLocker>
#include <algorithm>
#include <utility>
#include <variant>

#include "forms/english_readings.h"
#include "forms/form_data.h"
#include "forms/form_text.h"
#include "platform/files.h"

using namespace Qt::StringLiterals;

namespace {

const QString data_file = u"angol.txt"_s;
const QString to = u"to "_s;

bool egy_szó(const QString &szöveg) {
    return !szöveg.isEmpty() &&
           std::ranges::all_of(szöveg, [](QChar jel) { return jel.isLetter() || jel == u'-' || jel == u'\''; });
}

/// The forms of one headword, each with what it is.
QList<std::pair<QString, QString>> alakjai(const QStringList &részek, bool ige) {
    QList<std::pair<QString, QString>> alakok;
    if (!ige && részek.size() == 2)
        alakok.append({részek.at(1), english::többes_szám});
    if (ige && részek.size() == 2)
        alakok.append({részek.at(1), english::múlt_vagy_igenév});
    if (ige && részek.size() == 3) {
        const bool azonos = részek.at(1) == részek.at(2);
        alakok.append({részek.at(1), azonos ? english::múlt_vagy_igenév : english::múlt_idő});
        if (!azonos)
            alakok.append({részek.at(2), english::múlt_idejű_igenév});
    }
    return alakok;
}

}  // namespace

QMultiHash<QString, hozott_alak> hozott_alakok(const QStringList &címszavak) {
    QMultiHash<QString, hozott_alak> mind;
    for (const QString &címszó : címszavak) {
        const bool ige = címszó.startsWith(to);
        const QStringList részek = címszó.mid(ige ? to.size() : 0).split(u", "_s);
        if (!egy_szó(részek.first()))
            continue;
        const QString alapalak = címszó.left(címszó.indexOf(u','));
        for (const auto &[alakok, magyarázat] : alakjai(részek, ige)) {
            // "was/were"
            for (const QString &alak : alakok.split(u'/')) {
                if (egy_szó(alak) && alak != részek.first())
                    mind.insert(alak.toLower(), {.alapalak = alapalak, .magyarázat = magyarázat});
            }
        }
    }
    return mind;
}

angol_alakelemző::angol_alakelemző(QString mappa, címszókérdések kérdések)
    : mappa_(std::move(mappa)), kérdések_(std::move(kérdések)) {}

void angol_alakelemző::betölt() {
    if (std::exchange(betöltve_, true))
        return;
    if (kérdések_.alakosak)
        hozottak_ = hozott_alakok(kérdések_.alakosak());
    hiányok_ = hibás_alakfájlok(mappa_, {data_file});
    if (!hiányok_.isEmpty())
        return;
    FileContent fájl = files::read_whole(QDir(mappa_).filePath(data_file));
    if (auto *bájtok = std::get_if<QByteArray>(&fájl))
        adatok_ = angol_adatok(std::move(*bájtok));
}

std::vector<olvasat> angol_alakelemző::olvasatok(const QString &alak) {
    const QString szó = elemezhető_szó(alak);
    if (szó.isEmpty())
        return {};
    const QMutexLocker zárva(&zár_);
    betölt();
    if (!hiányok_.isEmpty())
        return {};
    for (const QString &írás : írásmódok(szó)) {
        auto mind = angol_olvasatkészítő(adatok_, hozottak_, kérdések_, írás).olvasatok();
        if (!mind.empty())
            return mind;
    }
    return {};
}

QStringList angol_alakelemző::hiányok() {
    const QMutexLocker zárva(&zár_);
    betölt();
    return hiányok_;
}

QString angol_alakelemző::sor(const QString &alak, const olvasat &olvasat) const {
    const bool ige = olvasat.alapalak.startsWith(to);
    const QString alapalak = ige ? olvasat.alapalak.mid(to.size()) : olvasat.alapalak;
    // Of an uninflected word only the "to " tells which it is.
    if (olvasat.magyarázat.isEmpty())
        return alak + u" = "_s + olvasat.alapalak;
    return u"%1 = %2 (%3)"_s.arg(alak, alapalak, olvasat.magyarázat);
}
