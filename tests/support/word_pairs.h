#pragma once

#include <QString>
#include <QVector>

#include "wordlist/word_pair_list.h"

/// The pairs word0 – szó0, word1 – szó1, …
inline QVector<szópár> numbered_pairs(int count) {
    QVector<szópár> pairs;
    for (int i = 0; i < count; ++i)
        pairs.append({QStringLiteral("word%1").arg(i), QStringLiteral("szó%1").arg(i)});
    return pairs;
}
