#include "print/widgets/print_settings_window.h"

#include <QAccessible>
#include <QFontDatabase>
#include <QFontInfo>

#include "support/print_fixture.h"
#include "ui/drawing/fonts.h"

using namespace Qt::StringLiterals;

namespace {

using PrintSettings = PrintTest;

TEST_F(PrintSettings, has_every_control_under_its_name_with_its_caption) {
    start();

    EXPECT_EQ(window_->objectName(), u"frm_nyomtatás"_s);
    EXPECT_EQ(window_->windowTitle(), u"Zimbora Angol-Magyar Szótár - Szószedet nyomtatása"_s);
    const std::pair<const char *, const char *> buttons[] = {
        {"Check_dőlt", "Dőlt"},
        {"Check_félkövér", "Félkövér"},
        {"Option_tájolás(0)", "Álló"},
        {"Option_tájolás(1)", "Fekvő"},
        {"Option_nyomtatástípus(0)", "Szószedet"},
        {"Option_nyomtatástípus(1)", "Szópárok (egy lap egy szópár)"},
        {"Option_nyomtatástípus(2)", "Szókártyák"},
        {"cmd_nyomtatásikép", "Nyomtatási &kép..."},
        {"cmd_nyomtat", "&Nyomtat"},
        {"cmd_mégsem", "Mégsem"}};
    for (const auto &[name, caption] : buttons)
        EXPECT_EQ(control<QAbstractButton>(*window_, name)->text(), QString::fromUtf8(caption));
    EXPECT_EQ(label("Label1"), u"Nyomtató:"_s);
    EXPECT_EQ(label("Label2"), u"Betűtípus:"_s);
    EXPECT_EQ(label("Label3"), u"Betűméret:"_s);
    EXPECT_EQ(label("Label4"), u"Hasábok száma:"_s);
    EXPECT_EQ(label("Label5(0)"), u"Így néz ki majd az első szópár a nyomtatásban:"_s);
    EXPECT_EQ(label("Label5(1)"), u"Így néznek majd ki az ékezetes betűk a nyomtatásban:"_s);
    EXPECT_EQ(control<QGroupBox>(*window_, "Frame1")->title(), u"A nyomtatás típusa"_s);
    EXPECT_EQ(control<QGroupBox>(*window_, "Frame2")->title(), u"Tájolás"_s);
    EXPECT_EQ(control<QGroupBox>(*window_, "Frame_szószedetbeállítás")->title(),
              u"A szószedet nyomtatásának beállításai"_s);
    for (const char *name : {"Picture1(0)", "Picture1(1)", "pic_minta(0)", "pic_minta(1)"})
        EXPECT_FALSE(control<PictureBox>(*window_, name)->accessibleName().isEmpty()) << name;
    EXPECT_NE(control<QFrame>(*window_, "Picture_container"), nullptr);
}

TEST_F(PrintSettings, begins_with_its_defaults) {
    start();

    EXPECT_EQ(shown(),
              (QStringList{u"Second"_s, u"Liberation Serif"_s, QString(), QString(), u"14"_s, u"1"_s, u"portrait"_s}));
    EXPECT_TRUE(option("Option_nyomtatástípus(0)")->isChecked());
    EXPECT_EQ(label("Label_betűméret"), u"14"_s);
    EXPECT_EQ(label("Label_hasábszám"), u"1"_s);
    EXPECT_TRUE(control<QLabel>(*window_, "Label_betűméret")->autoFillBackground());
    EXPECT_TRUE(control<QLabel>(*window_, "Label_hasábszám")->autoFillBackground());
}

TEST_F(PrintSettings, gives_every_control_a_spoken_name) {
    start();

    for (QWidget *one : window_->vezérlők()) {
        const auto *spoken = QAccessible::queryAccessibleInterface(one);
        EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << one->objectName().toStdString();
    }
}

// The printers.

TEST_F(PrintSettings, lists_the_pdf_file_and_then_the_printers_in_the_systems_order_and_selects_the_last) {
    printers_.installed = {u"Z"_s, u"A"_s, u"M"_s};

    start();

    EXPECT_EQ(entries(printers()), (QStringList{u"PDF-fájl"_s, u"Z"_s, u"A"_s, u"M"_s}));
    EXPECT_EQ(printers()->currentText(), u"M"_s);
}

TEST_F(PrintSettings, offers_the_pdf_file_where_there_is_no_printer) {
    printers_.installed.clear();

    start();

    EXPECT_EQ(entries(printers()), QStringList(u"PDF-fájl"_s));
    EXPECT_FALSE(fonts()->currentText().isEmpty());
}

TEST_F(PrintSettings, lists_the_fonts_of_the_selected_printer_when_it_opens) {
    printers_.fonts_of[u"Second"_s] = {u"B"_s, u"A"_s};

    start();

    EXPECT_EQ(entries(fonts()), (QStringList{u"B"_s, u"A"_s}));
}

TEST_F(PrintSettings, lists_a_font_that_several_entries_share_once) {
    printers_.fonts_of[QString()] = {u"B"_s, u"A"_s, u"B"_s, u"b"_s, u"A"_s};

    start();

    EXPECT_EQ(entries(fonts()), (QStringList{u"B"_s, u"A"_s, u"b"_s}));
}

TEST_F(PrintSettings, selects_times_new_roman_ce_or_the_next_best_font) {
    const std::pair<QStringList, QString> all[] = {
        {{u"Liberation Serif"_s, u"Times New Roman"_s, u"Times New Roman CE"_s}, u"Times New Roman CE"_s},
        {{u"Liberation Serif"_s, u"Times New Roman"_s, u"Z"_s}, u"Times New Roman"_s},
        {{u"DejaVu Sans"_s, u"Liberation Sans"_s, u"Liberation Serif"_s, u"DejaVu Serif"_s}, u"Liberation Serif"_s},
        {{u"DejaVu Sans"_s, u"Liberation Sans"_s}, u"DejaVu Sans"_s}};
    for (const auto &[fonts_of_printer, selected] : all) {
        printers_.fonts_of[QString()] = fonts_of_printer;

        load();

        EXPECT_EQ(fonts()->currentText(), selected);
    }
}

TEST_F(PrintSettings, another_printer_brings_its_own_fonts_and_drops_the_chosen_one) {
    printers_.fonts_of[u"First"_s] = {u"DejaVu Sans"_s, u"Liberation Serif"_s, u"Only of the first"_s};
    start();
    choose(fonts(), "DejaVu Sans");

    choose(printers(), "First");

    EXPECT_EQ(fonts()->count(), 3);
    EXPECT_EQ(fonts()->currentText(), u"Liberation Serif"_s);
}

// The samples.

TEST_F(PrintSettings, samples_show_the_first_pair_and_the_accented_letters_in_the_middle) {
    fill(pairs_of({{u"deer", u"őz, szarvas"}, {u"dog", u"kutya"}}));
    start();

    const QStringList texts{u"deer  -  őz, szarvas"_s, u"áéíóöőúüű ÁÉÍÓÖŐÚÜŰ"_s};
    for (int i = 0; i < 2; ++i) {
        const QRectF area = sample(i)->printed_area();
        const QSizeF expected = PictureBox::text_size(texts[i], sample(i)->font());
        EXPECT_NEAR(area.width(), expected.width(), 0.01);
        EXPECT_NEAR(area.left(), (sample(i)->inner_size().width() - expected.width()) / 2, 0.01);
        EXPECT_NEAR(area.top(), (sample(i)->inner_size().height() - expected.height()) / 2, 0.01);
        EXPECT_EQ(sample(i)->font().families(), QStringList(u"Liberation Serif"_s));
        EXPECT_EQ(fonts::points(sample(i)->font()), 14);
    }
}

TEST_F(PrintSettings, begin_with_the_face_that_stands_in_for_times_new_roman_on_the_screen) {
    printers_.fonts_of[QString()] = {u"DejaVu Serif"_s, u"Liberation Serif"_s};

    start();

    EXPECT_EQ(fonts()->currentText(), u"Liberation Serif"_s);
}

TEST_F(PrintSettings, sample_of_an_empty_list_shows_the_hyphen_alone) {
    list_.kiürít();
    start();

    EXPECT_NEAR(sample(0)->printed_area().width(), PictureBox::text_size(u"  -  "_s, sample(0)->font()).width(), 0.01);
}

TEST_F(PrintSettings, samples_follow_every_choice_at_once) {
    start();

    click("Check_dőlt");
    EXPECT_TRUE(sample(0)->font().italic());
    click("Check_félkövér");
    EXPECT_TRUE(sample(1)->font().bold());
    QTest::keyClick(spin("UpDown_betűméret"), Qt::Key_Up);
    EXPECT_EQ(fonts::points(sample(0)->font()), 16);
    EXPECT_EQ(label("Label_betűméret"), u"16"_s);
    choose(fonts(), "DejaVu Sans");
    EXPECT_EQ(sample(1)->font().families(), QStringList(u"DejaVu Sans"_s));
    click("Check_dőlt");
    EXPECT_FALSE(sample(1)->font().italic());
    for (int i = 0; i < 2; ++i)
        EXPECT_NEAR(sample(i)->printed_area().center().x(), sample(i)->inner_size().width() / 2, 0.01);
}

TEST_F(PrintSettings, samples_of_an_unusable_font_stay_in_the_one_they_had_and_go_on_with_the_rest) {
    printers_.fonts_of[QString()] = {u"Liberation Serif"_s, u"There Is No Such Font"_s};
    start();

    choose(fonts(), "There Is No Such Font");
    click("Check_félkövér");
    QTest::keyClick(spin("UpDown_betűméret"), Qt::Key_Up);

    EXPECT_TRUE(boxes_.told.isEmpty());
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(sample(i)->font().families(), QStringList(u"Liberation Serif"_s));
        EXPECT_TRUE(sample(i)->font().bold());
        EXPECT_EQ(fonts::points(sample(i)->font()), 16);
        EXPECT_FALSE(sample(i)->printed_area().isEmpty());
    }
}

TEST_F(PrintSettings, samples_show_every_font_of_the_system) {
    const QStringList all = QFontDatabase::families();
    printers_.fonts_of[QString()] = all;
    start();

    fonts()->setFocus();
    QTest::keyClick(fonts(), Qt::Key_Home);
    for (const QString &name : all) {
        EXPECT_EQ(sample(0)->font().families(), QStringList(name));
        QTest::keyClick(fonts(), Qt::Key_Down);
    }
}

// The counters and pictures.

TEST_F(PrintSettings, font_size_goes_from_8_to_50_in_steps_of_two) {
    start();
    auto *size = spin("UpDown_betűméret");

    QTest::keyClick(size, Qt::Key_Down);
    EXPECT_EQ(label("Label_betűméret"), u"12"_s);
    for (int i = 0; i < 30; ++i)
        QTest::keyClick(size, Qt::Key_Down);
    EXPECT_EQ(label("Label_betűméret"), u"8"_s);
    for (int i = 0; i < 30; ++i)
        QTest::keyClick(size, Qt::Key_Up);
    EXPECT_EQ(label("Label_betűméret"), u"50"_s);
    EXPECT_EQ(size->value(), 50);
}

TEST_F(PrintSettings, columns_go_from_1_to_3) {
    start();
    auto *columns = spin("UpDown_hasábszám");

    QTest::keyClick(columns, Qt::Key_Up);
    EXPECT_EQ(label("Label_hasábszám"), u"2"_s);
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(columns, Qt::Key_Up);
    EXPECT_EQ(label("Label_hasábszám"), u"3"_s);
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(columns, Qt::Key_Down);
    EXPECT_EQ(label("Label_hasábszám"), u"1"_s);
}

TEST_F(PrintSettings, picture_of_an_orientation_selects_it) {
    start();

    QTest::mouseClick(control<PictureBox>(*window_, "Picture1(1)"), Qt::LeftButton);
    EXPECT_TRUE(option("Option_tájolás(1)")->isChecked());
    QTest::mouseClick(control<PictureBox>(*window_, "Picture1(0)"), Qt::LeftButton);
    EXPECT_TRUE(option("Option_tájolás(0)")->isChecked());
    for (const char *name : {"Picture1(0)", "Picture1(1)"})
        EXPECT_FALSE(control<PictureBox>(*window_, name)->picture().isNull());
}

TEST_F(PrintSettings, orientation_and_kind_are_chosen_apart) {
    start();

    click("Option_tájolás(1)");
    click("Option_nyomtatástípus(2)");

    EXPECT_TRUE(option("Option_tájolás(1)")->isChecked());
    EXPECT_FALSE(option("Option_tájolás(0)")->isChecked());
    EXPECT_TRUE(option("Option_nyomtatástípus(2)")->isChecked());
    EXPECT_FALSE(option("Option_nyomtatástípus(0)")->isChecked());
}

// What is stored.

TEST_F(PrintSettings, are_there_again_the_next_time_but_for_the_kind) {
    start();
    choose(printers(), "First");
    choose(fonts(), "DejaVu Sans");
    click("Check_dőlt");
    click("Check_félkövér");
    QTest::keyClick(spin("UpDown_betűméret"), Qt::Key_Up);
    QTest::keyClick(spin("UpDown_hasábszám"), Qt::Key_Up);
    click("Option_tájolás(1)");
    click("Option_nyomtatástípus(2)");
    const QStringList chosen = shown();

    click("cmd_nyomtat");
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(all_stored(), (QStringList{u"First"_s, u"DejaVu Sans"_s, u"1"_s, u"1"_s, u"16"_s, u"2"_s, u"false"_s}));
    start();

    EXPECT_EQ(shown(), chosen);
    EXPECT_TRUE(option("Option_nyomtatástípus(0)")->isChecked());
    EXPECT_EQ(label("Label_betűméret"), u"16"_s);
    EXPECT_EQ(label("Label_hasábszám"), u"2"_s);
    EXPECT_TRUE(sample(0)->font().bold());
}

TEST_F(PrintSettings, store_the_defaults_in_the_forms_of_the_table) {
    start();

    click("cmd_nyomtat");

    EXPECT_EQ(all_stored(),
              (QStringList{u"Second"_s, u"Liberation Serif"_s, u"0"_s, u"0"_s, u"14"_s, u"1"_s, u"true"_s}));
}

TEST_F(PrintSettings, the_pdf_file_is_remembered_like_a_printer) {
    store("nyomtato", u"PDF-fájl"_s);

    start();

    EXPECT_EQ(printers()->currentText(), u"PDF-fájl"_s);
}

TEST_F(PrintSettings, stored_printer_and_font_that_are_gone_leave_the_selection) {
    store("nyomtato", u"Gone"_s);
    store("betutip", u"Gone, too"_s);

    start();

    EXPECT_EQ(printers()->currentText(), u"Second"_s);
    EXPECT_EQ(fonts()->currentText(), u"Liberation Serif"_s);
}

TEST_F(PrintSettings, stored_nothing_means_no_choice_even_of_a_printer_of_that_name) {
    printers_.installed = {u"semmi"_s, u"Second"_s};
    printers_.fonts_of[QString()] = {u"semmi"_s, u"Liberation Serif"_s};
    store("nyomtato", u"semmi"_s);
    store("betutip", u"semmi"_s);

    start();

    EXPECT_EQ(printers()->currentText(), u"Second"_s);
    EXPECT_EQ(fonts()->currentText(), u"Liberation Serif"_s);
}

TEST_F(PrintSettings, of_several_printers_of_the_stored_name_the_last_is_selected) {
    printers_.installed = {u"Twin"_s, u"Twin"_s, u"Other"_s};
    store("nyomtato", u"Twin"_s);

    start();

    EXPECT_EQ(printers()->currentIndex(), 2);
}

TEST_F(PrintSettings, stored_printer_brings_its_fonts_before_the_stored_font_is_sought) {
    printers_.fonts_of[u"First"_s] = {u"Only of the first"_s, u"Liberation Serif"_s};
    store("nyomtato", u"First"_s);
    store("betutip", u"Only of the first"_s);

    start();

    EXPECT_EQ(fonts()->currentText(), u"Only of the first"_s);
}

TEST_F(PrintSettings, stored_size_and_columns_are_taken_as_stored) {
    store("betumeret", 15);
    store("hasabszam", 3);

    start();

    EXPECT_EQ(spin("UpDown_betűméret")->value(), 15);
    EXPECT_EQ(label("Label_betűméret"), u"15"_s);
    EXPECT_EQ(label("Label_hasábszám"), u"3"_s);
    EXPECT_EQ(fonts::points(sample(0)->font()), 15);
}

TEST_F(PrintSettings, keep_to_their_ranges_and_defaults_when_what_is_stored_is_nonsense) {
    struct {
        const char *key;
        QVariant value;
        const char *spin;
        int expected;
    } const all[] = {{"betumeret", 7, "UpDown_betűméret", 8},         {"betumeret", 51, "UpDown_betűméret", 50},
                     {"betumeret", u"big"_s, "UpDown_betűméret", 14}, {"hasabszam", 0, "UpDown_hasábszám", 1},
                     {"hasabszam", 4, "UpDown_hasábszám", 3},         {"hasabszam", QString(), "UpDown_hasábszám", 1}};
    for (const auto &[key, value, name, expected] : all) {
        store(key, value);
        load();

        EXPECT_EQ(spin(name)->value(), expected) << key << value.toString().toStdString();
    }
}

TEST_F(PrintSettings, mégsem_escape_and_the_frame_close_without_printing_or_storing) {
    const std::function<void()> ways[] = {[this] { click("cmd_mégsem"); },
                                          [this] { QTest::keyClick(printers(), Qt::Key_Escape); },
                                          [this] { window_->close(); }};
    for (const auto &leave : ways) {
        load();
        show_modally(*window_, [&] {
            click("Check_dőlt");
            leave();
        });

        EXPECT_TRUE(nothing_is_stored());
        EXPECT_TRUE(printers_.jobs.begun.isEmpty());
    }
}

TEST_F(PrintSettings, enter_prints_from_every_control) {
    for (const char *name : {"list_nyomtatók", "list_betűtípus", "Check_dőlt", "UpDown_betűméret", "UpDown_hasábszám",
                             "Option_nyomtatástípus(0)", "Option_tájolás(0)", "cmd_nyomtat"}) {
        start();
        control<QWidget>(*window_, name)->setFocus();

        QTest::keyClick(control<QWidget>(*window_, name), Qt::Key_Return);

        EXPECT_FALSE(window_->isVisible()) << name;
    }
    EXPECT_EQ(printers_.jobs.handed_over.size(), 8);
}

TEST_F(PrintSettings, alt_n_prints) {
    start();

    QTest::keyClick(window_.get(), Qt::Key_N, Qt::AltModifier);

    EXPECT_TRUE(QTest::qWaitFor([this] { return printers_.jobs.handed_over.size() == 1; }));
}

TEST_F(PrintSettings, is_gone_through_by_tab_in_the_order_of_reading) {
    start();
    printers()->setFocus();

    EXPECT_EQ(tab_order(*window_),
              u"list_nyomtatók list_betűtípus Check_dőlt Check_félkövér UpDown_betűméret "
              "UpDown_hasábszám Option_nyomtatástípus(0) Option_tájolás(0) cmd_nyomtatásikép "
              "cmd_nyomtat cmd_mégsem"_s);
}

// The look.

TEST_F(PrintSettings, shows_every_caption_whole_and_apart) {
    for (const QSize &pixels : screens) {
        screen_ = QRectF(QPointF(0, 0), QSizeF(pixels) * 15);
        start();

        expect_no_overlap(*window_);
        for (const char *name :
             {"Option_tájolás(0)", "Option_tájolás(1)", "Option_nyomtatástípus(0)", "Option_nyomtatástípus(1)",
              "Option_nyomtatástípus(2)", "Label1", "Label2", "Label3", "Label4", "Label5(0)", "Label5(1)",
              "Label_betűméret", "Label_hasábszám", "cmd_nyomtatásikép", "cmd_nyomtat", "cmd_mégsem"})
            expect_whole_caption(*window_, QString::fromUtf8(name));
        for (const char *name : {"Check_dőlt", "Check_félkövér"})
            EXPECT_LE(check(name)->sizeHint().width(), check(name)->width()) << name;
        for (const char *name : {"Label5(0)", "Label5(1)", "pic_minta(0)", "pic_minta(1)"})
            EXPECT_TRUE(window_->hely(control<QWidget>(*window_, "Picture_container"))
                            .contains(window_->hely(control<QWidget>(*window_, name))))
                << name;
        EXPECT_LE(window_->width(), pixels.width());
        EXPECT_LE(window_->height(), pixels.height());
    }
}

TEST_F(PrintSettings, letters_of_its_buttons_are_three_points_smaller_than_would_fit) {
    start();

    for (const char *name : {"cmd_nyomtat", "cmd_mégsem"}) {
        auto *button = control<QPushButton>(*window_, name);
        const double points = fonts::points(button->font());
        Module_hasznos::szövegbeigazít(*button, QString());
        EXPECT_NEAR(fonts::points(button->font()) - points, 3, 0.01) << name;
    }
}

TEST_F(PrintSettings, takes_the_main_windows_style) {
    start();

    EXPECT_EQ(check("Check_dőlt")->font().families(), QStringList(u"Times New Roman CE"_s));
    EXPECT_EQ(window_->háttérszín(), reference_.háttérszín());
}

}  // namespace
