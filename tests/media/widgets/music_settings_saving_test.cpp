#include "support/music_settings_fixture.h"

using namespace Qt::StringLiterals;

namespace {

/// What becomes of the settings when the window is left.
class MusicSettingsSaving : public MusicSettingsTest {
  protected:
    /// Changes the playlist, which begins with march and aria, and the switch.
    void change_everything() {
        click_item("filelist_zene", waltz);
        click("cmd_add");
        click(up);
        toggle("chk_zene_enged");
        EXPECT_EQ(playlist(), QStringList({march, waltz, aria}));
        EXPECT_FALSE(box("chk_zene_enged")->isChecked());
    }

    const QByteArray stored = " 1\r\nindul\xf3.mid\r\nAria.mid\r\n";
    const QByteArray changed = " 0\r\nindul\xf3.mid\r\nkering\xf5.mid\r\nAria.mid\r\n";

    const std::function<void()> saving_[2] = {[this] { click("cmd_ok"); },
                                              [this] { press("filelist_zene", Qt::Key_Return); }};
    const std::function<void()> discarding_[3] = {[this] { click("cmd_mégsem"); },
                                                  [this] { press("list_playlist", Qt::Key_Escape); },
                                                  [this] { window_->close(); }};
};

TEST_F(MusicSettingsSaving, starts_with_music_allowed_and_nothing_to_play_without_a_file) {
    start();

    EXPECT_TRUE(box("chk_zene_enged")->isChecked());
    EXPECT_EQ(playlist(), QStringList());
    EXPECT_EQ(boxes_.told, QStringList());
}

TEST_F(MusicSettingsSaving, shows_what_is_stored_even_of_files_that_are_missing) {
    store(" 0\r\nnincs.mid\r\nindul\xf3.mid\r\n");

    start();

    EXPECT_FALSE(box("chk_zene_enged")->isChecked());
    EXPECT_EQ(playlist(), QStringList({u"nincs.mid"_s, march}));
}

TEST_F(MusicSettingsSaving, ok_and_enter_write_the_file_and_hide_the_window) {
    for (const auto &leave : saving_) {
        store(stored);
        start();
        change_everything();

        leave();

        EXPECT_EQ(written(own_file), changed);
        EXPECT_FALSE(window_->isVisible());
        EXPECT_EQ(playlist(), QStringList({march, waltz, aria}));
        EXPECT_EQ(boxes_.told, QStringList());
    }
}

TEST_F(MusicSettingsSaving, keeps_an_entry_whose_file_is_missing) {
    store(" 1\r\nnincs.mid\r\n");
    start();

    click("cmd_ok");

    EXPECT_EQ(written(own_file), " 1\r\nnincs.mid\r\n");
}

TEST_F(MusicSettingsSaving, makes_the_folders_of_the_file) {
    start();
    ASSERT_FALSE(QFileInfo::exists(place("c/zbrmk")));

    click("cmd_ok");

    EXPECT_EQ(written(own_file), " 1\r\n");
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(MusicSettingsSaving, reads_the_programs_file_as_long_as_there_is_no_own_one_and_never_writes_it) {
    const QByteArray of_the_program = " 0\r\nAria.mid\r\nkering\xf5.mid\r\n";
    write(first_file, of_the_program);
    start();
    EXPECT_FALSE(box("chk_zene_enged")->isChecked());
    EXPECT_EQ(playlist(), QStringList({aria, waltz}));
    toggle("chk_zene_enged");

    click("cmd_ok");

    EXPECT_EQ(written(own_file), " 1\r\nAria.mid\r\nkering\xf5.mid\r\n");
    EXPECT_EQ(written(first_file), of_the_program);
}

TEST_F(MusicSettingsSaving, reads_the_own_file_before_that_of_the_program) {
    write(first_file, " 0\r\nkering\xf5.mid\r\n");
    store(stored);

    start();

    EXPECT_TRUE(box("chk_zene_enged")->isChecked());
    EXPECT_EQ(playlist(), QStringList({march, aria}));
}

TEST_F(MusicSettingsSaving, mégsem_escape_and_the_frame_bring_back_what_is_stored) {
    for (const auto &leave : discarding_) {
        store(stored);
        start();
        change_everything();

        leave();

        EXPECT_FALSE(window_->isVisible());
        EXPECT_EQ(playlist(), QStringList({march, aria}));
        EXPECT_TRUE(box("chk_zene_enged")->isChecked());
        EXPECT_FALSE(enabled("cmd_törl"));
        EXPECT_EQ(written(own_file), stored);
    }
}

TEST_F(MusicSettingsSaving, mégsem_brings_back_the_programs_file_while_there_is_no_own_one) {
    write(first_file, stored);
    start();
    change_everything();

    click("cmd_mégsem");

    EXPECT_EQ(playlist(), QStringList({march, aria}));
    EXPECT_TRUE(box("chk_zene_enged")->isChecked());
    EXPECT_FALSE(QFileInfo::exists(place("c/zbrmk")));
}

TEST_F(MusicSettingsSaving, stops_the_music_however_the_window_is_left) {
    for (const auto &leave : {saving_[0], saving_[1], discarding_[0], discarding_[1], discarding_[2]}) {
        start();
        click_item("filelist_zene", aria);
        multimedia_.take_sent();

        leave();

        EXPECT_EQ(multimedia_.take_sent(), stop);
        EXPECT_FALSE(player_.zeneszól());
    }
}

TEST_F(MusicSettingsSaving, ends_the_modal_showing_however_the_window_is_left) {
    load();
    for (const auto &leave : {saving_[0], saving_[1], discarding_[0], discarding_[1], discarding_[2]}) {
        open([&] {
            EXPECT_EQ(window_->windowModality(), Qt::ApplicationModal);
            leave();
            EXPECT_FALSE(window_->isVisible());
        });
    }
}

TEST_F(MusicSettingsSaving, stays_open_with_a_message_while_the_file_cannot_be_written) {
    for (const auto &leave : saving_) {
        start();
        make_unwritable("c/zbrmk");
        boxes_.told.clear();
        click_item("filelist_zene", aria);
        multimedia_.take_sent();

        leave();

        EXPECT_TRUE(window_->isVisible());
        ASSERT_EQ(boxes_.told.size(), 1);
        EXPECT_TRUE(boxes_.told.first().startsWith(
            u"A(z) „%1” mappa nem hozható létre: "_s.arg(QDir::toNativeSeparators(place("c/zbrmk/kavaro")))))
            << boxes_.told.first().toStdString();
        EXPECT_EQ(multimedia_.take_sent(), QStringList());
        QFile::remove(place("c/zbrmk"));
    }
}

TEST_F(MusicSettingsSaving, can_be_left_without_saving_while_the_file_cannot_be_written) {
    for (const auto &leave : discarding_) {
        start();
        make_unwritable("c/zbrmk");

        leave();

        EXPECT_FALSE(window_->isVisible());
        EXPECT_EQ(boxes_.told, QStringList());
        QFile::remove(place("c/zbrmk"));
    }
}

TEST_F(MusicSettingsSaving, tells_of_a_damaged_file_when_the_window_is_shown_and_only_once) {
    store("indul\xf3.mid\r\nAria.mid\r\n");
    load();
    EXPECT_EQ(boxes_.told, QStringList());

    open([] {});
    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(boxes_.told.first().contains(QDir::toNativeSeparators(place(own_file))));
    EXPECT_TRUE(box("chk_zene_enged")->isChecked());
    EXPECT_EQ(playlist(), QStringList({march, aria}));
    open([] {});
    EXPECT_EQ(boxes_.told.size(), 1);
}

TEST_F(MusicSettingsSaving, tells_nothing_of_a_damaged_file_that_ok_has_written_anew) {
    store("indul\xf3.mid\r\n");
    load();
    open([this] { click("cmd_ok"); });
    boxes_.told.clear();

    open([this] { click("cmd_mégsem"); });
    open([] {});

    EXPECT_EQ(boxes_.told, QStringList());
    EXPECT_EQ(written(own_file), " 1\r\nindul\xf3.mid\r\n");
}

TEST_F(MusicSettingsSaving, lists_files_that_came_and_went_while_it_was_hidden) {
    load();
    open([this] {
        click_item("filelist_zene", march);
        click("cmd_ok");
    });
    multimedia_.take_sent();
    QFile::remove(piece(aria));
    put_piece(u"dal.mid"_s);

    open([this] {
        EXPECT_EQ(list("filelist_zene")->items(), QStringList({dance, u"dal.mid"_s, march, waltz}));
        EXPECT_EQ(selected("filelist_zene"), march);
        EXPECT_TRUE(enabled("cmd_add"));
    });

    EXPECT_EQ(multimedia_.sent, QStringList());
}

TEST_F(MusicSettingsSaving, selects_no_file_when_the_selected_one_went_while_it_was_hidden) {
    load();
    open([this] {
        click_item("filelist_zene", march);
        click("cmd_ok");
    });
    QFile::remove(piece(march));

    open([this] {
        EXPECT_EQ(list("filelist_zene")->selected(), -1);
        EXPECT_FALSE(enabled("cmd_add"));
    });
}

TEST_F(MusicSettingsSaving, writes_five_thousand_entries) {
    QByteArray lines = " 1\r\n";
    for (int i = 0; i < 5000; ++i)
        lines += QByteArray::number(i) + ".mid\r\n";
    store(lines);
    start();
    click_item("list_playlist", u"4999.mid"_s);
    click("cmd_törl");

    click("cmd_ok");

    EXPECT_EQ(written(own_file), lines.chopped(10));
}

}  // namespace
