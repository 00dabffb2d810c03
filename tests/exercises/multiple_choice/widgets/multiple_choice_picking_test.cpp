#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMouseEvent>

#include "support/multiple_choice_fixture.h"

using namespace Qt::StringLiterals;

namespace {

using MultipleChoicePicking = MultipleChoiceTest;

TEST_F(MultipleChoicePicking, click_on_a_candidate_moves_it_into_the_frame_and_starts_the_timer) {
    start();
    EXPECT_FALSE(timer()->isActive());
    const QString picked = text(2);

    pick(2);

    EXPECT_EQ(answer(), picked);
    EXPECT_FALSE(frame()->printed_area().isEmpty());
    EXPECT_EQ(seen(), u"xx-xx"_s);
    EXPECT_EQ(timer()->interval(), 1400);
    EXPECT_TRUE(timer()->isActive());
    EXPECT_EQ(counter(), u" 1/ 10"_s);
}

TEST_F(MultipleChoicePicking, second_pick_returns_the_first_to_its_place) {
    start();
    pick(1);
    const QString second = text(3);

    pick(3);

    EXPECT_EQ(seen(), u"xxx-x"_s);
    EXPECT_EQ(answer(), second);
    EXPECT_TRUE(timer()->isActive());
}

TEST_F(MultipleChoicePicking, click_on_the_frame_returns_the_answer_and_stops_the_timer) {
    start();
    pick(1);

    QTest::mouseClick(frame(), Qt::LeftButton);

    EXPECT_EQ(seen(), u"xxxxx"_s);
    EXPECT_EQ(answer(), QString());
    EXPECT_TRUE(frame()->printed_area().isEmpty());
    EXPECT_FALSE(timer()->isActive());
}

TEST_F(MultipleChoicePicking, click_on_the_empty_frame_only_stops_the_timer) {
    start();
    const QStringList words = offer();
    const QString asked = question();
    timer()->start();

    QTest::mouseClick(frame(), Qt::LeftButton);

    EXPECT_FALSE(timer()->isActive());
    EXPECT_EQ(offer(), words);
    EXPECT_EQ(question(), asked);
    EXPECT_EQ(seen(), u"xxxxx"_s);
    answer_all_rightly();
    EXPECT_EQ(messages_.back().lines.back(), u"Hibaarány:  0%"_s);
}

TEST_F(MultipleChoicePicking, of_two_equal_candidates_returns_the_one_that_was_picked) {
    start({{u"one"_s, u"a"_s}, {u"same"_s, u"b"_s}, {u"same"_s, u"c"_s}});
    const int last = static_cast<int>(offer().lastIndexOf(u"same"_s));

    pick(last);
    QTest::mouseClick(frame(), Qt::LeftButton);

    EXPECT_EQ(seen(), u"xxx"_s);
}

TEST_F(MultipleChoicePicking, drag_into_the_frame_picks_when_answers_are_dragged) {
    store("katt", true);
    start();
    const QString picked = text(3);

    drag(3, middle_of(frame()));

    EXPECT_EQ(answer(), picked);
    EXPECT_EQ(seen(), u"xxx-x"_s);
    EXPECT_EQ(timer()->interval(), 1400);
    EXPECT_TRUE(timer()->isActive());
}

TEST_F(MultipleChoicePicking, second_drag_returns_the_first_to_its_place) {
    store("katt", true);
    start();
    drag(3, middle_of(frame()));
    const QString picked = text(0);

    drag(0, middle_of(frame()));

    EXPECT_EQ(answer(), picked);
    EXPECT_EQ(seen(), u"-xxxx"_s);
}

TEST_F(MultipleChoicePicking, drop_outside_the_frame_does_nothing) {
    store("katt", true);
    start();
    const QPoint outside[] = {middle_of(control<QWidget>(*window_, "pic_feladat")), middle_of(candidate(4)),
                              middle_of(control<QWidget>(*window_, "cmd_kilép")),
                              frame()->mapTo(window_.get(), QPoint(-1, 5)),
                              frame()->mapTo(window_.get(), QPoint(5, frame()->height()))};

    for (const QPoint &to : outside) {
        drag(1, to);
        EXPECT_EQ(seen(), u"xxxxx"_s);
        EXPECT_EQ(answer(), QString());
        EXPECT_FALSE(timer()->isActive());
        EXPECT_EQ(ghosts(), 0);
        EXPECT_TRUE(window_->isVisible());
    }
}

TEST_F(MultipleChoicePicking, drop_just_inside_the_frame_picks) {
    store("katt", true);
    start();

    drag(1, frame()->mapTo(window_.get(), QPoint(0, 0)));

    EXPECT_EQ(seen(), u"x-xxx"_s);
}

TEST_F(MultipleChoicePicking, picture_of_a_dragged_candidate_follows_the_mouse_until_it_is_let_go) {
    store("katt", true);
    start();
    const QPoint from = middle_of(candidate(0));
    press_at(from);
    EXPECT_EQ(ghosts(), 0);

    move_to(from + QPoint(60, 40));
    EXPECT_EQ(ghosts(), 1);
    move_to(from + QPoint(90, 70));
    EXPECT_EQ(ghosts(), 1);
    const QLabel *ghost = window_->findChildren<QLabel *>(Qt::FindDirectChildrenOnly).value(0);
    ASSERT_NE(ghost, nullptr);
    EXPECT_EQ(ghost->pos(), candidate(0)->mapTo(window_.get(), QPoint(90, 70)));

    release_at(from + QPoint(90, 70));
    EXPECT_EQ(ghosts(), 0);
}

TEST_F(MultipleChoicePicking, other_mouse_button_during_a_drag_leaves_no_picture_behind) {
    store("katt", true);
    start();
    const QPoint from = middle_of(candidate(0));
    press_at(from);
    move_to(from + QPoint(60, 40));

    QTest::mousePress(window_->windowHandle(), Qt::RightButton, {}, from + QPoint(60, 40));
    QTest::mouseRelease(window_->windowHandle(), Qt::RightButton, {}, from + QPoint(60, 40));
    release_at(from + QPoint(60, 40));

    EXPECT_EQ(ghosts(), 0);
    EXPECT_EQ(answer(), QString());
}

TEST_F(MultipleChoicePicking, candidate_that_goes_during_a_drag_leaves_no_picture_behind) {
    store("katt", true);
    const std::function<void()> ways[] = {[this] { QTest::keyClick(window_.get(), Qt::Key_3); },
                                          [this] { trigger("mnu_fájl_újrakezd"); }};
    for (const auto &take_away : ways) {
        start();
        const QPoint from = middle_of(candidate(2));
        press_at(from);
        move_to(from + QPoint(60, 40));
        ASSERT_EQ(ghosts(), 1);

        take_away();
        EXPECT_EQ(ghosts(), 0);

        release_at(middle_of(frame()));
        EXPECT_EQ(ghosts(), 0);
        EXPECT_EQ(candidates(), 5);
    }
}

TEST_F(MultipleChoicePicking, drag_under_way_comes_to_nothing_when_the_question_changes) {
    store("katt", true);
    start();
    const int picked = right();
    const int dragged = wrong();
    drag(picked, middle_of(frame()));
    const QPoint from = middle_of(candidate(dragged));
    press_at(from);
    move_to(middle_of(frame()));
    ASSERT_EQ(ghosts(), 1);

    check();
    release_at(middle_of(frame()));

    EXPECT_EQ(counter(), u" 2/ 10"_s);
    EXPECT_EQ(ghosts(), 0);
    EXPECT_EQ(answer(), QString());
}

TEST_F(MultipleChoicePicking, drag_ends_when_the_mouse_button_may_be_let_go_unseen) {
    store("katt", true);
    QMessageBox message;
    message.setWindowModality(Qt::ApplicationModal);
    ablak another(u"another"_s);
    const std::function<void()> ways[] = {
        [this] { window_->menüsor()->actions().front()->menu()->popup(window_->pos()); }, [&] { message.show(); },
        [&] { show(another); },
        [this] {
            QMouseEvent move(QEvent::MouseMove, {5, 5}, {5, 5}, candidate(0)->mapToGlobal(QPointF(5, 5)), Qt::NoButton,
                             Qt::NoButton, {});
            QApplication::sendEvent(candidate(0), &move);
        }};
    for (const auto &distract : ways) {
        start();
        const QPoint from = middle_of(candidate(0));
        press_at(from);
        move_to(middle_of(frame()));
        ASSERT_EQ(ghosts(), 1);

        distract();

        EXPECT_EQ(ghosts(), 0);
        message.hide();
        release_at(middle_of(frame()));
        EXPECT_EQ(answer(), QString());
    }
}

TEST_F(MultipleChoicePicking, escape_ends_a_drag_and_not_the_game) {
    store("katt", true);
    start();
    const QPoint from = middle_of(candidate(0));
    press_at(from);
    move_to(middle_of(frame()));

    QTest::keyClick(candidate(0), Qt::Key_Escape);
    release_at(middle_of(frame()));

    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(ghosts(), 0);
    EXPECT_EQ(answer(), QString());
}

TEST_F(MultipleChoicePicking, space_that_is_held_down_picks_once) {
    start();
    const QString first = text(0);
    candidate(0)->setFocus();
    QTest::keyClick(candidate(0), Qt::Key_Space);

    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s, true);
    QApplication::sendEvent(candidate(1), &repeat);

    EXPECT_EQ(answer(), first);
}

TEST_F(MultipleChoicePicking, digit_that_is_held_down_picks_once) {
    start();
    QTest::keyClick(window_.get(), static_cast<Qt::Key>(Qt::Key_1 + right()));
    check();
    ASSERT_EQ(counter(), u" 2/ 10"_s);

    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, u"1"_s, true);
    QApplication::sendEvent(window_.get(), &repeat);

    EXPECT_EQ(answer(), QString());
}

TEST_F(MultipleChoicePicking, next_question_has_the_focus_on_its_first_candidate) {
    start();
    answer_with(right());

    EXPECT_TRUE(candidate(0)->hasFocus());
}

TEST_F(MultipleChoicePicking, click_picks_nothing_when_answers_are_dragged) {
    store("katt", true);
    start();

    pick(1);
    const QPoint middle = middle_of(candidate(1));
    press_at(middle);
    move_to(middle + QPoint(1, 1));
    EXPECT_EQ(ghosts(), 0);
    release_at(middle + QPoint(1, 1));

    EXPECT_EQ(seen(), u"xxxxx"_s);
    EXPECT_EQ(answer(), QString());
}

TEST_F(MultipleChoicePicking, drag_picks_nothing_when_answers_are_clicked) {
    start();

    drag(1, middle_of(frame()));

    EXPECT_EQ(seen(), u"xxxxx"_s);
    EXPECT_EQ(answer(), QString());
    EXPECT_EQ(ghosts(), 0);
}

TEST_F(MultipleChoicePicking, keys_from_one_to_five_pick_in_both_ways_of_answering) {
    for (const bool dragged : {false, true}) {
        store("katt", dragged);
        start();
        const QString expected[] = {u"-xxxx"_s, u"x-xxx"_s, u"xx-xx"_s, u"xxx-x"_s, u"xxxx-"_s};
        for (int k = 0; k < 5; ++k) {
            const QString picked = text(k);
            QTest::keyClick(window_->focusWidget(), static_cast<Qt::Key>(Qt::Key_1 + k));
            EXPECT_EQ(seen(), expected[k]);
            EXPECT_EQ(answer(), picked);
        }
    }
}

TEST_F(MultipleChoicePicking, keys_without_a_candidate_pick_nothing) {
    store("valasztekszam", 3);
    start();

    for (const Qt::Key key : {Qt::Key_0, Qt::Key_4, Qt::Key_5, Qt::Key_6, Qt::Key_A})
        QTest::keyClick(window_.get(), key);
    EXPECT_EQ(answer(), QString());

    QTest::keyClick(window_.get(), Qt::Key_2);
    const QString picked = answer();
    QTest::keyClick(window_.get(), Qt::Key_2);
    EXPECT_EQ(answer(), picked);
    EXPECT_EQ(seen(), u"x-x"_s);
}

TEST_F(MultipleChoicePicking, space_picks_the_candidate_that_tab_has_reached) {
    for (const bool dragged : {false, true}) {
        store("katt", dragged);
        start();
        ASSERT_TRUE(candidate(0)->hasFocus());
        EXPECT_EQ(tab_order(*window_),
                  u"pic_kínálat(0) pic_kínálat(1) pic_kínálat(2) pic_kínálat(3) pic_kínálat(4) cmd_ok "
                  "cmd_kilép"_s);

        QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
        QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
        QTest::keyClick(window_->focusWidget(), Qt::Key_Space);

        EXPECT_EQ(seen(), u"xx-xx"_s);
    }
}

TEST_F(MultipleChoicePicking, whole_game_is_played_by_the_keyboard_alone) {
    start(3);

    for (int i = 0; messages_.isEmpty() && i < 10; ++i) {
        QTest::keyClick(window_->focusWidget(), static_cast<Qt::Key>(Qt::Key_1 + right()));
        QTest::keyClick(window_->focusWidget(), Qt::Key_Return);
    }

    ASSERT_EQ(messages_.size(), 1);
    EXPECT_EQ(messages_[0].lines.back(), u"Hibaarány:  0%"_s);
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(MultipleChoicePicking, after_the_result_nothing_is_picked_or_checked_until_it_is_begun_anew) {
    for (const bool dragged : {false, true}) {
        messages_.clear();
        store("katt", dragged);
        start();
        for (int i = 0; messages_.isEmpty() && i < 20; ++i) {
            QTest::keyClick(window_.get(), static_cast<Qt::Key>(Qt::Key_1 + right()));
            check();
        }
        const QString asked = question();
        const QStringList words = offer();
        const QString last_answer = answer();
        const QString last_seen = seen();
        ASSERT_FALSE(last_answer.isEmpty());

        const int another = candidate(0)->isVisible() ? 0 : 1;
        pick(another);
        drag(another, middle_of(frame()));
        QTest::keyClick(window_.get(), static_cast<Qt::Key>(Qt::Key_1 + another));
        candidate(another)->setFocus();
        QTest::keyClick(candidate(another), Qt::Key_Space);
        QTest::mouseClick(frame(), Qt::LeftButton);
        check();
        QTest::keyClick(window_.get(), Qt::Key_Return);

        EXPECT_EQ(question(), asked);
        EXPECT_EQ(offer(), words);
        EXPECT_EQ(answer(), last_answer);
        EXPECT_EQ(seen(), last_seen);
        EXPECT_EQ(counter(), u" 10/ 10"_s);
        EXPECT_FALSE(timer()->isActive());
        EXPECT_EQ(messages_.size(), 1);

        trigger("mnu_fájl_újrakezd");
        EXPECT_EQ(counter(), u" 1/ 10"_s);
        EXPECT_EQ(seen(), u"xxxxx"_s);
        EXPECT_EQ(answer(), QString());
        QTest::keyClick(window_.get(), Qt::Key_1);
        EXPECT_FALSE(answer().isEmpty());
    }
}

TEST_F(MultipleChoicePicking, wrong_answer_makes_the_frame_red_until_the_next_one) {
    start();
    const auto is_red = [this] {
        const QColor colour = frame()->grab().toImage().pixelColor(2, 2);
        return colour.red() > 180 && colour.green() < 80;
    };
    EXPECT_FALSE(is_red());

    answer_with(wrong());
    EXPECT_TRUE(is_red());
    pick(right());
    EXPECT_FALSE(is_red());
    check();
    EXPECT_FALSE(is_red());

    check();
    EXPECT_TRUE(is_red());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !is_red(); }));
}

TEST_F(MultipleChoicePicking, candidates_show_their_digits_beside_their_words) {
    start();
    for (int k = 0; k < 5; ++k) {
        EXPECT_TRUE(text(k).startsWith(u"word"_s));
        const QRect words = candidate(k)->contentsRect();
        EXPECT_GT(words.left(), candidate(k)->height() / 3);
        candidate(k)->clear();
    }
    const QRect left(6, 6, candidate(1)->contentsRect().left() - 6, candidate(1)->height() - 12);

    // Without their words, the digits are what makes them differ.
    EXPECT_NE(candidate(1)->grab(left).toImage(), candidate(2)->grab(left).toImage());
}

}  // namespace
