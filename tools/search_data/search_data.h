#pragma once

#include <QString>
#include <optional>

#include "platform/files.h"

namespace search_data {

/// The folders that the search data are made of.
struct Folders {
    QString wordnet;
    QString scowl;
    /// With the dictionaries and what explains forms; the files are written here.
    QString program;
};

/// Writes "szavak.idx", "am.gyk" and "ma.gyk" beside the dictionaries; the failure when something cannot be read or
/// written. Each file is replaced whole or not at all.
[[nodiscard]] std::optional<Failure> make(const Folders &folders);

}  // namespace search_data
