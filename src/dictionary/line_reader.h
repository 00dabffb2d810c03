#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <optional>

#include "dictionary/byte_source.h"

/// Reads lines from any position of a source, and few bytes more than those lines have: a read is small after a seek
/// and grows with the run of lines that follows it. A line ends with CR LF, LF alone, or the end of the source. Of a
/// line longer than `longest_line` only that much is kept; the rest is passed over.
class LineReader final {
  public:
    static constexpr qsizetype longest_line = 65536;

    /// `source` must outlive the reader.
    explicit LineReader(ByteSource &source) : source_(source) {}

    /// The next line will be what stands from the byte offset `position` (counted from 0) to the next line end.
    void seek(qint64 position);

    /// Offset of the first byte of the next line.
    [[nodiscard]] qint64 position() const { return position_; }

    /// The next line without its line end; nothing at the end of the source. The view holds until the next call.
    [[nodiscard]] std::optional<QByteArrayView> next();

    /// How long the line was that next() gave last, with all that was passed over of it; 0 when it gave none.
    [[nodiscard]] qint64 length() const { return length_; }

  private:
    /// The bytes from position_ on that are in the buffer.
    [[nodiscard]] QByteArrayView ahead() const;
    /// Reads on behind the buffer; false at the end of the source.
    [[nodiscard]] bool read_on();
    /// The next line, of which more than the longest is in the buffer.
    [[nodiscard]] QByteArrayView cut_line();

    ByteSource &source_;
    QByteArray buffer_;
    qint64 buffer_start_ = 0;
    qint64 position_ = 0;
    qint64 run_start_ = 0;
    qint64 length_ = 0;
};
