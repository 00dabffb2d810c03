#include "support/main_window_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class MainWindowList : public MainWindowTest {
  protected:
    MainWindowList() { start(); }

    /// Searches `word` and adds its first meaning.
    void add(const char *word) {
        text_box("angolszó")->clear();
        type(word);
        click("hozzáad");
    }

    void add_three() {
        add("apple");
        add("goat");
        add("odd");
    }
};

TEST_F(MainWindowList, double_click_on_a_meaning_adds_the_pair_with_a_beep) {
    type("apple");

    QTest::mouseDClick(list("magyarlist")->viewport(), Qt::LeftButton, {},
                       list("magyarlist")->visualRect(list("magyarlist")->model()->index(1, 0)).center());

    EXPECT_EQ(pairs(), u"apple:almafa"_s);
    EXPECT_EQ(boxes_.beeps, 1);
    EXPECT_EQ(state_.változott, 1);
    EXPECT_EQ(items("szószedet"), QStringList{u"apple"_s});
    EXPECT_EQ(items("szómagylist"), QStringList{u"almafa"_s});
    EXPECT_EQ(list("szószedet")->selected(), 0);
}

TEST_F(MainWindowList, always_puts_english_on_the_english_side) {
    QTest::mouseClick(control<QRadioButton>("nyelv(1)"), Qt::LeftButton);

    add("megy");

    EXPECT_EQ(pairs(), u"to go:megy"_s);
}

TEST_F(MainWindowList, appends_a_further_meaning_to_the_selected_word_and_shows_it) {
    add("apple");
    click_item("magyarlist", 1);
    click("hozzáad");
    click("hozzáad");

    EXPECT_EQ(pairs(), u"apple:alma, almafa"_s);
    EXPECT_EQ(text_box("szómagytext")->text(), u"alma, almafa"_s);
}

TEST_F(MainWindowList, refuses_an_english_word_with_a_colon_and_changes_nothing) {
    QTest::mouseClick(control<QRadioButton>("nyelv(1)"), Qt::LeftButton);
    text_box("angolszó")->setText(u"köz"_s);
    click_item("magyarlist", 1);

    click("hozzáad");

    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(boxes_.told[0].contains(u"lane: alley"_s));
    EXPECT_EQ(pairs(), QString());
    EXPECT_EQ(state_.változott, 0);
}

TEST_F(MainWindowList, adding_with_nothing_selected_only_beeps) {
    window_->hozzáad_Click();

    EXPECT_EQ(boxes_.beeps, 1);
    EXPECT_EQ(pairs(), QString());
    EXPECT_EQ(state_.változott, 0);
}

TEST_F(MainWindowList, click_on_a_pair_puts_it_into_the_text_boxes) {
    add_three();

    click_item("szószedet", 1);

    EXPECT_EQ(text_box("szóangtext")->text(), u"goat"_s);
    EXPECT_EQ(text_box("szómagytext")->text(), u"kecske"_s);
    EXPECT_EQ(list("szómagylist")->selected(), 1);
}

TEST_F(MainWindowList, click_on_the_hungarian_side_selects_the_pair) {
    add_three();

    click_item("szómagylist", 0);

    EXPECT_EQ(list("szószedet")->selected(), 0);
    EXPECT_EQ(text_box("szóangtext")->text(), u"apple"_s);
}

TEST_F(MainWindowList, click_on_the_hungarian_side_lets_the_pair_be_deleted_even_if_it_was_selected_already) {
    add_three();
    ASSERT_EQ(list("szószedet")->selected(), 2);

    click_item("szómagylist", 2);
    EXPECT_TRUE(list("szószedet")->hasFocus());
    click("sztöröl");

    EXPECT_EQ(pairs(), u"apple:alma goat:kecske"_s);
}

TEST_F(MainWindowList, modify_is_enabled_only_for_a_real_change_of_two_texts) {
    add_three();
    click_item("szószedet", 0);
    EXPECT_FALSE(button("módosít")->isEnabled());

    text_box("szóangtext")->setText(u"apples"_s);
    EXPECT_TRUE(button("módosít")->isEnabled());
    text_box("szóangtext")->clear();
    EXPECT_FALSE(button("módosít")->isEnabled());
    text_box("szóangtext")->setText(u"apple"_s);
    EXPECT_FALSE(button("módosít")->isEnabled());
    text_box("szómagytext")->setText(u"almák"_s);
    EXPECT_TRUE(button("módosít")->isEnabled());
}

TEST_F(MainWindowList, modify_writes_the_two_texts_back) {
    add_three();
    state_.változott = 0;
    click_item("szószedet", 1);
    text_box("szómagytext")->setText(u"kecske, gida"_s);

    click("módosít");

    EXPECT_EQ(pairs(), u"apple:alma goat:kecske, gida odd:furcsa"_s);
    EXPECT_EQ(state_.változott, 1);
    EXPECT_EQ(list("szószedet")->selected(), 1);
    EXPECT_FALSE(button("módosít")->isEnabled());
}

TEST_F(MainWindowList, modify_refuses_a_colon_in_the_english_word) {
    add_three();
    click_item("szószedet", 0);
    state_.változott = 0;
    text_box("szóangtext")->setText(u"a:b"_s);

    click("módosít");

    EXPECT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(pairs().startsWith(u"apple:alma"_s));
    EXPECT_EQ(state_.változott, 0);
    EXPECT_EQ(text_box("szóangtext")->text(), u"a:b"_s);
}

TEST_F(MainWindowList, modify_refuses_a_line_break) {
    add_three();
    click_item("szószedet", 0);
    text_box("szómagytext")->setText(u"egy\nkettő"_s);

    click("módosít");

    EXPECT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(pairs().startsWith(u"apple:alma"_s));
}

TEST_F(MainWindowList, enter_in_a_text_box_modifies) {
    add_three();
    click_item("szószedet", 2);
    text_box("szómagytext")->setFocus();
    text_box("szómagytext")->setText(u"páratlan"_s);
    EXPECT_TRUE(button("módosít")->isDefault());

    QTest::keyClick(text_box("szómagytext"), Qt::Key_Return);

    EXPECT_EQ(items("szómagylist")[2], u"páratlan"_s);
    list("szólist")->setFocus();
    EXPECT_FALSE(button("módosít")->isDefault());
}

TEST_F(MainWindowList, enter_in_the_meanings_adds) {
    type("apple");
    list("magyarlist")->setFocus();
    EXPECT_TRUE(button("hozzáad")->isDefault());

    QTest::keyClick(list("magyarlist"), Qt::Key_Down);
    QTest::keyClick(list("magyarlist"), Qt::Key_Return);

    EXPECT_EQ(pairs(), u"apple:almafa"_s);
}

TEST_F(MainWindowList, delete_is_enabled_while_the_list_or_the_button_has_the_focus) {
    add_three();
    EXPECT_FALSE(button("sztöröl")->isEnabled());

    list("szószedet")->setFocus();
    EXPECT_TRUE(button("sztöröl")->isEnabled());
    button("sztöröl")->setFocus();
    EXPECT_TRUE(button("sztöröl")->isEnabled());
    list("szószedet")->setFocus();
    text_box("szóangtext")->setFocus();
    EXPECT_FALSE(button("sztöröl")->isEnabled());
}

TEST_F(MainWindowList, delete_is_reached_from_the_list_by_tab) {
    add_three();
    list("szószedet")->setFocus();

    QTest::keyClick(list("szószedet"), Qt::Key_Tab);

    EXPECT_TRUE(button("sztöröl")->hasFocus());
    EXPECT_TRUE(button("sztöröl")->isEnabled());
}

TEST_F(MainWindowList, delete_stays_disabled_for_an_empty_list) {
    list("szószedet")->setFocus();

    EXPECT_FALSE(button("sztöröl")->isEnabled());
}

TEST_F(MainWindowList, deleting_selects_the_next_pair) {
    add_three();
    click_item("szószedet", 1);

    click("sztöröl");

    EXPECT_EQ(pairs(), u"apple:alma odd:furcsa"_s);
    EXPECT_EQ(list("szószedet")->selected(), 1);
    EXPECT_EQ(text_box("szóangtext")->text(), u"odd"_s);
    EXPECT_TRUE(list("szószedet")->hasFocus());
    EXPECT_TRUE(button("sztöröl")->isEnabled());
}

TEST_F(MainWindowList, deleting_the_last_pair_selects_the_new_last) {
    add_three();
    click_item("szószedet", 2);

    click("sztöröl");

    EXPECT_EQ(list("szószedet")->selected(), 1);
    EXPECT_EQ(text_box("szóangtext")->text(), u"goat"_s);
}

TEST_F(MainWindowList, deleting_the_only_pair_leaves_nothing_to_save_without_a_file) {
    add("apple");
    list("szószedet")->setFocus();

    click("sztöröl");

    EXPECT_EQ(pairs(), QString());
    EXPECT_EQ(list("szószedet")->selected(), -1);
    EXPECT_EQ(text_box("szóangtext")->text(), QString());
    EXPECT_EQ(text_box("szómagytext")->text(), QString());
    EXPECT_EQ(state_.változott, 0);
    window_->kilép_Click();
    EXPECT_TRUE(boxes_.asked.isEmpty());
    EXPECT_TRUE(ended_);
}

TEST_F(MainWindowList, deleting_the_only_pair_of_a_file_is_a_change) {
    state_.aktuálisfájl = place("a.szs");
    add("apple");
    list("szószedet")->setFocus();

    click("sztöröl");

    EXPECT_EQ(state_.változott, 1);
}

TEST_F(MainWindowList, delete_key_deletes_the_selected_pair_as_the_button_does) {
    add_three();
    click_item("szószedet", 1);

    QTest::keyClick(list("szószedet"), Qt::Key_Delete);
    EXPECT_EQ(pairs(), u"apple:alma odd:furcsa"_s);
    EXPECT_TRUE(list("szószedet")->hasFocus());
    EXPECT_EQ(state_.változott, 1);
    QTest::keyClick(list("szószedet"), Qt::Key_Delete, Qt::KeypadModifier);

    EXPECT_EQ(pairs(), u"apple:alma"_s);
}

TEST_F(MainWindowList, delete_key_deletes_nothing_with_another_key_or_while_it_is_held_down) {
    add_three();
    click_item("szószedet", 1);
    const QString before = pairs();

    for (const Qt::KeyboardModifier held : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier})
        QTest::keyClick(list("szószedet"), Qt::Key_Delete, held);
    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, QString(), true);
    QApplication::sendEvent(list("szószedet"), &repeat);

    EXPECT_EQ(pairs(), before);
}

TEST_F(MainWindowList, tells_of_changes_as_long_as_they_are_not_saved) {
    const auto *quiet_word = control<QLabel>("Label_mentetlen");
    EXPECT_EQ(quiet_word->text(), u"Mentetlen változások"_s);
    EXPECT_FALSE(quiet_word->isVisible());

    add("apple");
    EXPECT_TRUE(quiet_word->isVisible());
    dialogs_.choices = {place("a.szs")};
    action("mnufájlment")->trigger();
    EXPECT_FALSE(quiet_word->isVisible());
    text_box("szómagytext")->setText(u"körte"_s);
    click("módosít");

    EXPECT_TRUE(quiet_word->isVisible());
}

TEST_F(MainWindowList, tells_of_changes_by_deleting_and_appending_and_of_none_after_opening) {
    const auto *quiet_word = control<QLabel>("Label_mentetlen");
    const QString path = word_list("a.szs", "dog:kutya\r\ncat:macska\r\n");
    dialogs_.choices = {path, path};
    action("mnufájlmegnyit")->trigger();
    EXPECT_FALSE(quiet_word->isVisible());

    click_item("szószedet", 0);
    click("sztöröl");
    EXPECT_TRUE(quiet_word->isVisible());
    boxes_.answers = {Answer::no};
    action("mnufájlfájl(1)")->trigger();
    EXPECT_FALSE(quiet_word->isVisible());
    action("mnufájlhozzáfűz")->trigger();

    EXPECT_TRUE(quiet_word->isVisible());
}

TEST_F(MainWindowList, has_room_for_the_word_about_changes_on_every_screen) {
    for (const QSize &pixels : {QSize(800, 600), QSize(1024, 768), QSize(2560, 1440)}) {
        use_screen(pixels);
        start();
        add("apple");

        const auto *quiet_word = control<QLabel>("Label_mentetlen");
        EXPECT_LE(quiet_word->sizeHint().width(), quiet_word->width()) << pixels.width();
        EXPECT_LE(quiet_word->sizeHint().height(), quiet_word->height()) << pixels.width();
        EXPECT_TRUE(quiet_word->isVisible());
    }
}

TEST_F(MainWindowList, shows_the_beginning_of_a_long_pair) {
    const QByteArray longest(300, 'x');
    dialogs_.choices = {word_list("a.szs", "b" + longest + ":a" + longest + "\r\n")};

    action("mnufájlmegnyit")->trigger();

    EXPECT_EQ(text_box("szóangtext")->cursorPosition(), 0);
    EXPECT_EQ(text_box("szómagytext")->cursorPosition(), 0);
}

TEST_F(MainWindowList, scrolls_both_sides_in_step) {
    QByteArray bytes;
    for (int i = 0; i < 200; ++i)
        bytes += "word" + QByteArray::number(i) + ":sz\xf3\r\n";
    dialogs_.choices = {word_list("a.szs", bytes)};
    action("mnufájlmegnyit")->trigger();

    list("szószedet")->scrollToBottom();

    EXPECT_EQ(list("szómagylist")->indexAt(QPoint(5, 5)).row(), list("szószedet")->indexAt(QPoint(5, 5)).row());
    EXPECT_GT(list("szómagylist")->indexAt(QPoint(5, 5)).row(), 100);
}

TEST_F(MainWindowList, holds_a_pair_of_a_million_letters_without_cutting_it) {
    const QByteArray longest(1 << 20, 'x');
    dialogs_.choices = {word_list("a.szs", "long:" + longest + "\r\n")};

    action("mnufájlmegnyit")->trigger();
    text_box("szóangtext")->setText(u"longer"_s);
    click("módosít");

    EXPECT_EQ(pairs(), u"longer:"_s + QString::fromLatin1(longest));
}

TEST_F(MainWindowList, shows_a_very_long_side_cut_in_a_box_that_cannot_be_edited) {
    const QByteArray longest(10001, 'x');
    dialogs_.choices = {word_list("a.szs", "long:" + longest + "\r\ndog:kutya\r\n")};

    action("mnufájlmegnyit")->trigger();

    EXPECT_EQ(text_box("szómagytext")->text(), QString(10000, u'x') + u'…');
    EXPECT_TRUE(text_box("szómagytext")->isReadOnly());
    EXPECT_FALSE(text_box("szóangtext")->isReadOnly());
    EXPECT_FALSE(button("módosít")->isEnabled());
    list("szószedet")->select(1);
    EXPECT_EQ(text_box("szómagytext")->text(), u"kutya"_s);
    EXPECT_FALSE(text_box("szómagytext")->isReadOnly());
}

TEST_F(MainWindowList, deletes_a_pair_that_it_shows_cut_and_can_be_edited_again) {
    dialogs_.choices = {word_list("a.szs", "long:" + QByteArray(10001, 'x') + "\r\n")};
    action("mnufájlmegnyit")->trigger();
    list("szószedet")->setFocus();

    click("sztöröl");

    EXPECT_EQ(pairs(), QString());
    EXPECT_EQ(text_box("szómagytext")->text(), QString());
    EXPECT_FALSE(text_box("szómagytext")->isReadOnly());
}

}  // namespace
