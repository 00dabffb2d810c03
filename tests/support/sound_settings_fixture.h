#pragma once

#include <QFile>

#include "media/widgets/sound_settings_window.h"
#include "support/media_window_fixture.h"

using namespace Qt::StringLiterals;

/// The settings window of the feedback sounds, over four wave files.
class SoundSettingsTest : public MediaWindowTest<frm_hangbeáll> {
  protected:
    SoundSettingsTest() {
        for (const QString &sound : {bell, horn, chime, gong})
            put_sound(sound);
    }

    void put_sound(const QString &name) const { write_file(sound(name), "RIFF"); }
    [[nodiscard]] QString sound(const QString &name) const { return place(u"program/hangok/"_s + name); }
    [[nodiscard]] bool is_there(const QString &name) const { return QFile::exists(sound(name)); }

    /// The commands that start a sound while none is open.
    [[nodiscard]] QStringList start_of(const QString &name) const {
        return {u"open \"%1\" type waveaudio alias hang|0"_s.arg(sound(name)), u"play hang |0"_s};
    }
    /// The commands that start a sound after another.
    [[nodiscard]] QStringList change_to(const QString &name) const { return stop + start_of(name); }

    /// One digit for each switch, in the order of the file.
    [[nodiscard]] QString switches() const {
        QString line;
        for (const char *name : switch_names)
            line += box(name)->isChecked() ? u'1' : u'0';
        return line;
    }

    static constexpr const char *switch_names[] = {"chk_hang_a_gratulálópanelen", "chk_hang_a_feladatokban_helyes",
                                                   "chk_hang_a_feladatokban_hiba", "chk_hangjelzés_segítségkérés",
                                                   "chk_hang_a_főablakban"};
    /// A list with its buttons and its count.
    struct Row {
        const char *list;
        const char *add;
        const char *remove;
        const char *count;
    };
    static constexpr Row rows[] = {
        {"lst_gratulahang", "cmd_gartula", "cmd_hangtörl_gratulahangból", "Label_gartula"},
        {"lst_helyeshang", "cmd_helyeshang_add", "cmd_hangtörl_helyeshangból", "Label_helyeshang"},
        {"Lst_hibahang", "cmd_hibahang_add", "cmd_hangtörl_hibahangból", "Label_hibahang"}};

    // In the order in which the window lists them.
    const QString bell = u"bell.wav"_s;
    const QString horn = u"Hajókürt két hangon.wav"_s;
    const QString chime = u"harang.wav"_s;
    const QString gong = u"zörej őű.wav"_s;
    const QStringList stop{u"close hang|0"_s};
};
