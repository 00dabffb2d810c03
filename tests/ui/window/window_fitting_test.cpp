#include "ui/window/window_fitting.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QFontMetricsF>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>

#include "support/printing.h"
#include "ui/drawing/fonts.h"
#include "ui/drawing/twips.h"

using namespace Qt::StringLiterals;

namespace {

constexpr QRectF small_screen(0, 0, 1024 * 15, 768 * 15);

class WindowFitting : public testing::Test {
  protected:
    WindowFitting() { reference_.feliratbeállít(u"Zimbora Angol-Magyar Szótár"_s); }

    ~WindowFitting() override {
        for (QLabel *label : {first_.data(), second_.data()}) {
            if (label && !label->parent())
                delete label;
        }
    }

    /// A window with two controls; the lower right corner of the second is the largest.
    void fill(ablak &window, double right, double bottom) {
        window.elhelyez(first_, {120, 120, 600, 300});
        window.elhelyez(second_, {right - 600, bottom - 300, 600, 300});
        window.méretez(5000, 5000);
    }

    frm_referencia reference_;
    Module_hasznos fitting_{reference_, [] { return small_screen; }};
    // They go with the window that a test places them on, or with the test.
    QPointer<QLabel> first_ = new QLabel(u"első"_s);
    QPointer<QLabel> second_ = new QLabel(u"második"_s);
};

TEST_F(WindowFitting, scales_a_tall_window_to_the_share_of_the_screens_height) {
    ablak window(u"próba"_s, ablak::menü::van);
    fill(window, 2000, 4880);

    const double ratio = fitting_.ablakméretez(window, 0.85);

    // (11520 − frame) × 0.85 / (4880 + 120)
    EXPECT_DOUBLE_EQ(ratio, (11520 - window.keretmagasság()) * 0.85 / 5000);
    EXPECT_DOUBLE_EQ(window.hely(first_).left(), 120 * ratio);
    EXPECT_DOUBLE_EQ(window.hely(first_).top(), 120 * ratio);
    EXPECT_DOUBLE_EQ(window.hely(first_).width(), 600 * ratio);
    EXPECT_DOUBLE_EQ(window.hely(first_).height(), 300 * ratio);
    EXPECT_DOUBLE_EQ(window.belsőmagasság(), 4880 * ratio + 120);
    EXPECT_DOUBLE_EQ(window.belsőszélesség(), 2000 * ratio + 120);
}

TEST_F(WindowFitting, scales_a_wide_window_to_the_share_of_the_screens_width) {
    ablak window(u"próba"_s);
    fill(window, 9880, 2000);

    const double ratio = fitting_.ablakméretez(window, 0.7);

    EXPECT_DOUBLE_EQ(ratio, (15360 - window.keretszélesség()) * 0.7 / 10000);
}

TEST_F(WindowFitting, counts_hidden_controls_and_leaves_menus_out) {
    ablak window(u"próba"_s, ablak::menü::van);
    window.menüsor()->addMenu(u"&Fájl"_s);
    fill(window, 2000, 4880);
    second_->hide();

    const double ratio = fitting_.ablakméretez(window, 0.85);

    EXPECT_DOUBLE_EQ(ratio, (11520 - window.keretmagasság()) * 0.85 / 5000);
    EXPECT_EQ(window.vezérlők().size(), 2);
}

TEST_F(WindowFitting, styles_a_window_with_title_icon_colour_and_place) {
    ablak window(u"próba"_s);
    window.setWindowTitle(u"Tanulás"_s);
    fill(window, 2000, 2000);

    fitting_.ablakstílus(window);

    EXPECT_EQ(window.windowTitle(), u"Zimbora Angol-Magyar Szótár - Tanulás"_s);
    EXPECT_EQ(window.háttérszín(), reference_.háttérszín());
    EXPECT_EQ(window.windowIcon().cacheKey(), reference_.windowIcon().cacheKey());
    EXPECT_EQ(window.x(), qRound((15360 - 5000) / 2 / 15.0));
    EXPECT_EQ(window.y(), qRound((11520 - 5000) / 2 / 15.0));
}

TEST_F(WindowFitting, gives_each_kind_of_control_its_type_face) {
    ablak window(u"próba"_s);
    auto *frame = new QGroupBox;
    auto *check = new QCheckBox;
    auto *button = new QPushButton;
    auto *option = new QRadioButton;
    auto *text = new QLineEdit;
    for (QWidget *control : std::initializer_list<QWidget *>{frame, check, button, option, text, first_})
        window.elhelyez(control, {0, 0, 100, 100});
    const QString before = option->font().family();

    fitting_.ablakstílus(window);

    for (const QWidget *control : std::initializer_list<const QWidget *>{frame, check, button, first_})
        EXPECT_EQ(control->font().families(), QStringList{fonts::times_new_roman_ce});
    EXPECT_EQ(option->font().family(), before);
    EXPECT_EQ(text->font().family(), before);
}

TEST_F(WindowFitting, makes_labels_transparent_but_not_white_ones_and_none_of_frm_rajz) {
    const auto styled_label = [this](const char16_t *name, const QColor &colour) {
        ablak window(QString::fromUtf16(name));
        auto *label = new QLabel;
        label->setAutoFillBackground(true);
        label->setPalette(QPalette(colour, colour));
        window.elhelyez(label, {0, 0, 100, 100});
        fitting_.ablakstílus(window);
        return label->autoFillBackground();
    };

    EXPECT_FALSE(styled_label(u"próba", Qt::yellow));
    EXPECT_TRUE(styled_label(u"próba", Qt::white));
    EXPECT_TRUE(styled_label(u"frm_rajz", Qt::yellow));
}

class TextFitting : public testing::Test {
  protected:
    TextFitting() { box_.resize(400, 60); }

    [[nodiscard]] QSizeF size_at(double points, const QString &text) const {
        QFont font = box_.font();
        fonts::set_points(font, points);
        return PictureBox::text_size(text, font);
    }

    PictureBox box_;
};

TEST_F(TextFitting, uses_the_last_size_at_which_the_text_still_fits_a_picture_box) {
    const QString text = u"szótár"_s;

    Module_hasznos::szövegbeigazít(box_, text);

    const double points = fonts::points(box_.font());
    EXPECT_LT(size_at(points, text).height(), box_.inner_size().height());
    const QSizeF next = size_at(points + 1, text);
    EXPECT_TRUE(next.height() >= box_.inner_size().height() || next.width() >= box_.inner_size().width());
    EXPECT_EQ(box_.font().families(), QStringList{fonts::times_new_roman});
}

TEST_F(TextFitting, centres_a_mixed_text_and_keeps_it_as_the_tag) {
    Module_hasznos::szövegbeigazít(box_, u"Alma"_s);

    EXPECT_NEAR(box_.printed_area().center().x(), box_.inner_size().width() / 2, 1);
    EXPECT_NEAR(box_.printed_area().center().y(), box_.inner_size().height() / 2, 1);
    EXPECT_EQ(box_.property("tag").toString(), u"Alma"_s);
}

TEST_F(TextFitting, draws_a_text_of_capitals_lower) {
    Module_hasznos::szövegbeigazít(box_, u"ŐZ"_s);

    EXPECT_NEAR(box_.printed_area().center().y(), box_.inner_size().height() * 0.6, 1);
}

TEST_F(TextFitting, centres_capitals_and_digits_that_are_broken_into_lines) {
    box_.resize(430, 180);
    for (const QString &text :
         {u"EGYESÜLT NEMZETEK SZERVEZETE, ENSZ"_s, u"1222 1456 1526 1686 1703 1848 1867 1918"_s}) {
        Module_hasznos::szövegbeigazít(box_, text);

        const QSizeF one_line = size_at(fonts::points(box_.font()), text);
        ASSERT_GT(box_.printed_area().height(), one_line.height());
        EXPECT_NEAR(box_.printed_area().center().y(), box_.inner_size().height() / 2, 1);
        EXPECT_LE(box_.printed_area().bottom(), box_.inner_size().height());
    }
}

TEST_F(TextFitting, reminds_of_a_missing_text) {
    Module_hasznos::szövegbeigazít(box_, QString());

    EXPECT_EQ(box_.property("tag").toString(), u"Kéne írni ide valamit!"_s);
}

TEST_F(TextFitting, prints_a_number_as_its_text) {
    Module_hasznos::szövegbeigazít(box_, 12);

    EXPECT_EQ(box_.property("tag").toString(), u"12"_s);
}

TEST_F(TextFitting, writes_large_numbers_out) {
    Module_hasznos::szövegbeigazít(box_, 1234567);

    EXPECT_EQ(box_.property("tag").toString(), u"1234567"_s);
}

TEST_F(TextFitting, breaks_a_text_into_lines_that_would_be_too_small_in_one) {
    box_.resize(400, 200);
    const QString text = u"valami nagyon hosszú magyarázattal írható csak le "_s.repeated(4).trimmed();

    Module_hasznos::szövegbeigazít(box_, text);

    EXPECT_EQ(box_.property("tag").toString(), text);
    EXPECT_LE(box_.printed_area().width(), box_.inner_size().width());
    EXPECT_LE(box_.printed_area().height(), box_.inner_size().height());
    EXPECT_GE(fonts::points(box_.font()), 14);
}

TEST_F(TextFitting, breaks_words_that_are_wider_than_the_box_alone) {
    box_.resize(200, 200);
    const QString text = u"megszentségteleníthetetlenségeskedéseitekért "_s.repeated(3).trimmed();

    Module_hasznos::szövegbeigazít(box_, text);

    EXPECT_LE(box_.printed_area().width(), box_.inner_size().width());
    EXPECT_LE(box_.printed_area().height(), box_.inner_size().height());
}

TEST_F(TextFitting, keeps_a_million_letters_in_the_tag_and_shows_their_beginning) {
    const QString text(1 << 20, u'x');

    Module_hasznos::szövegbeigazít(box_, text);

    EXPECT_EQ(box_.property("tag").toString(), text);
}

TEST_F(TextFitting, keeps_the_blanks_of_a_text) {
    Module_hasznos::szövegbeigazít(box_, u"Ehhez a játékhoz "_s);

    EXPECT_EQ(box_.property("tag").toString(), u"Ehhez a játékhoz "_s);
}

TEST_F(TextFitting, replaces_what_was_printed_before) {
    Module_hasznos::szövegbeigazít(box_, u"egy hosszú szöveg volt itt"_s);
    Module_hasznos::szövegbeigazít(box_, u"i"_s);

    EXPECT_LT(box_.printed_area().width(), box_.inner_size().width() / 4);
}

TEST_F(TextFitting, ends_for_a_box_without_room) {
    box_.resize(1, 1);

    Module_hasznos::szövegbeigazít(box_, u"szótár"_s);

    EXPECT_EQ(box_.property("tag").toString(), u"szótár"_s);
}

TEST_F(TextFitting, leaves_a_text_in_one_line_that_a_size_lets_fit) {
    EXPECT_EQ(Module_hasznos::sorokra(box_, u"egy szó"_s, 12), u"egy szó"_s);
    EXPECT_EQ(Module_hasznos::sorokra(box_, QString(), 12), QString());
}

TEST_F(TextFitting, breaks_a_text_at_blanks_into_lines_that_fit_in_the_given_size) {
    box_.resize(400, 400);
    box_.setFont(QFont(QStringList{fonts::times_new_roman}));
    box_.resize(box_.width(), 2000);
    const QString text = u"valami nagyon hosszú magyarázattal írható csak le"_s;
    for (const double points : {20.0, 30.0, 40.0}) {
        const QString lines = Module_hasznos::sorokra(box_, text, points);

        EXPECT_GT(lines.count(u'\n'), 0) << points;
        EXPECT_EQ(QString(lines).replace(u'\n', u' '), text);
        EXPECT_LT(size_at(points, lines).width(), box_.inner_size().width());
    }
    EXPECT_LT(Module_hasznos::sorokra(box_, text, 20).count(u'\n'),
              Module_hasznos::sorokra(box_, text, 40).count(u'\n'));
}

TEST_F(TextFitting, breaks_a_word_inside_that_is_wider_than_the_box_in_the_given_size) {
    box_.resize(400, 400);
    box_.setFont(QFont(QStringList{fonts::times_new_roman}));
    box_.resize(box_.width(), 2000);
    const QString word = u"megszentségteleníthetetlenségeskedéseitekért"_s;

    const QString lines = Module_hasznos::sorokra(box_, u"egy "_s + word, 40);

    EXPECT_TRUE(lines.startsWith(u"egy\n"_s));
    EXPECT_EQ(QString(lines).remove(u'\n'), u"egy"_s + word);
    EXPECT_LT(size_at(40, lines).width(), box_.inner_size().width());
}

TEST_F(TextFitting, ends_a_text_that_is_longer_than_the_box_is_high_with_dots) {
    box_.setFont(QFont(QStringList{fonts::times_new_roman}));
    const QString text = u"valami nagyon hosszú magyarázattal írható csak le "_s.repeated(20);

    const QString lines = Module_hasznos::sorokra(box_, text, 12);

    EXPECT_TRUE(lines.endsWith(u'…'));
    EXPECT_TRUE(lines.startsWith(u"valami"_s));
    EXPECT_LE(size_at(12, lines).height(), box_.inner_size().height());
    EXPECT_LT(size_at(12, lines).width(), box_.inner_size().width());
}

TEST_F(TextFitting, ends_with_three_dots_when_not_all_lines_fit_in_the_given_size) {
    box_.resize(400, 200);
    box_.setFont(QFont(QStringList{fonts::times_new_roman}));
    const QString text = u"valami nagyon hosszú magyarázattal írható csak le "_s.repeated(4).trimmed();
    for (const QString &one : {text, QString(text).remove(u' ')}) {
        const QString lines = Module_hasznos::sorokra(box_, one, 40);

        EXPECT_TRUE(lines.endsWith(u'…'));
        const QString whole = QString(lines).remove(u'\n').chopped(1);
        EXPECT_TRUE(QString(one).remove(u' ').startsWith(QString(whole).remove(u' ')));
        EXPECT_LT(size_at(40, lines).width(), box_.inner_size().width());
        EXPECT_LT(size_at(40, lines).height(), box_.inner_size().height());
        const double line = size_at(40, u"x"_s).height();
        EXPECT_GT(size_at(40, lines).height() + line, box_.inner_size().height());
    }
}

TEST_F(TextFitting, uses_the_first_size_at_which_a_buttons_text_reaches_ninety_percent) {
    QPushButton button(u"&Ok"_s);
    button.resize(120, 40);

    Module_hasznos::szövegbeigazít(button, QString());

    EXPECT_EQ(button.text(), u"&Ok"_s);
    const double points = fonts::points(button.font());
    QFont font = button.font();
    EXPECT_GE(QFontMetricsF(font).height(), 0.9 * 40);
    fonts::set_points(font, points - 1);
    EXPECT_LT(QFontMetricsF(font).height(), 0.9 * 40);
}

TEST_F(TextFitting, uses_the_first_size_at_which_a_labels_text_reaches_ninety_percent_of_its_width) {
    QLabel label;
    label.resize(150, 300);

    Module_hasznos::szövegbeigazít(label, u"A párja?"_s);

    QFont font = label.font();
    EXPECT_GE(QFontMetricsF(font).horizontalAdvance(u"A párja?"_s), 0.9 * 150);
    EXPECT_LT(QFontMetricsF(font).height(), 0.9 * 300);
    fonts::set_points(font, fonts::points(font) - 1);
    EXPECT_LT(QFontMetricsF(font).horizontalAdvance(u"A párja?"_s), 0.9 * 150);
}

TEST_F(TextFitting, gives_a_label_the_text_it_is_given) {
    QLabel label(u"régi"_s);
    label.resize(100, 30);

    Module_hasznos::szövegbeigazít(label, u" 3/ 20"_s);

    EXPECT_EQ(label.text(), u" 3/ 20"_s);
}

TEST(Fonts, measure_points_in_twenty_twips) {
    QFont font;

    fonts::set_points(font, 72);

    EXPECT_NEAR(twips::from_pixels(QFontInfo(font).pixelSize()), 72 * twips::per_point, twips::per_pixel);
    EXPECT_DOUBLE_EQ(fonts::points(font), 72);
}

TEST(Fonts, show_hungarian_letters_in_a_face_with_serifs) {
    const QFont font(QStringList{fonts::times_new_roman});

    const QFontMetricsF metrics(font);
    for (const QChar letter : u"őűŐŰáéíóöúü"_s)
        EXPECT_TRUE(metrics.inFont(letter));
    EXPECT_TRUE(QFontInfo(font).family().contains(u"Serif"_s) || QFontInfo(font).family().contains(u"Times"_s))
        << QFontInfo(font).family().toStdString();
}

TEST_F(WindowFitting, gives_dialogs_larger_letters_on_a_larger_screen_and_never_smaller_ones) {
    const auto points_on = [this](double width, double height) {
        const QRectF screen(0, 0, width * twips::per_pixel, height * twips::per_pixel);
        return Module_hasznos(reference_, [screen] { return screen; }).párbeszédpont();
    };

    EXPECT_DOUBLE_EQ(points_on(1024, 768), 9);
    EXPECT_DOUBLE_EQ(points_on(800, 600), 9);
    EXPECT_DOUBLE_EQ(points_on(2560, 1440), 9 * 1440.0 / 768);
    // Turned on its side.
    EXPECT_DOUBLE_EQ(points_on(1440, 2560), 9 * 1440.0 / 1024);
}

}  // namespace
