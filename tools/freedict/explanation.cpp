#include "freedict/explanation.h"

#include "freedict/meaning_order.h"
#include "freedict/preparation.h"

using namespace Qt::StringLiterals;

namespace freedict {
namespace {

bool is_asked_for(const Entry &entry, const QString &word, Language language) {
    const QString base = base_form(entry.headword, language);
    return entry.headword == word || base == word || (language == Language::english && base == verb_mark + word);
}

QString number(double value) {
    return QString::number(value, 'f', 2);
}

QString line_of(const PlacedMeaning &placed) {
    QStringList parts;
    for (std::size_t feature = 0; feature < feature_count; ++feature) {
        if (placed.added[feature] != 0)
            parts.append(QString::fromUtf8(feature_names[feature]) + u' ' + number(placed.added[feature]));
    }
    QString place;
    if (placed.group == 0)
        place = u" [kiegészítés]"_s;
    else if (placed.group == 1)
        place = u" [kiegészítés másik iránya]"_s;
    if (placed.coarse)
        place += u" [durva]"_s;
    return u"  %1%2 %3 = %4\n"_s.arg(placed.meaning, place, number(placed.score), parts.join(u" + "_s));
}

QString reason_of(Mend::Reason reason) {
    switch (reason) {
        case Mend::Reason::blanks:
            return u"szóköz"_s;
        case Mend::Reason::bracket:
            return u"zárójel"_s;
        case Mend::Reason::three_letters:
            return u"három betű"_s;
        case Mend::Reason::neighbour:
            return u"elírás"_s;
    }
    return {};
}

}  // namespace

std::variant<QString, Failure> explanation(const Sources &sources, const QString &word) {
    const auto read = read_material(sources);
    if (const auto *failure = std::get_if<Failure>(&read))
        return *failure;
    const auto ready = prepared(std::get<Material>(read));
    if (const auto *failure = std::get_if<Failure>(&ready))
        return *failure;
    const Lexicon &lexicon = std::get<Prepared>(ready).lexicon;
    const WordPairs pairs = word_pairs(lexicon.english, lexicon.hungarian);
    const MeaningFeatures features(pairs, std::get<Material>(read).outside);
    QString text;
    for (const Dictionary &dictionary : dictionaries) {
        for (const Entry &entry : lexicon.in(dictionary.language)) {
            if (!is_asked_for(entry, word, dictionary.language))
                continue;
            text += u"%1 (%2)\n"_s.arg(entry.headword, dictionary.title);
            for (const PlacedMeaning &placed : placed_meanings(features, dictionary.language, entry))
                text += line_of(placed);
        }
    }
    if (text.isEmpty())
        return Failure{u"A(z) „%1” szó egyik szótárban sincs meg."_s.arg(word)};
    return text;
}

std::variant<QString, Failure> list_of_mends(const Sources &sources) {
    const auto read = read_material(sources);
    if (const auto *failure = std::get_if<Failure>(&read))
        return *failure;
    const auto ready = prepared(std::get<Material>(read));
    if (const auto *failure = std::get_if<Failure>(&ready))
        return *failure;
    const auto &result = std::get<Prepared>(ready);
    QString text;
    for (const Mend &mend : result.mends)
        text += u"%1 → %2 (%3)\n"_s.arg(mend.text, mend.mended, reason_of(mend.reason));
    text += u"Javított elírás: %1. Nagybetűssé lett szöveg: %2. Több címszóként maradt szó: %3.\n"_s.arg(
        QString::number(result.mends.size()), QString::number(result.done[0].capitals),
        QString::number(result.doubled_left));
    return text;
}

}  // namespace freedict
