#include "dictionary/line_reader.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <algorithm>
#include <cstring>
#include <random>

#include "support/files_for_tests.h"
#include "support/memory_source.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

QByteArrayList all_lines(LineReader &lines) {
    QByteArrayList read;
    while (const auto line = lines.next())
        read.append(line->toByteArray());
    return read;
}

TEST(LineReader, reads_lines_with_either_line_end_and_a_last_one_without) {
    MemorySource source("one\r\ntwo\n\r\nlast");
    LineReader lines(source);

    EXPECT_EQ(all_lines(lines), QByteArrayList({"one", "two", "", "last"}));
}

TEST(LineReader, goes_on_from_where_it_was_put) {
    MemorySource source("one\r\ntwo\r\nthree\r\n");
    LineReader lines(source);
    lines.seek(6);

    EXPECT_EQ(lines.next()->toByteArray(), "wo");
    EXPECT_EQ(lines.position(), 10);
    EXPECT_EQ(lines.next()->toByteArray(), "three");
    EXPECT_FALSE(lines.next());
}

TEST(LineReader, has_no_line_behind_the_end) {
    MemorySource source("one\r\n");
    LineReader lines(source);
    lines.seek(1000);

    EXPECT_FALSE(lines.next());
}

TEST(LineReader, gives_a_last_line_whole_whose_bytes_moved_while_it_looked_for_more) {
    const QByteArray last = "a last line without a line end, in which no two places are alike: 0123456789";
    MemorySource source("first\n" + last);
    LineReader lines(source);

    EXPECT_EQ(lines.next()->toByteArray(), "first");
    EXPECT_EQ(lines.next()->toByteArray(), last);
}

TEST(LineReader, equals_a_split_of_the_bytes_after_any_seeks) {
    std::mt19937 random(3);
    QByteArray bytes;
    for (int i = 0; i < 300; ++i)
        bytes += QByteArray(static_cast<qsizetype>(random() % 400), static_cast<char>('a' + i % 26)) + '\n';
    MemorySource source(bytes);
    LineReader lines(source);

    for (int i = 0; i < 2000; ++i) {
        const auto from = static_cast<qint64>(random() % static_cast<unsigned>(bytes.size()));
        lines.seek(from);
        const QByteArrayList rest = bytes.mid(from).split('\n');
        EXPECT_EQ(lines.next()->toByteArray(), rest[0]);
        if (rest.size() > 2) {
            EXPECT_EQ(lines.next()->toByteArray(), rest[1]);
        }
    }
}

TEST(LineReader, reads_little_more_than_the_lines_it_gives) {
    QByteArray bytes;
    while (bytes.size() < 100000)
        bytes += "a line of forty-five bytes, as they often are\r\n";
    MemorySource source(bytes);
    LineReader lines(source);

    lines.seek(50000);
    static_cast<void>(lines.next());
    static_cast<void>(lines.next());
    EXPECT_LE(source.bytes_read, 128);
    while (lines.position() < 90000)
        static_cast<void>(lines.next());
    EXPECT_LE(source.bytes_read, 50000);
    EXPECT_LE(source.reads, 60);
}

TEST(LineReader, keeps_the_beginning_of_a_line_that_is_too_long_and_goes_on_behind_it) {
    const qsizetype longest = LineReader::longest_line;
    for (const char *end : {"\n", "\r\n", ""}) {
        for (const qsizetype size : {longest - 1, longest, longest + 1, longest + 2, 2 * longest, 5 * longest + 7}) {
            const QByteArray line(size, 'x');
            MemorySource source("a\n" + line + end + (*end == '\0' ? "" : "next\n"));
            LineReader lines(source);
            static_cast<void>(lines.next());

            EXPECT_EQ(lines.next()->toByteArray(), line.first(std::min(size, longest))) << size;
            EXPECT_EQ(lines.length(), size);
            EXPECT_EQ(lines.position(), 2 + size + static_cast<qint64>(std::strlen(end)));

            const auto next = lines.next();
            EXPECT_EQ(next ? next->toByteArray() : QByteArray(), *end == '\0' ? "" : "next") << size;
        }
    }
}

/// A source of one long line, no part of which is in memory.
class LongLine final : public ByteSource {
  public:
    [[nodiscard]] qint64 size() const override { return size_; }
    [[nodiscard]] qint64 read(qint64 from, char *to, qint64 most) override {
        largest_read = std::max(largest_read, most);
        const qint64 got = std::clamp<qint64>(size_ - from, 0, most);
        std::fill_n(to, got, 'x');
        return got;
    }

    qint64 largest_read = 0;

  private:
    const qint64 size_ = 1LL << 28;
};

TEST(LineReader, passes_over_a_line_of_256_mebibytes_in_small_steps) {
    LongLine source;
    LineReader lines(source);

    EXPECT_EQ(lines.next()->size(), LineReader::longest_line);

    EXPECT_EQ(lines.length(), source.size());
    EXPECT_FALSE(lines.next());
    EXPECT_LE(source.largest_read, 2 * LineReader::longest_line);
}

TEST(LineReader, reads_a_file_where_it_lies) {
    const QTemporaryDir folder;
    write_file(folder.filePath(u"am.txt"_s), "one\r\ntwo\r\n");
    FileSource source(folder.filePath(u"am.txt"_s));
    LineReader lines(source);

    EXPECT_TRUE(source.is_open());
    EXPECT_EQ(source.size(), 10);
    EXPECT_EQ(all_lines(lines), QByteArrayList({"one", "two"}));
}

TEST(LineReader, cannot_open_a_missing_file_or_a_folder) {
    const QTemporaryDir folder;

    EXPECT_FALSE(FileSource(folder.filePath(u"nincs"_s)).is_open());
    EXPECT_FALSE(FileSource(folder.path()).is_open());
}

}  // namespace
