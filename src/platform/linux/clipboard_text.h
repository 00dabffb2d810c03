#pragma once

#include <QByteArrayView>
#include <QString>
#include <array>
#include <optional>

/// The kinds of text on the clipboard of X11, by the names that programs offer them under.
namespace clipboard_text {

/// What a text is asked for by, the best first. "TEXT" leaves it to the owner which kind it hands over.
inline constexpr std::array<const char *, 6> targets{
    "UTF8_STRING", "text/plain;charset=utf-8", "text/plain;charset=UTF-8", "STRING", "TEXT", "text/plain"};
/// Another kind that an owner may hand over.
inline constexpr const char *compound = "COMPOUND_TEXT";

/// The text of an answer of the kind `kind`; nothing for a kind that is none of these, and for a compound text that
/// changes its character set on the way.
[[nodiscard]] std::optional<QString> decode(QByteArrayView kind, QByteArrayView bytes);

}  // namespace clipboard_text
