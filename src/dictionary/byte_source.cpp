#include "dictionary/byte_source.h"

#include <algorithm>

#include "platform/file_system.h"
#include "platform/positioned_read.h"

FileSource::FileSource(const QString &path) : file_(path) {
    if (!file_system::open_ordinary(file_, QIODevice::Unbuffered))
        size_ = file_.size();
}

qint64 FileSource::read(qint64 from, char *to, qint64 most) {
    return std::max<qint64>(0, read_at(file_.handle(), from, to, most));
}
