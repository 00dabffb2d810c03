#include "ui/controls/choosable_picture.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPointer>
#include <QSignalSpy>
#include <QtTest/QTest>

#include "ui/window/window_fitting.h"

using namespace Qt::StringLiterals;

namespace {

class ChoosablePictureTest : public testing::Test {
  protected:
    ChoosablePictureTest() {
        window_.resize(400, 300);
        picture_->setGeometry(50, 40, 120, 60);
        picture_->set_background(Qt::yellow);
        window_.show();
    }

    void press(const QPoint &at, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mousePress(picture_, button, {}, at);
    }
    void release(const QPoint &at, Qt::MouseButton button = Qt::LeftButton) {
        QTest::mouseRelease(picture_, button, {}, at);
    }
    void move_with_button(const QPoint &to) {
        QMouseEvent move(QEvent::MouseMove, to, picture_->mapTo(&window_, QPointF(to)),
                         picture_->mapToGlobal(QPointF(to)), Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(picture_, &move);
    }
    [[nodiscard]] int ghosts() const {
        int count = 0;
        for (const QLabel *one : window_.findChildren<QLabel *>(Qt::FindDirectChildrenOnly))
            count += one->isVisible() ? 1 : 0;
        return count;
    }

    QWidget window_;
    ChoosablePicture *picture_ = new ChoosablePicture(&window_);
    QSignalSpy chosen_{picture_, &ChoosablePicture::chosen};
    QSignalSpy dropped_{picture_, &ChoosablePicture::dropped};
};

TEST_F(ChoosablePictureTest, is_chosen_by_a_click) {
    QTest::mouseClick(picture_, Qt::LeftButton, {}, {1, 1});

    EXPECT_EQ(chosen_.count(), 1);
    EXPECT_EQ(dropped_.count(), 0);
}

TEST_F(ChoosablePictureTest, is_chosen_only_when_the_button_is_let_go_on_it) {
    press({60, 30});
    EXPECT_EQ(chosen_.count(), 0);
    release({60, 61});
    EXPECT_EQ(chosen_.count(), 0);

    release({60, 30});
    EXPECT_EQ(chosen_.count(), 0);
    press({60, 30});
    release({0, 59});
    EXPECT_EQ(chosen_.count(), 1);
}

TEST_F(ChoosablePictureTest, is_not_chosen_by_another_mouse_button) {
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton})
        QTest::mouseClick(picture_, button);

    EXPECT_EQ(chosen_.count(), 0);
}

TEST_F(ChoosablePictureTest, is_chosen_by_space_in_both_modes) {
    for (const auto mode : {ChoosablePicture::DragMode::manual, ChoosablePicture::DragMode::automatic}) {
        picture_->set_drag_mode(mode);
        chosen_.clear();

        QTest::keyClick(picture_, Qt::Key_Space);

        EXPECT_EQ(chosen_.count(), 1);
    }
}

TEST_F(ChoosablePictureTest, is_not_chosen_by_the_repeats_of_space_nor_by_other_keys) {
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s, true);
    QApplication::sendEvent(picture_, &repeat);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_A})
        QTest::keyClick(picture_, key);

    EXPECT_EQ(chosen_.count(), 0);
}

TEST_F(ChoosablePictureTest, is_dropped_and_not_chosen_when_it_is_dragged) {
    picture_->set_drag_mode(ChoosablePicture::DragMode::automatic);

    press({10, 10});
    move_with_button({90, 100});
    EXPECT_EQ(ghosts(), 1);
    release({90, 100});

    EXPECT_EQ(ghosts(), 0);
    EXPECT_EQ(chosen_.count(), 0);
    ASSERT_EQ(dropped_.count(), 1);
    EXPECT_EQ(dropped_[0][0].toPoint(), picture_->mapToGlobal(QPoint(90, 100)));
}

TEST_F(ChoosablePictureTest, is_never_dragged_when_a_click_chooses) {
    press({10, 10});
    move_with_button({90, 40});
    EXPECT_EQ(ghosts(), 0);
    release({90, 40});

    EXPECT_EQ(chosen_.count(), 1);
    EXPECT_EQ(dropped_.count(), 0);
}

TEST_F(ChoosablePictureTest, is_dropped_nowhere_when_it_goes_during_the_drag) {
    const std::function<void()> ways[] = {[this] { picture_->hide(); },
                                          [this] { QTest::keyClick(picture_, Qt::Key_Escape); },
                                          [this] { picture_->end_drag(); }};
    picture_->set_drag_mode(ChoosablePicture::DragMode::automatic);
    for (const auto &go : ways) {
        picture_->show();
        press({10, 10});
        move_with_button({90, 100});
        ASSERT_EQ(ghosts(), 1);

        go();
        EXPECT_EQ(ghosts(), 0);

        release({90, 100});
        EXPECT_EQ(dropped_.count(), 0);
    }
}

TEST_F(ChoosablePictureTest, takes_its_ghost_along_when_it_is_deleted) {
    picture_->set_drag_mode(ChoosablePicture::DragMode::automatic);
    press({10, 10});
    move_with_button({90, 100});
    ASSERT_EQ(ghosts(), 1);

    delete picture_;

    EXPECT_EQ(ghosts(), 0);
}

TEST_F(ChoosablePictureTest, shows_that_it_has_the_focus) {
    QApplication::setActiveWindow(&window_);
    picture_->clearFocus();
    const QImage without = picture_->grab().toImage();

    picture_->setFocus();
    ASSERT_TRUE(picture_->hasFocus());
    const QImage with = picture_->grab().toImage();

    EXPECT_NE(with, without);
    picture_->clearFocus();
    EXPECT_EQ(picture_->grab().toImage(), without);
}

TEST_F(ChoosablePictureTest, shows_its_picture_inside_its_frame) {
    QPixmap red(20, 20);
    red.fill(Qt::red);

    picture_->set_picture(red);

    EXPECT_EQ(picture_->grab().toImage().pixelColor(60, 30), QColor(Qt::red));
    EXPECT_NE(picture_->grab().toImage().pixelColor(0, 0), QColor(Qt::red));
}

TEST_F(ChoosablePictureTest, hides_its_ghost_when_its_window_is_left_and_deletes_it_after_the_event) {
    for (const QEvent::Type type : {QEvent::WindowDeactivate, QEvent::WindowBlocked}) {
        picture_->set_drag_mode(ChoosablePicture::DragMode::automatic);
        press({10, 10});
        move_with_button({90, 100});
        const QPointer<QLabel> ghost = window_.findChildren<QLabel *>(Qt::FindDirectChildrenOnly).value(0);
        ASSERT_TRUE(ghost);

        QEvent left(type);
        QApplication::sendEvent(picture_, &left);

        // The window is telling its other children, of which the ghost is one.
        ASSERT_TRUE(ghost);
        EXPECT_FALSE(ghost->isVisible());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_FALSE(ghost);
        release({90, 100});
        EXPECT_EQ(dropped_.count(), 0);
    }
}

TEST_F(ChoosablePictureTest, keeps_its_text_clear_of_its_frame_and_its_hint) {
    QApplication::setActiveWindow(&window_);
    picture_->setFocus();
    for (const QString &hint : {QString(), u"1"_s}) {
        picture_->clear();
        picture_->reserve_frame(hint);
        const QImage without = picture_->grab().toImage();

        Module_hasznos::szövegbeigazít(*picture_, u"Ágyúgolyó"_s);

        const QImage with = picture_->grab().toImage();
        QRect changed;
        for (int y = 0; y < with.height(); ++y) {
            for (int x = 0; x < with.width(); ++x)
                changed |= with.pixel(x, y) == without.pixel(x, y) ? QRect() : QRect(x, y, 1, 1);
        }
        const QRect inside = picture_->rect().adjusted(hint.isEmpty() ? 5 : 20, 4, -5, -4);
        EXPECT_FALSE(changed.isEmpty());
        EXPECT_TRUE(inside.contains(changed)) << changed.left() << ' ' << changed.top() << ' ' << changed.right();
        EXPECT_EQ(picture_->property("tag").toString(), u"Ágyúgolyó"_s);
    }
}

TEST_F(ChoosablePictureTest, shows_its_hint) {
    const QImage without = picture_->grab().toImage();

    picture_->reserve_frame(u"1"_s);
    const QImage one = picture_->grab().toImage();
    picture_->reserve_frame(u"2"_s);

    EXPECT_NE(one, without);
    EXPECT_NE(picture_->grab().toImage(), one);
}

TEST_F(ChoosablePictureTest, warns_with_a_red_frame_for_a_moment) {
    QApplication::setActiveWindow(&window_);
    picture_->setFocus();
    const QImage before = picture_->grab().toImage();

    picture_->warn();
    const QColor frame = picture_->grab().toImage().pixelColor(2, 2);
    EXPECT_GT(frame.red(), 180);
    EXPECT_LT(frame.green(), 80);
    EXPECT_LT(frame.blue(), 80);

    EXPECT_TRUE(QTest::qWaitFor([&] { return picture_->grab().toImage() == before; }));
    picture_->warn();
    picture_->end_warning();
    EXPECT_EQ(picture_->grab().toImage(), before);
}

}  // namespace
