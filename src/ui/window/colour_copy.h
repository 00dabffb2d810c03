#pragma once

#include "ui/window/window.h"

namespace global {

/// Copies the background colour of the main window onto `mire` and its picture boxes and option buttons; its labels
/// become transparent.
void színmásol(ablak &mire, const ablak &főablak);

}  // namespace global
