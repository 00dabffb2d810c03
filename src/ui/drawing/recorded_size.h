#pragma once

/// Width and height of a recorded drawing, in its own units.
inline constexpr int recorded_size = 1024;
