#pragma once

#include <windows.h>

#include "platform/file_system.h"

/// What the error `number` of the system means.
[[nodiscard]] FileTrouble trouble_of(DWORD number);
