#include "state/settings_store.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

using global::beállítástár;

class SettingsStore : public testing::Test {
  protected:
    SettingsStore() {
        quiz_.setObjectName(u"kikérdező"_s);
        choice_.setObjectName(u"választás_beáll"_s);
    }

    QTemporaryDir folder_;
    QString file_ = folder_.filePath(u"szotar.ini"_s);
    QObject quiz_;
    QObject choice_;
};

TEST_F(SettingsStore, gives_the_default_unchanged_for_a_key_never_written) {
    const beállítástár store(file_);

    const QVariant read = store.beállításolvas(quiz_, u"nyelv"_s, 1);

    EXPECT_EQ(read.typeId(), QMetaType::Int);
    EXPECT_EQ(read.toInt(), 1);
}

TEST_F(SettingsStore, keeps_the_same_key_of_two_windows_apart) {
    beállítástár store(file_);

    store.beállításment(quiz_, u"nyelv"_s, 0);
    store.beállításment(choice_, u"nyelv"_s, 2);

    EXPECT_EQ(store.beállításolvas(quiz_, u"nyelv"_s, 1).toInt(), 0);
    EXPECT_EQ(store.beállításolvas(choice_, u"nyelv"_s, 1).toInt(), 2);
}

TEST_F(SettingsStore, keeps_values_as_text_over_a_restart) {
    {
        beállítástár store(file_);
        store.beállításment(choice_, u"felfedésiidő"_s, 25);
        store.beállításment(choice_, u"katt"_s, true);
    }
    const beállítástár store(file_);

    EXPECT_EQ(store.beállításolvas(choice_, u"felfedésiidő"_s, 0).toString(), u"25"_s);
    EXPECT_TRUE(store.beállításolvas(choice_, u"katt"_s, false).toBool());
}

}  // namespace
