#include "print/page_printer.h"

#include <gmock/gmock.h>

#include "support/recording_printer.h"

using namespace Qt::StringLiterals;

using testing::ElementsAre;

namespace {

/// In 10 points a letter of the recording printer is 100 wide and 200 high.
class PagePrinterPlace : public testing::Test {
  protected:
    PagePrinterPlace() {
        printer_.set_font_size(10);
        printer_.set_x(1000);
        printer_.set_y(5000);
    }
    void expect_at(double x, double y) const {
        EXPECT_EQ(printer_.x(), x);
        EXPECT_EQ(printer_.y(), y);
    }

    RecordingPrinter printer_;
};

TEST_F(PagePrinterPlace, begins_in_the_corner_of_the_first_page) {
    const RecordingPrinter fresh;

    EXPECT_EQ(fresh.x(), 0);
    EXPECT_EQ(fresh.y(), 0);
}

TEST_F(PagePrinterPlace, moves_to_the_right_of_a_text_that_does_not_end_the_line) {
    printer_.print(u"abc"_s);
    expect_at(1300, 5000);

    printer_.print(u"d"_s);
    EXPECT_THAT(printer_.texts,
                ElementsAre(PrintedText{1, 1000, 5000, 10, u"abc"_s}, PrintedText{1, 1300, 5000, 10, u"d"_s}));
}

TEST_F(PagePrinterPlace, goes_to_the_left_edge_of_the_next_line_after_a_text_that_ends_it) {
    printer_.print_line(u"abc"_s);

    expect_at(0, 5200);
}

TEST_F(PagePrinterPlace, counts_the_lines_that_lose_letters_at_an_edge_once_each) {
    printer_.set_x(12000 - 300);
    printer_.print_line(u"abc"_s);
    EXPECT_EQ(printer_.cut_lines(), 0);

    printer_.set_x(-1);
    printer_.print(u"abc"_s);
    printer_.set_x(12000 - 200);
    printer_.print(u"abc"_s);
    EXPECT_EQ(printer_.cut_lines(), 1);

    printer_.print_empty_line();
    printer_.set_x(12000 - 299);
    printer_.print_line(u"abc"_s);
    EXPECT_EQ(printer_.cut_lines(), 2);

    printer_.set_x(13000);
    printer_.print_line(QString());
    EXPECT_EQ(printer_.cut_lines(), 2);
}

TEST_F(PagePrinterPlace, moves_down_one_line_for_an_empty_one) {
    printer_.print_empty_line();

    expect_at(0, 5200);
}

TEST_F(PagePrinterPlace, moves_down_two_lines_when_an_open_line_is_followed_by_an_empty_one) {
    printer_.print(u"abc"_s);
    printer_.print_empty_line();
    expect_at(0, 5400);

    printer_.print_empty_line();
    expect_at(0, 5600);
}

TEST_F(PagePrinterPlace, moves_down_one_empty_line_after_a_line_that_was_ended) {
    printer_.print_line(u"abc"_s);
    printer_.print_empty_line();

    expect_at(0, 5400);
}

TEST_F(PagePrinterPlace, goes_to_the_corner_of_a_new_page_on_which_no_line_is_open) {
    printer_.print(u"abc"_s);

    EXPECT_TRUE(printer_.new_page());
    expect_at(0, 0);
    printer_.print_empty_line();
    expect_at(0, 200);
}

}  // namespace
