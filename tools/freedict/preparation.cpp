#include "freedict/preparation.h"

#include "freedict/capitals.h"
#include "freedict/doubled_headwords.h"
#include "freedict/supplement_merge.h"

using namespace Qt::StringLiterals;

namespace freedict {
namespace {

/// Puts what `read` found into `place`; the failure when it found none.
template <typename Place, typename Result>
std::optional<Failure> keep(Place &place, Result read) {
    if (const auto *failure = std::get_if<Failure>(&read))
        return *failure;
    place = std::get<0>(std::move(read));
    return std::nullopt;
}

std::optional<Failure> read_packages(Material &material, const Sources &sources, const Steps &steps) {
    for (std::size_t i = 0; i < dictionaries.size(); ++i) {
        const Steps half = [&](qsizetype done, qsizetype total) {
            if (steps)
                steps(static_cast<qsizetype>(i) * total + done, 4 * total);
        };
        Package &package = material.packages[i];
        if (const auto failure =
                keep(package, read_package(sources.freedict, dictionaries[i].package.toString(), half)))
            return failure;
        if (const auto wrong = difference(package, counts_of(package.entries)))
            return wrong;
    }
    return std::nullopt;
}

std::size_t index_of(Language language) {
    return dictionaries[0].language == language ? 0 : 1;
}

/// Notes what renaming texts of one language did to both directions.
void note(Prepared &result, const Renamed &renamed, Language language) {
    Counts &here = result.done[index_of(language)].joined;
    here.entries += renamed.joined;
    here.meanings += renamed.doubled_in_joined;
    result.done[index_of(other(language))].joined.meanings += renamed.doubled;
}

void mend(Prepared &result, const Material &material) {
    result.mends = typing_errors(result.lexicon, material.spelling ? &*material.spelling : nullptr);
    for (const Language language : {Language::english, Language::hungarian}) {
        const auto names = names_of(result.mends, language);
        note(result, rename_texts(result.lexicon, language, names), language);
        result.done[index_of(language)].mended = names.size();
    }
    const DoubledHeadwords doubled = doubled_headwords(result.lexicon.english);
    result.doubled_left = doubled.left;
    note(result, rename_texts(result.lexicon, Language::english, doubled.joined), Language::english);
}

void give_capitals(Prepared &result, const Material &material) {
    if (!material.spelling)
        return;
    for (const Language language : {Language::english, Language::hungarian}) {
        const auto names = texts_with_capitals(result.lexicon, language, *material.spelling, material.supplement);
        const Renamed renamed = rename_texts(result.lexicon, language, names);
        note(result, renamed, language);
        result.done[index_of(language)].capitals = renamed.headwords;
    }
}

std::optional<Failure> lost(const Prepared &result, Language language) {
    const Imported &done = result.done[index_of(language)];
    const Counts now = counts_of(result.lexicon.in(language));
    const Counts expected{.entries = done.read.entries - done.joined.entries + done.added.entries,
                          .meanings = done.read.meanings - done.joined.meanings + done.added.meanings};
    if (now == expected)
        return std::nullopt;
    return Failure{u"A(z) %1 szótárban %2 szócikk és %3 jelentés helyett %4 és %5 van."_s.arg(
        done.dictionary.title, QString::number(expected.entries), QString::number(expected.meanings),
        QString::number(now.entries), QString::number(now.meanings))};
}

}  // namespace

std::variant<Material, Failure> read_material(const Sources &sources, const Steps &steps) {
    Material material;
    if (const auto failure = read_packages(material, sources, steps))
        return *failure;
    if (!sources.supplement.isEmpty()) {
        if (const auto failure = keep(material.supplement, read_supplement(sources.supplement)))
            return *failure;
    }
    if (!sources.wordnet.isEmpty()) {
        if (const auto failure = keep(material.outside.net, WordNet::read(sources.wordnet)))
            return *failure;
    }
    if (!sources.scowl.isEmpty()) {
        if (const auto failure = keep(material.outside.classes, WordClasses::read(sources.scowl)))
            return *failure;
    }
    if (!sources.hunspell.isEmpty()) {
        if (const auto failure = keep(material.spelling, read_spelling(sources.hunspell)))
            return *failure;
    }
    if (steps)
        steps(1, 1);
    return material;
}

std::variant<Prepared, Failure> prepared(const Material &material) {
    Prepared result;
    for (std::size_t i = 0; i < dictionaries.size(); ++i) {
        result.done[i].dictionary = dictionaries[i];
        result.done[i].read = counts_of(material.packages[i].entries);
        result.lexicon.in(dictionaries[i].language) = mended_entries(material.packages[i], dictionaries[i]);
    }
    mend(result, material);
    give_capitals(result, material);
    const Merged merged = merge_supplement(result.lexicon, material.supplement);
    result.done[index_of(Language::english)].added = {merged.english.entries, merged.english.meanings};
    result.done[index_of(Language::hungarian)].added = {merged.hungarian.entries, merged.hungarian.meanings};
    for (const Dictionary &dictionary : dictionaries) {
        if (const auto failure = lost(result, dictionary.language))
            return *failure;
    }
    return result;
}

}  // namespace freedict
