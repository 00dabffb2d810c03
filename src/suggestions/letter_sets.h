#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <bit>
#include <cstdint>
#include <optional>

/// Which letters a word has: bit 0 to 25 for a to z, bit 26 to 51 for those that it has more than once. Neither
/// capitals nor accents count. Taking one letter out of a word, or putting one in, changes one bit at most.
using betűhalmaz = std::uint64_t;

namespace betűk {

/// A byte of the code page that is no letter.
inline constexpr std::uint8_t egyéb = 26;

/// The letter of a byte without accent and capital, 0 to 25 for a to z; `egyéb` for all else.
[[nodiscard]] std::uint8_t alap(char byte);
/// The byte in small letters.
[[nodiscard]] char kicsi(char byte);
/// The byte in small letters without its accent.
[[nodiscard]] char ékezettelen(char byte);
/// True for letters and digits.
[[nodiscard]] bool szóé(char byte);
/// True for a blank, a hyphen, an apostrophe and a full stop: what is left out and put in at will.
[[nodiscard]] bool mellékes(char byte);

[[nodiscard]] betűhalmaz halmaza(QByteArrayView szöveg);

/// How many letters `ebben` has that `abban` lacks, as far as sets tell: a text made of the other one by n such letters
/// has n at most.
[[nodiscard]] inline int többlet(betűhalmaz ebben, betűhalmaz abban) {
    return std::popcount(ebben & ~abban);
}

/// The bytes of a text that a person typed or copied: accents joined, õ and û as ő and ű, curly apostrophes straight,
/// dashes as hyphens, blanks single and none at the ends, letters that the code page lacks without their accents.
/// Nothing when it has other characters that the code page lacks.
[[nodiscard]] std::optional<QByteArray> kódolva(const QString &szöveg);

}  // namespace betűk
