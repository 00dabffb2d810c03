#include "platform/linux/sdl/sdl_player.h"

extern "C" Q_DECL_EXPORT SoundPlayer *zimbora_make_sound_player() {
    return SdlPlayer::open_device().release();
}
