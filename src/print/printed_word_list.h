#pragma once

#include <QVector>

#include "wordlist/word_pair_list.h"

/// The word list as printing sees it: read only. The main window implements it.
class nyomtatottszószedet {
  public:
    virtual ~nyomtatottszószedet() = default;

    /// All pairs, in list order.
    [[nodiscard]] virtual const QVector<szópár> &párok() const = 0;
};
