#include "ui/drawing/svg_picture.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QString>

using namespace Qt::StringLiterals;

namespace {

// Red, with a blue right half; without a background below its middle. In the build for Windows a recorded drawing.
const QString file = u":/halves.svg"_s;

TEST(SvgPicture, has_the_size_in_pixels_of_the_screen) {
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const QPixmap picture = svg_picture(file, {200, 60}, ratio);

        EXPECT_EQ(picture.size(), (QSizeF(200, 60) * ratio).toSize());
        EXPECT_EQ(picture.devicePixelRatio(), ratio);
        EXPECT_EQ(picture.deviceIndependentSize(), QSizeF(200, 60));
    }
}

TEST(SvgPicture, fills_its_size_whatever_its_proportions) {
    for (const QSize &size : {QSize(200, 60), QSize(30, 90)}) {
        for (const int ratio : {1, 2}) {
            const QImage picture = svg_picture(file, size, ratio).toImage();
            const int right = size.width() * ratio - 1;
            const int above_the_middle = size.height() * ratio / 2 - 2;

            EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::red));
            EXPECT_EQ(picture.pixelColor(right / 2 - 2, above_the_middle), QColor(Qt::red));
            EXPECT_EQ(picture.pixelColor(right / 2 + 3, 0), QColor(Qt::blue));
            EXPECT_EQ(picture.pixelColor(right, above_the_middle), QColor(Qt::blue));
        }
    }
}

TEST(SvgPicture, is_transparent_where_nothing_is_drawn) {
    const QImage picture = svg_picture(file, {200, 60}, 1).toImage();

    EXPECT_EQ(picture.pixelColor(100, 40).alpha(), 0);
}

}  // namespace
