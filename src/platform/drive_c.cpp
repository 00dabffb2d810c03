#include "platform/drive_c.h"

#include <QDir>
#include <utility>

DriveC::DriveC(QString root) : root_(std::move(root)) {}

DriveC DriveC::of_this_user() {
    const QString named = qEnvironmentVariable("ZIMBORA_C");
    return DriveC(named.isEmpty() ? root_of_this_user() : QDir(named).absolutePath());
}

QString DriveC::path(QStringView fixed_place) const {
    Q_ASSERT(fixed_place.startsWith(u"c:\\"));
    return root_ + u'/' + fixed_place.mid(3).toString().replace(u'\\', u'/');
}

bool DriveC::make_root() const {
    return QDir().mkpath(root_);
}
