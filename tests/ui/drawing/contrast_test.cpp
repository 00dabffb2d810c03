#include "ui/drawing/contrast.h"

#include <gtest/gtest.h>

namespace {

TEST(Contrast, is_that_of_the_guidelines) {
    EXPECT_NEAR(contrast(Qt::black, Qt::white), 21, 0.001);
    EXPECT_NEAR(contrast(Qt::white, Qt::white), 1, 0.001);
    // The grey that the guidelines' readers know as the lightest for text on white.
    EXPECT_NEAR(contrast(QColor(0x76, 0x76, 0x76), Qt::white), 4.54, 0.01);
}

TEST(ReadableBackground, leaves_a_readable_one_alone) {
    EXPECT_EQ(readable_behind(Qt::white, Qt::darkBlue), QColor(Qt::darkBlue));
    EXPECT_EQ(readable_behind(Qt::black, Qt::yellow), QColor(Qt::yellow));
}

TEST(ReadableBackground, goes_as_far_from_the_letters_as_it_has_to) {
    for (const QColor &letters : {QColor(Qt::white), QColor(Qt::black), QColor(48, 140, 198)}) {
        for (const QColor &background : {QColor(48, 140, 198), QColor(240, 240, 240), QColor(20, 20, 30)}) {
            const QColor made = readable_behind(letters, background);
            EXPECT_GE(contrast(letters, made), readable_contrast);
            EXPECT_TRUE(made == background || contrast(letters, made) < readable_contrast + 0.6);
        }
    }
}

}  // namespace
