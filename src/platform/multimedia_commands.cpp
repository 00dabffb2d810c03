#include "platform/multimedia_commands.h"

using namespace Qt::StringLiterals;

QString quoted_for_command(const QString &path) {
    QString inside = path;
    inside.replace(u'"', u"\"\""_s);
    return u'"' + inside + u'"';
}
