#include "state/settings_store.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/printing.h"

namespace {

using global::beállítástár;

class SettingsStore : public testing::Test {
  protected:
    SettingsStore() {
        quiz_.setObjectName(QStringLiteral("kikérdező"));
        choice_.setObjectName(QStringLiteral("választás_beáll"));
    }

    QTemporaryDir folder_;
    QString file_ = folder_.filePath(QStringLiteral("szotar.ini"));
    QObject quiz_;
    QObject choice_;
};

TEST_F(SettingsStore, gives_the_default_unchanged_for_a_key_never_written) {
    const beállítástár store(file_);

    const QVariant read = store.beállításolvas(quiz_, QStringLiteral("nyelv"), 1);

    EXPECT_EQ(read.typeId(), QMetaType::Int);
    EXPECT_EQ(read.toInt(), 1);
}

TEST_F(SettingsStore, keeps_the_same_key_of_two_windows_apart) {
    beállítástár store(file_);

    store.beállításment(quiz_, QStringLiteral("nyelv"), 0);
    store.beállításment(choice_, QStringLiteral("nyelv"), 2);

    EXPECT_EQ(store.beállításolvas(quiz_, QStringLiteral("nyelv"), 1).toInt(), 0);
    EXPECT_EQ(store.beállításolvas(choice_, QStringLiteral("nyelv"), 1).toInt(), 2);
}

TEST_F(SettingsStore, keeps_values_as_text_over_a_restart) {
    {
        beállítástár store(file_);
        store.beállításment(choice_, QStringLiteral("felfedésiidő"), 25);
        store.beállításment(choice_, QStringLiteral("katt"), true);
    }
    const beállítástár store(file_);

    EXPECT_EQ(store.beállításolvas(choice_, QStringLiteral("felfedésiidő"), 0).toString(), QStringLiteral("25"));
    EXPECT_TRUE(store.beállításolvas(choice_, QStringLiteral("katt"), false).toBool());
}

}  // namespace
