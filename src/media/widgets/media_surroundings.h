#pragma once

#include <QString>

#include "media/playback.h"
#include "platform/dialogs.h"
#include "platform/drive_c.h"
#include "ui/window/window.h"
#include "ui/window/window_fitting.h"

/// What the windows of sounds and music are given. Everything referred to must outlive them.
struct hangkörnyezet {
    QString programkönyvtár;
    DriveC meghajtó;
    const Module_hasznos &hasznos;
    /// Its colour is theirs.
    const ablak &főablak;
    MessageBoxes &üzenetek;
    lejátszó &játszó;
};
