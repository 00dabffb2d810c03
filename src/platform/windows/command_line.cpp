#include "platform/command_line.h"

#include <windows.h>

#include "platform/windows/command_line_text.h"

QString command_line_text() {
    return behind_program_name(QString::fromWCharArray(GetCommandLineW()));
}
