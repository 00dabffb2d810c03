#pragma once

#include <algorithm>
#include <cstring>

#include "dictionary/byte_source.h"

/// Passes reads on to another source and counts them.
class CountingSource final : public ByteSource {
  public:
    explicit CountingSource(ByteSource &source) : source_(source) {}

    qint64 reads = 0;
    qint64 bytes = 0;

    [[nodiscard]] qint64 size() const override { return source_.size(); }

    [[nodiscard]] qint64 read(qint64 from, char *to, qint64 most) override {
        const qint64 got = source_.read(from, to, most);
        ++reads;
        bytes += got;
        return got;
    }

  private:
    ByteSource &source_;
};

/// Gives no byte behind the end of a line with that line. A search reads the lines that it looks at from here and
/// nothing besides: what it needs at least.
class LineByLineSource final : public ByteSource {
  public:
    /// `whole` must outlive the source.
    explicit LineByLineSource(const QByteArray &whole) : whole_(whole) {}

    [[nodiscard]] qint64 size() const override { return whole_.size(); }

    [[nodiscard]] qint64 read(qint64 from, char *to, qint64 most) override {
        const QByteArrayView rest = QByteArrayView(whole_).sliced(std::min<qint64>(from, whole_.size()));
        const qsizetype end = rest.indexOf('\n');
        const qint64 got = std::min<qint64>(most, end < 0 ? rest.size() : end + 1);
        if (got > 0)
            std::memcpy(to, rest.data(), static_cast<size_t>(got));
        return got;
    }

  private:
    const QByteArray &whole_;
};
