#include "support/sound_settings_fixture.h"

using namespace Qt::StringLiterals;

namespace {

/// What becomes of the settings when the window is left.
class SoundSettingsSaving : public SoundSettingsTest {
  protected:
    /// Settings in which each list and the switches differ from what they are without a file.
    void store_settings() {
        write("program/kavaro/grathang.ini", stored_gratula);
        write("program/kavaro/helyeshang.ini", stored_right);
        write("program/kavaro/hibahang.ini", stored_wrong);
    }
    void expect_stored_settings_shown() const {
        EXPECT_EQ(list("lst_gratulahang")->items(), QStringList({horn, bell}));
        EXPECT_EQ(list("lst_helyeshang")->items(), QStringList({gong, chime}));
        EXPECT_EQ(list("Lst_hibahang")->items(), QStringList(bell));
        EXPECT_EQ(switches(), u"10110"_s);
    }

    /// Changes each list and two switches.
    void change_everything() {
        click_item("Filelist", chime);
        click("cmd_gartula");
        click_item("lst_helyeshang", gong);
        click("cmd_hangtörl_helyeshangból");
        click_item("Lst_hibahang", bell);
        click("cmd_hangtörl_hibahangból");
        toggle("chk_hang_a_gratulálópanelen");
        toggle("chk_hang_a_főablakban");
    }
    void expect_changes_shown() const {
        EXPECT_EQ(list("lst_gratulahang")->items(), QStringList({horn, bell, chime}));
        EXPECT_EQ(list("lst_helyeshang")->items(), QStringList(chime));
        EXPECT_EQ(list("Lst_hibahang")->items(), QStringList());
        EXPECT_EQ(switches(), u"00111"_s);
    }
    void expect_changes_written() const {
        EXPECT_EQ(written("program/kavaro/grathang.ini"),
                  " 0\r\n 0\r\n 1\r\n 1\r\n 1\r\nHaj\xf3k\xfcrt k\xe9t hangon.wav\r\nbell.wav\r\nharang.wav\r\n");
        EXPECT_EQ(written("program/kavaro/helyeshang.ini"), "harang.wav\r\n");
        EXPECT_EQ(written("program/kavaro/hibahang.ini"), "");
    }
    void expect_nothing_written() const {
        EXPECT_EQ(written("program/kavaro/grathang.ini"), stored_gratula);
        EXPECT_EQ(written("program/kavaro/helyeshang.ini"), stored_right);
        EXPECT_EQ(written("program/kavaro/hibahang.ini"), stored_wrong);
    }

    const QByteArray stored_gratula = " 1\r\n 0\r\n 1\r\n 1\r\n 0\r\nHaj\xf3k\xfcrt k\xe9t hangon.wav\r\nbell.wav\r\n";
    const QByteArray stored_right = "z\xf6rej \xf5\xfb.wav\r\nharang.wav\r\n";
    const QByteArray stored_wrong = "bell.wav\r\n";

    const std::function<void()> saving_[3] = {
        [this] { click("cmd_ok"); }, [this] { press("Filelist", Qt::Key_Return); }, [this] { window_->close(); }};
    const std::function<void()> discarding_[2] = {[this] { click("cmd_mégsem"); },
                                                  [this] { press("lst_helyeshang", Qt::Key_Escape); }};
};

TEST_F(SoundSettingsSaving, starts_with_every_switch_on_and_empty_lists_without_files) {
    start();

    EXPECT_EQ(switches(), u"11111"_s);
    for (const Row &row : rows)
        EXPECT_EQ(list(row.list)->items(), QStringList());
    EXPECT_EQ(boxes_.told, QStringList());
}

TEST_F(SoundSettingsSaving, shows_what_is_stored) {
    store_settings();

    start();

    expect_stored_settings_shown();
    EXPECT_EQ(label("Label_gartula"), u" 2 hang"_s);
    EXPECT_EQ(label("Label_helyeshang"), u" 2 hang"_s);
    EXPECT_EQ(label("Label_hibahang"), u" 1 hang"_s);
}

TEST_F(SoundSettingsSaving, gives_each_line_of_the_file_to_its_switch) {
    for (int on = 0; on < 5; ++on) {
        QByteArray lines;
        for (int i = 0; i < 5; ++i)
            lines += i == on ? " 1\r\n" : " 0\r\n";
        write("program/kavaro/grathang.ini", lines);

        start();

        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(box(switch_names[i])->isChecked(), i == on) << switch_names[i];
    }
}

TEST_F(SoundSettingsSaving, leaves_listed_sounds_out_whose_files_have_gone) {
    store_settings();
    QFile::remove(sound(bell));
    start();
    EXPECT_EQ(list("lst_gratulahang")->items(), QStringList(horn));
    EXPECT_EQ(list("Lst_hibahang")->items(), QStringList());

    click("cmd_ok");

    EXPECT_TRUE(written("program/kavaro/grathang.ini").endsWith(" 0\r\nHaj\xf3k\xfcrt k\xe9t hangon.wav\r\n"));
    EXPECT_EQ(written("program/kavaro/hibahang.ini"), "");
}

TEST_F(SoundSettingsSaving, ok_enter_and_the_frame_write_the_three_files_and_hide_the_window) {
    for (const auto &leave : saving_) {
        store_settings();
        start();
        change_everything();
        expect_changes_shown();

        leave();

        expect_changes_written();
        EXPECT_FALSE(window_->isVisible());
        EXPECT_EQ(boxes_.told, QStringList());
        expect_changes_shown();
    }
}

TEST_F(SoundSettingsSaving, writes_every_file_even_of_empty_lists) {
    start();

    click("cmd_ok");

    EXPECT_EQ(written("program/kavaro/grathang.ini"), " 1\r\n 1\r\n 1\r\n 1\r\n 1\r\n");
    EXPECT_EQ(written("program/kavaro/helyeshang.ini"), "");
    EXPECT_EQ(written("program/kavaro/hibahang.ini"), "");
}

TEST_F(SoundSettingsSaving, shows_in_another_window_what_was_written) {
    store_settings();
    start();
    change_everything();
    click("cmd_ok");

    start();

    expect_changes_shown();
}

TEST_F(SoundSettingsSaving, makes_the_folder_of_the_files) {
    QDir(place("program/kavaro")).removeRecursively();
    start();

    click("cmd_ok");

    EXPECT_EQ(written("program/kavaro/grathang.ini"), " 1\r\n 1\r\n 1\r\n 1\r\n 1\r\n");
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(SoundSettingsSaving, silences_the_sound_however_the_window_is_left) {
    for (const auto &leave : {saving_[0], saving_[1], saving_[2], discarding_[0], discarding_[1]}) {
        start();
        click_item("Filelist", bell);
        multimedia_.take_sent();

        leave();

        EXPECT_EQ(multimedia_.take_sent(), stop);
    }
}

TEST_F(SoundSettingsSaving, sends_nothing_when_no_sound_was_heard) {
    start();

    click("cmd_ok");

    EXPECT_EQ(multimedia_.sent, QStringList());
}

TEST_F(SoundSettingsSaving, mégsem_and_escape_bring_back_what_is_stored) {
    for (const auto &leave : discarding_) {
        store_settings();
        start();
        change_everything();

        leave();

        EXPECT_FALSE(window_->isVisible());
        expect_stored_settings_shown();
        EXPECT_EQ(label("Label_gartula"), u" 2 hang"_s);
        EXPECT_FALSE(enabled("cmd_hangtörl_gratulahangból"));
        expect_nothing_written();
    }
}

TEST_F(SoundSettingsSaving, mégsem_and_escape_do_not_bring_back_a_deleted_file) {
    for (const auto &leave : discarding_) {
        put_sound(bell);
        store_settings();
        start();
        click_item("Filelist", bell);
        press("Filelist", Qt::Key_Delete);

        leave();

        EXPECT_FALSE(is_there(bell));
        EXPECT_EQ(list("Filelist")->items(), QStringList({horn, chime, gong}));
        EXPECT_EQ(list("lst_gratulahang")->items(), QStringList(horn));
        EXPECT_EQ(list("Lst_hibahang")->items(), QStringList());
        expect_nothing_written();
    }
}

TEST_F(SoundSettingsSaving, without_files_mégsem_brings_back_how_it_started) {
    start();
    click_item("Filelist", bell);
    click("cmd_gartula");
    toggle("chk_hangjelzés_segítségkérés");
    EXPECT_EQ(switches(), u"11101"_s);

    click("cmd_mégsem");

    EXPECT_EQ(list("lst_gratulahang")->items(), QStringList());
    EXPECT_EQ(switches(), u"11111"_s);
    EXPECT_FALSE(QFile::exists(place("program/kavaro/grathang.ini")));
}

TEST_F(SoundSettingsSaving, ends_the_modal_showing_however_the_window_is_left) {
    load();
    for (const auto &leave : {saving_[0], saving_[1], saving_[2], discarding_[0], discarding_[1]}) {
        open([&] {
            EXPECT_EQ(window_->windowModality(), Qt::ApplicationModal);
            leave();
            EXPECT_FALSE(window_->isVisible());
        });
    }
}

TEST_F(SoundSettingsSaving, stays_open_with_a_message_while_the_files_cannot_be_written) {
    for (const auto &leave : saving_) {
        make_folder("program/kavaro");
        start();
        make_unwritable("program/kavaro");
        boxes_.told.clear();
        click_item("Filelist", bell);
        click("cmd_gartula");

        leave();

        EXPECT_TRUE(window_->isVisible());
        ASSERT_EQ(boxes_.told.size(), 1);
        EXPECT_TRUE(boxes_.told.first().startsWith(
            u"A(z) „%1” mappa nem hozható létre: "_s.arg(QDir::toNativeSeparators(place("program/kavaro")))))
            << boxes_.told.first().toStdString();
        EXPECT_EQ(list("lst_gratulahang")->items(), QStringList(bell));
        QFile::remove(place("program/kavaro"));
    }
}

TEST_F(SoundSettingsSaving, can_be_left_without_saving_while_the_files_cannot_be_written) {
    for (const auto &leave : discarding_) {
        make_folder("program/kavaro");
        start();
        make_unwritable("program/kavaro");

        leave();

        EXPECT_FALSE(window_->isVisible());
        EXPECT_EQ(boxes_.told, QStringList());
        QFile::remove(place("program/kavaro"));
    }
}

TEST_F(SoundSettingsSaving, saves_after_the_hindrance_has_gone) {
    start();
    make_unwritable("program/kavaro");
    click("cmd_ok");
    QFile::remove(place("program/kavaro"));

    click("cmd_ok");

    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(written("program/kavaro/grathang.ini"), " 1\r\n 1\r\n 1\r\n 1\r\n 1\r\n");
}

TEST_F(SoundSettingsSaving, tells_of_a_damaged_file_when_the_window_is_shown_and_only_once) {
    write("program/kavaro/grathang.ini", " 1\r\n 0\r\nbell.wav\r\nharang.wav\r\n");
    load();
    EXPECT_EQ(boxes_.told, QStringList());

    open([] {});
    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(boxes_.told.first().contains(QDir::toNativeSeparators(place("program/kavaro/grathang.ini"))));
    EXPECT_EQ(switches(), u"10111"_s);
    EXPECT_EQ(list("lst_gratulahang")->items(), QStringList({bell, chime}));
    open([] {});
    EXPECT_EQ(boxes_.told.size(), 1);
}

TEST_F(SoundSettingsSaving, tells_nothing_of_a_damaged_file_that_ok_has_written_anew) {
    write("program/kavaro/grathang.ini", "bell.wav\r\n");
    load();
    open([this] { click("cmd_ok"); });
    boxes_.told.clear();

    open([this] { click("cmd_mégsem"); });
    open([] {});

    EXPECT_EQ(boxes_.told, QStringList());
    EXPECT_EQ(written("program/kavaro/grathang.ini"), " 1\r\n 1\r\n 1\r\n 1\r\n 1\r\nbell.wav\r\n");
}

TEST_F(SoundSettingsSaving, lists_files_that_came_and_went_while_it_was_hidden) {
    load();
    open([this] {
        click_item("Filelist", chime);
        click("cmd_ok");
    });
    multimedia_.take_sent();
    QFile::remove(sound(horn));
    put_sound(u"alarm.wav"_s);
    put_sound(u"béka.wav"_s);

    open([this] {
        EXPECT_EQ(list("Filelist")->items(), QStringList({u"alarm.wav"_s, u"béka.wav"_s, bell, chime, gong}));
        EXPECT_EQ(selected("Filelist"), chime);
        EXPECT_EQ(label("Label_hangszám"), u" 4\\ 5"_s);
    });

    EXPECT_EQ(multimedia_.sent, QStringList());
}

TEST_F(SoundSettingsSaving, selects_no_file_when_the_selected_one_went_while_it_was_hidden) {
    load();
    open([this] {
        click_item("Filelist", chime);
        click("cmd_ok");
    });
    QFile::remove(sound(chime));

    open([this] {
        EXPECT_EQ(list("Filelist")->selected(), -1);
        EXPECT_EQ(label("Label_hangszám"), u" 3 hang áll rendelkezésemre"_s);
        EXPECT_FALSE(enabled("cmd_play"));
        EXPECT_FALSE(enabled("cmd_hibahang_add"));
    });
}

}  // namespace
