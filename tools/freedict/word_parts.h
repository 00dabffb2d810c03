#pragma once

#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

#include "freedict/words_of.h"

// The parts of a word as far as the dictionary tells them: endings come off a word that is no headword itself (almát is
// alma, walked is walk), and a Hungarian compound falls into the headwords that it is made of (könyvismertetés is könyv
// and ismertetés, megnéz is meg and néz).
namespace freedict {

class WordParts final {
  public:
    explicit WordParts(Language language) : language_(language) {}

    /// Tells of a text of the dictionary: each word counts, and a text of one word is a headword.
    void add(const QStringList &words);
    /// Tells that `form` is an irregular form of `word`.
    void add_form(const QString &form, const QString &word) { forms_.insert(form, word); }

    /// The parts of a word, at least one.
    [[nodiscard]] QStringList parts_of(const QString &word) const;

  private:
    [[nodiscard]] int count_of(const QString &word) const { return counts_.value(word); }
    [[nodiscard]] QString without_ending(const QString &word) const;
    [[nodiscard]] QStringList split(const QString &word) const;

    Language language_;
    QHash<QString, int> counts_;
    QSet<QString> headwords_;
    QHash<QString, QString> forms_;
};

}  // namespace freedict
