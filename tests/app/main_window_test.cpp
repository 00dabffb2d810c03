#include <QAccessible>

#include "support/main_window_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class MainWindow : public MainWindowTest {
  protected:
    [[nodiscard]] double height_of_empty() const {
        return window_->hely(button("Ok")).bottom() + 120 + window_->keretmagasság();
    }
    [[nodiscard]] double height_of_full() const { return window_->hely(button("módosít")).bottom() + 850; }

    void add_apple() {
        text_box("angolszó")->clear();
        type("apple");
        click("hozzáad");
    }

    /// Scales the window by exactly 1, so that it has its resting heights.
    void use_the_screen_of_the_design() {
        start();
        const double frame = window_->keretmagasság();
        screen_ = QRectF(0, 0, 100000, (7370 + 120) / 0.85 + frame);
        window_.reset();
        start();
    }
};

TEST_F(MainWindow, has_every_control_under_its_name_with_its_caption) {
    start();

    EXPECT_EQ(window_->objectName(), u"szótár"_s);
    for (const char *name : {"szólist", "megoldlist", "magyarlist", "szószedet", "szómagylist"})
        EXPECT_EQ(list(name)->count(), 0);
    for (const char *name : {"angolszó", "szóangtext", "szómagytext"})
        EXPECT_EQ(text_box(name)->text(), QString());
    const std::pair<const char *, QString> buttons[] = {
        {"Ok", u"Ok"_s},           {"hozzáad", u"Szószedethez ad"_s},
        {"módosít", u"Módosít"_s}, {"sztöröl", u"Szószedetből töröl"_s},
        {"kilép", u"Kilép"_s},     {"Command2", u"Állományt átalakít (nem látható)"_s}};
    for (const auto &[name, caption] : buttons)
        EXPECT_EQ(button(name)->text(), caption);
    EXPECT_EQ(control<QLabel>("Label1")->text(), u"&Angolul:"_s);
    EXPECT_EQ(control<QLabel>("Label2")->text(), u"Magyarul:"_s);
    EXPECT_EQ(control<QRadioButton>("nyelv(0)")->text(), u"Angolról magyarra"_s);
    EXPECT_EQ(control<QRadioButton>("nyelv(1)")->text(), u"Magyarról angolra"_s);
    EXPECT_TRUE(control<QRadioButton>("nyelv(0)")->isChecked());
    EXPECT_FALSE(list("megoldlist")->isVisible());
}

TEST_F(MainWindow, has_every_menu_item_under_its_name_with_its_caption) {
    start();
    const std::pair<const char *, QString> items[] = {{"mnufájlúj", u"&Új"_s},
                                                      {"mnufájlmegnyit", u"Meg&nyit..."_s},
                                                      {"mnufájlhozzáfűz", u"Szószedetet &hozzáfűz"_s},
                                                      {"mnufájlment", u"&Ment"_s},
                                                      {"mnufájlmentmásként", u"Ment másként..."_s},
                                                      {"mnufeladatválaszt", u"&Választás"_s}};

    for (const auto &[name, caption] : items)
        EXPECT_EQ(action(name)->text(), caption);
    EXPECT_EQ(control<QMenu>("mnufájl")->title(), u"&Fájl"_s);
    EXPECT_EQ(control<QMenu>("mnufeladat")->title(), u"Fel&adatok"_s);
    EXPECT_TRUE(action("elv1")->isSeparator());
}

TEST_F(MainWindow, gives_every_control_an_accessible_name_and_a_tab_place) {
    start();

    type("apple");
    for (QWidget *control : window_->vezérlők()) {
        const auto *spoken = QAccessible::queryAccessibleInterface(control);
        EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << control->objectName().toStdString();
    }
    EXPECT_EQ(QAccessible::queryAccessibleInterface(control<QLabel>("Label3"))->text(QAccessible::Name),
              u"2 találat"_s);
    QStringList order;
    const QWidget *next = text_box("angolszó");
    do {
        if (window_->vezérlők().contains(const_cast<QWidget *>(next)) && (next->focusPolicy() & Qt::TabFocus) != 0 &&
            !next->isHidden())
            order.append(next->objectName());
        next = next->nextInFocusChain();
    } while (next != text_box("angolszó"));
    EXPECT_EQ(order.join(u' '),
              u"angolszó szólist Ok magyarlist hozzáad nyelv(0) nyelv(1) cmd_kisablak Label4 "
              "kilép szószedet sztöröl "
              "szóangtext szómagytext módosít"_s);
}

TEST_F(MainWindow, mnemonic_of_the_caption_leads_to_the_search_box) {
    start();
    list("szólist")->setFocus();

    QTest::keyClick(window_.get(), Qt::Key_A, Qt::AltModifier);

    EXPECT_TRUE(text_box("angolszó")->hasFocus());
}

TEST_F(MainWindow, starts_with_the_focus_on_the_search_box_and_nothing_to_save) {
    start();

    EXPECT_TRUE(text_box("angolszó")->hasFocus());
    EXPECT_EQ(window_->windowTitle(), u"Zimbora Angol-Magyar Szótár - névtelen szószedet"_s);
    EXPECT_FALSE(action("mnufájlment")->isEnabled());
    EXPECT_FALSE(action("mnufájlmentmásként")->isEnabled());
    EXPECT_FALSE(control<QMenu>("mnufeladat")->isEnabled());
    EXPECT_EQ(state_.változott, 0);
}

TEST_F(MainWindow, ends_below_ok_while_the_list_is_empty_and_below_modify_otherwise) {
    start();
    EXPECT_DOUBLE_EQ(window_->magasság(), height_of_empty());

    add_apple();
    EXPECT_DOUBLE_EQ(window_->magasság(), height_of_full());

    list("szószedet")->setFocus();
    click("sztöröl");
    EXPECT_DOUBLE_EQ(window_->magasság(), window_->hely(button("Ok")).bottom() + 850);
    EXPECT_EQ(animation_steps_, 0);
}

TEST_F(MainWindow, enables_its_menus_with_the_first_pair) {
    start();

    add_apple();

    EXPECT_TRUE(action("mnufájlment")->isEnabled());
    EXPECT_TRUE(action("mnufájlmentmásként")->isEnabled());
    EXPECT_TRUE(control<QMenu>("mnufeladat")->isEnabled());
}

TEST_F(MainWindow, disables_its_menus_again_with_the_last_pair) {
    start();
    add_apple();
    list("szószedet")->setFocus();

    click("sztöröl");

    EXPECT_FALSE(action("mnufájlment")->isEnabled());
    EXPECT_FALSE(action("mnufájlmentmásként")->isEnabled());
    EXPECT_FALSE(control<QMenu>("mnufeladat")->isEnabled());
}

TEST_F(MainWindow, takes_its_share_of_the_screen_and_stands_in_the_middle) {
    for (const QSizeF pixels : {QSizeF(1024, 768), QSizeF(1920, 1080), QSizeF(2560, 1440)}) {
        screen_ = QRectF(QPointF(0, 0), pixels * 15);
        start();
        add_apple();

        const double height = (window_->belsőmagasság() - 120) / (screen_.height() - window_->keretmagasság());
        const double width = (window_->belsőszélesség() - 120) / (screen_.width() - window_->keretszélesség());
        EXPECT_NEAR(std::max(height, width), 0.85, 0.03);
        EXPECT_LE(window_->width(), pixels.width());
        EXPECT_LE(window_->height(), pixels.height());
    }
}

TEST_F(MainWindow, has_letters_that_grow_with_its_controls) {
    start();
    const double small = text_box("angolszó")->font().pointSizeF();
    const double room = text_box("angolszó")->height() / small;
    screen_ = QRectF(0, 0, 2560 * 15, 1440 * 15);
    window_.reset();
    start();

    EXPECT_GT(text_box("angolszó")->font().pointSizeF(), 1.8 * small);
    EXPECT_NEAR(text_box("angolszó")->height() / text_box("angolszó")->font().pointSizeF(), room, 0.1);
    EXPECT_GE(window_->menüsor()->font().pointSizeF(), 1.5 * 9 * 96 / 96);
}

TEST_F(MainWindow, shows_every_caption_whole) {
    for (const QSizeF pixels : {QSizeF(800, 600), QSizeF(1024, 768), QSizeF(2560, 1440)}) {
        screen_ = QRectF(QPointF(0, 0), pixels * 15);
        window_.reset();
        start();
        for (const char *name : {"Ok", "hozzáad", "módosít", "sztöröl", "kilép"})
            EXPECT_LE(button(name)->sizeHint().width(), button(name)->width()) << name;
        for (const char *name : {"nyelv(0)", "nyelv(1)"})
            EXPECT_LE(control<QRadioButton>(name)->sizeHint().width(), control<QRadioButton>(name)->width()) << name;
        EXPECT_LE(QFontMetrics(control<QLabel>("Label3")->font()).horizontalAdvance(u"139935 találat"_s),
                  control<QLabel>("Label3")->width());
    }
}

TEST_F(MainWindow, of_exactly_its_resting_height_grows_and_shrinks_in_twenty_five_steps) {
    use_the_screen_of_the_design();
    ASSERT_EQ(window_->magasság(), 4710);

    add_apple();
    EXPECT_EQ(animation_steps_, 24);  // 24 pauses lie between 25 steps
    EXPECT_EQ(window_->magasság(), 8220);

    list("szószedet")->setFocus();
    click("sztöröl");
    EXPECT_EQ(animation_steps_, 48);
    EXPECT_EQ(window_->magasság(), 4710);
}

TEST_F(MainWindow, does_not_grow_again_when_a_second_pair_is_added) {
    use_the_screen_of_the_design();
    add_apple();
    const int steps = animation_steps_;
    text_box("angolszó")->clear();
    type("goat");

    click("hozzáad");

    EXPECT_EQ(animation_steps_, steps);
    EXPECT_EQ(window_->magasság(), 8220);
}

TEST_F(MainWindow, enter_in_the_search_box_searches_again) {
    start();
    type("apple");
    click_item("szólist", 0);
    text_box("angolszó")->setFocus();

    QTest::keyClick(text_box("angolszó"), Qt::Key_Return);

    EXPECT_EQ(list("szólist")->selected(), 1);
}

TEST_F(MainWindow, warns_with_four_lines_when_there_are_too_few_pairs_for_the_choice_game) {
    start();
    add_apple();
    QStringList lines;
    int interval = 0;
    QTimer::singleShot(0, window_.get(), [&] {
        QWidget *message = QApplication::activeModalWidget();
        ASSERT_EQ(message->objectName(), u"üzenet"_s);
        for (int i = 0; i < 4; ++i)
            lines.append(message->findChild<QWidget *>(u"Pic_szöveg(%1)"_s.arg(i))->property("tag").toString());
        interval = message->findChild<QTimer *>(u"Timer1"_s)->interval();
        message->close();
    });

    action("mnufeladatválaszt")->trigger();

    EXPECT_EQ(lines,
              QStringList({u"Ehhez a játékhoz "_s, u"legalább két szót"_s, u"kell felvenni"_s, u"a szószedetbe!"_s}));
    EXPECT_EQ(interval, 3000);
}

}  // namespace
