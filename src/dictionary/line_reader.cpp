#include "dictionary/line_reader.h"

#include <algorithm>

namespace {

// Two lines of a dictionary, the rest of one and the whole next, take about 90 bytes. A first read of 80 wastes less
// than a larger one and often is the only one; a run reads on in steps of a quarter of its length, so that it
// overshoots by a quarter at most.
constexpr qint64 first_read = 80;
constexpr qint64 largest_read = 16384;

}  // namespace

void LineReader::seek(qint64 position) {
    position_ = position;
    run_start_ = position;
}

std::optional<QByteArrayView> LineReader::next() {
    qsizetype searched = 0;
    length_ = 0;
    while (true) {
        const QByteArrayView bytes = ahead();
        const qsizetype end = bytes.sliced(searched).indexOf('\n');
        if (end >= 0) {
            QByteArrayView line = bytes.first(searched + end);
            position_ += line.size() + 1;
            if (line.endsWith('\r'))
                line.chop(1);
            length_ = line.size();
            return line.first(std::min(line.size(), longest_line));
        }
        searched = bytes.size();
        if (searched > longest_line)
            return cut_line();
        if (read_on())
            continue;
        if (searched == 0)
            return std::nullopt;
        // Reading on may have moved the buffer, so `bytes` is void.
        const QByteArrayView last = ahead();
        length_ = last.size();
        position_ += length_;
        return last.first(std::min(last.size(), longest_line));
    }
}

QByteArrayView LineReader::cut_line() {
    const QByteArrayView bytes = ahead();
    const qint64 start = position_;
    char last = bytes.back();
    position_ += bytes.size();
    length_ = bytes.size();
    QByteArray passed(longest_line, Qt::Uninitialized);
    // The buffer keeps the beginning of the line.
    while (true) {
        const qint64 got = source_.read(position_, passed.data(), passed.size());
        if (got <= 0)
            break;
        const QByteArrayView piece = QByteArrayView(passed).first(got);
        const qsizetype end = piece.indexOf('\n');
        if (end >= 0) {
            last = end > 0 ? piece[end - 1] : last;
            position_ += end + 1;
            length_ = position_ - 1 - start - (last == '\r' ? 1 : 0);
            break;
        }
        last = piece.back();
        position_ += got;
        length_ = position_ - start;
    }
    return bytes.first(longest_line);
}

QByteArrayView LineReader::ahead() const {
    const qint64 skipped = position_ - buffer_start_;
    if (skipped < 0 || skipped > buffer_.size())
        return {};
    return QByteArrayView(buffer_).sliced(skipped);
}

bool LineReader::read_on() {
    const QByteArrayView kept = ahead();
    const qsizetype kept_size = kept.size();
    // Every byte before the next line is done with; what is kept moves to the front.
    if (kept_size == 0)
        buffer_.resize(0);
    else
        buffer_.remove(0, buffer_.size() - kept_size);
    buffer_start_ = position_;

    const qint64 run = position_ + kept_size - run_start_;
    const qint64 wanted = std::clamp(run / 4, first_read, std::max(largest_read, kept_size));
    buffer_.resize(kept_size + wanted);
    const qint64 got = source_.read(buffer_start_ + kept_size, buffer_.data() + kept_size, wanted);
    buffer_.resize(kept_size + got);
    return got > 0;
}
