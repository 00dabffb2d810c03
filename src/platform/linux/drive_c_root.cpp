#include <QStandardPaths>

#include "platform/drive_c.h"

using namespace Qt::StringLiterals;

QString DriveC::root_of_this_user() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/zimbora/c"_s;
}
