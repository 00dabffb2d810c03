#pragma once

#include <QByteArray>
#include <algorithm>
#include <cstring>
#include <utility>

#include "dictionary/byte_source.h"

/// Another source, with a count of how often and how much of it is read.
class CountingSource final : public ByteSource {
  public:
    explicit CountingSource(ByteSource &counted) : counted_(counted) {}

    int reads = 0;
    qint64 bytes_read = 0;

    [[nodiscard]] qint64 size() const override { return counted_.size(); }

    [[nodiscard]] qint64 read(qint64 from, char *to, qint64 most) override {
        const qint64 got = counted_.read(from, to, most);
        ++reads;
        bytes_read += got;
        return got;
    }

  private:
    ByteSource &counted_;
};

/// Bytes in memory that count how often and how much of them is read.
class MemorySource final : public ByteSource {
  public:
    explicit MemorySource(QByteArray bytes) : bytes_(std::move(bytes)) {}

    int reads = 0;
    qint64 bytes_read = 0;

    [[nodiscard]] qint64 size() const override { return bytes_.size(); }

    [[nodiscard]] qint64 read(qint64 from, char *to, qint64 most) override {
        const qint64 got = std::clamp<qint64>(bytes_.size() - from, 0, most);
        if (got > 0)
            std::memcpy(to, bytes_.constData() + from, static_cast<size_t>(got));
        ++reads;
        bytes_read += got;
        return got;
    }

  private:
    QByteArray bytes_;
};
