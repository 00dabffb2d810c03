#include "support/mini_window_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class MiniWindowMoving : public MiniWindowTest {
  protected:
    /// Opens the window; steps_ are its places, in pixels, between the steps of its last glide.
    void open_and_watch() {
        between_steps_ = [this] { steps_.append(window_->pos()); };
        open();
    }

    [[nodiscard]] QPoint in_pixels(double left, double top) const { return {qRound(left / 15), qRound(top / 15)}; }
    [[nodiscard]] double right() const { return std::round(screen_.width() - window_->szélesség()); }
    [[nodiscard]] double bottom() const { return std::round(screen_.height() - window_->magasság()); }
    void put(double left, double top) {
        state_.kisablakbal = qRound(left);
        state_.kisablakfent = qRound(top);
        open_and_watch();
        steps_.clear();
    }
    [[nodiscard]] QColor colour(const char *name) const { return label(name)->palette().color(QPalette::Window); }

    QVector<QPoint> steps_;
};

TEST_F(MiniWindowMoving, opens_with_a_glide_from_the_main_windows_middle_to_its_place) {
    open_and_watch();

    const double from_left = 3000 + 9000 / 2.0 - window_->szélesség() / 2;
    const double from_top = 1500 + 6000 / 2.0 - window_->magasság() / 2;
    ASSERT_EQ(steps_.size(), 100);
    for (int i = 1; i <= 100; ++i)
        EXPECT_EQ(steps_[i - 1],
                  in_pixels(from_left + i * (1234 - from_left) / 100, from_top + i * (2345 - from_top) / 100))
            << i;
    EXPECT_EQ(window_->pos(), in_pixels(1234, 2345));
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(kept_place(), QPoint(1234, 2345));
}

TEST_F(MiniWindowMoving, opens_where_no_screen_is_at_the_nearest_place_on_one_and_keeps_what_was_kept) {
    state_.kisablakbal = 999999;
    state_.kisablakfent = -5000;

    open();

    EXPECT_EQ(window_->pos(), in_pixels(screen_.width() - window_->szélesség(), 0));
    EXPECT_EQ(kept_place(), QPoint(999999, -5000));
}

TEST_F(MiniWindowMoving, opens_on_a_second_screen_where_it_was_left) {
    screens_.append(QRectF(-15000, 0, 15000, 15000));
    state_.kisablakbal = -9000;
    state_.kisablakfent = 12000;

    open();

    EXPECT_EQ(window_->pos(), in_pixels(-9000, 12000));
}

TEST_F(MiniWindowMoving, stops_gliding_when_it_is_hidden_meanwhile) {
    between_steps_ = [this] {
        steps_.append(window_->pos());
        if (steps_.size() == 10)
            window_->hide();
    };
    load();

    window_->Form_Activate();

    EXPECT_EQ(steps_.size(), 10);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(MiniWindowMoving, walks_round_the_corners_by_f2_with_a_glide_each) {
    open_and_watch();
    const QVector<QPoint> corners{QPoint(qRound(right()), 0), QPoint(qRound(right()), qRound(bottom())),
                                  QPoint(0, qRound(bottom())), QPoint(0, 0), QPoint(qRound(right()), 0)};

    for (const QPoint &corner : corners) {
        steps_.clear();
        QTest::keyClick(search_box(), Qt::Key_F2);

        EXPECT_EQ(steps_.size(), 100);
        EXPECT_EQ(kept_place(), corner);
        EXPECT_EQ(window_->pos(), in_pixels(corner.x(), corner.y()));
    }
}

TEST_F(MiniWindowMoving, walks_by_its_corner_button_too) {
    open_and_watch();

    click("cmd_lent");
    EXPECT_EQ(kept_place(), QPoint(qRound(right()), 0));
    click("cmd_lent");

    EXPECT_EQ(kept_place(), QPoint(qRound(right()), qRound(bottom())));
    EXPECT_TRUE(large_.calls.isEmpty());
}

TEST_F(MiniWindowMoving, walks_on_from_the_corner_that_it_was_left_in) {
    load();
    put(right(), bottom());

    QTest::keyClick(window_.get(), Qt::Key_F2);

    EXPECT_EQ(kept_place(), QPoint(0, qRound(bottom())));
}

TEST_F(MiniWindowMoving, walks_on_from_a_corner_that_a_panel_of_the_desktop_keeps_it_off) {
    open();
    QTest::keyClick(search_box(), Qt::Key_F2);
    window_->move(window_->pos() + QPoint(-3, 40));

    QTest::keyClick(search_box(), Qt::Key_F2);

    EXPECT_EQ(kept_place(), QPoint(qRound(right()), qRound(bottom())));
}

TEST_F(MiniWindowMoving, has_left_a_corner_as_soon_as_it_is_dragged_away_from_it) {
    open();
    QTest::keyClick(search_box(), Qt::Key_F2);
    const QPoint at = middle_of(label("label_fejléc"));
    press(label("label_fejléc"), at);
    move(label("label_fejléc"), at + QPoint(-3, 40));
    release(label("label_fejléc"), at + QPoint(-3, 40));

    QTest::keyClick(search_box(), Qt::Key_F2);

    EXPECT_EQ(kept_place(), QPoint(qRound(right()), 0));
}

TEST_F(MiniWindowMoving, comes_back_when_it_is_minimised) {
    open();

    window_->showMinimized();

    EXPECT_TRUE(QTest::qWaitFor([this] { return window_->isVisible() && !window_->isMinimized(); }));
}

TEST_F(MiniWindowMoving, walks_on_f2_whatever_has_the_keyboard) {
    open();
    for (const char *name : {"lst_találatlista", "cmd_kilép"}) {
        state_.kisablakbal = 0;
        window_->move(50, 50);

        QTest::keyClick(control<QWidget>(name), Qt::Key_F2);

        EXPECT_EQ(kept_place(), QPoint(qRound(right()), 0)) << name;
    }
}

TEST_F(MiniWindowMoving, walks_once_for_f2_that_is_held_down) {
    open();
    QTest::keyClick(search_box(), Qt::Key_F2);
    const QPoint first = kept_place();

    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_F2, Qt::NoModifier, QString(), true);
    QCoreApplication::sendEvent(search_box(), &repeat);

    EXPECT_EQ(kept_place(), first);
}

TEST_F(MiniWindowMoving, paints_a_header_button_red_while_it_is_pressed_and_white_afterwards) {
    open();
    for (const char *name : {"cmd_lent", "cmd_x"}) {
        EXPECT_EQ(colour(name), QColor(255, 255, 255)) << name;

        press(label(name), middle_of(label(name)));
        EXPECT_EQ(colour(name), QColor(255, 0, 0)) << name;
        EXPECT_TRUE(label(name)->autoFillBackground());

        release(label(name), middle_of(label(name)));
        EXPECT_EQ(colour(name), QColor(255, 255, 255)) << name;
    }
}

TEST_F(MiniWindowMoving, does_nothing_when_a_header_button_is_let_go_beside_it) {
    open();
    for (const char *name : {"cmd_lent", "cmd_x"}) {
        press(label(name), middle_of(label(name)));
        release(label(name), middle_of(label(name)) + QPoint(0, 200));

        EXPECT_EQ(colour(name), QColor(255, 255, 255)) << name;
    }
    EXPECT_TRUE(large_.calls.isEmpty());
    EXPECT_EQ(kept_place(), QPoint(1234, 2345));
}

TEST_F(MiniWindowMoving, stays_where_it_is_when_the_hand_trembles_on_a_header_button) {
    open();
    for (const char *name : {"cmd_lent", "cmd_x"}) {
        const QPoint at = middle_of(label(name));

        press(label(name), at);
        move(label(name), at + QPoint(2, 1));

        EXPECT_EQ(kept_place(), QPoint(1234, 2345)) << name;
        EXPECT_EQ(window_->pos(), in_pixels(1234, 2345)) << name;
        release(label(name), at + QPoint(0, 200));
    }
}

/// A place that the window can be dragged by: what a test calls it, and the control; none for the window's surface.
struct Handle {
    const char *called;
    const char *control;
};

class MiniWindowDragging : public MiniWindowMoving, public testing::WithParamInterface<Handle> {
  protected:
    MiniWindowDragging() { open(); }

    [[nodiscard]] QWidget *handle() const {
        return GetParam().control ? control<QWidget>(GetParam().control) : static_cast<QWidget *>(window_.get());
    }
    /// Of the surface, a place without a control.
    [[nodiscard]] QPoint grip() const {
        return GetParam().control ? middle_of(handle()) : window_->mapToGlobal(QPoint(2, window_->height() - 2));
    }
};

INSTANTIATE_TEST_SUITE_P(By, MiniWindowDragging,
                         testing::Values(Handle{"header", "label_fejléc"}, Handle{"caption", "Label1"},
                                         Handle{"surface", nullptr}, Handle{"search_button", "cmd_keres"},
                                         Handle{"large_window_button", "cmd_kilép"},
                                         Handle{"word_list_button", "cmd_szószedethez_ad"}),
                         [](const auto &tested) { return tested.param.called; });

TEST_P(MiniWindowDragging, moves_it_by_exactly_the_way_of_the_mouse) {
    const QPoint at = grip();

    press(handle(), at);
    move(handle(), at + QPoint(20, 5));
    EXPECT_EQ(kept_place(), QPoint(1234 + 20 * 15, 2345 + 5 * 15));
    move(handle(), at + QPoint(-30, 111));
    EXPECT_EQ(kept_place(), QPoint(1234 - 30 * 15, 2345 + 111 * 15));
    EXPECT_EQ(window_->pos(), in_pixels(1234 - 30 * 15, 2345 + 111 * 15));
    release(handle(), at + QPoint(-30, 111));

    move(handle(), at, Qt::NoButton);
    EXPECT_EQ(kept_place(), QPoint(1234 - 30 * 15, 2345 + 111 * 15));
}

TEST_P(MiniWindowDragging, is_no_click) {
    const QPoint at = grip();

    press(handle(), at);
    move(handle(), at + QPoint(40, 40));
    release(handle(), at + QPoint(40, 40));

    EXPECT_TRUE(large_.calls.isEmpty());
    if (const auto *dragged = qobject_cast<QPushButton *>(handle())) {
        EXPECT_FALSE(dragged->isDown());
    }
}

TEST_P(MiniWindowDragging, begins_anew_with_each_press) {
    const QPoint at = grip();
    press(handle(), at);
    move(handle(), at + QPoint(40, 40));
    release(handle(), at + QPoint(40, 40));

    const QPoint again = grip() + QPoint(1, 1);
    press(handle(), again);
    move(handle(), again + QPoint(-40, -40));
    release(handle(), again + QPoint(-40, -40));

    EXPECT_EQ(kept_place(), QPoint(1234, 2345));
}

TEST_P(MiniWindowDragging, is_for_the_left_mouse_button_only) {
    for (const Qt::MouseButton other : {Qt::RightButton, Qt::MiddleButton}) {
        const QPoint at = grip();
        press(handle(), at, other);
        move(handle(), at + QPoint(40, 40), other);
        release(handle(), at + QPoint(40, 40), other);
    }

    EXPECT_EQ(kept_place(), QPoint(1234, 2345));
    EXPECT_EQ(window_->pos(), in_pixels(1234, 2345));
    EXPECT_TRUE(large_.calls.isEmpty());
}

TEST_F(MiniWindowMoving, header_buttons_take_the_left_mouse_button_only) {
    open();
    for (const char *name : {"cmd_lent", "cmd_x"}) {
        press(label(name), middle_of(label(name)), Qt::RightButton);
        EXPECT_EQ(colour(name), QColor(255, 255, 255)) << name;
        release(label(name), middle_of(label(name)), Qt::RightButton);
    }

    EXPECT_TRUE(large_.calls.isEmpty());
    EXPECT_EQ(kept_place(), QPoint(1234, 2345));
}

TEST_F(MiniWindowMoving, still_takes_a_click_with_a_trembling_hand_for_a_click) {
    open();
    for (const auto &[name, call] :
         {std::pair("cmd_keres", u"Ok_Click"_s), std::pair("cmd_szószedethez_ad", u"hozzáad_Click"_s),
          std::pair("cmd_kilép", u"visszatér"_s)}) {
        large_.calls.clear();
        const QPoint at = middle_of(button(name));

        press(button(name), at);
        move(button(name), at + QPoint(2, 1));
        release(button(name), at + QPoint(2, 1));

        EXPECT_EQ(large_.calls.value(0), call) << name;
        EXPECT_EQ(kept_place(), QPoint(1234, 2345)) << name;
    }
}

TEST_F(MiniWindowMoving, takes_a_click_for_a_click_after_a_drag_whose_end_it_was_not_told) {
    open();
    const QPoint at = middle_of(button("cmd_keres"));
    press(button("cmd_keres"), at);
    move(button("cmd_keres"), at + QPoint(40, 40));

    const QPoint again = middle_of(button("cmd_keres"));
    press(button("cmd_keres"), again);
    release(button("cmd_keres"), again);

    EXPECT_EQ(large_.calls.value(0), u"Ok_Click"_s);
}

TEST_F(MiniWindowMoving, keeps_its_grip_when_another_mouse_button_is_pressed_during_a_drag) {
    open();
    QLabel *header = label("label_fejléc");
    const QPoint at = middle_of(header);

    press(header, at);
    mouse(header, QEvent::MouseButtonPress, at + QPoint(7, 7), Qt::RightButton, Qt::LeftButton | Qt::RightButton);
    move(header, at + QPoint(20, 20), Qt::LeftButton | Qt::RightButton);

    EXPECT_EQ(kept_place(), QPoint(1234 + 20 * 15, 2345 + 20 * 15));
}

TEST_F(MiniWindowMoving, follows_a_drag_far_beyond_every_screen) {
    open();
    QLabel *header = label("label_fejléc");
    const QPoint at = middle_of(header);

    press(header, at);
    move(header, at + QPoint(-5000, 9000));

    EXPECT_EQ(kept_place(), QPoint(1234 - 5000 * 15, 2345 + 9000 * 15));
}

}  // namespace
