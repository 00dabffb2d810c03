#pragma once

#include <QString>

/// The text of the command line behind the name of the program, empty when nothing stands there. On Windows it is as
/// the user or the desktop has written it, with its quotation marks; elsewhere a shell has taken these away, and the
/// arguments are joined by blanks. To be called when the application object is made. One source a system.
[[nodiscard]] QString command_line_text();
