#include "platform/command_line.h"

#include <QCoreApplication>
#include <QStringList>

QString command_line_text() {
    // Without what the toolkit has taken for itself.
    return QCoreApplication::arguments().mid(1).join(u' ');
}
