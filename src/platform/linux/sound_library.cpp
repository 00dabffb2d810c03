#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

#include "platform/linux/sound_player.h"

using namespace Qt::StringLiterals;

std::unique_ptr<SoundPlayer> make_sdl_player() {
    const QDir bin(QCoreApplication::applicationDirPath());
    // Beside the executable in a build, in the folder of libraries in an installation.
    for (const QString &folder : {u"plugins"_s, u"" ZIMBORA_PLUGINS_FROM_BIN ""_s}) {
        QLibrary library(bin.filePath(folder + u"/zimbora_sound.so"_s));
        const auto make = reinterpret_cast<SoundPlayerMaker>(library.resolve(sound_player_maker));
        if (make)
            return std::unique_ptr<SoundPlayer>(make());
    }
    return nullptr;
}
