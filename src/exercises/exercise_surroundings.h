#pragma once

#include <QStringList>
#include <functional>

#include "app/settings_store.h"
#include "exercises/word_list_reader.h"
#include "platform/dialogs.h"
#include "platform/random_numbers.h"
#include "ui/window.h"
#include "ui/window_fitting.h"

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
