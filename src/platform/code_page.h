#pragma once

#include <QByteArray>
#include <QString>
#include <array>
#include <optional>

/// The code page of every text file the program reads or writes: windows-1250, Central European, one byte a character.
/// Decoding cannot fail, and encode(decode(x)) is x for every byte string, the five bytes without a letter included.
namespace code_page {

/// The text of `bytes`.
[[nodiscard]] QString decode(QByteArrayView bytes);

/// The bytes of `text`; nothing when it holds a character that the code page lacks. No character is ever replaced by
/// another; only a letter written with a separate accent is joined to the one character it stands for.
[[nodiscard]] std::optional<QByteArray> encode(const QString &text);

/// The bytes of `text` as it is, no accent joined: for the names of files, which are others with every change. Nothing
/// when it holds a character that the code page lacks.
[[nodiscard]] std::optional<QByteArray> encode_as_it_is(const QString &text);

/// The first character of `text` that the code page lacks; empty when there is none.
[[nodiscard]] QString first_missing(const QString &text);

/// `line` with every letter in upper case. A letter whose capital the code page lacks stays as it is.
[[nodiscard]] QByteArray upper(QByteArrayView line);

/// The UTF-16 code unit of each of the 256 bytes, as the system's own converter gives it. One source a system.
[[nodiscard]] std::array<char16_t, 256> system_table();

}  // namespace code_page
