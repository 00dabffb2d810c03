#include "platform/multimedia_commands.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <mmsystem.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

/// The smallest MIDI file that lasts: one track with a rest of half a minute.
QByteArray rest_of_half_a_minute() {
    return QByteArray::fromHex(
        "4d546864"
        "00000006"
        "0000"
        "0001"
        "0060"
        "4d54726b"
        "0000000c"
        "00c000"
        "ad40903c00"
        "00ff2f00");
}

class SystemMultimedia : public testing::Test {
  protected:
    ~SystemMultimedia() override { static_cast<void>(commands_->send(u"close midi"_s, 0)); }

    [[nodiscard]] QString piece(const char16_t *name) const {
        const QString path = folder_.filePath(QString::fromUtf16(name));
        write_file(path, rest_of_half_a_minute());
        return path;
    }

    quint32 open(const QString &path) {
        return commands_->send(u"open %1 type sequencer alias midi"_s.arg(quoted_for_command(path)), 0).code;
    }

    QString mode() { return commands_->send(u"Status midi mode"_s, 255).text; }

    QTemporaryDir folder_;
    std::unique_ptr<MultimediaCommands> commands_ = make_multimedia_commands();
};

TEST_F(SystemMultimedia, plays_a_midi_file_and_tells_so) {
    ASSERT_EQ(open(piece(u"Érik a szőlő.mid")), 0U);
    EXPECT_EQ(mode(), u"stopped"_s);

    EXPECT_EQ(commands_->send(u"play midi "_s, 0).code, 0U);

    EXPECT_EQ(mode(), u"playing"_s);
}

TEST_F(SystemMultimedia, is_silent_after_the_device_is_closed) {
    ASSERT_EQ(open(piece(u"a.mid")), 0U);
    static_cast<void>(commands_->send(u"play midi "_s, 0));

    EXPECT_EQ(commands_->send(u"close midi"_s, 0).code, 0U);

    EXPECT_EQ(mode(), QString());
}

TEST_F(SystemMultimedia, takes_slashes_for_backslashes_in_the_path) {
    const QString path = piece(u"a b.mid");
    ASSERT_TRUE(path.contains(u'/'));

    EXPECT_EQ(open(path), 0U);
}

TEST_F(SystemMultimedia, fails_for_a_missing_file_with_a_code) {
    EXPECT_NE(open(folder_.filePath(u"nincs.mid"_s)), 0U);
    EXPECT_EQ(mode(), QString());
}

TEST_F(SystemMultimedia, opens_a_path_that_is_longer_than_drivers_take) {
    const QString folder = folder_.filePath(QString(100, u'a') + u'/' + QString(100, u'b'));
    ASSERT_TRUE(QDir().mkpath(folder));
    const QString path = folder + u"/a.mid"_s;
    write_file(path, rest_of_half_a_minute());

    EXPECT_EQ(open(path), 0U);
}

// No file has a quotation mark in its name here, but a list of another system may name one.
TEST_F(SystemMultimedia, sends_no_command_whose_path_holds_a_quotation_mark) {
    const QString there = piece(u"a.mid");
    const QString mark(u'"');
    for (const QString &path : {mark, mark + there, there + mark, mark + there + mark,
                                folder_.filePath(u"\"b\" c.mid"_s), there + u"\" type sequencer alias midi"_s}) {
        EXPECT_EQ(open(path), static_cast<quint32>(MCIERR_FILE_NOT_FOUND)) << path.toStdString();
        EXPECT_EQ(mode(), QString()) << path.toStdString();
    }

    EXPECT_EQ(open(there), 0U);
}

TEST_F(SystemMultimedia, leaves_a_quotation_without_its_end_to_the_system) {
    const QString path = piece(u"a.mid");

    EXPECT_NE(commands_->send(u"open \"%1 type sequencer alias midi"_s.arg(path), 0).code, 0U);

    EXPECT_EQ(mode(), QString());
}

TEST_F(SystemMultimedia, fails_when_the_answer_does_not_fit) {
    ASSERT_EQ(open(piece(u"a.mid")), 0U);

    const MultimediaAnswer answer = commands_->send(u"status midi mode"_s, 3);

    EXPECT_NE(answer.code, 0U);
    EXPECT_EQ(answer.text, QString());
}

}  // namespace
