#include "forms/hungarian_forms.h"

#include <QDir>
#include <QMutexLocker>
#include <algorithm>
#include <utility>

#include "forms/form_data.h"
#include "forms/form_text.h"
#include "forms/hungarian_readings.h"

using namespace Qt::StringLiterals;

namespace {

const QString rules_file = u"hu_HU.aff"_s;
const QString words_file = u"hu_HU.dic"_s;

}  // namespace

magyar_alakelemző::magyar_alakelemző(QString mappa, címszókérdések kérdések, betöltő betölt)
    : mappa_(std::move(mappa)), kérdések_(std::move(kérdések)), betöltő_(std::move(betölt)) {}

void magyar_alakelemző::betölt() {
    if (std::exchange(betöltve_, true))
        return;
    hiányok_ = hibás_alakfájlok(mappa_, {rules_file, words_file});
    if (!hiányok_.isEmpty())
        return;
    const QDir hely(mappa_);
    szóelemző_ = betöltő_(hely.absoluteFilePath(rules_file), hely.absoluteFilePath(words_file));
    if (szóelemző_ == nullptr)
        hiányok_ = {u"A magyar szóelemző (Hunspell) nem tölthető be."_s};
}

std::vector<olvasat> magyar_alakelemző::olvasatok(const QString &alak) {
    const QString szó = elemezhető_szó(alak);
    if (szó.isEmpty())
        return {};
    const QMutexLocker zárva(&zár_);
    betölt();
    if (szóelemző_ == nullptr)
        return {};
    for (const QString &írás : írásmódok(szó)) {
        auto mind = olvasatkészítő(*szóelemző_, kérdések_, írás).olvasatok();
        if (!mind.empty())
            return mind;
    }
    return {};
}

QStringList magyar_alakelemző::hiányok() {
    const QMutexLocker zárva(&zár_);
    betölt();
    return hiányok_;
}

QString magyar_alakelemző::sor(const QString &alak, const olvasat &olvasat) const {
    QStringList részek;
    if (!olvasat.előtag.isEmpty())
        részek.append(olvasat.előtag);
    részek.append(olvasat.alapalak);
    if (!olvasat.magyarázat.isEmpty())
        részek.append(olvasat.magyarázat);
    return alak + u" = "_s + részek.join(u" + ");
}
