#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <vector>

// An analysis of the Hungarian dictionary of Hunspell is a text of fields, each a key of two letters, a colon and a
// value:
//
//     ip:PREF sp:fel  st:hív po:vrb ts:PRES_INDIC_INDEF_SG_3 al:hívat is:PAST_INDIC_DEF_SG_3
//     pa:konyha st:konyha po:noun ts:NOM pa:asztalon  st:asztal po:noun ts:NOM is:SUE
//
// "st" is a stem, "po" its part of speech, "ts" what the stem is, "ds" a suffix that makes a word, "is" one that bends
// it, "ip" a prefix and "sp" its text, "pa" a part of a compound as it stands there. Alternatives of the last part of a
// compound stand in "( … | … )", a clitic behind "+". The other keys are about spelling.

/// One analysis, without what says nothing of the form.
struct elemzés {
    /// The parts of a compound before its last, as they stand in the form. The first is empty when the dictionary does
    /// not tell it.
    QStringList előtagok;
    QString igekötő;
    QString tő;
    QString szófaj;
    /// Behind the stem, in order and with their keys: "is:PLUR". The degree of a superlative stands in front.
    QStringList címkék;

    bool operator==(const elemzés &) const = default;
};

/// The analyses that one text of the dictionary's stands for; empty when it names no stem.
[[nodiscard]] std::vector<elemzés> elemzések_szövegből(const QByteArray &szöveg);
