#pragma once

#include <QString>
#include <vector>

#include "forms/form_reader.h"

/// What a contraction may stand for, the likelier first: "don't" is "to do" and "not", "he's" is "he" and "is" or
/// "has". Empty for what is none.
[[nodiscard]] std::vector<olvasat> összevont_alakok(const QString &alak);
