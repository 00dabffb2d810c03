#include "support/events.h"
#include "support/main_window_fixture.h"
#include "ui/controls/link_list.h"

namespace {

class MainWindowSuggestions : public MainWindowTest {
  protected:
    MainWindowSuggestions() { start(); }

    [[nodiscard]] LinkList *help() const { return control<LinkList>("lst_ajánlatok"); }
    [[nodiscard]] bool help_says(const char *text) const {
        return help()->toPlainText().split(u'\n').contains(QString::fromUtf8(text));
    }
};

TEST_F(MainWindowSuggestions, stand_beside_a_search_without_an_exact_hit) {
    type("Apple");

    ASSERT_TRUE(comes_true([&] { return help()->isVisible(); }));
    EXPECT_TRUE(help_says("apple"));
    EXPECT_EQ(hit_count(), u"0 találat"_s);
}

TEST_F(MainWindowSuggestions, go_when_the_search_field_is_emptied) {
    type("aple");
    ASSERT_TRUE(comes_true([&] { return help()->isVisible(); }));

    text_box("angolszó")->clear();

    EXPECT_FALSE(help()->isVisible());
}

TEST_F(MainWindowSuggestions, go_when_there_is_no_dictionary_any_more) {
    type("aple");
    ASSERT_TRUE(comes_true([&] { return help()->isVisible(); }));

    QFile::remove(place("angol/am.txt"));
    type("x");

    EXPECT_FALSE(help()->isVisible());
}

TEST_F(MainWindowSuggestions, lead_to_the_headword_that_is_chosen) {
    type("aple");
    ASSERT_TRUE(comes_true([&] { return help_says("apple"); }));

    Q_EMIT help()->chosen(0);

    EXPECT_EQ(text_box("angolszó")->text(), u"apple"_s);
    EXPECT_EQ(list("szólist")->item(list("szólist")->selected()), u"apple"_s);
    EXPECT_EQ(items("magyarlist"), QStringList({u"alma"_s, u"almafa"_s}));
}

TEST_F(MainWindowSuggestions, turn_to_the_other_dictionary_for_a_word_of_the_other_language) {
    type("alma");
    ASSERT_TRUE(comes_true([&] { return help_says("alma"); }));

    Q_EMIT help()->chosen(0);

    EXPECT_TRUE(control<QRadioButton>("nyelv(1)")->isChecked());
    EXPECT_EQ(text_box("angolszó")->text(), u"alma"_s);
    EXPECT_EQ(items("magyarlist"), QStringList{u"apple"_s});
}

TEST_F(MainWindowSuggestions, are_reached_by_tab_while_they_stand_there) {
    type("aple");
    ASSERT_TRUE(comes_true([&] { return help()->isVisible(); }));

    button("cmd_kisablak")->setFocus();
    QTest::keyClick(button("cmd_kisablak"), Qt::Key_Tab);

    EXPECT_EQ(window_->focusWidget(), help());
}

TEST_F(MainWindowSuggestions, open_the_window_of_phrases_from_the_menu) {
    action("mnuszótárkifejezések")->trigger();

    QWidget *phrases = nullptr;
    for (QWidget *window : QApplication::topLevelWidgets()) {
        if (window->objectName() == u"frm_kifejezések"_s)
            phrases = window;
    }
    ASSERT_NE(phrases, nullptr);
    EXPECT_TRUE(phrases->isVisible());
    EXPECT_EQ(action("mnuszótárkifejezések")->shortcut(), QKeySequence(Qt::Key_F3));
}

}  // namespace
