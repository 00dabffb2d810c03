#include "support/sound_settings_fixture.h"

using namespace Qt::StringLiterals;

namespace {

/// Adding to the lists, and removing from them.
class SoundSettingsLists : public SoundSettingsTest {
  protected:
    /// Puts the first sounds onto the list of a row, of which the last one is selected then.
    void fill(const Row &row, int sounds) {
        click_item("Filelist", bell);
        for (int i = 0; i < sounds; ++i)
            click(row.add);
        multimedia_.take_sent();
    }
};

TEST_F(SoundSettingsLists, take_the_selected_file_and_select_it) {
    for (const Row &row : rows) {
        start();
        click_item("Filelist", horn);
        multimedia_.take_sent();

        click(row.add);

        for (const Row &any : rows)
            EXPECT_EQ(list(any.list)->items(), any.list == row.list ? QStringList(horn) : QStringList()) << any.list;
        EXPECT_EQ(selected(row.list), horn);
        EXPECT_EQ(label(row.count), u" 1 hang"_s);
        EXPECT_TRUE(enabled(row.remove));
    }
}

TEST_F(SoundSettingsLists, move_the_files_on_so_that_repeated_clicks_take_them_one_after_the_other) {
    for (const Row &row : rows) {
        start();
        click_item("Filelist", bell);

        click(row.add);
        EXPECT_EQ(selected("Filelist"), horn);
        EXPECT_EQ(label("Label_hangszám"), u" 2\\ 4"_s);
        click(row.add);
        click(row.add);

        EXPECT_EQ(list(row.list)->items(), QStringList({bell, horn, chime}));
        EXPECT_EQ(selected(row.list), chime);
        EXPECT_EQ(selected("Filelist"), gong);
        EXPECT_EQ(label("Label_hangszám"), u" 4\\ 4"_s);
        EXPECT_EQ(label(row.count), u" 3 hang"_s);
    }
}

TEST_F(SoundSettingsLists, stay_on_the_last_file) {
    start();
    click_item("Filelist", gong);

    click("cmd_hibahang_add");
    click("cmd_hibahang_add");

    EXPECT_EQ(selected("Filelist"), gong);
    EXPECT_EQ(list("Lst_hibahang")->items(), QStringList(gong));
    EXPECT_EQ(label("Label_hangszám"), u" 4\\ 4"_s);
}

TEST_F(SoundSettingsLists, select_a_file_that_they_have_already) {
    for (const Row &row : rows) {
        start();
        fill(row, 3);
        click_item("Filelist", bell);

        click(row.add);

        EXPECT_EQ(list(row.list)->items(), QStringList({bell, horn, chime}));
        EXPECT_EQ(selected(row.list), bell);
        EXPECT_EQ(label(row.count), u" 3 hang"_s);
        EXPECT_EQ(selected("Filelist"), horn);
    }
}

TEST_F(SoundSettingsLists, take_files_silently) {
    start();
    click_item("Filelist", bell);
    multimedia_.take_sent();

    for (const Row &row : rows)
        click(row.add);

    EXPECT_EQ(multimedia_.take_sent(), QStringList());
}

TEST_F(SoundSettingsLists, select_what_comes_into_the_place_of_a_removed_entry) {
    for (const Row &row : rows) {
        start();
        fill(row, 3);
        click_item(row.list, horn);
        multimedia_.take_sent();

        click(row.remove);

        EXPECT_EQ(list(row.list)->items(), QStringList({bell, chime}));
        EXPECT_EQ(selected(row.list), chime);
        EXPECT_EQ(label(row.count), u" 2 hang"_s);
        EXPECT_TRUE(enabled(row.remove));
        EXPECT_EQ(multimedia_.take_sent(), QStringList());
    }
}

TEST_F(SoundSettingsLists, select_the_new_last_entry_when_the_last_one_is_removed) {
    for (const Row &row : rows) {
        start();
        fill(row, 3);

        click(row.remove);

        EXPECT_EQ(list(row.list)->items(), QStringList({bell, horn}));
        EXPECT_EQ(selected(row.list), horn);
    }
}

TEST_F(SoundSettingsLists, can_be_emptied) {
    for (const Row &row : rows) {
        start();
        fill(row, 2);

        click(row.remove);
        click(row.remove);

        EXPECT_EQ(list(row.list)->items(), QStringList());
        EXPECT_EQ(label(row.count), u" 0 hang"_s);
        EXPECT_FALSE(enabled(row.remove));
        EXPECT_TRUE(enabled(row.add));
    }
}

TEST_F(SoundSettingsLists, keep_the_file_of_a_removed_entry) {
    start();
    fill(rows[0], 1);

    click(rows[0].remove);

    EXPECT_TRUE(is_there(bell));
    EXPECT_EQ(list("Filelist")->count(), 4);
}

/// Deleting a sound from the disk.
class SoundSettingsDeleting : public SoundSettingsTest {
  protected:
    /// All ways of deleting the selected file.
    const std::function<void()> ways_[2] = {[this] { click("cmd_hangtörlése"); },
                                            [this] { press("Filelist", Qt::Key_Delete); }};
};

TEST_F(SoundSettingsDeleting, takes_the_file_from_the_disk_without_asking_and_selects_the_next) {
    for (const auto &remove : ways_) {
        put_sound(horn);
        start();
        click_item("Filelist", horn);

        remove();

        EXPECT_FALSE(is_there(horn));
        EXPECT_EQ(list("Filelist")->items(), QStringList({bell, chime, gong}));
        EXPECT_EQ(selected("Filelist"), chime);
        EXPECT_EQ(label("Label_hangszám"), u" 2\\ 3"_s);
        EXPECT_EQ(boxes_.asked, QStringList());
        EXPECT_EQ(boxes_.told, QStringList());
    }
}

TEST_F(SoundSettingsDeleting, silences_the_sound_and_starts_no_other) {
    for (const auto &remove : ways_) {
        put_sound(horn);
        start();
        click_item("Filelist", horn);
        multimedia_.take_sent();

        remove();

        EXPECT_EQ(multimedia_.take_sent(), stop);
    }
}

TEST_F(SoundSettingsDeleting, silences_the_sound_before_the_file_goes) {
    start();
    click_item("Filelist", horn);
    bool was_there = false;
    multimedia_.meanwhile = [&] { was_there = is_there(horn); };

    click("cmd_hangtörlése");

    EXPECT_TRUE(was_there);
}

TEST_F(SoundSettingsDeleting, takes_the_sound_off_every_list_that_has_it) {
    write("program/kavaro/grathang.ini", " 1\r\n 1\r\n 1\r\n 1\r\n 1\r\nbell.wav\r\nharang.wav\r\n");
    write("program/kavaro/helyeshang.ini", "harang.wav\r\n");
    write("program/kavaro/hibahang.ini", "bell.wav\r\n");
    start();
    click_item("Lst_hibahang", bell);
    click_item("Filelist", chime);

    press("Filelist", Qt::Key_Delete);

    EXPECT_EQ(list("lst_gratulahang")->items(), QStringList(bell));
    EXPECT_EQ(selected("lst_gratulahang"), bell);
    EXPECT_TRUE(enabled("cmd_hangtörl_gratulahangból"));
    EXPECT_EQ(label("Label_gartula"), u" 1 hang"_s);
    EXPECT_EQ(list("lst_helyeshang")->items(), QStringList());
    EXPECT_FALSE(enabled("cmd_hangtörl_helyeshangból"));
    EXPECT_EQ(label("Label_helyeshang"), u" 0 hang"_s);
    EXPECT_EQ(list("Lst_hibahang")->items(), QStringList(bell));
    EXPECT_EQ(selected("Lst_hibahang"), bell);
    EXPECT_EQ(label("Label_hibahang"), u" 1 hang"_s);
}

TEST_F(SoundSettingsDeleting, selects_the_new_last_file_when_the_last_one_goes) {
    start();
    click_item("Filelist", gong);

    press("Filelist", Qt::Key_Delete);

    EXPECT_EQ(selected("Filelist"), chime);
    EXPECT_EQ(label("Label_hangszám"), u" 3\\ 3"_s);
}

TEST_F(SoundSettingsDeleting, can_empty_the_folder) {
    start();
    click_item("Filelist", bell);

    for (int i = 0; i < 4; ++i)
        press("Filelist", Qt::Key_Delete);

    EXPECT_EQ(QDir(place("program/hangok")).entryList(QDir::Files), QStringList());
    EXPECT_EQ(label("Label_hangszám"), u" 0 hang áll rendelkezésemre"_s);
    for (const char *name : {"cmd_play", "cmd_hangtörlése", "cmd_gartula", "cmd_helyeshang_add", "cmd_hibahang_add"})
        EXPECT_FALSE(enabled(name)) << name;
    press("Filelist", Qt::Key_Delete);
    EXPECT_EQ(boxes_.told, QStringList());
}

TEST_F(SoundSettingsDeleting, deletes_nothing_while_no_file_is_selected) {
    start();

    press("Filelist", Qt::Key_Delete);

    EXPECT_EQ(list("Filelist")->items(), QStringList({bell, horn, chime, gong}));
    for (const QString &sound : {bell, horn, chime, gong})
        EXPECT_TRUE(is_there(sound));
}

TEST_F(SoundSettingsDeleting, deletes_one_file_for_a_delete_key_that_is_held_down) {
    start();
    click_item("Filelist", bell);

    hold("Filelist", Qt::Key_Delete);

    EXPECT_EQ(list("Filelist")->items(), QStringList({horn, chime, gong}));
    EXPECT_TRUE(is_there(horn));
}

TEST_F(SoundSettingsDeleting, keeps_the_file_when_delete_is_pressed_in_another_list) {
    write("program/kavaro/helyeshang.ini", "bell.wav\r\n");
    start();
    click_item("lst_helyeshang", bell);
    click_item("Filelist", bell);

    press("lst_helyeshang", Qt::Key_Delete);

    EXPECT_TRUE(is_there(bell));
    EXPECT_EQ(list("lst_helyeshang")->items(), QStringList(bell));
}

TEST_F(SoundSettingsDeleting, tells_of_a_file_that_cannot_be_deleted_and_keeps_it_listed) {
    start();
    click_item("Filelist", horn);
    click("cmd_helyeshang_add");
    click_item("Filelist", horn);
    // What stands in its place now is not to be deleted as a file, not even by root.
    QFile::remove(sound(horn));
    QDir().mkdir(sound(horn));

    press("Filelist", Qt::Key_Delete);

    ASSERT_EQ(boxes_.told.size(), 1);
    EXPECT_TRUE(
        boxes_.told.first().startsWith(u"A(z) „%1” fájl nem törölhető: "_s.arg(QDir::toNativeSeparators(sound(horn)))));
    EXPECT_EQ(selected("Filelist"), horn);
    EXPECT_EQ(list("lst_helyeshang")->items(), QStringList(horn));
    EXPECT_TRUE(QFileInfo::exists(sound(horn)));
}

TEST_F(SoundSettingsDeleting, takes_a_file_that_has_gone_meanwhile_off_the_lists) {
    start();
    click_item("Filelist", horn);
    click("cmd_helyeshang_add");
    click_item("Filelist", horn);
    QFile::remove(sound(horn));

    press("Filelist", Qt::Key_Delete);

    EXPECT_EQ(boxes_.told, QStringList());
    EXPECT_EQ(list("Filelist")->items(), QStringList({bell, chime, gong}));
    EXPECT_EQ(list("lst_helyeshang")->items(), QStringList());
}

TEST_F(SoundSettingsLists, give_the_keyboard_to_a_list_when_its_button_has_nothing_left_to_do) {
    start();
    click_item("Filelist", bell);
    click("cmd_gartula");
    button("cmd_hangtörl_gratulahangból")->setFocus();

    QTest::keyClick(window_->focusWidget(), Qt::Key_Space);

    EXPECT_EQ(list("lst_gratulahang")->count(), 0);
    EXPECT_EQ(window_->focusWidget(), list("lst_gratulahang"));
}

}  // namespace
