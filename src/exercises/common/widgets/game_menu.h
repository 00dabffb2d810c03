#pragma once

#include <QString>
#include <functional>
#include <vector>

#include "ui/window/window.h"

/// An item of a game's menu; a separator has no caption.
struct játékmenüpont {
    const char16_t *név;
    QString felirat;
    std::function<void()> mit;
};

/// Puts the menu `mnu_fájl` "&Fájl" with these items on a window that has a menu bar.
void játékmenüt_rak(ablak &mire, const std::vector<játékmenüpont> &pontok);
