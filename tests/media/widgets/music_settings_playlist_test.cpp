#include "support/music_settings_fixture.h"

using namespace Qt::StringLiterals;

namespace {

/// Changes of the playlist.
class MusicPlaylist : public MusicSettingsTest {
  protected:
    /// Hears another piece, so that each that is started from now on is heard.
    void hear(const QString &name) {
        click_item("filelist_zene", name);
        multimedia_.take_sent();
    }
    void select(const QString &name) {
        click_item("list_playlist", name);
        multimedia_.take_sent();
    }
};

TEST_F(MusicPlaylist, takes_the_selected_file_at_its_end_and_selects_it) {
    start_with({march, aria});
    click_item("filelist_zene", dance);

    click("cmd_add");

    EXPECT_EQ(playlist(), QStringList({march, aria, dance}));
    EXPECT_EQ(selected("list_playlist"), dance);
    EXPECT_EQ(selected("filelist_zene"), dance);
    EXPECT_TRUE(enabled("cmd_törl"));
    EXPECT_TRUE(enabled(up));
    EXPECT_FALSE(enabled(down));
}

TEST_F(MusicPlaylist, starts_an_added_file_unless_it_is_heard_already) {
    start_with({march});
    click_item("filelist_zene", dance);
    multimedia_.take_sent();

    click("cmd_add");
    EXPECT_EQ(multimedia_.take_sent(), QStringList());

    hear(waltz);
    select(march);
    click("cmd_add");
    EXPECT_EQ(multimedia_.take_sent(), change_to(waltz));
}

TEST_F(MusicPlaylist, selects_and_starts_a_file_that_it_has_already) {
    start_with({march, aria, dance});
    hear(aria);
    select(dance);

    click("cmd_add");

    EXPECT_EQ(playlist(), QStringList({march, aria, dance}));
    EXPECT_EQ(selected("list_playlist"), aria);
    EXPECT_EQ(multimedia_.take_sent(), change_to(aria));
    EXPECT_TRUE(enabled(up));
    EXPECT_TRUE(enabled(down));
}

TEST_F(MusicPlaylist, selects_and_starts_what_comes_into_the_place_of_a_removed_entry) {
    start_with({march, aria, dance});
    select(aria);

    click("cmd_törl");

    EXPECT_EQ(playlist(), QStringList({march, dance}));
    EXPECT_EQ(selected("list_playlist"), dance);
    EXPECT_EQ(multimedia_.take_sent(), change_to(dance));
    EXPECT_FALSE(enabled(down));
}

TEST_F(MusicPlaylist, selects_and_starts_the_new_last_entry_when_the_last_one_is_removed) {
    start_with({march, aria, dance});
    select(dance);

    click("cmd_törl");

    EXPECT_EQ(playlist(), QStringList({march, aria}));
    EXPECT_EQ(selected("list_playlist"), aria);
    EXPECT_EQ(multimedia_.take_sent(), change_to(aria));
}

TEST_F(MusicPlaylist, can_be_emptied_and_starts_nothing_then) {
    start_with({march});
    select(march);

    click("cmd_törl");

    EXPECT_EQ(playlist(), QStringList());
    EXPECT_EQ(multimedia_.take_sent(), QStringList());
    for (const char *name : {"cmd_törl", up, down})
        EXPECT_FALSE(enabled(name)) << name;
}

TEST_F(MusicPlaylist, keeps_the_file_of_a_removed_entry) {
    start_with({march});
    select(march);

    click("cmd_törl");

    EXPECT_TRUE(QFile::exists(piece(march)));
}

TEST_F(MusicPlaylist, moves_the_selected_entry_up_to_the_top) {
    start_with({march, aria, dance});
    select(dance);

    click(up);
    EXPECT_EQ(playlist(), QStringList({march, dance, aria}));
    EXPECT_EQ(selected("list_playlist"), dance);
    click(up);
    EXPECT_EQ(playlist(), QStringList({dance, march, aria}));
    EXPECT_EQ(selected("list_playlist"), dance);
    EXPECT_FALSE(enabled(up));
    EXPECT_TRUE(enabled(down));
}

TEST_F(MusicPlaylist, moves_the_selected_entry_down_to_the_bottom) {
    start_with({march, aria, dance});
    select(march);

    click(down);
    EXPECT_EQ(playlist(), QStringList({aria, march, dance}));
    EXPECT_EQ(selected("list_playlist"), march);
    click(down);
    EXPECT_EQ(playlist(), QStringList({aria, dance, march}));
    EXPECT_EQ(selected("list_playlist"), march);
    EXPECT_FALSE(enabled(down));
    EXPECT_TRUE(enabled(up));
}

TEST_F(MusicPlaylist, moves_neither_the_first_entry_up_nor_the_last_one_down) {
    start_with({march, aria});

    select(march);
    click(up);
    EXPECT_EQ(playlist(), QStringList({march, aria}));
    EXPECT_EQ(selected("list_playlist"), march);
    select(aria);
    click(down);
    EXPECT_EQ(playlist(), QStringList({march, aria}));
    EXPECT_EQ(selected("list_playlist"), aria);
    EXPECT_EQ(multimedia_.take_sent(), QStringList());
}

TEST_F(MusicPlaylist, goes_on_with_the_same_piece_when_it_is_moved) {
    start_with({march, aria, dance});
    select(march);

    click(down);
    click(down);
    click(up);

    EXPECT_EQ(multimedia_.take_sent(), QStringList());
}

TEST_F(MusicPlaylist, starts_a_moved_entry_when_another_piece_was_heard_meanwhile) {
    start_with({march, aria, dance});
    select(march);
    hear(waltz);

    click(down);

    EXPECT_EQ(multimedia_.take_sent(), change_to(march));
}

/// The playlist as the music timer sees it, which is asked each second.
class MusicTimerInTheWindow : public MusicSettingsTest {
  protected:
    void tick() { timer_.Timer_zene_Timer(); }
    /// Commands of a tick, without its question.
    QStringList sent_at_tick() {
        multimedia_.take_sent();
        tick();
        QStringList sent = multimedia_.take_sent();
        sent.removeAll(u"Status midi mode|255"_s);
        return sent;
    }

    QStringList captions_;
    zeneóra timer_{player_, [this]() -> lejátszólista & { return *window_; },
                   [this](const QString &name) { captions_.append(name); }};
};

TEST_F(MusicTimerInTheWindow, goes_through_the_playlist_and_begins_again) {
    start_with({march, aria, dance});

    EXPECT_EQ(sent_at_tick(), start_of(march));
    EXPECT_EQ(sent_at_tick(), change_to(aria));
    EXPECT_EQ(sent_at_tick(), change_to(dance));
    EXPECT_EQ(sent_at_tick(), change_to(march));
    EXPECT_EQ(selected("list_playlist"), march);
    EXPECT_EQ(captions_, QStringList({march, aria, dance, march}));
}

TEST_F(MusicTimerInTheWindow, goes_through_the_playlist_while_the_window_is_hidden) {
    store(" 1\r\nindul\xf3.mid\r\nAria.mid\r\n");
    load();

    EXPECT_EQ(sent_at_tick(), start_of(march));
    EXPECT_EQ(sent_at_tick(), change_to(aria));
    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(boxes_.told, QStringList());
}

TEST_F(MusicTimerInTheWindow, lets_a_piece_that_plays_or_pauses_alone) {
    start_with({march, aria});
    tick();

    for (const char *mode : {"playing", "paused"}) {
        multimedia_.mode = QString::fromLatin1(mode);
        EXPECT_EQ(sent_at_tick(), QStringList()) << mode;
    }
    multimedia_.mode = u"stopped"_s;
    EXPECT_EQ(sent_at_tick(), change_to(aria));
}

TEST_F(MusicTimerInTheWindow, does_nothing_while_the_switch_is_off_saved_or_not) {
    start_with({march, aria});
    toggle("chk_zene_enged");

    EXPECT_EQ(sent_at_tick(), QStringList());
    EXPECT_EQ(list("list_playlist")->selected(), -1);
    toggle("chk_zene_enged");
    EXPECT_EQ(sent_at_tick(), start_of(march));
}

TEST_F(MusicTimerInTheWindow, does_nothing_with_an_empty_playlist) {
    start();

    EXPECT_EQ(sent_at_tick(), QStringList());
    EXPECT_EQ(captions_, QStringList());
}

TEST_F(MusicTimerInTheWindow, plays_a_single_entry_once) {
    start_with({march});

    EXPECT_EQ(sent_at_tick(), start_of(march));
    EXPECT_EQ(sent_at_tick(), QStringList());
    EXPECT_EQ(sent_at_tick(), QStringList());
}

TEST_F(MusicTimerInTheWindow, passes_over_an_entry_whose_file_is_missing) {
    start_with({march, u"nincs.mid"_s, aria});
    tick();

    EXPECT_EQ(sent_at_tick(), change_to(u"nincs.mid"_s));
    EXPECT_EQ(sent_at_tick(), change_to(aria));
    EXPECT_EQ(boxes_.told, QStringList());
}

TEST_F(MusicTimerInTheWindow, plays_edits_that_are_not_saved) {
    start_with({march});
    tick();
    click_item("filelist_zene", dance);
    click("cmd_add");
    click_item("filelist_zene", aria);
    click("cmd_add");
    click_item("list_playlist", dance);

    EXPECT_EQ(sent_at_tick(), change_to(aria));
    EXPECT_EQ(sent_at_tick(), change_to(march));
}

TEST_F(MusicTimerInTheWindow, goes_on_with_the_next_entry_after_ok) {
    start_with({march, aria});
    tick();
    multimedia_.mode = u"playing"_s;
    multimedia_.take_sent();

    click("cmd_ok");
    EXPECT_EQ(multimedia_.take_sent(), stop);
    multimedia_.mode.clear();
    EXPECT_EQ(sent_at_tick(), start_of(aria));
}

TEST_F(MusicTimerInTheWindow, begins_with_the_list_that_mégsem_brought_back) {
    start_with({march, aria});
    click_item("list_playlist", march);
    click("cmd_törl");
    EXPECT_EQ(playlist(), QStringList(aria));

    click("cmd_mégsem");

    EXPECT_EQ(sent_at_tick(), start_of(march));
}

TEST_F(MusicTimerInTheWindow, goes_through_five_thousand_entries) {
    QStringList many;
    for (int i = 0; i < 5000; ++i)
        many.append(u"%1.mid"_s.arg(i));
    start_with(many);
    EXPECT_EQ(playlist(), many);

    for (int i = 0; i < 5000; ++i)
        tick();

    EXPECT_EQ(captions_, many);
    EXPECT_EQ(sent_at_tick(), change_to(many.first()));
}

TEST_F(MusicPlaylist, gives_the_keyboard_to_its_list_when_a_button_has_nothing_left_to_do) {
    start_with({march, aria, dance});
    const auto press_twice = [this](const char *name) {
        for (int i = 0; i < 2; ++i) {
            if (i == 0)
                button(name)->setFocus();
            QTest::keyClick(window_->focusWidget(), Qt::Key_Space);
        }
    };
    select(aria);

    press_twice(up);
    EXPECT_EQ(playlist(), QStringList({aria, march, dance}));
    EXPECT_EQ(window_->focusWidget(), list("list_playlist"));

    select(march);
    press_twice(down);
    EXPECT_EQ(playlist(), QStringList({aria, dance, march}));

    select(aria);
    for (int i = 0; i < 3; ++i)
        press_twice("cmd_törl");
    EXPECT_EQ(playlist(), QStringList());
    EXPECT_EQ(window_->focusWidget(), list("list_playlist"));
    EXPECT_TRUE(box("chk_zene_enged")->isChecked());
}

}  // namespace
