// How often the first meaning of a word is one that a learner should see first: as the package has it, ordered by the
// model alone, and with the supplement.

#include <QTextStream>
#include <algorithm>
#include <variant>

#include "freedict/known_meanings.h"
#include "freedict/meaning_order.h"
#include "freedict/preparation.h"

using namespace Qt::StringLiterals;

namespace {

using namespace freedict;

template <typename Value>
Value good(std::variant<Value, Failure> result) {
    if (const auto *failure = std::get_if<Failure>(&result))
        qFatal("%s", qPrintable(failure->sentence));
    return std::get<Value>(std::move(result));
}

/// The entry that a search selects: the one without further forms, for a verb the first.
const Entry *entry_for(const QString &word, const Lexicon &lexicon, Language language) {
    const Entry *found = nullptr;
    for (const Entry &entry : lexicon.in(language)) {
        if (base_form(entry.headword, language) != word)
            continue;
        if (found == nullptr || (entry.headword == word) != word.startsWith(verb_mark))
            found = &entry;
    }
    return found;
}

struct Figures {
    int unordered = 0;
    int first = 0;
    int among_three = 0;
};

Figures figures_of(const QVector<KnownMeanings> &list, const Lexicon &lexicon, Language language,
                   const MeaningFeatures &features) {
    Figures figures;
    for (const auto &[headword, accepted] : list) {
        const Entry *entry = entry_for(headword, lexicon, language);
        if (entry == nullptr)
            continue;
        QStringList bases;
        for (const QString &meaning : accepted)
            bases.append(base_form(meaning, other(language)));
        const auto is_right = [&](const QString &meaning) {
            return bases.contains(base_form(meaning, other(language)));
        };
        figures.unordered += is_right(entry->meanings.first()) ? 1 : 0;
        const QVector<PlacedMeaning> placed = placed_meanings(features, language, *entry);
        figures.first += is_right(placed.first().meaning) ? 1 : 0;
        const auto three = placed.first(std::min<qsizetype>(3, placed.size()));
        figures.among_three +=
            std::ranges::any_of(three, [&](const PlacedMeaning &one) { return is_right(one.meaning); }) ? 1 : 0;
    }
    return figures;
}

QString per_cent(int count, qsizetype all) {
    return QString::number(100.0 * count / static_cast<double>(all), 'f', 1).rightJustified(6) + u" %"_s;
}

void measure(const Material &material, const QString &label, QTextStream &out) {
    const Prepared ready = good(prepared(material));
    const WordPairs pairs = word_pairs(ready.lexicon.english, ready.lexicon.hungarian);
    const MeaningFeatures features(pairs, material.outside);
    for (const Dictionary &dictionary : dictionaries) {
        const QString name = dictionary.language == Language::english ? u"english.txt"_s : u"hungarian.txt"_s;
        const auto list = good(read_known_meanings(u"" ZIMBORA_FIRST_MEANINGS "/"_s + name));
        const Figures figures = figures_of(list, ready.lexicon, dictionary.language, features);
        out << label.leftJustified(18) << QString(name).leftJustified(15) << list.size()
            << per_cent(figures.unordered, list.size()) << per_cent(figures.first, list.size())
            << per_cent(figures.among_three, list.size()) << Qt::endl;
    }
}

}  // namespace

int main() {
    QTextStream out(stdout);
    out << "                  list         words unordered first  in three\n";
    Material material = good(read_material({.freedict = u"" ZIMBORA_FREEDICT_DIR ""_s,
                                            .wordnet = u"" ZIMBORA_WORDNET_DIR ""_s,
                                            .scowl = u"" ZIMBORA_SCOWL_DIR ""_s,
                                            .hunspell = u"" ZIMBORA_HUNSPELL_DIR ""_s,
                                            .supplement = u"" ZIMBORA_SUPPLEMENT_DIR ""_s}));
    Supplement supplement = std::move(material.supplement);
    material.supplement = {};
    measure(material, u"model alone"_s, out);
    material.supplement = std::move(supplement);
    measure(material, u"with supplement"_s, out);
    return 0;
}
