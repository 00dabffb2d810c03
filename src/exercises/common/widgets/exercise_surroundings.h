#pragma once

#include <QStringList>
#include <functional>

#include "exercises/common/word_list_reader.h"
#include "platform/dialogs.h"
#include "platform/random_numbers.h"
#include "state/settings_store.h"
#include "ui/window/window.h"
#include "ui/window/window_fitting.h"

/// What an exercise window is given. Everything referred to must outlive it.
struct feladatkörnyezet {
    const szószedetolvasó &szószedet;
    const Module_hasznos &hasznos;
    /// Its colour is the exercise's.
    const ablak &főablak;
    RandomNumbers &véletlen;
    global::beállítástár &beállítások;
    MessageBoxes &üzenetek;
    /// Shows lines in the result message window for some milliseconds and returns when it has closed.
    std::function<void(qint16, const QStringList &)> üzenetmutat;
};
