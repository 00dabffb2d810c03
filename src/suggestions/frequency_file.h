#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <cstdint>
#include <optional>

// How common the headwords of a dictionary are: a file beside the dictionary, "am.gyk" beside "am.txt".
//
//     bytes 0–7     "ZIMGYK1" and a zero
//     bytes 8–15    fingerprint of the dictionary's bytes that it was made of, least byte first
//     then          a byte for each line of the dictionary behind the notice, in the order of the lines: from 0, rare,
//                   to 255
namespace gyakoriságfájl {

[[nodiscard]] QByteArray fájlja(QByteArrayView szótár, const QByteArray &gyakoriságok);

/// What it holds for each line; nothing when it is damaged or was made of another dictionary.
[[nodiscard]] std::optional<QByteArrayView> gyakoriságai(QByteArrayView fájl, QByteArrayView szótár);

}  // namespace gyakoriságfájl

/// A number that tells one content of a file from another: FNV-1a of 64 bits over words of eight bytes, least byte
/// first, the last one filled up with zeros and the length at the end. No protection against forgery.
[[nodiscard]] std::uint64_t ujjlenyomat(QByteArrayView bájtok);
