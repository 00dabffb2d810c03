#include <QKeyEvent>

#include "support/letter_puzzle_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class LetterPuzzleMouse : public LetterPuzzleTest {
  protected:
    /// Where the mouse grips a tile: not in its middle.
    static constexpr QPoint grip{4, 7};

    [[nodiscard]] QPoint grip_of(int i) const { return tile(i)->mapTo(window_.get(), grip); }

    /// Lays tile `i` into the middle of the frame and the others side by side.
    void lay_in_the_middle(int i) {
        lay_out(right_order());
        drag(i, frame()->rect().center());
    }
    /// The place right of all tiles after lay_out().
    [[nodiscard]] int right_of_the_row() const {
        int right = 0;
        for (const QRect &one : places())
            right = std::max(right, one.right() + 1);
        return right;
    }
};

/// An answer of sixty letters.
QString sixty_letters() {
    return u"antidisestablishmentarianism"_s.repeated(3).left(60);
}

TEST_F(LetterPuzzleMouse, tiles_are_scattered_in_the_frame_without_overlap) {
    for (const QSize &pixels : screens) {
        for (const QString &word : {u"ox"_s, u"extraordinary"_s, u"to look forward to something"_s, sixty_letters()}) {
            use_screen(pixels);
            start({{word, u"kérdés"_s}});
            ASSERT_EQ(tiles().size(), word.size());

            for (int i = 0; i < 10; ++i) {
                expect_apart_in_frame(u"%1 of %2"_s.arg(word).arg(pixels.width()).toStdString());
                trigger("mnu_fájl_újrakezd");
            }
        }
    }
}

TEST_F(LetterPuzzleMouse, tiles_of_a_short_word_lie_all_over_the_frame) {
    start({{u"ox"_s, u"kérdés"_s}});
    QRect reached;

    for (int i = 0; i < 100; ++i) {
        for (const QRect &one : places())
            reached |= one;
        trigger("mnu_fájl_újrakezd");
    }

    EXPECT_GT(reached.width(), frame()->width() * 0.95);
    EXPECT_GT(reached.height(), frame()->height() * 0.9);
    EXPECT_TRUE(frame()->rect().contains(reached));
}

TEST_F(LetterPuzzleMouse, tiles_of_a_word_have_one_font_and_hold_their_letters) {
    for (const QSize &pixels : screens) {
        for (const QString &word : {u"win"_s, sixty_letters()}) {
            use_screen(pixels);
            start({{word, u"kérdés"_s}});

            for (const LetterTile *one : tiles()) {
                EXPECT_EQ(one->font(), tile(0)->font());
                const QFontMetrics metrics(one->font());
                EXPECT_LT(metrics.horizontalAdvance(one->text()), one->width());
                EXPECT_LE(metrics.height(), one->height());
            }
        }
    }
    start({{u"win"_s, u"kérdés"_s}});
    EXPECT_GT(tile(0)->width(), tile(1)->width());
}

TEST_F(LetterPuzzleMouse, tile_follows_the_mouse_exactly) {
    start(2);
    lay_in_the_middle(1);
    const QPoint from = tile(1)->pos();
    const QPoint gripped = grip_of(1);
    press_at(gripped);
    EXPECT_EQ(tile(1)->pos(), from);

    for (const QPoint &way : {QPoint(1, 0), QPoint(17, 9), QPoint(-30, 40), QPoint(55, -21)}) {
        move_to(gripped + way);
        EXPECT_EQ(tile(1)->pos(), from + way);
    }
    release_at(gripped + QPoint(55, -21));

    EXPECT_EQ(tile(1)->pos(), from + QPoint(55, -21));
}

TEST_F(LetterPuzzleMouse, tile_stays_where_it_was_let_go) {
    start(2);
    lay_in_the_middle(1);
    const QPoint gripped = grip_of(1);
    press_at(gripped);
    move_to(gripped + QPoint(30, 20));
    release_at(gripped + QPoint(30, 20));
    const QVector<QRect> let_go = places();

    move_to(gripped + QPoint(35, 25));
    move_to(gripped + QPoint(90, 60));

    EXPECT_EQ(places(), let_go);
}

TEST_F(LetterPuzzleMouse, only_the_tile_under_the_mouse_moves) {
    start(2);
    QVector<QRect> expected = places();
    const QPoint to = QPoint(frame()->width(), frame()->height()) / 2;
    expected[2].moveTopLeft(to);

    drag(2, to);

    EXPECT_EQ(places(), expected);
}

TEST_F(LetterPuzzleMouse, tile_never_leaves_the_frame) {
    start(2);
    lay_in_the_middle(0);
    const QPoint from = tile(0)->pos();
    const QPoint gripped = grip_of(0);
    const int right = frame()->width() - tile(0)->width();
    const int bottom = frame()->height() - tile(0)->height();
    const std::pair<QPoint, QPoint> ways[] = {{{-3000, 0}, {0, from.y()}},  {{3000, 0}, {right, from.y()}},
                                              {{0, -3000}, {from.x(), 0}},  {{0, 3000}, {from.x(), bottom}},
                                              {{-3000, 3000}, {0, bottom}}, {{5, -6}, from + QPoint(5, -6)}};
    press_at(gripped);

    for (const auto &[way, expected] : ways) {
        move_to(gripped + way);
        EXPECT_EQ(tile(0)->pos(), expected);
    }

    release_at(gripped);
}

TEST_F(LetterPuzzleMouse, right_button_moves_nothing) {
    start(2);
    lay_in_the_middle(1);
    const QVector<QRect> before = places();
    const QPoint gripped = grip_of(1);

    press_at(gripped, Qt::RightButton);
    move_to(gripped + QPoint(20, 20));
    release_at(gripped + QPoint(20, 20), Qt::RightButton);

    EXPECT_EQ(places(), before);
}

TEST_F(LetterPuzzleMouse, both_buttons_together_move_nothing) {
    start(2);
    lay_in_the_middle(1);
    const QPoint from = tile(1)->pos();
    const QPoint gripped = grip_of(1);
    press_at(gripped);
    press_at(gripped, Qt::RightButton);

    move_to(gripped + QPoint(20, 20));
    EXPECT_EQ(tile(1)->pos(), from);

    release_at(gripped + QPoint(20, 20), Qt::RightButton);
    move_to(gripped + QPoint(25, 25));
    EXPECT_EQ(tile(1)->pos(), from + QPoint(25, 25));
    release_at(gripped + QPoint(25, 25));
}

TEST_F(LetterPuzzleMouse, moved_tile_lies_on_the_others) {
    start(2);
    lay_out(right_order());

    for (const int i : {3, 0, 4, 1}) {
        drag(i, frame()->rect().center() + QPoint(i, i));
        EXPECT_EQ(frame()->childAt(tile(i)->geometry().center()), tile(i));
    }
}

TEST_F(LetterPuzzleMouse, click_on_the_frame_closes_the_tiles_up_in_their_order_without_checking) {
    start(10);
    const QString order = row();
    const QPoint first = tiles_from_left().front()->pos();
    const QString asked = question();
    ASSERT_FALSE(closed_up());

    click_frame();

    EXPECT_TRUE(closed_up());
    EXPECT_EQ(row(), order);
    EXPECT_EQ(tiles_from_left().front()->y(), first.y());
    EXPECT_LE(tiles_from_left().front()->x(), first.x());
    EXPECT_TRUE(messages_.isEmpty());
    EXPECT_EQ(question(), asked);
    EXPECT_EQ(counter(), u" 1/ 10"_s);
}

TEST_F(LetterPuzzleMouse, tiles_close_up_from_where_the_leftmost_lies) {
    start({{u"cat"_s, u"macska"_s}});
    lay_out(right_order());
    const int left = right_of_the_row();
    drag(0, {left + 200, 0});
    drag(2, {left + 150, frame()->height() / 2});
    drag(1, {left + 30, 30});

    click_frame();

    EXPECT_EQ(row(), u"a t c"_s);
    EXPECT_EQ(tile(1)->pos(), QPoint(left + 30, 30));
    EXPECT_EQ(tile(2)->pos(), QPoint(left + 30 + tile(1)->width(), 30));
    EXPECT_EQ(tile(0)->pos(), QPoint(left + 30 + tile(1)->width() + tile(2)->width(), 30));
}

TEST_F(LetterPuzzleMouse, tiles_close_up_inside_the_frame_when_they_lie_at_its_right_edge) {
    start({{u"cat"_s, u"macska"_s}});
    int top = 0;
    for (int i = 0; i < 3; ++i) {
        drag(i, {frame()->width() - tile(i)->width(), top});
        top += tile(i)->height();
    }

    click_frame();

    EXPECT_TRUE(closed_up());
    const LetterTile *last = tiles_from_left().back();
    EXPECT_EQ(last->x() + last->width(), frame()->width());
}

TEST_F(LetterPuzzleMouse, tiles_with_equal_left_edges_close_up_in_the_order_of_the_answer) {
    start({{u"cats"_s, u"macskák"_s}});
    lay_out(right_order());
    const int left = right_of_the_row() + 20;
    const int height = tile(0)->height();
    drag(3, {left, 0});
    drag(1, {left, height});
    drag(2, {left, 2 * height});
    drag(0, {left + 1, 3 * height});

    click_frame();

    EXPECT_EQ(row(), u"a t s c"_s);
    EXPECT_EQ(tile(1)->pos(), QPoint(left, height));
}

TEST_F(LetterPuzzleMouse, tiles_of_sixty_letters_stand_in_rows_and_keep_their_order_when_they_close_up) {
    use_screen({1024, 768});
    start({{sixty_letters(), u"kérdés"_s}});
    const auto as_read = [this] {
        QVector<LetterTile *> all = tiles();
        std::sort(all.begin(), all.end(),
                  [](const auto *a, const auto *b) { return a->y() != b->y() ? a->y() < b->y() : a->x() < b->x(); });
        return letters(all);
    };
    const QString before = as_read();

    click_frame();

    EXPECT_EQ(as_read(), before);
    expect_apart_in_frame("closed up");
}

TEST_F(LetterPuzzleMouse, tiles_of_a_long_answer_are_large_enough_to_be_read_and_gripped) {
    use_screen({1024, 768});
    start({{sixty_letters() + sixty_letters().left(26), u"kérdés"_s}});

    ASSERT_EQ(tiles().size(), 86);
    for (const LetterTile *one : tiles())
        EXPECT_GE(one->height(), 36);
    expect_apart_in_frame("long answer");
}

TEST_F(LetterPuzzleMouse, click_on_a_tile_closes_nothing_up) {
    start(2);
    const QVector<QRect> before = places();

    click_at(middle_of(tile(1)));

    EXPECT_EQ(places(), before);
}

TEST_F(LetterPuzzleMouse, right_click_on_the_frame_closes_nothing_up) {
    start(2);
    const QVector<QRect> before = places();
    const QPoint bare = bare_place();

    press_at(bare, Qt::RightButton);
    release_at(bare, Qt::RightButton);

    EXPECT_EQ(places(), before);
}

TEST_F(LetterPuzzleMouse, drag_under_way_comes_to_nothing_when_the_next_word_is_asked) {
    start(3);
    lay_out(right_order());
    const QPoint gripped = grip_of(2);
    press_at(gripped);

    press_key(Qt::Key_Return);
    ASSERT_EQ(counter(), u" 2/ 3"_s);
    const QVector<QRect> next = places();
    for (int i = 0; i < 5; ++i)
        move_to(middle_of(tile(i)));
    release_at(middle_of(tile(4)));

    EXPECT_EQ(places(), next);
    drag(2, QPoint(20, 30));
    EXPECT_EQ(tile(2)->pos(), QPoint(20, 30));
}

}  // namespace
