#pragma once

#include <QString>
#include <optional>

#include "dictionary/byte_source.h"

/// What is wrong with a file that ought to be a dictionary, as the end of a sentence in Hungarian; nothing for a sound
/// one. A search in a damaged file merely finds less or nothing. Samples from the whole file are looked at, 128 KiB at
/// most, so damage in a small place of a large file is not seen.
[[nodiscard]] std::optional<QString> szótárhiba(ByteSource &forrás);
