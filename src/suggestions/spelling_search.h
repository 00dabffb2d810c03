#pragma once

#include <QByteArray>
#include <QVector>
#include <functional>

#include "suggestions/headword_list.h"

/// A headword that is written much like a text.
struct közelítés {
    /// In the code page, without "to ".
    QByteArray kulcs;
    /// True when the only headword of these letters is a verb.
    bool csak_ige = false;
    /// Of the noun or the verb, the greater.
    int gyakoriság = 0;
    int költség = 0;
    /// Cost and rarity together: the smaller the better.
    int érték = 0;
};

/// Goes through all headwords of a dictionary for those that are written much like a text. The text is as
/// betűk::kódolva() makes it. `régi` is asked before each group of headwords of one length; when it says true the
/// result is of no use.
namespace íráskereső {

using elavult = std::function<bool()>;

/// Those that differ by capitals, accents, blanks, hyphens, apostrophes and full stops only, the best first; not the
/// text itself.
[[nodiscard]] QVector<közelítés> írásmódok(címszólista &címszavak, címszólista::nyelv nyelv, const QByteArray &szöveg,
                                           const elavult &régi);

/// Those that one or two letters make of the text, the best first, `legfeljebb` at most; none that írásmódok() finds.
[[nodiscard]] QVector<közelítés> elírások(címszólista &címszavak, címszólista::nyelv nyelv, const QByteArray &szöveg,
                                          qsizetype legfeljebb, const elavult &régi);

}  // namespace íráskereső
