#pragma once

#include <QHash>
#include <QString>

#include "freedict/lexicon.h"

namespace freedict {

struct DoubledHeadwords {
    /// Headwords that are to be joined to another one of the same word, and that one: it lists further forms, and among
    /// them all that this one lists ("to get, got" and "to get, got, gotten"). What lists more forms that are
    /// in use gives its name.
    QHash<QString, QString> joined;
    /// How many words stand there more than once and stay so, because their forms differ or one lists none.
    qsizetype left = 0;
};

[[nodiscard]] DoubledHeadwords doubled_headwords(const QVector<Entry> &english);

}  // namespace freedict
