#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "media/music_settings.h"
#include "media/sound_settings.h"

using namespace Qt::StringLiterals;

namespace {

QString told_of(const std::optional<Failure> &failure) {
    return failure ? failure->sentence : QString();
}

TEST(SettingsPipes, of_sounds_and_music_are_told_and_not_waited_for) {
    const QTemporaryDir folder;
    QDir(folder.path()).mkpath(u"kavaro"_s);
    QDir(folder.path()).mkpath(u"c/zbrmk/kavaro"_s);
    const QString reason = u"nem olvasható: nem közönséges fájl, hanem eszköz vagy csővezeték."_s;
    for (const QString &name : {u"kavaro/helyeshang.ini"_s, u"c/zbrmk/kavaro/zenebeáll.ini"_s})
        ASSERT_EQ(mkfifo(QFile::encodeName(folder.filePath(name)).constData(), 0600), 0);
    hangbeállítások sounds(folder.path());
    zenebeállítások music(DriveC(folder.filePath(u"c"_s)), folder.path());

    EXPECT_TRUE(told_of(sounds.betölt()).endsWith(u"helyeshang.ini” fájl "_s + reason));
    EXPECT_TRUE(told_of(music.betölt()).endsWith(u"zenebeáll.ini” fájl "_s + reason));
}

}  // namespace
