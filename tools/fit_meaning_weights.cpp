// zimbora-fit: finds the weights of the order of meanings from words whose first meaning is known, and tells what each
// feature is good for. tools/freedict/meaning_weights.cpp holds what it prints.

#include <QFile>
#include <QTextStream>
#include <variant>

#include "freedict/known_meanings.h"
#include "freedict/meaning_order.h"
#include "freedict/preparation.h"

using namespace Qt::StringLiterals;

namespace {

using namespace freedict;

QString per_cent(qsizetype count, qsizetype all) {
    return QString::number(100.0 * static_cast<double>(count) / static_cast<double>(all), 'f', 1) + u" %"_s;
}

void print_figures(QTextStream &out, const QVector<Choice> &choices) {
    const Used all = Used().set();
    out << choices.size() << u" szó; keresztellenőrzéssel jó az első: "_s
        << per_cent(cross_validated(choices, all, 1), choices.size()) << u", az első háromban van: "_s
        << per_cent(cross_validated(choices, all, 3), choices.size()) << Qt::endl;
    const Features weights = fitted_weights(choices, all);
    for (std::size_t i = 0; i < feature_count; ++i) {
        if (weights[i] == 0)
            continue;
        Used others = all;
        others.reset(i);
        out << u"  %1  súlya %2, nélküle %3\n"_s.arg(QString::fromUtf8(feature_names[i]), -20)
                   .arg(weights[i], 7, 'f', 3)
                   .arg(per_cent(cross_validated(choices, others, 1), choices.size()));
        out.flush();
    }
    QStringList numbers;
    for (const double weight : weights)
        numbers.append(QString::number(weight, 'f', 3));
    out << u"  {%1}\n"_s.arg(numbers.join(u", "_s));
}

int run(const QString &folder) {
    const auto read = read_material({.freedict = u"/usr/share/dictd"_s,
                                     .wordnet = u"/usr/share/wordnet"_s,
                                     .scowl = u"/usr/share/dict/scowl"_s,
                                     .hunspell = u"/usr/share/hunspell"_s});
    if (const auto *failure = std::get_if<Failure>(&read)) {
        QTextStream(stderr) << failure->sentence << Qt::endl;
        return 1;
    }
    const auto &material = *std::get_if<Material>(&read);
    const auto ready = prepared(material);
    if (const auto *failure = std::get_if<Failure>(&ready)) {
        QTextStream(stderr) << failure->sentence << Qt::endl;
        return 1;
    }
    const Lexicon &lexicon = std::get_if<Prepared>(&ready)->lexicon;
    const WordPairs pairs = word_pairs(lexicon.english, lexicon.hungarian);
    const MeaningFeatures features(pairs, material.outside);
    QTextStream out(stdout);
    for (const auto &[language, name] :
         {std::pair(Language::english, "english"), std::pair(Language::hungarian, "hungarian")}) {
        const auto known = read_known_meanings(u"%1/%2.txt"_s.arg(folder, QString::fromLatin1(name)));
        if (const auto *failure = std::get_if<Failure>(&known)) {
            QTextStream(stderr) << failure->sentence << Qt::endl;
            return 1;
        }
        out << name << Qt::endl;
        print_figures(out, choices_of(*std::get_if<QVector<KnownMeanings>>(&known), lexicon, language, features));
    }
    return 0;
}

}  // namespace

int main(int count, char *values[]) {
    if (count != 2) {
        QTextStream(stderr) << u"Használat: zimbora-fit ISMERT-JELENTÉSEK-MAPPÁJA\n"_s;
        return 2;
    }
    return run(QFile::decodeName(values[1]));
}
