#include <QCoreApplication>
#include <QDir>
#include <QLibrary>

#include "platform/linux/sound_player.h"

std::unique_ptr<SoundPlayer> make_sdl_player() {
    const QDir bin(QCoreApplication::applicationDirPath());
    // Beside the executable in a build, in the folder of libraries in an installation.
    for (const QString &folder : {QStringLiteral("plugins"), QStringLiteral(ZIMBORA_PLUGINS_FROM_BIN)}) {
        QLibrary library(bin.filePath(folder + QStringLiteral("/zimbora_sound.so")));
        const auto make = reinterpret_cast<SoundPlayerMaker>(library.resolve(sound_player_maker));
        if (make)
            return std::unique_ptr<SoundPlayer>(make());
    }
    return nullptr;
}
