#include "platform/multimedia_commands.h"

#include "platform/linux/command_interpreter.h"
#include "platform/linux/sound_player.h"

std::unique_ptr<MultimediaCommands> make_multimedia_commands() {
    return std::make_unique<CommandInterpreter>(make_sdl_player);
}
