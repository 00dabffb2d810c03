#pragma once

#include <QHash>
#include <QString>
#include <QVector>

#include "freedict/freedict_package.h"
#include "freedict/words_of.h"

namespace freedict {

/// The entries of both directions on their way from the packages to the files.
struct Lexicon {
    QVector<Entry> english;
    QVector<Entry> hungarian;

    [[nodiscard]] QVector<Entry> &in(Language language) { return language == Language::english ? english : hungarian; }
    [[nodiscard]] const QVector<Entry> &in(Language language) const {
        return language == Language::english ? english : hungarian;
    }
};

[[nodiscard]] constexpr Language other(Language language) {
    return language == Language::english ? Language::hungarian : Language::english;
}

/// What renamed() did.
struct Renamed {
    qsizetype headwords = 0;
    /// Of the headwords those that went into an entry that was there.
    qsizetype joined = 0;
    qsizetype meanings = 0;
    /// Meanings that stood in their entry already: of joined headwords, and of renamed meanings.
    qsizetype doubled_in_joined = 0;
    qsizetype doubled = 0;
};

/// Replaces texts of one language, headwords and meanings, by the texts that `names` has for them. An entry whose new
/// headword is there goes into that entry, and a meaning that stands in its entry already stands there once.
Renamed rename_texts(Lexicon &lexicon, Language language, const QHash<QString, QString> &names);

}  // namespace freedict
