#include "forms/english_data.h"

#include <algorithm>
#include <utility>

namespace {

char kivételkulcs(angol_szófaj szófaj) {
    return "nvar"[static_cast<int>(szófaj)];
}

char gyakoriságkulcs(angol_szófaj szófaj) {
    return "NVAR"[static_cast<int>(szófaj)];
}

QByteArray sorkezdet(char kulcs, const QString &szó) {
    return QByteArray(1, kulcs) + ' ' + szó.toUtf8() + ' ';
}

}  // namespace

angol_adatok::angol_adatok(QByteArray fájl) : fájl_(std::move(fájl)) {
    const QByteArrayView egész(fájl_);
    for (qsizetype hol = 0; hol < egész.size();) {
        qsizetype vége = egész.indexOf('\n', hol);
        if (vége < 0)
            vége = egész.size();
        const QByteArrayView sor = egész.sliced(hol, vége - hol);
        if (!sor.isEmpty() && !sor.startsWith('#'))
            sorok_.push_back(sor);
        hol = vége + 1;
    }
}

/// The line that begins so, without its beginning.
QByteArrayView angol_adatok::sor(const QByteArray &kezdet) const {
    const QByteArrayView keresett(kezdet);
    const auto hely = std::lower_bound(sorok_.begin(), sorok_.end(), keresett);
    return hely != sorok_.end() && hely->startsWith(keresett) ? hely->sliced(keresett.size()) : QByteArrayView();
}

QStringList angol_adatok::alapalakok(angol_szófaj szófaj, const QString &alak) const {
    const QByteArrayView bázisok = sor(sorkezdet(kivételkulcs(szófaj), alak));
    return QString::fromUtf8(bázisok).split(u' ', Qt::SkipEmptyParts);
}

QStringList angol_adatok::alakok(angol_szófaj szófaj, const QString &alapalak) const {
    const char kulcs = kivételkulcs(szófaj);
    const QByteArray szó = ' ' + alapalak.toUtf8();
    QStringList mind;
    auto hely = std::ranges::partition_point(sorok_, [kulcs](QByteArrayView sor) { return sor.front() < kulcs; });
    for (; hely != sorok_.end() && hely->front() == kulcs; ++hely) {
        const QByteArrayView sor = *hely;
        if (sor.endsWith(szó) || sor.contains(szó + ' '))
            mind.append(QString::fromUtf8(sor.sliced(2)).section(u' ', 0, 0));
    }
    return mind;
}

int angol_adatok::gyakoriság(angol_szófaj szófaj, const QString &szó) const {
    const QByteArrayView szám = sor(sorkezdet(gyakoriságkulcs(szófaj), szó));
    bool jó = false;
    const int darab = szám.toByteArray().toInt(&jó);
    return jó ? darab : -1;
}
