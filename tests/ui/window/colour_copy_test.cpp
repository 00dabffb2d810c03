#include "ui/window/colour_copy.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QRadioButton>

#include "ui/controls/picture_box.h"

using namespace Qt::StringLiterals;

namespace {

TEST(ColourCopy, gives_a_window_and_its_pictures_and_options_the_colour_of_the_main_window) {
    ablak main_window(u"szótár"_s);
    main_window.háttérszínbeállít(Qt::cyan);
    ablak window(u"próba"_s);
    auto *picture = new PictureBox;
    auto *option = new QRadioButton;
    auto *label = new QLabel;
    label->setAutoFillBackground(true);
    for (QWidget *control : std::initializer_list<QWidget *>{picture, option, label})
        window.elhelyez(control, {0, 0, 100, 100});

    global::színmásol(window, main_window);

    EXPECT_EQ(window.háttérszín(), QColor(Qt::cyan));
    EXPECT_EQ(picture->palette().color(QPalette::Window), QColor(Qt::cyan));
    EXPECT_EQ(option->palette().color(QPalette::Window), QColor(Qt::cyan));
    EXPECT_FALSE(label->autoFillBackground());
}

}  // namespace
