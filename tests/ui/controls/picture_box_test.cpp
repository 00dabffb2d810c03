#include "ui/controls/picture_box.h"

#include <gtest/gtest.h>

#include <QImage>

#include "ui/drawing/fonts.h"

using namespace Qt::StringLiterals;

namespace {

class PictureBoxTest : public testing::Test {
  protected:
    PictureBoxTest() {
        box_.resize(200, 100);
        box_.set_background(Qt::white);
        QFont font = box_.font();
        fonts::set_points(font, 15);
        box_.setFont(font);
    }

    [[nodiscard]] static QPixmap plain(const QSize &size, const QColor &colour) {
        QPixmap picture(size);
        picture.fill(colour);
        return picture;
    }
    /// Red on the left, blue on the right.
    [[nodiscard]] static QPixmap two_colours(const QSize &size) {
        QImage image(size, QImage::Format_RGB32);
        for (int y = 0; y < size.height(); ++y) {
            for (int x = 0; x < size.width(); ++x)
                image.setPixelColor(x, y, x < size.width() / 2 ? Qt::red : Qt::blue);
        }
        return QPixmap::fromImage(image);
    }
    [[nodiscard]] QColor seen_at(int x, int y) { return box_.grab().toImage().pixelColor(x, y); }
    /// The part of the box that is not white.
    [[nodiscard]] QRect seen() {
        const QImage image = box_.grab().toImage();
        QRect found;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) != QColor(Qt::white))
                    found |= QRect(x, y, 1, 1);
            }
        }
        return found;
    }

    PictureBox box_;
};

TEST_F(PictureBoxTest, has_an_inner_size_of_fifteen_twips_a_pixel) {
    EXPECT_EQ(box_.inner_size(), QSizeF(3000, 1500));
}

TEST_F(PictureBoxTest, has_no_picture_at_first) {
    EXPECT_TRUE(box_.picture().isNull());
    EXPECT_TRUE(box_.printed_area().isEmpty());
    EXPECT_TRUE(seen().isEmpty());
}

TEST_F(PictureBoxTest, is_filled_with_its_picture_whatever_size_it_has) {
    for (const QSize &size : {QSize(200, 100), QSize(30, 70), QSize(800, 900)}) {
        box_.set_picture(two_colours(size));

        EXPECT_EQ(seen(), QRect(0, 0, 200, 100));
        EXPECT_EQ(seen_at(1, 98), QColor(Qt::red));
        EXPECT_EQ(seen_at(198, 1), QColor(Qt::blue));
        EXPECT_EQ(seen_at(80, 50), QColor(Qt::red));
        EXPECT_EQ(seen_at(120, 50), QColor(Qt::blue));
    }
}

TEST_F(PictureBoxTest, keeps_filling_itself_while_it_shrinks) {
    box_.set_picture(two_colours({200, 100}));

    box_.resize(50, 60);

    EXPECT_EQ(seen(), QRect(0, 0, 50, 60));
    EXPECT_EQ(seen_at(10, 30), QColor(Qt::red));
    EXPECT_EQ(seen_at(40, 30), QColor(Qt::blue));
}

TEST_F(PictureBoxTest, takes_a_picture_off_for_a_null_one) {
    box_.set_picture(plain({200, 100}, Qt::red));

    box_.set_picture({});

    EXPECT_TRUE(box_.picture().isNull());
    EXPECT_TRUE(seen().isEmpty());
}

TEST_F(PictureBoxTest, keeps_its_picture_when_it_is_cleared) {
    box_.set_picture(plain({200, 100}, Qt::red));
    box_.print_centred(u"szó"_s);

    box_.clear();

    EXPECT_TRUE(box_.printed_area().isEmpty());
    EXPECT_FALSE(box_.picture().isNull());
    EXPECT_EQ(seen_at(100, 50), QColor(Qt::red));
}

TEST_F(PictureBoxTest, prints_on_its_picture) {
    box_.set_picture(plain({200, 100}, Qt::white));

    box_.print_centred(u"szó"_s);

    EXPECT_FALSE(seen().isEmpty());
}

TEST_F(PictureBoxTest, prints_a_text_in_its_middle) {
    box_.print_centred(u"szótár"_s);

    const QSizeF text = PictureBox::text_size(u"szótár"_s, box_.font());
    EXPECT_NEAR(box_.printed_area().left(), (3000 - text.width()) / 2, 0.001);
    EXPECT_NEAR(box_.printed_area().top(), (1500 - text.height()) / 2, 0.001);
    EXPECT_EQ(box_.printed_area().size(), text);
    EXPECT_NEAR(seen().center().x(), 100, 3);
    EXPECT_NEAR(seen().center().y(), 50, 10);
}

TEST_F(PictureBoxTest, prints_a_text_of_several_lines_in_its_middle) {
    box_.print_centred(u"egy nagyon\nhosszú\nszöveg"_s);

    const double line = PictureBox::text_size(u"x"_s, box_.font()).height();
    EXPECT_NEAR(box_.printed_area().height(), 3 * line, 0.001);
    EXPECT_NEAR(box_.printed_area().center().x(), 1500, 0.001);
    EXPECT_NEAR(box_.printed_area().center().y(), 750, 0.001);
    EXPECT_GT(seen().height(), 2 * line / 15);
    EXPECT_NEAR(seen().center().x(), 100, 3);
}

TEST_F(PictureBoxTest, centres_the_lines_of_a_text_on_each_other) {
    box_.print_centred(u"egy nagyon hosszú\ni"_s);

    const QImage image = box_.grab().toImage();
    const auto line_of_the_i = image.copy(0, 52, 200, 48);
    int left = 200;
    int right = 0;
    for (int y = 6; y < line_of_the_i.height(); ++y) {
        for (int x = 0; x < 200; ++x) {
            if (line_of_the_i.pixelColor(x, y) != QColor(Qt::white)) {
                left = std::min(left, x);
                right = std::max(right, x);
            }
        }
    }
    EXPECT_NEAR((left + right) / 2.0, 100, 3);
    EXPECT_LT(right - left, 20);
}

}  // namespace
