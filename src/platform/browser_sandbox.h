#pragma once

#include "platform/files.h"

/// Makes this process ready for the browser engine, which shows each page in a process of its own that the system locks
/// in. Call before the engine is loaded. It stays locked in for everybody but the system's administrator, for whom the
/// engine would not start; a failure when the system does not let an ordinary user lock a process in: the engine would
/// end the whole program. One source a system.
[[nodiscard]] std::optional<Failure> prepare_browser_sandbox();
