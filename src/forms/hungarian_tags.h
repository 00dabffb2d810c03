#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "forms/hungarian_analysis.h"

/// What a tag does to a word.
enum class címkefajta {
    /// Nothing that is seen: nominative, the bare stem.
    néma,
    /// It bends the word or places it in a sentence.
    rag,
    /// It makes another word, one that may be a headword itself.
    képző,
};

/// The kind of a tag, given with its key ("is:PLUR"); nothing for one that is unknown.
[[nodiscard]] std::optional<címkefajta> fajtája(const QString &címke);

/// The tags of an analysis that say something, their variants in the dictionary made one. Nothing for an analysis that
/// cannot be: two finite endings, a pronoun with two cases, an object without its "t".
[[nodiscard]] std::optional<QStringList> beszédes_címkék(const elemzés &elemzés, QStringView alak);

/// What the tags say, as a learner's grammar puts it: "többes szám + birtokos: én + -ban/-ben (hol?)". The code of a
/// tag never shows: an unknown one is left out.
[[nodiscard]] QString címkék_magyarázata(const QStringList &címkék, const QString &szófaj);

/// The first, second, third person, singular, then plural, as a tag "SG_1" to "PL_3" ends: én, te, ő, mi, ti, ők. Empty
/// when it ends in none.
[[nodiscard]] QString személye(QStringView címke);
