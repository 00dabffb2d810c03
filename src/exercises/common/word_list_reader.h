#pragma once

#include <QString>
#include <QVector>

#include "wordlist/word_pair_list.h"

/// The word list as the exercises see it: read only, and read when an exercise opens. The main window implements it.
class szószedetolvasó {
  public:
    virtual ~szószedetolvasó() = default;

    /// All pairs, in list order.
    [[nodiscard]] virtual const QVector<szópár> &párok() const = 0;
};
