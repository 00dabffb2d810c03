#pragma once

#include <QString>
#include <variant>

#include "freedict/import.h"

namespace freedict {

/// For the eyes of whoever looks after the dictionary: the entries of `word`, with or without its "to " and its further
/// forms, in both directions, each meaning with its score and what each feature adds to it.
[[nodiscard]] std::variant<QString, Failure> explanation(const Sources &sources, const QString &word);

/// The typing errors that an import mends, one a line, and the capitals and doubled headwords as counts.
[[nodiscard]] std::variant<QString, Failure> list_of_mends(const Sources &sources);

}  // namespace freedict
