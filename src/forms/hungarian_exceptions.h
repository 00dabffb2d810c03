#pragma once

#include <QString>
#include <optional>

#include "forms/form_reader.h"
#include "forms/hungarian_analysis.h"

/// The reading of a form that the Hungarian dictionary takes for a word of its own or for another form: demonstratives
/// with a case ("arra"), "nincsenek". Nothing for all others.
[[nodiscard]] std::optional<olvasat> kivételes_olvasat(const QString &alak);

/// The analysis with the word that learners look up where the Hungarian dictionary has another stem: "fiú" of "fiai",
/// "emlékszik" of "emlékszem", "lehet" of "lehetne". All others as they are.
[[nodiscard]] elemzés szótári_tővel(elemzés egy, const QString &alak);
