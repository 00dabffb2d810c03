#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include "support/files_for_tests.h"
#include "support/printing.h"
#include "support/test_places.h"
#include "tools/midi_reader.h"

using namespace Qt::StringLiterals;

namespace {

const QString program = test_places::program();

QStringList piece_names() {
    return QDir(program + u"/zenemid"_s).entryList({u"*.mid"_s});
}

QByteArray bytes_of_piece(const QString &name) {
    return read_file(program + u"/zenemid/"_s + name);
}

/// The pieces of the program folder by their names.
std::map<std::string, MidiPiece> pieces() {
    std::map<std::string, MidiPiece> all;
    for (const QString &name : piece_names())
        all[name.toStdString()] = MidiReader(bytes_of_piece(name)).read();
    return all;
}

/// Runs a script of the music; its exit code.
int run(const char *script, const QStringList &arguments) {
    QProcess process;
    process.start(u"" ZIMBORA_MUSIC_SCRIPTS "/"_s + QString::fromUtf8(script), arguments);
    return process.waitForFinished(60'000) ? process.exitCode() : -1;
}

/// A piece of three bars in ABC notation, of which this is the second; the first and the last may be short in any
/// piece.
QByteArray abc(const char *bar) {
    return QByteArray("X:1\nT:Proba\nM:4/4\nL:1/4\nK:C\nCDEF | ") + bar + " | CDEF |]\n";
}

TEST(Music, has_at_least_six_pieces_with_hungarian_names) {
    const QStringList names = piece_names();

    EXPECT_GE(names.size(), 6);
    EXPECT_TRUE(names.contains(u"Érik a szőlő.mid"_s));
}

TEST(Music, consists_of_well_formed_files) {
    for (const auto &[name, piece] : pieces())
        EXPECT_EQ(piece.fault, QString()) << name;
}

TEST(Music, is_arranged_for_several_instruments) {
    for (const auto &[name, piece] : pieces()) {
        EXPECT_GE(piece.channels.size(), 2U) << name;
        EXPECT_EQ(piece.channels, piece.channels_with_instrument) << name;
    }
}

TEST(Music, has_pieces_of_half_a_minute_to_two_and_a_half) {
    for (const auto &[name, piece] : pieces()) {
        EXPECT_GE(piece.seconds(), 30) << name;
        EXPECT_LE(piece.seconds(), 150) << name;
    }
}

TEST(Music, has_pieces_of_many_notes_none_of_which_is_struck_hard) {
    for (const auto &[name, piece] : pieces()) {
        EXPECT_GT(piece.notes.size(), 60U) << name;
        for (const MidiPiece::Note &note : piece.notes) {
            EXPECT_LE(note.velocity, 100) << name << " at " << note.start;
            EXPECT_GE(note.velocity, 30) << name << " at " << note.start;
        }
    }
}

TEST(Music, has_no_silence_longer_than_a_breath) {
    for (auto &[name, piece] : pieces()) {
        std::vector<MidiPiece::Note> notes = piece.notes;
        std::sort(notes.begin(), notes.end(), [](const auto &a, const auto &b) { return a.start < b.start; });
        long sounded_until = 0;
        for (const MidiPiece::Note &note : notes) {
            EXPECT_LE(note.start - sounded_until, piece.ticks_a_quarter) << name << " at " << note.start;
            sounded_until = std::max(sounded_until, note.end);
        }
    }
}

TEST(Music, begins_with_a_playlist_of_all_its_pieces_and_is_switched_off) {
    const QByteArray playlist = read_file(program + u"/kavaro/zenebeáll.ini"_s);

    ASSERT_TRUE(playlist.endsWith("\r\n"));
    QByteArrayList lines = playlist.chopped(2).replace("\r\n", "\n").split('\n');
    EXPECT_FALSE(lines.join().contains('\r'));
    EXPECT_EQ(lines.takeFirst(), " 0");
    QStringList names;
    for (const QByteArray &line : lines)
        names.append(code_page::decode(line));
    EXPECT_THAT(names, testing::UnorderedElementsAreArray(piece_names()));
}

TEST(Music, is_made_the_same_each_time) {
    const QTemporaryDir made;
    const QString source = u"" ZIMBORA_MUSIC_SOURCES "/ripening_grapes.abc"_s;
    const QString piece = made.filePath(u"szőlő.mid"_s);

    ASSERT_EQ(run("make_midi.sh", {source, piece}), 0);

    EXPECT_EQ(read_file(piece), bytes_of_piece(u"Érik a szőlő.mid"_s));
}

TEST(Music, is_not_made_of_a_piece_whose_bar_is_too_short) {
    const QTemporaryDir made;
    const QString source = made.filePath(u"a.abc"_s);
    const QString piece = made.filePath(u"a.mid"_s);

    write_file(source, abc("CDE"));
    EXPECT_NE(run("make_midi.sh", {source, piece}), 0);
    EXPECT_FALSE(QFile::exists(piece));

    write_file(source, abc("CDEF"));
    EXPECT_EQ(run("make_midi.sh", {source, piece}), 0);
    EXPECT_TRUE(QFile::exists(piece));
}

TEST(Music, has_no_playlist_with_a_name_that_the_code_page_lacks) {
    const QTemporaryDir made;
    const QString playlist = made.filePath(u"lista.ini"_s);

    EXPECT_NE(run("make_playlist.sh", {playlist, u"春.mid"_s}), 0);
    EXPECT_FALSE(QFile::exists(playlist));

    EXPECT_EQ(run("make_playlist.sh", {playlist, u"ő.mid"_s}), 0);
    EXPECT_EQ(read_file(playlist), " 0\r\n\xf5.mid\r\n");
}

}  // namespace
