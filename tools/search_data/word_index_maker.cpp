#include "search_data/word_index_maker.h"

#include <QHash>
#include <QMap>
#include <QSet>
#include <QtEndian>
#include <algorithm>
#include <vector>

#include "search_data/dictionary_lines.h"
#include "suggestions/frequency_file.h"
#include "suggestions/word_index_format.h"

namespace search_data {
namespace {

namespace format = szómutató_formátum;

/// A pair on its way to its number.
struct Pair {
    QByteArrayView headword;
    QByteArrayView meaning;
    quint32 line_place;
    quint16 meaning_place;
    /// The smaller the earlier.
    qsizetype value;
};

void append(QByteArray &bytes, quint32 number) {
    char four[4];
    qToLittleEndian(number, four);
    bytes.append(four, sizeof four);
}

void append_packed(QByteArray &bytes, quint32 number) {
    for (; number > 0x7f; number >>= 7)
        bytes.append(static_cast<char>(number | 0x80U));
    bytes.append(static_cast<char>(number));
}

/// Rising numbers, packed.
void append_list(QByteArray &bytes, const std::vector<quint32> &numbers) {
    append_packed(bytes, static_cast<quint32>(numbers.size()));
    quint32 before = 0;
    for (const quint32 number : numbers) {
        append_packed(bytes, number - before);
        before = number;
    }
}

/// What both directions write alike for the same pair.
QByteArray key_of(QByteArrayView english, QByteArrayView hungarian) {
    return english.toByteArray() + '\0' + hungarian.toByteArray();
}

/// Adds the pairs of a dictionary that are not known yet.
void add_pairs(const QVector<Line> &lines, bool other, QSet<QByteArray> &known, std::vector<Pair> &pairs) {
    constexpr qsizetype a_place = 6;
    constexpr qsizetype last_place = 10;
    for (const Line &line : lines) {
        for (qsizetype i = 0; i < line.meanings.size(); ++i) {
            const Meaning &meaning = line.meanings[i];
            const QByteArray key = other ? key_of(meaning.text, line.headword) : key_of(line.headword, meaning.text);
            if (known.contains(key) || meaning.place > 0xffff)
                continue;
            known.insert(key);
            pairs.push_back({.headword = line.headword,
                             .meaning = meaning.text,
                             .line_place = static_cast<quint32>(line.place) | (other ? format::másik_szótár : 0U),
                             .meaning_place = static_cast<quint16>(meaning.place),
                             .value = line.headword.size() + meaning.text.size() + a_place * std::min(i, last_place)});
        }
    }
}

std::vector<Pair> pairs_of(QByteArrayView english, QByteArrayView hungarian) {
    QSet<QByteArray> known;
    std::vector<Pair> pairs;
    add_pairs(lines_of(english), false, known, pairs);
    add_pairs(lines_of(hungarian), true, known, pairs);
    std::ranges::stable_sort(pairs, {}, &Pair::value);
    return pairs;
}

using Words = QMap<QByteArray, std::vector<quint32>>;

/// The words and the numbers of the pairs that they stand in.
Words words_in(const std::vector<Pair> &pairs) {
    QHash<QByteArray, std::vector<quint32>> words;
    for (quint32 number = 0; number < pairs.size(); ++number) {
        for (const QByteArrayView text : {pairs[number].headword, pairs[number].meaning}) {
            for (const QByteArray &word : words_of(text)) {
                auto &list = words[word];
                if (list.empty() || list.back() != number)
                    list.push_back(number);
            }
        }
    }
    Words sorted;
    for (auto word = words.begin(); word != words.end(); ++word)
        sorted.insert(word.key(), std::move(word.value()));
    return sorted;
}

/// For each word the numbers of those that are forms of it.
std::vector<std::vector<quint32>> forms_of(const Words &words, const Bases &bases) {
    std::vector<std::vector<quint32>> forms(static_cast<size_t>(words.size()));
    if (!bases)
        return forms;
    QHash<QByteArray, quint32> numbers;
    quint32 number = 0;
    for (auto word = words.begin(); word != words.end(); ++word)
        numbers.insert(word.key(), number++);
    number = 0;
    for (auto word = words.begin(); word != words.end(); ++word, ++number) {
        for (const QByteArray &base : bases(word.key())) {
            const auto found = numbers.constFind(base);
            if (found != numbers.constEnd() && *found != number &&
                (forms[*found].empty() || forms[*found].back() != number))
                forms[*found].push_back(number);
        }
    }
    return forms;
}

}  // namespace

QByteArray word_index(QByteArrayView english, QByteArrayView hungarian, const Bases &bases) {
    const std::vector<Pair> pairs = pairs_of(english, hungarian);
    const Words words = words_in(pairs);
    const auto forms = forms_of(words, bases);
    QByteArray letters;
    QByteArray beginnings;
    QByteArray record_starts;
    QByteArray records;
    size_t number = 0;
    for (auto word = words.begin(); word != words.end(); ++word, ++number) {
        append(beginnings, static_cast<quint32>(letters.size()));
        append(record_starts, static_cast<quint32>(records.size()));
        letters.append(word.key());
        append_list(records, forms[number]);
        append_list(records, word.value());
    }
    append(beginnings, static_cast<quint32>(letters.size()));
    append(record_starts, static_cast<quint32>(records.size()));
    QByteArray body = letters + beginnings + record_starts;
    for (const Pair &pair : pairs) {
        append(body, pair.line_place);
        char two[2];
        qToLittleEndian(pair.meaning_place, two);
        body.append(two, sizeof two);
    }
    body += records;

    QByteArray file(format::kezdet, format::kezdethossz);
    for (const QByteArrayView content : {english, hungarian, QByteArrayView(body)}) {
        char eight[8];
        qToLittleEndian<quint64>(ujjlenyomat(content), eight);
        file.append(eight, sizeof eight);
    }
    for (const qsizetype count : {words.size(), static_cast<qsizetype>(pairs.size()), letters.size(), records.size()})
        append(file, static_cast<quint32>(count));
    file.resize(format::fejléc, '\0');
    return file + body;
}

}  // namespace search_data
