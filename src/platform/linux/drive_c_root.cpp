#include <QStandardPaths>

#include "platform/drive_c.h"

QString DriveC::root_of_this_user() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + QStringLiteral("/zimbora/c");
}
