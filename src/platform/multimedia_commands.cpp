#include "platform/multimedia_commands.h"

QString quoted_for_command(const QString &path) {
    QString inside = path;
    inside.replace(u'"', QStringLiteral("\"\""));
    return u'"' + inside + u'"';
}
