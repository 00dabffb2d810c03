#pragma once

#include <QHash>
#include <QString>
#include <QStringList>
#include <QVector>

#include "freedict/freedict_package.h"
#include "freedict/word_alignment.h"
#include "freedict/words_of.h"

// Both packages as one list of pairs of texts that translate each other. A text is a headword or a meaning without the
// further forms; it is a number, by the place where it first stands.
namespace freedict {

/// The texts of one language.
struct Texts {
    Language language = Language::english;
    QStringList texts{};
    QHash<QString, int> numbers{};
    /// The texts of the other language that each is paired with.
    QVector<QVector<int>> partners{};
    /// The words of each text; a text's words without endings and compounds taken apart.
    QVector<WordNumbers> words{};
    QVector<WordNumbers> parts{};
    int word_count = 0;
    int part_count = 0;
    /// How many pairs each word stands in.
    QVector<int> word_pairs{};
    QVector<int> part_pairs{};
    int verb_mark_word = -1;

    /// The number of a headword or a meaning as it stands in a package; −1 when there is none.
    [[nodiscard]] int number_of(const QString &text) const { return numbers.value(base_form(text, language), -1); }
    [[nodiscard]] bool is_verb(int text) const { return words[text].value(0, -1) == verb_mark_word; }
};

struct WordPairs {
    Texts english{.language = Language::english};
    Texts hungarian{.language = Language::hungarian};
    /// The numbers of the English and the Hungarian text, each pair once.
    QVector<std::pair<int, int>> pairs;
};

/// The pairs of both directions.
[[nodiscard]] WordPairs word_pairs(const QVector<Entry> &english, const QVector<Entry> &hungarian);

}  // namespace freedict
