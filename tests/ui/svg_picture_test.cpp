#include "ui/svg_picture.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>

#include "support/files_for_tests.h"

namespace {

/// Red, with a blue right half; without a background below its middle.
constexpr char drawing[] =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="100" height="100" viewBox="0 0 100 100">
         <rect width="50" height="50" fill="#ff0000"/><rect x="50" width="50" height="50" fill="#0000ff"/>
       </svg>)";

class SvgPicture : public testing::Test {
  protected:
    SvgPicture() { write_file(file_, drawing); }

    QTemporaryDir folder_;
    const QString file_ = folder_.filePath(QStringLiteral("drawing.svg"));
};

TEST_F(SvgPicture, has_the_size_in_pixels_of_the_screen) {
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const QPixmap picture = svg_picture(file_, {200, 60}, ratio);

        EXPECT_EQ(picture.size(), (QSizeF(200, 60) * ratio).toSize());
        EXPECT_EQ(picture.devicePixelRatio(), ratio);
        EXPECT_EQ(picture.deviceIndependentSize(), QSizeF(200, 60));
    }
}

TEST_F(SvgPicture, fills_its_size_whatever_its_proportions) {
    for (const QSize &size : {QSize(200, 60), QSize(30, 90)}) {
        for (const int ratio : {1, 2}) {
            const QImage picture = svg_picture(file_, size, ratio).toImage();
            const int right = size.width() * ratio - 1;
            const int above_the_middle = size.height() * ratio / 2 - 2;

            EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::red));
            EXPECT_EQ(picture.pixelColor(right / 2 - 2, above_the_middle), QColor(Qt::red));
            EXPECT_EQ(picture.pixelColor(right / 2 + 3, 0), QColor(Qt::blue));
            EXPECT_EQ(picture.pixelColor(right, above_the_middle), QColor(Qt::blue));
        }
    }
}

TEST_F(SvgPicture, is_transparent_where_nothing_is_drawn) {
    const QImage picture = svg_picture(file_, {200, 60}, 1).toImage();

    EXPECT_EQ(picture.pixelColor(100, 40).alpha(), 0);
}

}  // namespace
