#include "freedict/word_alignment.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace freedict {
namespace {

constexpr std::uint64_t key_of(int row, int to) {
    return static_cast<std::uint64_t>(row) << 32U | static_cast<std::uint32_t>(to);
}
constexpr int row_of(std::uint64_t key) {
    return static_cast<int>(key >> 32U);
}
constexpr int to_of(std::uint64_t key) {
    return static_cast<int>(key & 0xFFFFFFFFU);
}

/// The keys of a pair's links: for each word of `to` the row of none and that of each word of `from`.
template <typename Function>
void for_each_link(const WordNumbers &from, const WordNumbers &to, const Function &function) {
    for (const int word : to) {
        function(key_of(0, word));
        for (const int other : from)
            function(key_of(other + 1, word));
    }
}

}  // namespace

TranslationTable::TranslationTable(const QVector<WordNumbers> &from, const QVector<WordNumbers> &to, int from_count,
                                   int rounds) {
    QVector<std::uint64_t> instances;
    for (qsizetype i = 0; i < from.size(); ++i)
        for_each_link(from[i], to[i], [&](std::uint64_t key) { instances.append(key); });
    QVector<std::uint64_t> keys = instances;
    std::ranges::sort(keys);
    keys.erase(std::unique(keys.begin(), keys.end()), keys.end());
    // The links in the order of the pairs, as places in the sorted table.
    QVector<int> places;
    places.reserve(instances.size());
    for (const std::uint64_t key : std::as_const(instances))
        places.append(static_cast<int>(std::ranges::lower_bound(keys, key) - keys.begin()));

    first_.fill(0, from_count + 2);
    links_.reserve(keys.size());
    for (const std::uint64_t key : std::as_const(keys)) {
        links_.append({to_of(key), 1});
        ++first_[row_of(key) + 1];
    }
    for (qsizetype row = 1; row < first_.size(); ++row)
        first_[row] += first_[row - 1];

    QVector<double> expected(links_.size());
    for (int round = 0; round < rounds; ++round) {
        expected.fill(0);
        const int *place = places.constData();
        for (qsizetype i = 0; i < from.size(); ++i) {
            for (qsizetype word = 0; word < to[i].size(); ++word, place += from[i].size() + 1) {
                double sum = 0;
                for (qsizetype k = 0; k <= from[i].size(); ++k)
                    sum += links_[place[k]].probability;
                for (qsizetype k = 0; k <= from[i].size(); ++k)
                    expected[place[k]] += links_[place[k]].probability / sum;
            }
        }
        for (qsizetype row = 0; row + 1 < first_.size(); ++row) {
            double sum = 0;
            for (qsizetype k = first_[row]; k < first_[row + 1]; ++k)
                sum += expected[k];
            for (qsizetype k = first_[row]; k < first_[row + 1]; ++k)
                links_[k].probability = expected[k] / sum;
        }
    }
}

double TranslationTable::probability(int from, int to) const {
    return at(from + 1, to);
}

double TranslationTable::probability_given(const WordNumbers &from, int to) const {
    double sum = probability_alone(to);
    for (const int word : from)
        sum += probability(word, to);
    return sum / static_cast<double>(from.size() + 1);
}

double TranslationTable::at(int row, int to) const {
    const auto begin = links_.begin() + first_[row];
    const auto end = links_.begin() + first_[row + 1];
    const auto link = std::lower_bound(begin, end, to, [](const Link &l, int word) { return l.to < word; });
    return link != end && link->to == to ? link->probability : 0;
}

double natural_logarithm(double number) {
    constexpr double ln2 = 0.69314718055994530942;
    constexpr double root_of_half = 0.70710678118654752440;
    int exponent = 0;
    double fraction = std::frexp(number, &exponent);  // exact: it only takes the number apart
    if (fraction < root_of_half) {
        fraction *= 2;
        --exponent;
    }
    // ln x = 2 artanh((x - 1) / (x + 1)), of which |…| <= 0.172: the eleventh term is below 1e-17.
    const double z = (fraction - 1) / (fraction + 1);
    const double square = z * z;
    double power = z;
    double sum = 0;
    for (int odd = 1; odd <= 23; odd += 2, power *= square)
        sum += power / odd;
    return 2 * sum + exponent * ln2;
}

}  // namespace freedict
