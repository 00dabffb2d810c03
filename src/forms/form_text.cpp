#include "forms/form_text.h"

#include <algorithm>

using namespace Qt::StringLiterals;

QString elemezhető_szó(const QString &szöveg) {
    // Words with more letters are compounds that nobody has written, and finding them takes the analysis long.
    constexpr qsizetype leghosszabb = 50;
    QString szó = szöveg.trimmed();
    if (szó.size() > 2 * leghosszabb)
        return {};
    szó = szó.normalized(QString::NormalizationForm_C);
    szó.replace(u'’', u'\'').replace(u'‑', u'-');
    const auto szóbeli = [](QChar jel) { return jel.isLetterOrNumber() || jel == u'-' || jel == u'\'' || jel == u'.'; };
    const bool van_betű = std::ranges::any_of(szó, [](QChar jel) { return jel.isLetter(); });
    return szó.size() <= leghosszabb && van_betű && std::ranges::all_of(szó, szóbeli) ? szó : QString();
}

QStringList írásmódok(const QString &szó) {
    const QString kicsi = szó.toLower();
    QStringList mind{szó, kicsi, kicsi.left(1).toUpper() + kicsi.mid(1)};
    mind.removeDuplicates();
    return mind;
}
