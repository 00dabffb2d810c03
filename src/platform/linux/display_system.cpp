#include "platform/display_system.h"

#include <QByteArray>
#include <QtGlobal>

void choose_display_system() {
    const bool chosen = qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
    const bool wayland = qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    const bool x11_too = qEnvironmentVariableIsSet("DISPLAY");
    if (!chosen && wayland && x11_too)
        qputenv("QT_QPA_PLATFORM", QByteArrayLiteral("xcb"));
}
