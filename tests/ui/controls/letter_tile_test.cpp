#include "ui/controls/letter_tile.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFontMetricsF>
#include <QMouseEvent>
#include <QSignalSpy>
#include <QtTest/QTest>

#include "ui/drawing/fonts.h"
#include "ui/drawing/twips.h"

using namespace Qt::StringLiterals;

namespace {

[[nodiscard]] QFont letters_of(double points) {
    QFont font(QStringList{fonts::times_new_roman});
    fonts::set_points(font, points);
    return font;
}

[[nodiscard]] QSizeF size_of(const char16_t *letter, double points) {
    return LetterTile::size_of(QString::fromUtf16(letter), letters_of(points));
}

TEST(LetterTile, has_room_for_its_letter_and_more) {
    for (const char16_t *letter : {u"i", u"w", u"dzs", u"Ű", u"_"}) {
        for (const double points : {7.0, 20.0, 80.0}) {
            const QFontMetricsF metrics(letters_of(points));
            const QSizeF size = size_of(letter, points) / twips::per_pixel;
            EXPECT_GT(size.width(), metrics.horizontalAdvance(QString::fromUtf16(letter)));
            EXPECT_GT(size.height(), metrics.height());
        }
    }
}

TEST(LetterTile, has_a_size_of_whole_pixels) {
    for (const char16_t *letter : {u"i", u"sz", u"m"}) {
        for (const double points : {7.0, 13.0, 41.5}) {
            const QSizeF size = size_of(letter, points) / twips::per_pixel;
            EXPECT_EQ(size, QSizeF(size.toSize()));
        }
    }
}

TEST(LetterTile, grows_with_its_letters) {
    double width = 0;
    double height = 0;
    for (double points = 7; points < 100; points += 8) {
        const QSizeF size = size_of(u"sz", points);
        EXPECT_GT(size.width(), width);
        EXPECT_GT(size.height(), height);
        width = size.width();
        height = size.height();
    }
}

TEST(LetterTile, of_a_wider_letter_is_wider_and_as_high) {
    EXPECT_GT(size_of(u"w", 30).width(), size_of(u"o", 30).width());
    EXPECT_GT(size_of(u"dzs", 30).width(), size_of(u"sz", 30).width());
    EXPECT_EQ(size_of(u"w", 30).height(), size_of(u"i", 30).height());
}

TEST(LetterTile, of_a_narrow_letter_can_still_be_gripped) {
    for (const char16_t *letter : {u"i", u"l", u".", u""}) {
        const QSizeF size = size_of(letter, 30);
        EXPECT_GE(size.width(), size.height() / 2) << QString::fromUtf16(letter).toStdString();
    }
}

class LetterTileMouse : public testing::Test {
  protected:
    LetterTileMouse() {
        tile_.resize(60, 40);
        tile_.show();
    }

    void move(Qt::MouseButtons held, const QPointF &to) {
        QMouseEvent event(QEvent::MouseMove, to, to, tile_.mapToGlobal(to), Qt::NoButton, held, {});
        QApplication::sendEvent(&tile_, &event);
    }

    LetterTile tile_{u"sz"_s};
    QSignalSpy pressed_{&tile_, &LetterTile::mouse_pressed};
    QSignalSpy moved_{&tile_, &LetterTile::mouse_moved};
};

TEST_F(LetterTileMouse, tells_in_twips_where_any_button_goes_down) {
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton})
        QTest::mouseClick(&tile_, button, {}, {12, 30});

    ASSERT_EQ(pressed_.count(), 2);
    EXPECT_EQ(pressed_[0][0].toPointF(), QPointF(180, 450));
    EXPECT_EQ(pressed_[1][0].toPointF(), QPointF(180, 450));
}

TEST_F(LetterTileMouse, tells_in_twips_where_the_mouse_moves_and_which_buttons_are_held) {
    move(Qt::LeftButton, {12.5, -3});
    move(Qt::LeftButton | Qt::RightButton, {1, 2});

    ASSERT_EQ(moved_.count(), 2);
    EXPECT_EQ(moved_[0][0].value<Qt::MouseButtons>(), Qt::LeftButton);
    EXPECT_EQ(moved_[0][1].toPointF(), QPointF(187.5, -45));
    EXPECT_EQ(moved_[1][0].value<Qt::MouseButtons>(), Qt::LeftButton | Qt::RightButton);
}

TEST_F(LetterTileMouse, stays_where_it_is) {
    const QPoint before = tile_.pos();

    QTest::mousePress(&tile_, Qt::LeftButton, {}, {12, 30});
    move(Qt::LeftButton, {80, 90});
    QTest::mouseRelease(&tile_, Qt::LeftButton, {}, {80, 90});

    EXPECT_EQ(tile_.pos(), before);
}

TEST_F(LetterTileMouse, shows_its_letter_as_it_is) {
    LetterTile ampersand(u"&"_s);
    LetterTile blank(QString{});
    for (LetterTile *one : {&ampersand, &blank, &tile_}) {
        one->resize(60, 40);
        one->setFont(letters_of(20));
    }

    const QImage without = blank.grab().toImage();

    EXPECT_NE(ampersand.grab().toImage(), without);
    EXPECT_NE(tile_.grab().toImage(), without);
}

TEST_F(LetterTileMouse, shows_that_it_has_the_focus) {
    QApplication::setActiveWindow(&tile_);
    tile_.clearFocus();
    const QImage without = tile_.grab().toImage();

    tile_.setFocus();

    ASSERT_TRUE(tile_.hasFocus());
    EXPECT_NE(tile_.grab().toImage(), without);
}

}  // namespace
