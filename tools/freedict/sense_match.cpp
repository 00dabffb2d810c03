#include "freedict/sense_match.h"

#include <algorithm>

namespace freedict {

SenseMatch::SenseMatch(const WordPairs &pairs, const WordNet &net) : pairs_(pairs), net_(net) {
    for (const QString &text : pairs.english.texts) {
        const bool verb = text.startsWith(verb_mark);
        const QString word = text.sliced(verb ? verb_mark.size() : 0).toLower();
        words_.append(net.number(word));
        senses_.append(net.senses(word, verb));
        counts_.append(net.count(word, verb));
    }
}

SenseMatch::Match SenseMatch::match(int english, int hungarian) const {
    constexpr double least = 0.01;
    QVector<int> others;
    for (const int other : pairs_.hungarian.partners[hungarian]) {
        // The verb and the noun of the same letters are no two witnesses.
        if (other != english && (words_[other] != words_[english] || words_[other] < 0) &&
            (words_[other] < 0 || !others.contains(words_[other])))
            others.append(words_[other]);
    }
    double sum = 0;
    double best = 0;
    for (const auto &[share, synset] : senses_[english]) {
        double of_sense = 0;
        double best_of_sense = 0;
        for (const int other : std::as_const(others)) {
            const double relation = net_.relation(synset, other);
            of_sense += relation;
            best_of_sense = std::max(best_of_sense, relation);
        }
        sum += share * of_sense;
        best += share * best_of_sense;
    }
    return {natural_logarithm(sum / static_cast<double>(others.size() + 1) + least), best};
}

}  // namespace freedict
