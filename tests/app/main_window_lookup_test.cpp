#include <QClipboard>
#include <QElapsedTimer>
#include <QTimer>

#include "support/main_window_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class MainWindowLookup : public MainWindowTest {
  protected:
    MainWindowLookup() { start(); }

    void expect_nothing_shown() {
        for (const char *name : {"szólist", "megoldlist", "magyarlist"})
            EXPECT_EQ(list(name)->count(), 0) << name;
        EXPECT_EQ(hit_count(), QString());
        EXPECT_FALSE(button("hozzáad")->isEnabled());
    }

    void look_up_from_hungarian() { QTest::mouseClick(control<QRadioButton>("nyelv(1)"), Qt::LeftButton); }
};

TEST_F(MainWindowLookup, searches_while_the_word_is_typed) {
    type("app");

    EXPECT_EQ(items("szólist"), QStringList({u"apple pie"_s, u"apple"_s}));
    EXPECT_EQ(hit_count(), u"2 találat"_s);
}

TEST_F(MainWindowLookup, selects_the_exact_hit_and_shows_its_meanings) {
    type("apple");

    EXPECT_EQ(list("szólist")->selected(), 1);
    EXPECT_EQ(items("magyarlist"), QStringList({u"alma"_s, u"almafa"_s}));
    EXPECT_EQ(list("magyarlist")->selected(), 0);
    EXPECT_TRUE(button("hozzáad")->isEnabled());
}

TEST_F(MainWindowLookup, shows_headwords_with_their_to_and_keeps_the_meanings_beside_them) {
    type("go");

    EXPECT_EQ(items("szólist"), QStringList({u"to go"_s, u"go"_s, u"goat"_s}));
    EXPECT_EQ(items("megoldlist"), QStringList({u"megy÷jár÷"_s, u"menet÷"_s, u"kecske÷"_s}));
    EXPECT_EQ(list("szólist")->selected(), 1);
}

TEST_F(MainWindowLookup, shows_the_meanings_of_the_hit_that_is_clicked) {
    type("go");

    click_item("szólist", 0);

    EXPECT_EQ(items("magyarlist"), QStringList({u"megy"_s, u"jár"_s}));
    EXPECT_EQ(list("magyarlist")->selected(), 0);
}

TEST_F(MainWindowLookup, says_no_hits_and_empties_the_lists) {
    type("app");
    type("x");

    EXPECT_EQ(hit_count(), u"0 találat"_s);
    for (const char *name : {"szólist", "megoldlist", "magyarlist"})
        EXPECT_EQ(list(name)->count(), 0);
    EXPECT_FALSE(button("hozzáad")->isEnabled());
}

TEST_F(MainWindowLookup, has_no_meaning_to_add_when_the_entry_has_no_separator) {
    type("no m");

    EXPECT_EQ(items("szólist"), QStringList{u"no meaning"_s});
    EXPECT_EQ(list("magyarlist")->count(), 0);
    EXPECT_FALSE(button("hozzáad")->isEnabled());
}

TEST_F(MainWindowLookup, leaves_the_lists_empty_for_a_text_that_begins_with_to) {
    type("to go");
    const QString before = hit_count();
    type("a");

    EXPECT_EQ(list("szólist")->count(), 0);
    EXPECT_EQ(list("magyarlist")->count(), 0);
    EXPECT_EQ(hit_count(), before);
}

TEST_F(MainWindowLookup, finds_nothing_for_a_letter_that_no_dictionary_can_hold) {
    type("app");
    text_box("angolszó")->setText(u"火"_s);

    EXPECT_EQ(hit_count(), u"0 találat"_s);
    EXPECT_EQ(list("szólist")->count(), 0);
}

TEST_F(MainWindowLookup, enables_ok_only_with_a_text) {
    EXPECT_FALSE(button("Ok")->isEnabled());
    type("app");
    EXPECT_TRUE(button("Ok")->isEnabled());

    text_box("angolszó")->clear();

    EXPECT_FALSE(button("Ok")->isEnabled());
}

TEST_F(MainWindowLookup, shows_nothing_for_an_emptied_field) {
    type("app");

    for (int letter = 0; letter < 3; ++letter)
        QTest::keyClick(text_box("angolszó"), Qt::Key_Backspace);

    expect_nothing_shown();
}

TEST_F(MainWindowLookup, takes_a_pasted_word_without_its_line_end) {
    QGuiApplication::clipboard()->setText(u" apple\n"_s);

    QTest::keyClick(text_box("angolszó"), Qt::Key_V, Qt::ControlModifier);

    EXPECT_EQ(text_box("angolszó")->text(), u"apple"_s);
    EXPECT_EQ(hit_count(), u"2 találat"_s);
}

TEST_F(MainWindowLookup, comes_back_to_the_search_field_by_two_keys_and_selects_its_text) {
    type("apple");
    for (const auto &[key, held] : {std::pair(Qt::Key_L, Qt::ControlModifier), std::pair(Qt::Key_F6, Qt::NoModifier)}) {
        button("kilép")->setFocus();
        text_box("angolszó")->deselect();

        QTest::keyClick(button("kilép"), key, held);

        EXPECT_TRUE(text_box("angolszó")->hasFocus());
        EXPECT_EQ(text_box("angolszó")->selectedText(), u"apple"_s);
    }
}

TEST_F(MainWindowLookup, is_gone_through_by_the_arrow_keys_and_adds_on_enter) {
    type("apple");

    QTest::keyClick(text_box("angolszó"), Qt::Key_Down);
    EXPECT_TRUE(list("szólist")->hasFocus());
    EXPECT_EQ(list("szólist")->selected(), 1);
    QTest::keyClick(list("szólist"), Qt::Key_Right);
    EXPECT_TRUE(list("magyarlist")->hasFocus());
    QTest::keyClick(list("magyarlist"), Qt::Key_Down);
    QTest::keyClick(list("magyarlist"), Qt::Key_Return);

    EXPECT_EQ(pairs(), u"apple:almafa"_s);
}

TEST_F(MainWindowLookup, is_gone_through_backwards_by_the_arrow_keys) {
    type("apple");
    list("magyarlist")->setFocus();

    QTest::keyClick(list("magyarlist"), Qt::Key_Left);
    EXPECT_TRUE(list("szólist")->hasFocus());
    QTest::keyClick(list("szólist"), Qt::Key_Up);
    EXPECT_TRUE(list("szólist")->hasFocus());
    QTest::keyClick(list("szólist"), Qt::Key_Up);

    EXPECT_TRUE(text_box("angolszó")->hasFocus());
}

TEST_F(MainWindowLookup, has_no_way_into_empty_lists) {
    type("appx");

    QTest::keyClick(text_box("angolszó"), Qt::Key_Down);

    EXPECT_TRUE(text_box("angolszó")->hasFocus());
}

TEST_F(MainWindowLookup, searches_for_no_empty_text) {
    window_->Ok_Click();

    expect_nothing_shown();
}

TEST_F(MainWindowLookup, ok_searches_again) {
    type("apple");
    click_item("szólist", 0);

    click("Ok");

    EXPECT_EQ(list("szólist")->selected(), 1);
    EXPECT_EQ(items("szólist").size(), 2);
    EXPECT_EQ(items("magyarlist"), QStringList({u"alma"_s, u"almafa"_s}));
}

TEST_F(MainWindowLookup, direction_changes_captions_and_dictionary_and_clears_all) {
    type("app");

    look_up_from_hungarian();

    EXPECT_EQ(control<QLabel>("Label1")->text(), u"&Magyarul:"_s);
    EXPECT_EQ(control<QLabel>("Label2")->text(), u"Angolul:"_s);
    EXPECT_EQ(text_box("angolszó")->text(), QString());
    EXPECT_TRUE(text_box("angolszó")->hasFocus());
    EXPECT_EQ(list("szólist")->count(), 0);
    EXPECT_EQ(list("magyarlist")->count(), 0);
    EXPECT_FALSE(button("hozzáad")->isEnabled());

    type("megy");
    EXPECT_EQ(items("magyarlist"), QStringList({u"to go"_s, u"to walk"_s}));

    QTest::mouseClick(control<QRadioButton>("nyelv(0)"), Qt::LeftButton);
    EXPECT_EQ(control<QLabel>("Label1")->text(), u"&Angolul:"_s);
    EXPECT_EQ(control<QLabel>("Label2")->text(), u"Magyarul:"_s);
}

TEST_F(MainWindowLookup, tells_a_missing_dictionary_once_for_each_direction) {
    QFile::remove(place("angol/am.txt"));
    QFile::remove(place("angol/ma.txt"));

    type("app");
    EXPECT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(boxes_.told[0].contains(u"am.txt"_s));
    EXPECT_EQ(hit_count(), u"nincs szótárfájl"_s);
    look_up_from_hungarian();
    type("alm");

    EXPECT_EQ(boxes_.told.size(), 2);
    EXPECT_TRUE(boxes_.told[1].contains(u"ma.txt"_s));
}

TEST_F(MainWindowLookup, shows_the_selected_hit_in_the_middle_of_its_list) {
    // A blank comes before every letter, so the exact hit has many before it.
    QByteArrayList entries{"apple, ripe:alma\xf7"};
    for (int i = 0; i < 40; ++i) {
        entries.append("apple " + QByteArray::number(i) + ":x\xf7");
        entries.append("apples" + QByteArray::number(i) + ":x\xf7");
    }
    write_file(place("angol/am.txt"), dictionary_of(entries));

    type("apple");

    const ListBox *hits = list("szólist");
    ASSERT_EQ(hits->selected(), 40);
    const QRect row = hits->visualRect(hits->currentIndex());
    EXPECT_NEAR(row.center().y(), hits->viewport()->height() / 2.0, row.height());
}

TEST_F(MainWindowLookup, tells_a_damaged_dictionary_once_for_each_direction) {
    write_file(place("angol/am.txt"), "");
    write_file(place("angol/ma.txt"), QByteArray(5000, '\0'));

    type("app");
    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(boxes_.told[0].contains(u"am.txt” szótárfájl sérült: üres."_s)) << boxes_.told[0].toStdString();
    EXPECT_EQ(hit_count(), u"0 találat"_s);
    look_up_from_hungarian();
    type("alm");

    ASSERT_EQ(boxes_.told.size(), 2);
    EXPECT_TRUE(boxes_.told[1].contains(u"ma.txt” szótárfájl sérült: "_s));
}

TEST_F(MainWindowTest, tells_at_the_start_that_the_program_folder_cannot_be_read_and_not_again) {
    state_.programkönyvtár = place("gone");

    start();
    type("app");

    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(boxes_.told[0].contains(u"a mappa nem létezik."_s)) << boxes_.told[0].toStdString();
    EXPECT_EQ(hit_count(), u"nincs szótárfájl"_s);
}

/// A dictionary in which a search takes long enough for other events to come in between.
class LongSearch : public MainWindowTest {
  protected:
    LongSearch() {
        QByteArrayList entries;
        for (int i = 0; i < 120000; ++i)
            entries.append("g" + QByteArray::number(i) + ":x\xf7");
        entries.append("goat:kecske\xf7");
        write_file(place("angol/am.txt"), dictionary_of(entries));
        start();
    }
};

TEST_F(LongSearch, typing_quickly_leaves_only_the_lists_of_the_last_search) {
    QTimer::singleShot(0, window_.get(), [this] { type("oat"); });

    type("g");

    EXPECT_EQ(text_box("angolszó")->text(), u"goat"_s);
    EXPECT_EQ(items("szólist"), QStringList{u"goat"_s});
    EXPECT_EQ(hit_count(), u"1 találat"_s);
    EXPECT_EQ(items("magyarlist"), QStringList{u"kecske"_s});
}

TEST_F(LongSearch, second_search_for_the_same_text_takes_the_first_over) {
    QTimer::singleShot(0, window_.get(), [this] { window_->Ok_Click(); });

    type("g");

    EXPECT_EQ(list("szólist")->count(), 120001);
    EXPECT_EQ(list("megoldlist")->count(), 120001);
    EXPECT_EQ(hit_count(), u"120001 találat"_s);
}

TEST_F(LongSearch, change_of_direction_and_the_same_letter_again_leave_only_the_other_dictionarys_hits) {
    write_file(place("angol/ma.txt"), dictionary_of({"g\xe9p:machine\xf7"}));
    QTimer::singleShot(0, window_.get(), [this] {
        QTest::mouseClick(control<QRadioButton>("nyelv(1)"), Qt::LeftButton);
        type("g");
    });

    type("g");

    EXPECT_EQ(items("szólist"), QStringList{u"gép"_s});
    EXPECT_EQ(hit_count(), u"1 találat"_s);
}

TEST_F(LongSearch, is_given_up_when_the_field_is_emptied) {
    QTimer::singleShot(0, window_.get(), [this] { QTest::keyClick(text_box("angolszó"), Qt::Key_Backspace); });

    type("g");

    EXPECT_EQ(list("szólist")->count(), 0);
    EXPECT_EQ(hit_count(), QString());
}

TEST_F(LongSearch, ends_at_once_when_the_program_ends) {
    QTimer::singleShot(0, window_.get(), [this] { window_->kilép_Click(); });

    type("g");

    EXPECT_TRUE(ended_);
    EXPECT_LT(list("szólist")->count(), 120000);
}

TEST_F(MainWindowLookup, hidden_conversion_button_reports_in_the_hit_count) {
    EXPECT_FALSE(button("Command2")->isVisible());
    EXPECT_EQ(button("Command2")->text(), u"Állományt átalakít (nem látható)"_s);
    write_file(place("angol/magyar.skt"), "b\r\na\r\n");

    button("Command2")->click();

    EXPECT_EQ(hit_count(), u"Művelet kész."_s);
    EXPECT_EQ(read_file(place("angol/magyarvg.skt")), "A\r\nB\r\n");
}

TEST_F(MainWindowLookup, conversion_tells_when_its_input_is_missing) {
    button("Command2")->click();

    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(boxes_.told[0].contains(u"magyar.skt"_s));
}

}  // namespace
