#pragma once

#include <QStringList>
#include <functional>

#include "platform/random_numbers.h"
#include "state/settings_store.h"
#include "ui/window/window_surroundings.h"
#include "wordlist/word_pair_list.h"

/// What an exercise window is given. Everything referred to must outlive it.
struct feladatkörnyezet {
    ablakkörnyezet közös;
    /// Read when the exercise opens.
    const szópárlista &szószedet;
    RandomNumbers &véletlen;
    global::beállítástár &beállítások;
    /// Shows lines in the result message window for some milliseconds and returns when it has closed.
    std::function<void(qint16, const QStringList &)> üzenetmutat;
};
