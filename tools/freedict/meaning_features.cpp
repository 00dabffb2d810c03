#include "freedict/meaning_features.h"

#include <algorithm>

#include "freedict/spelling_likeness.h"

namespace freedict {
namespace {

constexpr int rounds = 5;
constexpr double unheard_of = 1e-7;  // the probability of a word that never stood beside the other

TranslationTable learned(const WordPairs &pairs, Language from_language, bool of_words,
                         const std::function<void()> &done) {
    const Texts &source = from_language == Language::english ? pairs.english : pairs.hungarian;
    const Texts &target = from_language == Language::english ? pairs.hungarian : pairs.english;
    const QVector<WordNumbers> &from = of_words ? source.words : source.parts;
    const QVector<WordNumbers> &to = of_words ? target.words : target.parts;
    QVector<WordNumbers> sources;
    QVector<WordNumbers> targets;
    for (const auto &[english, hungarian] : pairs.pairs) {
        sources.append(from[from_language == Language::english ? english : hungarian]);
        targets.append(to[from_language == Language::english ? hungarian : english]);
    }
    TranslationTable table(sources, targets, of_words ? source.word_count : source.part_count, rounds);
    done();
    return table;
}

QVector<QVector<int>> texts_with_part(const Texts &texts) {
    QVector<QVector<int>> with(texts.part_count);
    for (int text = 0; text < texts.parts.size(); ++text) {
        for (const int part : texts.parts[text]) {
            if (with[part].isEmpty() || with[part].last() != text)
                with[part].append(text);
        }
    }
    return with;
}

double mean_logarithm(const TranslationTable &table, const WordNumbers &from, const WordNumbers &to) {
    double sum = 0;
    for (const int word : to)
        sum += natural_logarithm(table.probability_given(from, word) + unheard_of);
    return to.isEmpty() ? natural_logarithm(unheard_of) : sum / static_cast<double>(to.size());
}

double logarithm_of_more(qsizetype count) {
    return natural_logarithm(1 + static_cast<double>(count));
}

/// The smallest count of the words; a verb's mark only counts where it stands alone.
int rarest(const WordNumbers &words, const QVector<int> &counts) {
    int least = -1;
    for (const int word : words) {
        if (word != 0 && (least < 0 || counts[word] < least))
            least = counts[word];
    }
    return std::max(least, 0);
}

double share_of_verbs(const Texts &texts, const Texts &others, int text) {
    qsizetype verbs = 0;
    for (const int partner : texts.partners[text])
        verbs += others.is_verb(partner) ? 1 : 0;
    return static_cast<double>(verbs) / static_cast<double>(std::max<qsizetype>(texts.partners[text].size(), 1));
}

/// How probably one comes from the headword to this meaning by way of another meaning and another headword.
double probability_shared(const Texts &heads, const Texts &meanings, int head, int meaning) {
    double sum = 0;
    const auto degree = [](const Texts &texts, int text) { return static_cast<double>(texts.partners[text].size()); };
    for (const int other_head : meanings.partners[meaning]) {
        if (other_head == head)
            continue;
        for (const int other : heads.partners[other_head]) {
            if (other != meaning && heads.partners[head].contains(other))
                sum += 1 / (degree(heads, head) * degree(meanings, other) * degree(heads, other_head));
        }
    }
    return sum;
}

}  // namespace

const std::array<const char *, feature_count> feature_names{
    "szavak oda", "szavak vissza",    "részek oda",    "részek vissza", "együtt",       "együtt a címszóhoz",
    "közös",      "több szó",         "zárójel",       "fordítások",    "ritkább szó",  "ritkább rész",
    "betűk",      "igekötő",          "azonos szófaj", "kötőjel",       "hasonló írás", "szócsalád",
    "jelentés",   "legjobb jelentés", "szóosztály",    "szövegekben"};

MeaningFeatures::MeaningFeatures(const WordPairs &pairs, const OutsideKnowledge &outside,
                                 const std::function<void()> &count_alignment)
    : pairs_(pairs),
      outside_(outside),
      hungarian_words_(learned(pairs, Language::english, true, count_alignment)),
      english_words_(learned(pairs, Language::hungarian, true, count_alignment)),
      hungarian_parts_(learned(pairs, Language::english, false, count_alignment)),
      english_parts_(learned(pairs, Language::hungarian, false, count_alignment)),
      english_texts_(texts_with_part(pairs.english)),
      hungarian_texts_(texts_with_part(pairs.hungarian)),
      english_families_(pairs.english, pairs.hungarian),
      hungarian_families_(pairs.hungarian, pairs.english) {
    counts_ = {QVector<int>(pairs.hungarian.part_count, 0), QVector<int>(pairs.english.part_count, 0)};
    if (outside.net)
        senses_.emplace(pairs, *outside.net);
}

MeaningFeatures::Direction MeaningFeatures::direction(Language language) const {
    if (language == Language::english)
        return {pairs_.english, pairs_.hungarian, hungarian_words_, english_words_, hungarian_parts_, english_parts_};
    return {pairs_.hungarian, pairs_.english, english_words_, hungarian_words_, english_parts_, hungarian_parts_};
}

QVector<Features> MeaningFeatures::of(Language language, const QString &headword, const QStringList &meanings) const {
    const Direction way = direction(language);
    const int head = way.heads.number_of(headword);
    QVector<Features> all(meanings.size(), Features{});
    QVector<int> numbers;
    const bool to_english = language == Language::hungarian;
    const double head_verb = to_english ? share_of_verbs(way.heads, way.meanings, head) : way.heads.is_verb(head);
    for (qsizetype i = 0; i < meanings.size(); ++i) {
        const int meaning = way.meanings.number_of(meanings[i]);
        numbers.append(meaning);
        Features &f = all[i];
        const WordNumbers &words = way.meanings.words[meaning];
        const WordNumbers &parts = way.meanings.parts[meaning];
        f[forward_words] = mean_logarithm(way.forward_words, way.heads.words[head], words);
        f[backward_words] = mean_logarithm(way.backward_words, words, way.heads.words[head]);
        f[forward_parts] = mean_logarithm(way.forward_parts, way.heads.parts[head], parts);
        f[backward_parts] = mean_logarithm(way.backward_parts, parts, way.heads.parts[head]);
        f[shared] = natural_logarithm(probability_shared(way.heads, way.meanings, head, meaning) + 1e-4);
        const bool marked = words.contains(0);
        f[more_words] = static_cast<double>(words.size()) - 1 - (marked ? 1 : 0);
        f[brackets] = meanings[i].contains(u'(') ? 1 : 0;
        f[translations] = logarithm_of_more(way.meanings.partners[meaning].size());
        f[rarest_word] = logarithm_of_more(rarest(words, way.meanings.word_pairs));
        f[rarest_part] = logarithm_of_more(rarest(parts, way.meanings.part_pairs));
        f[letters] = logarithm_of_more(without_brackets(meanings[i]).size());
        f[preverb] = !to_english && words.size() == 1 && parts.size() > 1 ? 1 : 0;
        const double verb =
            to_english ? way.meanings.is_verb(meaning) : share_of_verbs(way.meanings, way.heads, meaning);
        f[hyphen] = meanings[i].endsWith(u'-') ? 1 : 0;
        f[likeness] = to_english ? spelling_likeness(meanings[i], headword) : spelling_likeness(headword, meanings[i]);
        f[same_kind] = 1 - (verb > head_verb ? verb - head_verb : head_verb - verb);
    }
    measure_together(way, head, numbers, all);
    const QVector<double> families = (to_english ? hungarian_families_ : english_families_).shares(head, numbers);
    for (qsizetype i = 0; i < all.size(); ++i)
        all[i][family] = families[i];
    measure_outside(language, head, numbers, all);
    return all;
}

void MeaningFeatures::measure_outside(Language language, int head, const QVector<int> &meanings,
                                      QVector<Features> &features) const {
    const bool to_english = language == Language::hungarian;
    for (qsizetype i = 0; i < meanings.size(); ++i) {
        if (senses_) {
            const auto match = to_english ? senses_->match(meanings[i], head) : senses_->match(head, meanings[i]);
            features[i][sense_mean] = match.mean;
            features[i][sense_best] = match.best;
            if (to_english)
                features[i][count_in_texts] = logarithm_of_more(senses_->count(meanings[i]));
        }
        if (outside_.classes && to_english)
            features[i][word_class] = outside_.classes->of_rarest(pairs_.english.texts[meanings[i]]) / 10.0;
    }
}

void MeaningFeatures::measure_together(const Direction &way, int head, const QVector<int> &meanings,
                                       QVector<Features> &features) const {
    const auto &texts = &way.heads == &pairs_.english ? english_texts_ : hungarian_texts_;
    const WordNumbers &head_parts = way.heads.parts[head];
    // The rarest part stands for the headword.
    int part = -1;
    for (const int one : head_parts) {
        if (one != 0 && (part < 0 || way.heads.part_pairs[one] < way.heads.part_pairs[part]))
            part = one;
    }
    QVector<int> &counts = counts_[way.heads.language == Language::english ? 0 : 1];
    QVector<int> counted;
    int pairs = 0;
    if (part >= 0) {
        for (const int text : texts[part]) {
            if (text == head || way.heads.is_verb(text) != way.heads.is_verb(head))
                continue;
            for (const int meaning : way.heads.partners[text]) {
                ++pairs;
                for (const int other_part : way.meanings.parts[meaning]) {
                    ++counts[other_part];
                    counted.append(other_part);
                }
            }
        }
    }
    for (qsizetype i = 0; i < meanings.size(); ++i) {
        int least = -1;
        for (const int one : way.meanings.parts[meanings[i]]) {
            if (one != 0 && (least < 0 || counts[one] < least))
                least = counts[one];
        }
        least = std::max(least, 0);
        const int of_meaning = rarest(way.meanings.parts[meanings[i]], way.meanings.part_pairs);
        features[i][together] = natural_logarithm((2 * least + 0.5) / (pairs + of_meaning + 5));
        features[i][together_given_head] = natural_logarithm((least + 0.5) / (pairs + 5));
    }
    for (const int counted_part : std::as_const(counted))
        counts[counted_part] = 0;
}

}  // namespace freedict
