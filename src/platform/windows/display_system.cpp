#include "platform/display_system.h"

void choose_display_system() {
    // Windows has one.
}
