#include "search_data/frequencies.h"

#include <QHash>
#include <algorithm>
#include <bit>

#include "platform/code_page.h"

namespace search_data {
namespace {

constexpr int most = 255;
/// Of a place behind others in what the other direction has for the translation.
constexpr int less_a_place = 14;
constexpr qsizetype places = 4;

/// Twice the logarithm to the base 2, in whole numbers so that it is the same everywhere.
int twice_logarithm(int count) {
    const auto number = static_cast<unsigned>(std::max(count, 0)) + 1U;
    const int whole = static_cast<int>(std::bit_width(number)) - 1;
    const bool above_half = std::uint64_t{number} * number >= std::uint64_t{1} << (2 * whole + 1);
    return 2 * whole + (above_half ? 1 : 0);
}

char byte_of(int frequency) {
    return static_cast<char>(std::clamp(frequency, 0, most));
}

int english_frequency(const QString &headword, const freedict::WordClasses &classes, const freedict::WordNet &net) {
    const QString base = freedict::base_form(headword, freedict::Language::english).toLower();
    const QStringList words = freedict::words_of(base, freedict::Language::english);
    const bool verb = words.size() > 1 && words.front() == freedict::verb_mark;
    const qsizetype count = words.size() - (verb ? 1 : 0);
    const int common = 2 * (freedict::WordClasses::unknown - classes.of_rarest(base));
    if (count != 1)
        return common - 10 * static_cast<int>(count);
    return common + 4 * twice_logarithm(net.count(words.last(), verb));
}

/// In how many pairs a word stands, of those in whose Hungarian side it does.
QHash<QByteArray, int> counted_words(const QVector<Line> &hungarian, const QVector<Line> &english) {
    QHash<QByteArray, int> counts;
    for (const Line &line : hungarian) {
        for (const QByteArray &word : words_of(line.headword))
            ++counts[word];
    }
    for (const Line &line : english) {
        for (const Meaning &meaning : line.meanings) {
            for (const QByteArray &word : words_of(meaning.text))
                ++counts[word];
        }
    }
    return counts;
}

/// How much an English headword speaks for each of its meanings.
QHash<QByteArray, int> spoken_for(const QVector<Line> &english, const QByteArray &frequencies) {
    QHash<QByteArray, int> best;
    for (qsizetype i = 0; i < english.size(); ++i) {
        const auto frequency = static_cast<unsigned char>(frequencies[i]);
        for (qsizetype place = 0; place < english[i].meanings.size(); ++place) {
            int &value = best[english[i].meanings[place].text.toByteArray()];
            const int less = less_a_place * static_cast<int>(std::min(place, places));
            value = std::max(value, frequency - less);
        }
    }
    return best;
}

}  // namespace

QByteArray english_frequencies(const QVector<Line> &english, const freedict::WordClasses &classes,
                               const freedict::WordNet &net) {
    QByteArray frequencies;
    for (const Line &line : english)
        frequencies.append(byte_of(english_frequency(code_page::decode(line.headword), classes, net)));
    return frequencies;
}

QByteArray hungarian_frequencies(const QVector<Line> &hungarian, const QVector<Line> &english,
                                 const QByteArray &english_frequencies) {
    const QHash<QByteArray, int> counts = counted_words(hungarian, english);
    const QHash<QByteArray, int> translations = spoken_for(english, english_frequencies);
    QByteArray frequencies;
    for (const Line &line : hungarian) {
        const QVector<QByteArray> words = words_of(line.headword);
        int rarest = words.isEmpty() ? 0 : most;
        for (const QByteArray &word : words)
            rarest = std::min(rarest, counts.value(word));
        const int translation = translations.value(line.headword.toByteArray());
        const int several = words.size() > 1 ? 10 * static_cast<int>(words.size()) : 0;
        frequencies.append(byte_of(translation / 2 + 8 * twice_logarithm(rarest) - several));
    }
    return frequencies;
}

}  // namespace search_data
