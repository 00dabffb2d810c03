#include "media/widgets/sound_settings_window.h"

#include <QAccessible>
#include <QGroupBox>
#include <algorithm>
#include <utility>

#include "support/sound_settings_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class SoundSettingsWindow : public SoundSettingsTest {
  protected:
    /// Names of the buttons that can be pressed, but for those that close the window.
    [[nodiscard]] QStringList usable() const {
        QStringList names;
        for (const char *name : {"cmd_play", "cmd_hangtörlése"}) {
            if (enabled(name))
                names.append(QString::fromUtf8(name));
        }
        for (const Row &row : rows) {
            for (const char *name : {row.add, row.remove}) {
                if (enabled(name))
                    names.append(QString::fromUtf8(name));
            }
        }
        return names;
    }
};

TEST_F(SoundSettingsWindow, has_every_control_under_its_name_with_its_caption) {
    start();

    EXPECT_EQ(window_->objectName(), u"frm_hangbeáll"_s);
    EXPECT_EQ(window_->windowTitle(), u"Zimbora Angol-Magyar Szótár - Kavaro Hangbeállítások"_s);
    const std::pair<const char *, QString> buttons[] = {
        {"cmd_play", u"Hang lejátszása"_s},
        {"cmd_hangtörlése", u"Hang törlése"_s},
        {"cmd_gartula", u"Hozzáadás a gratuláló  hangok listájához"_s},
        {"cmd_hangtörl_gratulahangból", u"Törlés a gratuláló hangok listájából"_s},
        {"cmd_helyeshang_add", u"Hozzáadás a sikerhangok listájához"_s},
        {"cmd_hangtörl_helyeshangból", u"Törlés a sikerhangok listájából"_s},
        {"cmd_hibahang_add", u"Hozzáadás a hibahangok listájához"_s},
        {"cmd_hangtörl_hibahangból", u"Törlés a hibahangok listájából"_s},
        {"cmd_ok", u"Ok"_s},
        {"cmd_mégsem", u"Mégsem"_s}};
    for (const auto &[name, caption] : buttons)
        EXPECT_EQ(button(name)->text(), caption);
    const std::pair<const char *, QString> boxes[] = {
        {"chk_hang_a_gratulálópanelen", u"Hangjelzések használata a gratuláló panelen"_s},
        {"chk_hang_a_feladatokban_helyes", u"Hangjelzések használata a feladatokban helyes megoldás esetén"_s},
        {"chk_hang_a_feladatokban_hiba", u"Hangjelzések használata a feladatokban hibás megoldás esetén"_s},
        {"chk_hangjelzés_segítségkérés", u"Hangjelzés segítségkérés esetén"_s},
        {"chk_hang_a_főablakban", u"Hangok a grafikus főablakban"_s}};
    for (const auto &[name, caption] : boxes)
        EXPECT_EQ(box(name)->text(), caption);
    EXPECT_EQ(label("Label1"), u"A gratuláló panelen megszólaló hangok:"_s);
    EXPECT_EQ(label("Label2"), u"Helyes megoldás esetén megszólaló hangok:"_s);
    EXPECT_EQ(label("Label3"), u"Hibás megoldás esetén megszólaló hangok:"_s);
    EXPECT_EQ(control<QGroupBox>(*window_, "frame_hangjelzések")->title(), u"Hangjelzések"_s);
}

TEST_F(SoundSettingsWindow, shows_the_switches_of_the_exercises_first_and_not_in_the_order_of_the_file) {
    start();

    // Down the left column, then down the right one.
    QList<QCheckBox *> boxes = window_->findChildren<QCheckBox *>();
    std::sort(boxes.begin(), boxes.end(), [](const QCheckBox *one, const QCheckBox *other) {
        return std::pair(one->x(), one->y()) < std::pair(other->x(), other->y());
    });
    QStringList seen;
    for (const QCheckBox *box : boxes)
        seen << box->objectName();

    EXPECT_EQ(seen, QStringList({u"chk_hang_a_feladatokban_helyes"_s, u"chk_hang_a_feladatokban_hiba"_s,
                                 u"chk_hangjelzés_segítségkérés"_s, u"chk_hang_a_gratulálópanelen"_s,
                                 u"chk_hang_a_főablakban"_s}));
}

TEST_F(SoundSettingsWindow, takes_colour_and_icon_of_the_program) {
    start();

    EXPECT_EQ(window_->háttérszín(), reference_.háttérszín());
    EXPECT_FALSE(window_->windowIcon().isNull());
}

TEST_F(SoundSettingsWindow, lists_the_waves_of_the_folder_and_counts_them) {
    put_sound(u"leírás.txt"_s);
    put_sound(u"dal.mid"_s);
    QDir().mkdir(sound(u"mappa.wav"_s));

    start();

    EXPECT_EQ(list("Filelist")->items(), QStringList({bell, horn, chime, gong}));
    EXPECT_EQ(label("Label_hangszám"), u" 4 hang áll rendelkezésemre"_s);
    for (const Row &row : rows)
        EXPECT_EQ(label(row.count), u" 0 hang"_s);
}

TEST_F(SoundSettingsWindow, stands_without_a_folder_of_sounds) {
    QDir(place("program/hangok")).removeRecursively();

    start();
    press("Filelist", Qt::Key_Delete);

    EXPECT_EQ(label("Label_hangszám"), u" 0 hang áll rendelkezésemre"_s);
    EXPECT_EQ(usable(), QStringList());
    EXPECT_EQ(boxes_.told, QStringList());
}

TEST_F(SoundSettingsWindow, says_which_of_how_many_files_is_selected) {
    for (int i = 10; i < 18; ++i)
        put_sound(u"a%1.wav"_s.arg(i));
    start();

    click_item("Filelist", u"a12.wav"_s);
    EXPECT_EQ(label("Label_hangszám"), u" 3\\ 12"_s);
    click_item("Filelist", gong);
    EXPECT_EQ(label("Label_hangszám"), u" 12\\ 12"_s);
}

TEST_F(SoundSettingsWindow, opens_silently_with_nothing_selected) {
    write("program/kavaro/helyeshang.ini", "bell.wav\r\nharang.wav\r\n");

    start();

    EXPECT_EQ(multimedia_.sent, QStringList());
    EXPECT_EQ(list("Filelist")->selected(), -1);
    EXPECT_EQ(list("lst_helyeshang")->items(), QStringList({bell, chime}));
    EXPECT_EQ(list("lst_helyeshang")->selected(), -1);
    EXPECT_EQ(usable(), QStringList());
}

TEST_F(SoundSettingsWindow, begins_in_the_list_of_files) {
    load();

    open([this] { EXPECT_EQ(window_->focusWidget(), list("Filelist")); });
    open([this] {
        press("Filelist", Qt::Key_Tab);
        EXPECT_NE(window_->focusWidget(), list("Filelist"));
    });
    open([this] { EXPECT_EQ(window_->focusWidget(), list("Filelist")); });
}

TEST_F(SoundSettingsWindow, stays_silent_while_tab_goes_through_its_lists) {
    write("program/kavaro/helyeshang.ini", "bell.wav\r\nharang.wav\r\n");
    start();

    EXPECT_EQ(tab_order(*window_),
              u"Filelist lst_gratulahang lst_helyeshang Lst_hibahang chk_hang_a_feladatokban_helyes "
              "chk_hang_a_feladatokban_hiba chk_hangjelzés_segítségkérés "
              "chk_hang_a_gratulálópanelen chk_hang_a_főablakban cmd_ok cmd_mégsem"_s);

    EXPECT_EQ(multimedia_.sent, QStringList());
    EXPECT_EQ(list("lst_helyeshang")->selected(), -1);
}

TEST_F(SoundSettingsWindow, is_reached_by_tab_from_control_to_control) {
    start();
    for (const Row &row : rows) {
        click_item("Filelist", bell);
        click(row.add);
    }
    list("Filelist")->setFocus();

    EXPECT_EQ(tab_order(*window_),
              u"Filelist cmd_play cmd_hangtörlése "
              "lst_gratulahang cmd_gartula cmd_hangtörl_gratulahangból "
              "lst_helyeshang cmd_helyeshang_add cmd_hangtörl_helyeshangból "
              "Lst_hibahang cmd_hibahang_add cmd_hangtörl_hibahangból "
              "chk_hang_a_feladatokban_helyes chk_hang_a_feladatokban_hiba "
              "chk_hangjelzés_segítségkérés chk_hang_a_gratulálópanelen chk_hang_a_főablakban "
              "cmd_ok cmd_mégsem"_s);
}

TEST_F(SoundSettingsWindow, gives_every_control_an_accessible_name) {
    start();

    for (QWidget *one : window_->vezérlők()) {
        const auto *spoken = QAccessible::queryAccessibleInterface(one);
        EXPECT_FALSE(spoken->text(QAccessible::Name).isEmpty()) << one->objectName().toStdString();
    }
}

TEST_F(SoundSettingsWindow, enables_playing_deleting_and_adding_while_a_file_is_selected) {
    start();

    click_item("Filelist", bell);

    EXPECT_EQ(usable(), QStringList({u"cmd_play"_s, u"cmd_hangtörlése"_s, u"cmd_gartula"_s, u"cmd_helyeshang_add"_s,
                                     u"cmd_hibahang_add"_s}));
}

TEST_F(SoundSettingsWindow, enables_removing_from_a_list_while_one_of_its_entries_is_selected) {
    write("program/kavaro/grathang.ini", " 1\r\n 1\r\n 1\r\n 1\r\n 1\r\nbell.wav\r\n");
    write("program/kavaro/helyeshang.ini", "bell.wav\r\n");
    write("program/kavaro/hibahang.ini", "bell.wav\r\n");

    for (const Row &row : rows) {
        start();
        click_item(row.list, bell);

        EXPECT_EQ(usable(), QStringList(QString::fromUtf8(row.remove)));
    }
}

TEST_F(SoundSettingsWindow, plays_a_file_that_is_clicked_each_time) {
    start();

    click_item("Filelist", horn);
    EXPECT_EQ(multimedia_.take_sent(), start_of(horn));
    click_item("Filelist", gong);
    EXPECT_EQ(multimedia_.take_sent(), change_to(gong));
    click_item("Filelist", gong);
    EXPECT_EQ(multimedia_.take_sent(), change_to(gong));
}

TEST_F(SoundSettingsWindow, plays_a_file_that_is_reached_by_key) {
    start();

    press("Filelist", Qt::Key_Down);
    EXPECT_EQ(multimedia_.take_sent(), start_of(bell));
    press("Filelist", Qt::Key_Down);
    EXPECT_EQ(multimedia_.take_sent(), change_to(horn));
    press("Filelist", Qt::Key_End);
    EXPECT_EQ(multimedia_.take_sent(), change_to(gong));
    EXPECT_EQ(label("Label_hangszám"), u" 4\\ 4"_s);
}

TEST_F(SoundSettingsWindow, plays_the_selected_file_again_by_its_button) {
    start();
    click_item("Filelist", chime);
    multimedia_.take_sent();

    click("cmd_play");

    EXPECT_EQ(multimedia_.take_sent(), change_to(chime));
}

TEST_F(SoundSettingsWindow, plays_an_entry_of_a_list_by_click_and_by_key) {
    write("program/kavaro/grathang.ini", " 1\r\n 1\r\n 1\r\n 1\r\n 1\r\nharang.wav\r\nbell.wav\r\n");
    write("program/kavaro/helyeshang.ini", "harang.wav\r\nbell.wav\r\n");
    write("program/kavaro/hibahang.ini", "harang.wav\r\nbell.wav\r\n");
    start();
    click_item("Filelist", horn);
    multimedia_.take_sent();

    for (const Row &row : rows) {
        click_item(row.list, bell);
        EXPECT_EQ(multimedia_.take_sent(), change_to(bell)) << row.list;
        press(row.list, Qt::Key_Up);
        EXPECT_EQ(multimedia_.take_sent(), change_to(chime)) << row.list;
        EXPECT_EQ(selected(row.list), chime);
    }
    EXPECT_EQ(label("Label_hangszám"), u" 2\\ 4"_s);
}

TEST_F(SoundSettingsWindow, has_one_picture_on_all_buttons_that_add_and_another_on_all_that_remove) {
    start();

    const QImage add = picture(button("cmd_gartula"));
    const QImage remove = picture(button("cmd_hangtörl_gratulahangból"));
    EXPECT_FALSE(add.isNull());
    EXPECT_FALSE(remove.isNull());
    EXPECT_NE(add, remove);
    for (const Row &row : rows) {
        EXPECT_EQ(picture(button(row.add)), add) << row.add;
        EXPECT_EQ(picture(button(row.remove)), remove) << row.remove;
    }
}

TEST_F(SoundSettingsWindow, shows_every_caption_whole_and_apart) {
    for (const QSize &pixels : screens) {
        use_screen(pixels);
        start();
        click_item("Filelist", bell);

        expect_no_overlap(*window_);
        for (const char *name : {"Label_hangszám", "Label1", "Label2", "Label3"})
            expect_whole_caption(*window_, QString::fromUtf8(name));
        for (const Row &row : rows) {
            expect_room_for_the_caption(button(row.add));
            expect_room_for_the_caption(button(row.remove));
            expect_whole_caption(*window_, QString::fromUtf8(row.add));
            expect_whole_caption(*window_, QString::fromUtf8(row.remove));
            expect_whole_caption(*window_, QString::fromUtf8(row.count));
        }
        for (const char *name : switch_names) {
            expect_whole_caption(*window_, QString::fromUtf8(name));
            EXPECT_TRUE(
                window_->hely(control<QWidget>(*window_, "frame_hangjelzések")).contains(window_->hely(box(name))))
                << name;
        }
        for (const char *name : {"cmd_play", "cmd_hangtörlése", "cmd_ok", "cmd_mégsem"})
            expect_whole_caption(*window_, QString::fromUtf8(name));
        EXPECT_LE(window_->width(), pixels.width());
        EXPECT_LE(window_->height(), pixels.height());
    }
}

}  // namespace
