#pragma once

#include <QString>
#include <QStringList>
#include <functional>

#include "forms/form_reader.h"
#include "suggestions/headword_list.h"

/// The inflected Hungarian forms that a word without any accent may stand for: "kutyáimmal" for "kutyaimmal". A
/// headword that is written so at the beginning of the word gets its accents back, then what is behind it, until the
/// analyser knows the form. Those of the longest such headwords, no more than three; at most some dozens are tried, so
/// a form whose stem changes ("tukrot") may be missed. Empty for a word with an accent and for what is no word. `régi`
/// is asked before each try.
[[nodiscard]] QStringList ékezetes_alakok(const QString &szó, címszólista &címszavak, alakelemző &alakok,
                                          const std::function<bool()> &régi);
