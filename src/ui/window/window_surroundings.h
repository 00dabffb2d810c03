#pragma once

#include "platform/dialogs.h"
#include "ui/window/window.h"
#include "ui/window/window_fitting.h"

/// What every window beside the main window is given. Everything referred to must outlive it.
struct ablakkörnyezet {
    const Module_hasznos &hasznos;
    /// Its colour is the window's.
    const ablak &főablak;
    MessageBoxes &üzenetek;
};
