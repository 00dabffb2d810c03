#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include "freedict/words_of.h"

/// A dictionary of this build as who searches it sees it.
class BuiltDictionary final {
  public:
    /// Reads "am.txt" or "ma.txt" of the staged program folder.
    explicit BuiltDictionary(const QString &file);

    /// The meanings of the entry that a search selects for a word; for a verb with its "to " those of the verb.
    [[nodiscard]] QStringList meanings(const QString &word) const;
    /// True when a headword, or its part before the first comma, is the word, with or without "to ".
    [[nodiscard]] bool has(const QString &word) const { return bare_.contains(word); }
    /// True when the word is listed as a further form of a headword.
    [[nodiscard]] bool has_form(const QString &word) const { return forms_.contains(word); }

  private:
    QHash<QString, QStringList> entries_;
    QHash<QString, QString> first_of_base_;
    QSet<QString> bare_;
    QSet<QString> forms_;
};

/// A list of words with what may stand first in their entries: lines "headword | accepted; accepted; …", and comments
/// that begin with "#".
struct AcceptedMeanings {
    QString headword;
    QStringList accepted;
};
[[nodiscard]] QList<AcceptedMeanings> accepted_meanings(const QString &path);

/// The lines of a list of words, without comments and empty ones.
[[nodiscard]] QStringList lines_of_list(const QString &path);
