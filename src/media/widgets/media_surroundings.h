#pragma once

#include <QString>

#include "media/playback.h"
#include "platform/drive_c.h"
#include "ui/window/window_surroundings.h"

/// What the windows of sounds and music are given. Everything referred to must outlive them.
struct hangkörnyezet {
    ablakkörnyezet közös;
    QString programkönyvtár;
    DriveC meghajtó;
    lejátszó &játszó;
};
