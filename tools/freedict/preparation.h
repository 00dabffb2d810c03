#pragma once

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <variant>

#include "freedict/import.h"
#include "freedict/meaning_features.h"
#include "freedict/spelling_dictionary.h"
#include "freedict/supplement.h"
#include "freedict/typing_errors.h"

namespace freedict {

/// All that an import reads.
struct Material {
    std::array<Package, dictionaries.size()> packages;
    OutsideKnowledge outside;
    std::optional<Spelling> spelling;
    Supplement supplement;
};

/// Reads what `sources` names; `steps` is told how far it is.
[[nodiscard]] std::variant<Material, Failure> read_material(const Sources &sources, const Steps &steps = {});

/// Both dictionaries with everything but the order of the meanings, and what was done to them.
struct Prepared {
    Lexicon lexicon;
    std::array<Imported, dictionaries.size()> done;
    /// The typing errors that were mended.
    QVector<Mend> mends;
    /// Words that stand as several headwords and stay so.
    qsizetype doubled_left = 0;
};

/// Mends the letters and the typing errors, joins doubled headwords, gives capitals back and merges the supplement. A
/// failure when the meanings are not as many afterwards as they must be.
[[nodiscard]] std::variant<Prepared, Failure> prepared(const Material &material);

}  // namespace freedict
