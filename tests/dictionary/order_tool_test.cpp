#include "dictionary/order_tool.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

class OrderTool : public testing::Test {
  protected:
    std::optional<Failure> run(const QByteArray &input) {
        write_file(folder_.filePath(u"magyar.skt"_s), input);
        return run();
    }

    std::optional<Failure> run() {
        return állományátalakító(
                   folder_.path(), [this](const QString &text) { shown_.append(text); }, [this] { return stop_; })
            .átalakít();
    }

    [[nodiscard]] QByteArray output() const { return read_file(folder_.filePath(u"magyarvg.skt"_s)); }

    QTemporaryDir folder_;
    QStringList shown_;
    bool stop_ = false;
};

TEST_F(OrderTool, makes_no_output_of_a_file_in_order) {
    EXPECT_FALSE(run("ALMA\r\nbarack\r\nZEBRA\r\n"));

    EXPECT_EQ(output(), "(no such file)");
    EXPECT_EQ(shown_, QStringList({u"Folyamatban..."_s, u" 0, 3"_s, u"Művelet kész."_s}));
}

TEST_F(OrderTool, writes_the_lines_upper_cased_and_sorted) {
    EXPECT_FALSE(run("t\xfbz\r\nbarack\r\nalma\r\n"));

    EXPECT_EQ(output(), "ALMA\r\nBARACK\r\nT\xdbZ\r\n");
}

TEST_F(OrderTool, counts_the_lines_that_sort_before_their_predecessor) {
    EXPECT_FALSE(run("c\r\nb\r\na\r\nd\r\n"));

    EXPECT_EQ(shown_,
              QStringList({u"Folyamatban..."_s, u" 2, 4"_s, u" 1"_s, u" 2"_s, u" 3"_s, u" 4"_s, u"Művelet kész."_s}));
}

TEST_F(OrderTool, compares_bytes_so_that_accented_letters_come_last) {
    EXPECT_FALSE(run("\xe1gy\r\nzebra\r\nalma\r\n"));

    EXPECT_EQ(output(), "ALMA\r\nZEBRA\r\n\xc1GY\r\n");
}

TEST_F(OrderTool, keeps_repeated_and_empty_lines) {
    EXPECT_FALSE(run("b\r\n\r\nb\r\n"));

    EXPECT_EQ(output(), "\r\nB\r\nB\r\n");
}

TEST_F(OrderTool, sees_order_after_upper_casing_only) {
    EXPECT_FALSE(run("alma\r\nBARACK\r\n"));

    EXPECT_EQ(shown_[1], u" 0, 2"_s);
}

TEST_F(OrderTool, takes_an_empty_file_for_one_in_order) {
    EXPECT_FALSE(run(""));

    EXPECT_EQ(shown_[1], u" 0, 0"_s);
    EXPECT_EQ(output(), "(no such file)");
}

TEST_F(OrderTool, tells_when_its_input_is_missing) {
    const auto failure = run();

    ASSERT_TRUE(failure);
    EXPECT_TRUE(failure->sentence.contains(u"magyar.skt"_s));
}

TEST_F(OrderTool, writes_nothing_when_it_is_stopped) {
    stop_ = true;

    EXPECT_FALSE(run("b\r\na\r\n"));

    EXPECT_EQ(output(), "(no such file)");
    EXPECT_NE(shown_.back(), u"Művelet kész."_s);
}

}  // namespace
