#include "support/mini_window_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class MiniWindowClipboard : public MiniWindowTest {
  protected:
    MiniWindowClipboard() { open(); }

    /// Calls `act` among the events that a search for `text` lets run, once.
    void while_searching(const char *text, const std::function<void()> &act) {
        large_.during_search = [this, act, awaited = QString::fromUtf8(text)](const QString &searched) {
            if (searched != awaited)
                return;
            large_.during_search = [](const QString &) {};
            QTimer::singleShot(0, window_.get(), act);
        };
    }
};

TEST_F(MiniWindowClipboard, is_looked_at_every_three_hundred_milliseconds) {
    const auto *timer = control<QTimer>("Timer1");

    EXPECT_EQ(timer->interval(), 300);
    EXPECT_TRUE(timer->isActive());
    EXPECT_FALSE(timer->isSingleShot());
}

TEST_F(MiniWindowClipboard, is_watched_as_long_as_the_window_is_there) {
    EXPECT_EQ(clipboard_.watches, 1);

    large_.ends = true;
    window_.reset();

    EXPECT_EQ(clipboard_.watches, 0);
}

TEST_F(MiniWindowClipboard, has_each_copied_word_looked_up_trimmed_and_in_lower_case) {
    copy("  ALMAFA ");

    EXPECT_EQ(search_box()->text(), u"almafa"_s);
    EXPECT_EQ(large_.searched(), QStringList{u"almafa"_s});
    EXPECT_EQ(hits(), QStringList{u"almafa"_s});
    EXPECT_EQ(meanings(), QStringList({u"apple tree"_s, u"apple wood"_s}));
}

TEST_F(MiniWindowClipboard, has_the_same_text_looked_up_once) {
    copy("alma");
    search_box()->clear();
    large_.calls.clear();

    copy("alma");
    tick();

    EXPECT_TRUE(large_.searched().isEmpty());
    EXPECT_EQ(search_box()->text(), QString());
}

TEST_F(MiniWindowClipboard, has_a_text_looked_up_again_after_another_one) {
    copy("alma");
    copy("ház");
    copy("alma");

    EXPECT_EQ(large_.searched(), QStringList({u"alma"_s, u"ház"_s, u"alma"_s}));
}

TEST_F(MiniWindowClipboard, has_a_copied_word_searched_that_was_typed_before) {
    type("ház");
    large_.calls.clear();

    copy("ház");

    EXPECT_EQ(large_.searched(), QStringList{u"ház"_s});
    EXPECT_EQ(hits(), QStringList{u"ház"_s});
    EXPECT_EQ(meanings(), QStringList({u"house"_s, u"home"_s}));
}

TEST_F(MiniWindowClipboard, has_no_text_looked_up_that_was_there_when_the_window_opened) {
    clipboard_.put(u"alma"_s);
    open();

    tick();

    EXPECT_TRUE(large_.searched().isEmpty());
    EXPECT_EQ(search_box()->text(), QString());
}

TEST_F(MiniWindowClipboard, has_no_text_looked_up_that_was_there_but_is_handed_over_late) {
    clipboard_.seen = ClipboardText{u"alma"_s, true};
    tick();
    EXPECT_TRUE(large_.searched().isEmpty());

    copy("alma");
    EXPECT_TRUE(large_.searched().isEmpty());

    copy("ház");
    EXPECT_EQ(large_.searched(), QStringList{u"ház"_s});
}

TEST_F(MiniWindowClipboard, has_nothing_looked_up_while_no_text_is_seen) {
    clipboard_.seen.reset();

    tick();

    EXPECT_TRUE(large_.calls.isEmpty());
}

TEST_F(MiniWindowClipboard, has_no_texts_looked_up_that_are_no_words) {
    copy("két\nsor");
    copy(QString(201, u'a'));

    EXPECT_TRUE(large_.searched().isEmpty());
    EXPECT_EQ(search_box()->text(), QString());
}

TEST_F(MiniWindowClipboard, has_a_word_looked_up_without_its_line_end_and_quotes) {
    copy("„Ház”\r\n");

    EXPECT_EQ(search_box()->text(), u"ház"_s);
    EXPECT_EQ(hits(), QStringList{u"ház"_s});
}

TEST_F(MiniWindowClipboard, empties_everything_when_it_is_blank) {
    copy("alma");

    copy(" \n");

    EXPECT_EQ(search_box()->text(), QString());
    EXPECT_TRUE(hits().isEmpty());
    EXPECT_TRUE(meanings().isEmpty());
}

TEST_F(MiniWindowClipboard, has_a_word_shortened_until_something_is_found) {
    copy("Házaimban");

    EXPECT_EQ(large_.searched(),
              QStringList({u"házaimban"_s, u"házaimba"_s, u"házaimb"_s, u"házaim"_s, u"házai"_s, u"háza"_s, u"ház"_s}));
    EXPECT_EQ(search_box()->text(), u"ház"_s);
    EXPECT_EQ(hits(), QStringList{u"ház"_s});
}

TEST_F(MiniWindowClipboard, has_a_word_shortened_to_nothing_when_nothing_is_found) {
    copy("qqqq");

    EXPECT_EQ(large_.searched(), QStringList({u"qqqq"_s, u"qqq"_s, u"qq"_s, u"q"_s, QString()}));
    EXPECT_EQ(search_box()->text(), QString());
    EXPECT_TRUE(hits().isEmpty());
    EXPECT_TRUE(meanings().isEmpty());
}

TEST_F(MiniWindowClipboard, gives_way_to_what_the_user_types_meanwhile) {
    while_searching("qqq", [this] { search_box()->setText(u"alma"_s); });

    copy("qqqq");

    EXPECT_EQ(search_box()->text(), u"alma"_s);
    EXPECT_EQ(large_.searched(), QStringList({u"qqqq"_s, u"qqq"_s, u"alma"_s}));
    EXPECT_EQ(hits(), QStringList({u"alma"_s, u"almafa"_s}));
}

TEST_F(MiniWindowClipboard, leaves_what_the_user_types_meanwhile_even_when_nothing_is_found) {
    while_searching("qqq", [this] { search_box()->setText(u"xyz"_s); });

    copy("qqqq");

    EXPECT_EQ(search_box()->text(), u"xyz"_s);
    EXPECT_EQ(large_.searched(), QStringList({u"qqqq"_s, u"qqq"_s, u"xyz"_s}));
}

TEST_F(MiniWindowClipboard, gives_way_to_a_word_that_is_copied_meanwhile) {
    while_searching("qqq", [this] { copy("házak"); });

    copy("qqqq");

    EXPECT_EQ(large_.searched(), QStringList({u"qqqq"_s, u"qqq"_s, u"házak"_s, u"háza"_s, u"ház"_s}));
    EXPECT_EQ(search_box()->text(), u"ház"_s);
}

TEST_F(MiniWindowClipboard, stops_shortening_when_the_window_is_left_meanwhile) {
    large_.when_left = [this] { window_->hide(); };
    while_searching("qqq", [this] { click("cmd_kilép"); });

    copy("qqqq");

    EXPECT_EQ(large_.searched(), QStringList({u"qqqq"_s, u"qqq"_s}));
    EXPECT_FALSE(window_->foglalt());
}

TEST_F(MiniWindowClipboard, may_not_be_taken_away_while_a_search_lets_other_events_run) {
    bool busy_meanwhile = false;
    while_searching("alma", [&] { busy_meanwhile = window_->foglalt(); });
    EXPECT_FALSE(window_->foglalt());

    copy("alma");

    EXPECT_TRUE(busy_meanwhile);
    EXPECT_FALSE(window_->foglalt());
}

TEST_F(MiniWindowClipboard, lookup_takes_no_focus_from_the_programs_other_windows) {
    QWidget other;
    other.show();
    QApplication::setActiveWindow(&other);

    copy("alma");

    EXPECT_EQ(QApplication::activeWindow(), &other);
}

TEST_F(MiniWindowClipboard, keeps_the_window_on_top_at_each_look) {
    const int before = top_most_.renewed;

    tick();
    tick();

    EXPECT_EQ(top_most_.renewed, before + 2);
    EXPECT_EQ(top_most_.made, 1);
}

}  // namespace
