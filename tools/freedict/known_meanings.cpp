#include "freedict/known_meanings.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "freedict/dictd_files.h"

using namespace Qt::StringLiterals;

namespace freedict {
namespace {

constexpr int parts = 10;
constexpr int steps = 400;
constexpr double step_length = 0.05;
constexpr double price_of_weight = 3;

double score(const Features &features, const Features &weights) {
    return std::inner_product(features.begin(), features.end(), weights.begin(), 0.0);
}

/// The spread of each feature, so that all weights can be found in one scale.
Features spread(const QVector<Choice> &choices) {
    Features sum{};
    Features squares{};
    double count = 0;
    for (const Choice &choice : choices) {
        for (const Features &one : choice.features) {
            ++count;
            for (std::size_t i = 0; i < feature_count; ++i) {
                sum[i] += one[i];
                squares[i] += one[i] * one[i];
            }
        }
    }
    Features result{};
    for (std::size_t i = 0; i < feature_count; ++i)
        result[i] = std::sqrt(std::max(squares[i] / count - sum[i] / count * (sum[i] / count), 0.0)) + 1e-9;
    return result;
}

/// Adds how the logarithm of the probability of an accepted meaning grows with each weight.
void add_slope(Features &slope, const Choice &choice, const Features &weights) {
    double most = -1e300;
    for (const Features &one : choice.features)
        most = std::max(most, score(one, weights));
    double all = 0;
    double accepted = 0;
    QVector<double> parts_of_all;
    for (qsizetype i = 0; i < choice.features.size(); ++i) {
        parts_of_all.append(std::exp(score(choice.features[i], weights) - most));
        all += parts_of_all[i];
        accepted += choice.accepted[i] ? parts_of_all[i] : 0;
    }
    for (qsizetype i = 0; i < choice.features.size(); ++i) {
        const double pull = (choice.accepted[i] ? parts_of_all[i] / accepted : 0) - parts_of_all[i] / all;
        for (std::size_t k = 0; k < feature_count; ++k)
            slope[k] += pull * choice.features[i][k];
    }
}

QVector<Choice> scaled(QVector<Choice> choices, const Features &scale, const Used &used) {
    for (Choice &choice : choices) {
        for (Features &one : choice.features) {
            for (std::size_t i = 0; i < feature_count; ++i)
                one[i] = used[i] ? one[i] / scale[i] : 0;
        }
    }
    return choices;
}

}  // namespace

std::variant<QVector<KnownMeanings>, Failure> read_known_meanings(const QString &path) {
    const FileContent content = files::read_whole(path);
    if (const auto *failure = std::get_if<Failure>(&content))
        return *failure;
    QVector<KnownMeanings> known;
    const QStringList lines = QString::fromUtf8(std::get<QByteArray>(content)).split(u'\n');
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (lines[i].isEmpty() || lines[i].startsWith(u'#'))
            continue;
        const QStringList fields = lines[i].split(u" | "_s);
        if (fields.size() != 2 || fields[0].isEmpty() || fields[1].isEmpty())
            return damaged(path, u"értelmezhetetlen a(z) %1. sora."_s.arg(i + 1));
        known.append({fields[0], fields[1].split(u"; "_s)});
    }
    return known;
}

QVector<Choice> choices_of(const QVector<KnownMeanings> &known, const Lexicon &lexicon, Language language,
                           const MeaningFeatures &features) {
    QHash<QString, QVector<qsizetype>> places;
    for (qsizetype i = 0; i < lexicon.in(language).size(); ++i)
        places[base_form(lexicon.in(language)[i].headword, language)].append(i);
    QVector<Choice> choices;
    for (const auto &[headword, accepted] : known) {
        QStringList bases;
        for (const QString &meaning : accepted)
            bases.append(base_form(meaning, other(language)));
        Choice choice{headword, {}, {}};
        for (const qsizetype place : places.value(headword)) {
            const Entry &entry = lexicon.in(language)[place];
            choice.features += features.of(language, entry.headword, entry.meanings);
            for (const QString &meaning : entry.meanings)
                choice.accepted.append(bases.contains(base_form(meaning, other(language))));
        }
        if (choice.accepted.contains(true))
            choices.append(choice);
    }
    return choices;
}

Features fitted_weights(const QVector<Choice> &choices, const Used &used) {
    const Features scale = spread(choices);
    const QVector<Choice> ready = scaled(choices, scale, used);
    // Adam (Kingma and Ba, 2015): the slope's mean over the last steps, by the root of its mean square.
    Features weights{};
    Features mean{};
    Features square{};
    for (int step = 1; step <= steps; ++step) {
        Features slope{};
        for (const Choice &choice : ready)
            add_slope(slope, choice, weights);
        for (std::size_t i = 0; i < feature_count; ++i) {
            slope[i] -= price_of_weight * weights[i];
            mean[i] = 0.9 * mean[i] + 0.1 * slope[i];
            square[i] = 0.99 * square[i] + 0.01 * slope[i] * slope[i];
            const double full_mean = mean[i] / (1 - std::pow(0.9, step));
            const double full_square = square[i] / (1 - std::pow(0.99, step));
            weights[i] += step_length * full_mean / (std::sqrt(full_square) + 1e-9);
        }
    }
    for (std::size_t i = 0; i < feature_count; ++i)
        weights[i] = used[i] ? weights[i] / scale[i] : 0;
    return weights;
}

qsizetype right_among_first(const QVector<Choice> &choices, const Features &weights, qsizetype places) {
    return std::ranges::count_if(choices, [&](const Choice &choice) {
        QVector<qsizetype> order(choice.features.size());
        std::iota(order.begin(), order.end(), 0);
        std::ranges::stable_sort(order, std::ranges::greater(),
                                 [&](qsizetype i) { return score(choice.features[i], weights); });
        order.resize(std::min(places, order.size()));
        return std::ranges::any_of(order, [&](qsizetype i) { return choice.accepted[i]; });
    });
}

qsizetype cross_validated(const QVector<Choice> &choices, const Used &used, qsizetype places) {
    qsizetype right = 0;
    for (int part = 0; part < parts; ++part) {
        QVector<Choice> fitted;
        QVector<Choice> tried;
        for (qsizetype i = 0; i < choices.size(); ++i)
            (i % parts == part ? tried : fitted).append(choices[i]);
        right += right_among_first(tried, fitted_weights(fitted, used), places);
    }
    return right;
}

}  // namespace freedict
