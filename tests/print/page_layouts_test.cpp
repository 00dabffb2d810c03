#include "print/page_layouts.h"

#include <gmock/gmock.h>

#include "support/printing.h"
#include "support/recording_printer.h"
#include "support/word_pairs.h"

using namespace Qt::StringLiterals;

using testing::ElementsAre;
using testing::IsEmpty;
using Orientation = PagePrinter::Orientation;

namespace {

/// The layouts on a page of 12000 × 16000 twips. In 14 points a letter is 140 wide and 280 high.
class PageLayouts : public testing::Test {
  protected:
    nyomtatásvége print(nyomtatástípus kind, const QVector<szópár> &pairs) {
        what_.párok = pairs;
        return nyomtat(paper_, kind, what_, watch_);
    }
    nyomtatásvége print_list(const QVector<szópár> &pairs, int columns,
                             Orientation orientation = Orientation::portrait) {
        paper_.set_orientation(orientation);
        paper_.orders.clear();
        what_.hasábok = columns;
        return print(nyomtatástípus::szószedet, pairs);
    }

    /// What stands on the first page, without the title.
    [[nodiscard]] QList<PrintedText> rows() const { return paper_.texts_of_page(1).mid(1); }
    /// How many pairs stand on each page.
    [[nodiscard]] QList<qsizetype> pairs_on_pages() const {
        QList<qsizetype> counts;
        for (int page = 1; page <= paper_.pages; ++page)
            counts.append(paper_.texts_of_page(page).size() - (page == 1 ? 1 : 0));
        return counts;
    }
    [[nodiscard]] static QString line(int i) { return u"word%1  -  szó%1"_s.arg(i); }

    RecordingPrinter paper_;
    nyomtatandó what_{{}, u"/lists/állatok.szs"_s, 14, 1};
    nyomtatásfigyelő watch_ = [](int, int) { return true; };
};

// The word-list layout. The title stands at W/20, H/20 = (600, 800) in 12 points and is 240 high, so its line ends at
// 1040. One empty line of 280 follows; the first row stands at 1320, and each next one 280 + 280 below. The hyphen's
// axis of column k of c is 12000 · k / (c + 1), and "  -  " is 700 wide, half of it 350.

TEST_F(PageLayouts, list_of_no_pair_is_a_page_with_the_title_only) {
    EXPECT_EQ(print_list({}, 1), nyomtatásvége::kész);

    EXPECT_THAT(paper_.texts, ElementsAre(PrintedText{1, 600, 800, 12, u"/lists/állatok.szs szószedet"_s}));
    EXPECT_EQ(paper_.pages, 1);
    EXPECT_TRUE(paper_.ended);
}

TEST_F(PageLayouts, title_of_a_list_never_saved_is_the_word_alone) {
    what_.út.clear();

    print_list({}, 1);

    EXPECT_THAT(paper_.texts, ElementsAre(PrintedText{1, 600, 800, 12, u" szószedet"_s}));
}

TEST_F(PageLayouts, title_has_twelve_points_whatever_size_is_chosen) {
    what_.betűméret = 50;

    print_list(numbered_pairs(1), 1);

    EXPECT_THAT(paper_.orders, ElementsAre(u"size 50"_s, u"size 12"_s, u"size 50"_s, u"end"_s));
    ASSERT_EQ(paper_.texts.size(), 2);
    EXPECT_EQ(paper_.texts[0].points, 12);
    // The title ends at 1040, and an empty line of 50 points is 1000 high. "word0" is 2500 wide, half of "  -  " 1250.
    EXPECT_EQ(paper_.texts[1], (PrintedText{1, 6000 - 1250 - 2500, 2040, 50, line(0)}));
}

TEST_F(PageLayouts, one_pair_stands_with_its_hyphen_on_the_axis_of_the_first_column) {
    // "word0" is 700 wide: x = axis − 350 − 700. The axes: 12000/2, 12000/3, 12000/4.
    for (const auto &[columns, x] : {std::pair{1, 4950.0}, {2, 2950.0}, {3, 1950.0}}) {
        RecordingPrinter paper;
        what_.párok = numbered_pairs(1);
        what_.hasábok = columns;
        EXPECT_EQ(nyomtat(paper, nyomtatástípus::szószedet, what_, watch_), nyomtatásvége::kész);

        EXPECT_THAT(paper.texts_of_page(1).mid(1), ElementsAre(PrintedText{1, x, 1320, 14, line(0)}));
    }
}

TEST_F(PageLayouts, two_pairs_stand_below_each_other_with_an_empty_line_between) {
    print_list(numbered_pairs(2), 1);

    EXPECT_THAT(rows(), ElementsAre(PrintedText{1, 4950, 1320, 14, line(0)}, PrintedText{1, 4950, 1880, 14, line(1)}));
}

TEST_F(PageLayouts, two_pairs_in_two_columns_share_a_line) {
    print_list(numbered_pairs(2), 2);

    EXPECT_THAT(rows(), ElementsAre(PrintedText{1, 2950, 1320, 14, line(0)}, PrintedText{1, 6950, 1320, 14, line(1)}));
}

TEST_F(PageLayouts, seven_pairs_in_three_columns_stand_in_rows_of_three_three_and_one) {
    print_list(numbered_pairs(7), 3);

    EXPECT_THAT(rows(), ElementsAre(PrintedText{1, 1950, 1320, 14, line(0)}, PrintedText{1, 4950, 1320, 14, line(1)},
                                    PrintedText{1, 7950, 1320, 14, line(2)}, PrintedText{1, 1950, 1880, 14, line(3)},
                                    PrintedText{1, 4950, 1880, 14, line(4)}, PrintedText{1, 7950, 1880, 14, line(5)},
                                    PrintedText{1, 1950, 2440, 14, line(6)}));
}

TEST_F(PageLayouts, seven_pairs_in_landscape_take_the_turned_page) {
    // W = 16000, H = 12000: the title at (800, 600), the first row at 600 + 240 + 280; axes at 16000/3 and 32000/3.
    print_list(numbered_pairs(7), 2, Orientation::landscape);

    ASSERT_EQ(paper_.texts.size(), 8);
    EXPECT_EQ(paper_.texts[0], (PrintedText{1, 800, 600, 12, u"/lists/állatok.szs szószedet"_s}));
    const double rows_y[] = {1120, 1680, 2240, 2800};
    for (int i = 0; i < 7; ++i) {
        const PrintedText &one = paper_.texts[i + 1];
        EXPECT_NEAR(one.x, (i % 2 == 0 ? 5333.3333 : 10666.6667) - 350 - 700, 0.001);
        EXPECT_EQ(one.y, rows_y[i / 2]);
        EXPECT_EQ(one.text, line(i));
    }
}

// 0.95 · H = 15200: the last row of a page stands at 14920 at the lowest. On the first page that is 1320 + 24 · 560 =
// 14760, the 25th row; on the others, which begin at 800, 800 + 25 · 560 = 14800, the 26th. In landscape the limit is
// 11400 − 280 = 11120: 1120 + 17 · 560 = 10640, the 18th row, and 600 + 18 · 560 = 10680, the 19th.

TEST_F(PageLayouts, five_hundred_pairs_fill_the_pages_to_95_percent) {
    struct {
        int columns;
        Orientation orientation;
        QList<qsizetype> on_pages;
    } const all[] = {
        // 500 rows: 25, 18 pages of 26, 7.
        {1, Orientation::portrait, QList<qsizetype>{25} + QList<qsizetype>(18, 26) + QList<qsizetype>{7}},
        // 250 rows: 25, 8 pages of 26, 17.
        {2, Orientation::portrait, QList<qsizetype>{50} + QList<qsizetype>(8, 52) + QList<qsizetype>{34}},
        // 167 rows, the last with 2 pairs: 25, 5 pages of 26, 12.
        {3, Orientation::portrait, QList<qsizetype>{75} + QList<qsizetype>(5, 78) + QList<qsizetype>{35}},
        // 500 rows: 18, 25 pages of 19, 7.
        {1, Orientation::landscape, QList<qsizetype>{18} + QList<qsizetype>(25, 19) + QList<qsizetype>{7}},
        // 250 rows: 18, 12 pages of 19, 4.
        {2, Orientation::landscape, QList<qsizetype>{36} + QList<qsizetype>(12, 38) + QList<qsizetype>{8}},
        // 167 rows: 18, 7 pages of 19, 16.
        {3, Orientation::landscape, QList<qsizetype>{54} + QList<qsizetype>(7, 57) + QList<qsizetype>{47}}};
    for (const auto &[columns, orientation, on_pages] : all) {
        RecordingPrinter paper;
        paper.set_orientation(orientation);
        what_.párok = numbered_pairs(500);
        what_.hasábok = columns;

        EXPECT_EQ(nyomtat(paper, nyomtatástípus::szószedet, what_, watch_), nyomtatásvége::kész);

        QList<qsizetype> counts;
        for (int page = 1; page <= paper.pages; ++page)
            counts.append(paper.texts_of_page(page).size());
        counts[0] -= 1;
        EXPECT_EQ(counts, on_pages) << columns;
        ASSERT_EQ(paper.texts.size(), 501);
        for (int i = 0; i < 500; ++i)
            EXPECT_EQ(paper.texts[i + 1].text, line(i));
    }
}

TEST_F(PageLayouts, pairs_stand_where_their_row_and_column_are_in_every_list_column_count_and_orientation) {
    // First row of the first page, of the others, and rows on them, as reckoned above.
    struct Paper {
        Orientation orientation;
        double width;
        double first;
        int rows_of_first;
        double next;
        int rows_of_next;
    };
    for (const Paper &on : {Paper{Orientation::portrait, 12000, 1320, 25, 800, 26},
                            Paper{Orientation::landscape, 16000, 1120, 18, 600, 19}}) {
        for (const int columns : {1, 2, 3}) {
            for (const int count : {0, 1, 2, 7, 500}) {
                RecordingPrinter paper;
                paper.set_orientation(on.orientation);
                what_.párok = numbered_pairs(count);
                what_.hasábok = columns;

                EXPECT_EQ(nyomtat(paper, nyomtatástípus::szószedet, what_, watch_), nyomtatásvége::kész);

                ASSERT_EQ(paper.texts.size(), count + 1);
                for (int i = 0; i < count; ++i) {
                    const PrintedText &one = paper.texts[i + 1];
                    const int row = i / columns;
                    const bool on_first = row < on.rows_of_first;
                    const int below = on_first ? row : (row - on.rows_of_first) % on.rows_of_next;
                    const int letters_before = static_cast<int>(QString::number(i).size()) + 4;
                    EXPECT_EQ(one.page, on_first ? 1 : 2 + (row - on.rows_of_first) / on.rows_of_next) << i;
                    EXPECT_NEAR(one.x, on.width * (i % columns + 1) / (columns + 1) - 350 - 140 * letters_before, 0.001)
                        << i;
                    EXPECT_EQ(one.y, (on_first ? on.first : on.next) + 560 * below) << i;
                    EXPECT_EQ(one.points, 14);
                }
            }
        }
    }
}

TEST_F(PageLayouts, row_that_would_pass_95_percent_of_the_height_begins_a_page_at_5_percent) {
    print_list(numbered_pairs(52), 1);

    EXPECT_THAT(pairs_on_pages(), ElementsAre(25, 26, 1));
    EXPECT_EQ(paper_.texts_of_page(1).back().y, 14760);
    EXPECT_EQ(paper_.texts_of_page(2).front(), (PrintedText{2, 12000 / 2.0 - 350 - 840, 800, 14, line(25)}));
    EXPECT_EQ(paper_.texts_of_page(2).back().y, 14800);
    EXPECT_EQ(paper_.texts_of_page(3).front().y, 800);
}

TEST_F(PageLayouts, row_that_ends_exactly_at_95_percent_stays_on_its_page) {
    // In 16 points rows are 640 apart and 320 high. On the first page they begin at 1360: the 22nd ends at 15120. On
    // the second they begin at 800: the 23rd ends at 800 + 22 · 640 + 320 = 15200.
    what_.betűméret = 16;

    print_list(numbered_pairs(46), 1);

    EXPECT_THAT(pairs_on_pages(), ElementsAre(22, 23, 1));
}

TEST_F(PageLayouts, title_is_not_repeated_on_the_other_pages) {
    print_list(numbered_pairs(60), 1);

    for (const PrintedText &one : paper_.texts_of_page(2))
        EXPECT_EQ(one.points, 14);
}

TEST_F(PageLayouts, english_word_wider_than_its_space_starts_left_of_the_page_edge) {
    const QString wide(60, u'w');  // 8400 wide; the axis is at 6000

    print_list({{wide, u"széles"_s}}, 1);

    EXPECT_EQ(rows().front().x, 6000 - 350 - 8400);
}

TEST_F(PageLayouts, very_long_texts_are_printed_cut_in_every_layout) {
    const QString longest(1'000'000, u'x');
    const QString shown = QString(10'000, u'x') + u'…';

    EXPECT_EQ(print_list({{u"a"_s, longest}}, 1), nyomtatásvége::kész);
    EXPECT_EQ(print(nyomtatástípus::szópárok, {{longest, u"b"_s}}), nyomtatásvége::kész);
    EXPECT_EQ(print(nyomtatástípus::szókártyák, {{u"c"_s, longest}}), nyomtatásvége::kész);

    QStringList texts;
    for (const PrintedText &one : paper_.texts)
        texts << one.text;
    EXPECT_THAT(texts, ElementsAre(testing::_, u"a  -  "_s + shown, shown + u"  -  b"_s, u"c"_s, shown, QString()));
}

TEST_F(PageLayouts, list_keeps_the_orientation_that_is_set) {
    print_list(numbered_pairs(7), 1, Orientation::landscape);

    EXPECT_THAT(paper_.orders, testing::Not(testing::Contains(u"portrait"_s)));
    EXPECT_FALSE(paper_.portrait());
}

// Pages of a single text: 16000 × 12000. The size grows while the widest text is lower than or as high as 10800 and
// narrower than 14400.

TEST_F(PageLayouts, pairs_of_an_empty_list_print_nothing_at_all) {
    EXPECT_EQ(print(nyomtatástípus::szópárok, {}), nyomtatásvége::kész);

    EXPECT_THAT(paper_.texts, IsEmpty());
    EXPECT_THAT(paper_.orders, IsEmpty());
}

TEST_F(PageLayouts, pair_alone_stands_in_the_middle_of_a_landscape_page_as_large_as_fits) {
    // 14 letters are 140 wide in a point: 102 points make 14280, 103 would make 14420. 102 points are 2040 high.
    print(nyomtatástípus::szópárok, numbered_pairs(1));

    EXPECT_THAT(paper_.texts, ElementsAre(PrintedText{1, 8000 - 7140, 6000 - 1020, 102, line(0)}));
    EXPECT_FALSE(paper_.portrait());
    EXPECT_TRUE(paper_.ended);
}

TEST_F(PageLayouts, two_pairs_take_a_page_each_in_the_size_of_the_widest) {
    // "longer  -  hosszabb" has 19 letters: 75 points make 14250, 76 would make 14440. "a  -  b" is then 5250 wide.
    print(nyomtatástípus::szópárok, pairs_of({{u"a", u"b"}, {u"longer", u"hosszabb"}}));

    EXPECT_THAT(paper_.texts, ElementsAre(PrintedText{1, 8000 - 2625, 6000 - 750, 75, u"a  -  b"_s},
                                          PrintedText{2, 8000 - 7125, 6000 - 750, 75, u"longer  -  hosszabb"_s}));
    EXPECT_EQ(paper_.pages, 2);
}

TEST_F(PageLayouts, seven_and_five_hundred_pairs_take_as_many_pages) {
    // "word6  -  szó6" has 14 letters: 102 points. "word100  -  szó100" has 18: 79 points make 14220, 80 would make
    // 14400.
    for (const auto &[count, points] : {std::pair{7, 102}, {500, 79}}) {
        RecordingPrinter paper;
        what_.párok = numbered_pairs(count);

        EXPECT_EQ(nyomtat(paper, nyomtatástípus::szópárok, what_, watch_), nyomtatásvége::kész);

        EXPECT_EQ(paper.pages, count);
        ASSERT_EQ(paper.texts.size(), count);
        for (int i = 0; i < count; ++i) {
            const double width = 10.0 * points * static_cast<double>(line(i).size());
            EXPECT_EQ(paper.texts[i], (PrintedText{i + 1, 8000 - width / 2, 6000 - points * 10.0,
                                                   static_cast<double>(points), line(i)}));
        }
    }
}

TEST_F(PageLayouts, size_stops_before_the_text_is_as_wide_as_nine_tenths_of_the_page) {
    // 12 letters in 120 points are 14400 wide, exactly nine tenths.
    print(nyomtatástípus::szókártyák, {{QString(12, u'a'), QString()}});

    EXPECT_EQ(paper_.texts.front().points, 119);
}

TEST_F(PageLayouts, size_stops_when_the_text_is_higher_than_nine_tenths_of_the_page) {
    // 540 points are 10800 high, exactly nine tenths.
    print(nyomtatástípus::szókártyák, pairs_of({{u"a", u"b"}}));

    EXPECT_EQ(paper_.texts.front().points, 540);
}

TEST_F(PageLayouts, very_long_line_lowers_the_size_of_all_pages_to_ten_points_at_least) {
    const QString endless(300, u'x');  // 30000 wide in 10 points

    print(nyomtatástípus::szópárok, {{u"a"_s, u"b"_s}, {endless, u"c"_s}});

    ASSERT_EQ(paper_.texts.size(), 2);
    EXPECT_EQ(paper_.texts[0].points, 10);
    EXPECT_EQ(paper_.texts[1].points, 10);
    EXPECT_EQ(paper_.texts[1].x, 8000 - 15300);
}

TEST_F(PageLayouts, size_search_goes_up_from_ten_and_one_step_back) {
    print(nyomtatástípus::szókártyák, {{QString(120, u'x'), QString()}});  // 12 points are 14400 wide

    EXPECT_EQ(paper_.orders.mid(0, 5).join(u' '), u"landscape size 10 size 11 size 12 size 11"_s);
}

TEST_F(PageLayouts, widest_text_is_sought_in_the_size_that_was_set) {
    /// From 14 points on, texts with a "q" are twice as wide.
    class UnevenPrinter final : public RecordingPrinter {
        double text_width(const QString &text) const override {
            return RecordingPrinter::text_width(text) * (text.contains(u'q') && font_size() >= 14 ? 2 : 1);
        }
    };
    UnevenPrinter paper;
    paper.set_font_size(14);
    what_.párok = pairs_of({{u"abcd", u"ef"}, {u"q", u"q"}});

    EXPECT_EQ(nyomtat(paper, nyomtatástípus::szópárok, what_, watch_), nyomtatásvége::kész);

    // "q  -  q" is as wide as 14 letters: 102 points. "abcd  -  ef" has 11 and would fit in 130.
    EXPECT_EQ(paper.texts.front().points, 102);
}

TEST_F(PageLayouts, first_of_equally_wide_texts_is_the_widest) {
    /// In more than 50 points texts with a "q" are twice as wide.
    class UnevenPrinter final : public RecordingPrinter {
        double text_width(const QString &text) const override {
            return RecordingPrinter::text_width(text) * (text.contains(u'q') && font_size() > 50 ? 2 : 1);
        }
    };
    for (const auto &[first, second, points] : {std::tuple{u"abcd", u"qbcd", 359.0}, {u"qbcd", u"abcd", 179.0}}) {
        UnevenPrinter paper;
        what_.párok = pairs_of({{first, u"x"}, {second, u"x"}});

        EXPECT_EQ(nyomtat(paper, nyomtatástípus::szókártyák, what_, watch_), nyomtatásvége::kész);

        // Four letters make 14400 in 360 points, eight in 180.
        EXPECT_EQ(paper.texts.front().points, points);
    }
}

TEST_F(PageLayouts, cards_of_an_empty_list_are_one_blank_page) {
    EXPECT_EQ(print(nyomtatástípus::szókártyák, {}), nyomtatásvége::kész);

    EXPECT_EQ(paper_.pages, 1);
    EXPECT_TRUE(paper_.ended);
    EXPECT_THAT(paper_.texts, ElementsAre(PrintedText{1, 8000, 6000 - 5400, 540, QString()}));
}

TEST_F(PageLayouts, cards_of_two_pairs_are_five_pages_of_which_the_last_is_blank) {
    // "horse" has 5 letters: 287 points make 14350, 288 would make 14400.
    print(nyomtatástípus::szókártyák, pairs_of({{u"dog", u"eb"}, {u"horse", u"ló"}}));

    EXPECT_THAT(paper_.texts, ElementsAre(PrintedText{1, 8000 - 4305, 6000 - 2870, 287, u"dog"_s},
                                          PrintedText{2, 8000 - 2870, 6000 - 2870, 287, u"eb"_s},
                                          PrintedText{3, 8000 - 7175, 6000 - 2870, 287, u"horse"_s},
                                          PrintedText{4, 8000 - 2870, 6000 - 2870, 287, u"ló"_s},
                                          PrintedText{5, 8000, 6000 - 2870, 287, QString()}));
    EXPECT_EQ(paper_.pages, 5);
    EXPECT_TRUE(paper_.ended);
}

TEST_F(PageLayouts, cards_come_in_the_order_english_hungarian_for_one_seven_and_five_hundred_pairs) {
    // "word6" has 5 letters: 287 points. "word100" has 7: 205 points make 14350, 206 would make 14420.
    for (const auto &[count, points] : {std::pair{1, 287.0}, {7, 287.0}, {500, 205.0}}) {
        RecordingPrinter paper;
        what_.párok = numbered_pairs(count);

        EXPECT_EQ(nyomtat(paper, nyomtatástípus::szókártyák, what_, watch_), nyomtatásvége::kész);

        EXPECT_EQ(paper.pages, 2 * count + 1);
        ASSERT_EQ(paper.texts.size(), 2 * count + 1);
        for (int i = 0; i < count; ++i) {
            for (const auto &[at, text] : {std::pair{2 * i, u"word%1"_s.arg(i)}, {2 * i + 1, u"szó%1"_s.arg(i)}}) {
                const double width = 10 * points * static_cast<double>(text.size());
                EXPECT_EQ(paper.texts[at], (PrintedText{at + 1, 8000 - width / 2, 6000 - 10 * points, points, text}));
            }
        }
        EXPECT_EQ(paper.texts.back().text, QString());
        EXPECT_EQ(paper.texts.back().page, 2 * count + 1);
    }
}

// What stops a print-out on its way.

TEST_F(PageLayouts, tell_how_far_they_are) {
    for (const auto &[kind, all] :
         {std::pair{nyomtatástípus::szószedet, 7}, {nyomtatástípus::szópárok, 7}, {nyomtatástípus::szókártyák, 15}}) {
        QList<int> told;
        watch_ = [&, all = all](int done, int of) {
            EXPECT_EQ(of, all);
            told.append(done);
            return true;
        };
        RecordingPrinter paper;
        what_.párok = numbered_pairs(7);

        EXPECT_EQ(nyomtat(paper, kind, what_, watch_), nyomtatásvége::kész);

        EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
        EXPECT_EQ(told.back(), all - 1);
        EXPECT_GE(told.size(), all);
    }
}

TEST_F(PageLayouts, cancelled_at_any_moment_leave_the_document_unended) {
    for (const auto kind : {nyomtatástípus::szószedet, nyomtatástípus::szópárok, nyomtatástípus::szókártyák}) {
        for (const int last : {0, 1, 5, 8, 11}) {
            int calls = 0;
            watch_ = [&](int, int) { return calls++ < last; };
            RecordingPrinter paper;
            what_.párok = numbered_pairs(20);

            EXPECT_EQ(nyomtat(paper, kind, what_, watch_), nyomtatásvége::megszakítva);

            EXPECT_EQ(calls, last + 1);
            EXPECT_FALSE(paper.ended);
        }
    }
}

TEST_F(PageLayouts, stop_when_the_printer_fails) {
    for (const auto kind : {nyomtatástípus::szószedet, nyomtatástípus::szópárok, nyomtatástípus::szókártyák}) {
        for (const int page : {2, 3, 0}) {
            RecordingPrinter paper;
            paper.failing_page = page;
            what_.párok = numbered_pairs(80);

            EXPECT_EQ(nyomtat(paper, kind, what_, watch_), nyomtatásvége::hibás);

            EXPECT_FALSE(paper.ended);
            if (page > 0) {
                EXPECT_EQ(paper.pages, page);
            }
        }
    }
}

}  // namespace
