#pragma once

#include <QByteArrayView>
#include <QString>
#include <optional>

/// What is wrong with a web archive, as the end of a sentence in Hungarian; nothing for a sound one: headers, and where
/// they name a line that parts the archive, that line with "--" at its end. The browser shows a damaged one as a blank
/// page, or without its pictures.
[[nodiscard]] std::optional<QString> archívumhiba(QByteArrayView bytes);
