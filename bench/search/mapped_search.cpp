#include "search/mapped_search.h"

#include <algorithm>
#include <cstring>

#include "dictionary/dictionary_search.h"

namespace {

/// Less than 0 when the line stands before every line that begins with the text, 0 when it is one of them.
int compare_beginning(QByteArrayView line, QByteArrayView text) {
    const QByteArrayView bare = keresőkulcs(line);
    const qsizetype common = std::min(bare.size(), text.size());
    const int order = std::memcmp(bare.data(), text.data(), static_cast<size_t>(common));
    return order != 0 || common == text.size() ? order : -1;
}

}  // namespace

MappedSearch::MappedSearch(const QString &path) : file_(path) {
    const uchar *mapped = file_.open(QIODevice::ReadOnly) ? file_.map(0, file_.size()) : nullptr;
    if (!mapped)
        qFatal("cannot map %s", qPrintable(path));
    bytes_ = QByteArrayView(mapped, file_.size());
    entries_ = bytes_.indexOf('\n') + 1;
}

void MappedSearch::find(QByteArrayView text, Hits &hits) const {
    qsizetype start = first_not_before(text);
    while (start < bytes_.size()) {
        QByteArrayView line = line_at(start);
        if (compare_beginning(line, text) != 0)
            return;
        start += line.size() + 1;
        if (line.endsWith('\r'))
            line.chop(1);
        const qsizetype colon = line.indexOf(':');
        if (colon >= 0)
            hits.add(line.first(colon), line.sliced(colon + 1));
    }
}

qsizetype MappedSearch::first_not_before(QByteArrayView text) const {
    qsizetype low = entries_;
    qsizetype high = bytes_.size();
    while (low < high) {
        const qsizetype start = line_start(low + (high - low) / 2);
        const QByteArrayView line = line_at(start);
        if (compare_beginning(line, text) < 0)
            low = start + line.size() + 1;
        else
            high = start;
    }
    return low;
}

qsizetype MappedSearch::line_start(qsizetype position) const {
    return position == 0 ? 0 : bytes_.lastIndexOf('\n', position - 1) + 1;
}

QByteArrayView MappedSearch::line_at(qsizetype start) const {
    const QByteArrayView rest = bytes_.sliced(start);
    const qsizetype end = rest.indexOf('\n');
    return end < 0 ? rest : rest.first(end);
}
