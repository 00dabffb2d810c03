#pragma once

#include <QString>
#include <optional>

#include "forms/form_reader.h"

/// The reading of a form that the Hungarian dictionary takes for a word of its own or for another form: demonstratives
/// with a case ("arra"), "nincsenek". Nothing for all others.
[[nodiscard]] std::optional<olvasat> kivételes_olvasat(const QString &alak);
