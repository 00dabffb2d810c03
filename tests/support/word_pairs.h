#pragma once

#include <QString>
#include <QVector>
#include <initializer_list>
#include <utility>

#include "wordlist/word_pair_list.h"

using namespace Qt::StringLiterals;

/// The pairs word0 – szó0, word1 – szó1, …
inline QVector<szópár> numbered_pairs(int count) {
    QVector<szópár> pairs;
    for (int i = 0; i < count; ++i)
        pairs.append({u"word%1"_s.arg(i), u"szó%1"_s.arg(i)});
    return pairs;
}

/// The pairs of these texts, English first.
inline QVector<szópár> pairs_of(std::initializer_list<std::pair<const char16_t *, const char16_t *>> list) {
    QVector<szópár> pairs;
    for (const auto &[english, hungarian] : list)
        pairs.append({QString::fromUtf16(english), QString::fromUtf16(hungarian)});
    return pairs;
}
