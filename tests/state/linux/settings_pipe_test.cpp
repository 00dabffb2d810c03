#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QObject>
#include <QTemporaryDir>

#include "state/settings_store.h"

using namespace Qt::StringLiterals;

namespace {

TEST(SettingsPipe, is_not_waited_for_and_the_settings_last_as_long_as_the_program) {
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(u"szotar.conf"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QObject window;
    window.setObjectName(u"ablak"_s);

    global::beállítástár store(pipe);
    store.beállításment(window, u"nyelv"_s, 1);

    EXPECT_EQ(store.beállításolvas(window, u"nyelv"_s, 0), u"1"_s);
}

}  // namespace
