#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// The words of a multimedia command string: parts between blanks, or between quotation marks, in which two quotation
/// marks stand for one. Nothing when the last quotation is not closed.
[[nodiscard]] std::optional<QStringList> words_of_command(const QString &command);
