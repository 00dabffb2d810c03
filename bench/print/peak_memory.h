#pragma once

/// The memory of this process, in MiB: what it holds now, and the most that it has held since forget_peak().
[[nodiscard]] double memory_now();
[[nodiscard]] double memory_peak();
void forget_peak();
