#pragma once

#include <QString>

#include "freedict/words_of.h"

namespace freedict {

/// True when a text holds a word that is coarse or offends: such a meaning never stands first where another one is.
[[nodiscard]] bool is_coarse(const QString &text, Language language);

}  // namespace freedict
