#include "dictionary/byte_source.h"

#include <algorithm>

FileSource::FileSource(const QString &path) : file_(path) {
    if (file_.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        size_ = file_.size();
}

qint64 FileSource::read(qint64 from, char *to, qint64 most) {
    if (!file_.seek(from))
        return 0;
    return std::max<qint64>(0, file_.read(to, most));
}
