#pragma once

#include <QFile>

#include "media/widgets/music_settings_window.h"
#include "support/media_window_fixture.h"

using namespace Qt::StringLiterals;

/// The settings window of the background music, over four MIDI files.
class MusicSettingsTest : public MediaWindowTest<frm_zenebeáll> {
  protected:
    MusicSettingsTest() {
        for (const QString &piece : {aria, dance, march, waltz})
            put_piece(piece);
    }

    void put_piece(const QString &name) const { write_file(piece(name), "MThd"); }
    [[nodiscard]] QString piece(const QString &name) const { return place(u"program/zenemid/"_s + name); }

    /// Writes the settings of this user.
    void store(const QByteArray &lines) const {
        make_folder("c/zbrmk/kavaro");
        write(own_file, lines);
    }
    /// Opens the window with a playlist in which nothing is selected and of which nothing has been heard.
    void start_with(const QStringList &playlist) {
        store(" 1\r\n" + code_page::encode(playlist.join(u"\r\n"_s)).value() + "\r\n");
        start();
    }

    /// The commands that start a piece while none is open.
    [[nodiscard]] QStringList start_of(const QString &name) const {
        return {u"open \"%1\" type sequencer alias midi|0"_s.arg(piece(name)), u"play midi |0"_s};
    }
    /// The commands that start a piece after another.
    [[nodiscard]] QStringList change_to(const QString &name) const { return stop + start_of(name); }

    [[nodiscard]] QStringList playlist() const { return list("list_playlist")->items(); }
    [[nodiscard]] QLabel *notice() const { return control<QLabel>(*window_, "lab_türelem"); }

    static constexpr const char *own_file = "c/zbrmk/kavaro/zenebeáll.ini";
    static constexpr const char *first_file = "program/kavaro/zenebeáll.ini";
    static constexpr const char *up = "cmd_áthelyez(0)";
    static constexpr const char *down = "cmd_áthelyez(2)";

    // In the order in which the window lists them.
    const QString aria = u"Aria.mid"_s;
    const QString dance = u"csárdás két lassúval.mid"_s;
    const QString march = u"induló.mid"_s;
    const QString waltz = u"keringő.mid"_s;
    const QStringList stop{u"close midi|0"_s};
};
