#include <QKeyEvent>

#include "support/letter_puzzle_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class LetterPuzzleKeyboard : public LetterPuzzleTest {
  protected:
    [[nodiscard]] QString focused() const { return window_->focusWidget()->objectName(); }
    [[nodiscard]] LetterTile *focused_tile() const { return dynamic_cast<LetterTile *>(window_->focusWidget()); }

    /// Names of the tiles from left to right.
    [[nodiscard]] QStringList names_from_left() const {
        QStringList names;
        for (const LetterTile *one : tiles_from_left())
            names.append(one->objectName());
        return names;
    }

    /// Goes on with Tab until tile `i` has the focus.
    void tab_to(int i) {
        for (int k = 0; !tile(i)->hasFocus() && k < 100; ++k)
            press_key(Qt::Key_Tab);
        EXPECT_TRUE(tile(i)->hasFocus());
    }
    /// Puts the left edges of the tiles into the order of the answer: with Ctrl and the left arrow each to the edge of
    /// the frame, then each one step further right than the one before.
    void put_in_order() {
        for (int i = 0; i < tiles().size(); ++i) {
            tab_to(i);
            for (int k = 0; tile(i)->x() > 0 && k < 1000; ++k)
                press_key(Qt::Key_Left, Qt::ControlModifier);
            for (int k = 0; k < i; ++k)
                press_key(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
        }
    }
};

TEST_F(LetterPuzzleKeyboard, begins_on_the_leftmost_tile) {
    start(10);
    EXPECT_EQ(focused(), names_from_left().front());
    answer_rightly();

    EXPECT_EQ(focused(), names_from_left().front());
    trigger("mnu_fájl_újrakezd");
    EXPECT_EQ(focused(), names_from_left().front());
}

TEST_F(LetterPuzzleKeyboard, tab_goes_from_left_to_right_and_then_to_the_button) {
    for (int game = 0; game < 5; ++game) {
        start({{u"extraordinary"_s, u"kérdés"_s}});
        ASSERT_NE(names_from_left().front() + names_from_left().back(), u"Label_betű(0)Label_betű(12)"_s);

        EXPECT_EQ(tab_order(*window_), names_from_left().join(u' ') + u" cmd_ok"_s);
    }
}

TEST_F(LetterPuzzleKeyboard, tab_goes_from_left_to_right_in_the_row_that_was_closed_up) {
    start({{u"cat"_s, u"macska"_s}});

    lay_out({2, 0, 1});
    click_frame();
    tile(2)->setFocus();

    EXPECT_EQ(tab_order(*window_), u"Label_betű(2) Label_betű(0) Label_betű(1) cmd_ok"_s);
}

TEST_F(LetterPuzzleKeyboard, arrows_move_the_focus_along_the_row) {
    start({{u"cat"_s, u"macska"_s}});
    lay_out({1, 2, 0});
    const QVector<QRect> lying = places();
    tile(1)->setFocus();

    press_key(Qt::Key_Right);
    EXPECT_TRUE(tile(2)->hasFocus());
    press_key(Qt::Key_Right);
    EXPECT_TRUE(tile(0)->hasFocus());
    press_key(Qt::Key_Right);
    EXPECT_TRUE(tile(0)->hasFocus());
    press_key(Qt::Key_Left);
    EXPECT_TRUE(tile(2)->hasFocus());
    EXPECT_EQ(places(), lying);
}

TEST_F(LetterPuzzleKeyboard, arrows_move_the_focus_up_and_down) {
    start({{u"cat"_s, u"macska"_s}});
    const int height = tile(0)->height();
    drag(2, {30, 0});
    drag(0, {30, height});
    drag(1, {30, 2 * height});
    tile(1)->setFocus();

    press_key(Qt::Key_Up);
    EXPECT_TRUE(tile(0)->hasFocus());
    press_key(Qt::Key_Up);
    EXPECT_TRUE(tile(2)->hasFocus());
    press_key(Qt::Key_Up);
    EXPECT_TRUE(tile(2)->hasFocus());
    press_key(Qt::Key_Down);
    EXPECT_TRUE(tile(0)->hasFocus());
}

TEST_F(LetterPuzzleKeyboard, ctrl_and_arrows_move_the_tile_by_its_own_size) {
    start(2);
    drag(1, frame()->rect().center());
    tile(1)->setFocus();
    const QRect from = tile(1)->geometry();

    press_key(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_NEAR(tile(1)->x(), from.x() + from.width(), 1);
    EXPECT_EQ(tile(1)->y(), from.y());
    press_key(Qt::Key_Up, Qt::ControlModifier);
    EXPECT_NEAR(tile(1)->y(), from.y() - from.height(), 1);
    press_key(Qt::Key_Down, Qt::ControlModifier);
    press_key(Qt::Key_Left, Qt::ControlModifier);

    EXPECT_EQ(tile(1)->geometry(), from);
    EXPECT_TRUE(tile(1)->hasFocus());
}

TEST_F(LetterPuzzleKeyboard, ctrl_shift_and_arrows_move_the_tile_by_small_steps_and_keep_the_focus) {
    start(2);
    drag(1, frame()->rect().center());
    tile(1)->setFocus();
    const QPoint from = tile(1)->pos();
    const double step = tile(1)->height() / 4.0;
    QVector<QRect> others = places();
    others.removeAt(1);

    for (int i = 0; i < 4; ++i)
        press_key(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_NEAR(tile(1)->x() - from.x(), 4 * step, 1);
    EXPECT_EQ(tile(1)->y(), from.y());
    for (int i = 0; i < 4; ++i)
        press_key(Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_NEAR(tile(1)->y() - from.y(), -4 * step, 1);
    for (int i = 0; i < 4; ++i) {
        press_key(Qt::Key_Left, Qt::ControlModifier | Qt::ShiftModifier);
        press_key(Qt::Key_Down, Qt::ControlModifier | Qt::ShiftModifier);
    }

    EXPECT_EQ(tile(1)->pos(), from);
    EXPECT_TRUE(tile(1)->hasFocus());
    QVector<QRect> rest = places();
    rest.removeAt(1);
    EXPECT_EQ(rest, others);
}

TEST_F(LetterPuzzleKeyboard, ctrl_and_arrows_never_move_a_tile_out_of_the_frame) {
    start(2);
    const int right = frame()->width() - tile(0)->width();
    const int bottom = frame()->height() - tile(0)->height();
    const std::pair<Qt::Key, std::function<bool()>> ways[] = {{Qt::Key_Left, [&] { return tile(0)->x() == 0; }},
                                                              {Qt::Key_Up, [&] { return tile(0)->y() == 0; }},
                                                              {Qt::Key_Right, [&] { return tile(0)->x() == right; }},
                                                              {Qt::Key_Down, [&] { return tile(0)->y() == bottom; }}};
    tile(0)->setFocus();

    for (const auto &[key, at_the_edge] : ways) {
        for (int i = 0; i < 300; ++i)
            press_key(key, Qt::ControlModifier);
        EXPECT_TRUE(at_the_edge()) << key;
    }
}

TEST_F(LetterPuzzleKeyboard, typing_takes_the_tiles_up_and_backspace_puts_the_last_one_back) {
    store("nyelv", 0);
    start(grape);
    const QVector<QRect> before = places();

    press_key(Qt::Key_S);
    EXPECT_TRUE(tile(0)->hasFocus());
    EXPECT_EQ(tile(0)->x(), 0);
    press_key(Qt::Key_Backspace);
    EXPECT_EQ(tile(0)->geometry(), before[0]);
    press_key(Qt::Key_Q);
    EXPECT_TRUE(tile(0)->hasFocus());

    QTest::keyClicks(window_->focusWidget(), u"sz"_s);
    for (const QChar letter : u"őlő"_s) {
        QKeyEvent typed(QEvent::KeyPress, 0, Qt::NoModifier, letter);
        QApplication::sendEvent(window_->focusWidget(), &typed);
    }
    press_key(Qt::Key_Return);

    EXPECT_EQ(messages_.back().lines, QStringList(u"grape - szőlő"_s));
}

TEST_F(LetterPuzzleKeyboard, typing_solves_an_answer_that_stands_in_rows) {
    const QString word = u"antidisestablishmentarianism"_s.repeated(4).left(86);
    start({{word, u"kérdés"_s}});

    for (const QChar letter : word)
        QTest::keyClick(window_->focusWidget(), letter.toLatin1());
    press_key(Qt::Key_Return);

    EXPECT_EQ(messages_.back().lines, QStringList(word + u" - kérdés"_s));
}

TEST_F(LetterPuzzleKeyboard, space_closes_the_tiles_up_without_checking) {
    start(2);
    const QString order = row();
    ASSERT_FALSE(closed_up());

    press_key(Qt::Key_Space);

    EXPECT_TRUE(closed_up());
    EXPECT_EQ(row(), order);
    EXPECT_TRUE(messages_.isEmpty());
    EXPECT_NE(focused_tile(), nullptr);
}

TEST_F(LetterPuzzleKeyboard, enter_checks_on_a_tile_and_on_the_button) {
    start(3);
    lay_out(right_order());
    tile(1)->setFocus();
    press_key(Qt::Key_Return);
    EXPECT_EQ(counter(), u" 2/ 3"_s);

    lay_out(wrong_order());
    control<QPushButton>(*window_, "cmd_ok")->setFocus();
    press_key(Qt::Key_Enter);
    EXPECT_EQ(messages_.size(), 2);
    EXPECT_EQ(messages_.back().lines, wrong_message);
}

TEST_F(LetterPuzzleKeyboard, enter_that_is_held_down_checks_once) {
    for (const bool on_button : {false, true}) {
        messages_.clear();
        start(3);
        lay_out(wrong_order());
        if (on_button)
            control<QPushButton>(*window_, "cmd_ok")->setFocus();
        press_key(Qt::Key_Return);
        ASSERT_EQ(messages_.size(), 1);

        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
        QApplication::sendEvent(window_->focusWidget(), &repeat);

        EXPECT_EQ(messages_.size(), 1);
    }
}

TEST_F(LetterPuzzleKeyboard, tiles_have_names_that_can_be_read_out) {
    store("nyelv", 0);
    start({{u"grape"_s, u"szőlő ág"_s}});
    QStringList names;

    for (const LetterTile *one : tiles())
        names.append(one->accessibleName());

    EXPECT_EQ(names, QStringList(
                         {u"sz betű"_s, u"ő betű"_s, u"l betű"_s, u"ő betű"_s, u"szóköz"_s, u"á betű"_s, u"g betű"_s}));
    EXPECT_EQ(control<PictureBox>(*window_, "pic_feladvány")->accessibleDescription(), u"grape"_s);
    EXPECT_FALSE(control<PictureBox>(*window_, "pic_feladvány")->accessibleName().isEmpty());
    EXPECT_FALSE(frame()->accessibleName().isEmpty());
    EXPECT_FALSE(control<QPushButton>(*window_, "cmd_ok")->accessibleName().isEmpty());
}

TEST_F(LetterPuzzleKeyboard, whole_game_is_played_by_the_keyboard_alone) {
    start({{u"to go"_s, u"elindul"_s}, {u"ship"_s, u"hajó"_s}, {u"grape"_s, u"szőlő"_s}});

    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(window_->isVisible());
        press_key(Qt::Key_Return);
        put_in_order();
        press_key(Qt::Key_Return);
    }

    EXPECT_FALSE(window_->isVisible());
    QStringList right;
    for (const Message &one : messages_) {
        if (one.lines != wrong_message)
            right.append(one.lines);
    }
    right.sort();
    EXPECT_EQ(right, QStringList({u"grape - szőlő"_s, u"ship - hajó"_s, u"to go - elindul"_s}));
}

}  // namespace
