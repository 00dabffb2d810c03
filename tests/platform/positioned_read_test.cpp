#include "platform/positioned_read.h"

#include <gtest/gtest.h>

#include <QTemporaryFile>
#include <array>

namespace {

class PositionedRead : public testing::Test {
  protected:
    PositionedRead() {
        if (!file_.open() || file_.write("0123456789\r\n") != 12 || !file_.flush())
            qFatal("cannot write a file");
    }

    /// What comes of up to four bytes from `from`.
    [[nodiscard]] QByteArray read(qint64 from) const {
        std::array<char, 4> bytes{};
        const qint64 got = read_at(file_.handle(), from, bytes.data(), bytes.size());
        return got < 0 ? QByteArray("(failed)") : QByteArray(bytes.data(), got);
    }

    QTemporaryFile file_;
};

TEST_F(PositionedRead, gives_the_bytes_from_a_place_as_they_are) {
    EXPECT_EQ(read(3), "3456");
    EXPECT_EQ(read(0), "0123");
    EXPECT_EQ(read(9), "9\r\n");
}

TEST_F(PositionedRead, gives_nothing_at_the_end_and_behind_it) {
    EXPECT_EQ(read(12), "");
    EXPECT_EQ(read(qint64{5} << 32), "");
}

TEST_F(PositionedRead, leaves_the_files_own_position_alone) {
    file_.seek(2);

    EXPECT_EQ(read(6), "6789");

    EXPECT_EQ(file_.pos(), 2);
    EXPECT_EQ(file_.read(3), "234");
}

}  // namespace
