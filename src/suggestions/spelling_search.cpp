#include "suggestions/spelling_search.h"

#include <algorithm>
#include <limits>

#include "suggestions/edit_distance.h"

namespace íráskereső {
namespace {

constexpr qsizetype longer_or_shorter = 2;
constexpr int no_bound = std::numeric_limits<int>::max() / 4;

/// The letters without accents, capitals and what may be left out.
QByteArray bare(QByteArrayView text) {
    QByteArray letters;
    for (const char byte : text) {
        if (!betűk::mellékes(byte))
            letters.append(betűk::ékezettelen(byte));
    }
    return letters;
}

/// Calls `visit(item)` for the headwords that are about as long and whose letters `fits`.
template <typename Fits, typename Visit>
void scan(címszólista &headwords, qsizetype length, const elavult &out_of_date, Fits fits, Visit visit) {
    for (qsizetype other = std::max<qsizetype>(1, length - longer_or_shorter); other <= length + longer_or_shorter;
         ++other) {
        if (out_of_date())
            return;
        const auto group = headwords.csoport(other);
        const qsizetype count = group.darab();
        for (qsizetype i = 0; i < count; ++i) {
            if (fits(group.halmazok[i]))
                visit(group.elem(i));
        }
    }
}

/// The noun and the verb of the same letters, which are neighbours, are one.
void add(QVector<közelítés> &found, const címszólista::tétel &item, int cost) {
    if (!found.isEmpty() && found.last().kulcs == item.kulcs) {
        found.last().csak_ige = found.last().csak_ige && item.ige;
        found.last().gyakoriság = std::max(found.last().gyakoriság, item.gyakoriság);
        return;
    }
    found.append(
        {.kulcs = item.kulcs.toByteArray(), .csak_ige = item.ige, .gyakoriság = item.gyakoriság, .költség = cost});
}

/// The text with "ly" for one of its "j" or the other way round, which sound the same: the usual slip in Hungarian; in
/// English with "ph" for "f".
QVector<QByteArray> heard_alike(const QByteArray &text, címszólista::nyelv language) {
    const bool hungarian = language == címszólista::nyelv::magyar;
    const QByteArray two = hungarian ? "ly" : "ph";
    const QByteArray one = hungarian ? "j" : "f";
    QVector<QByteArray> variants;
    const auto replaced = [&](qsizetype at, qsizetype length, const QByteArray &by) {
        QByteArray variant = text;
        variants.append(variant.replace(at, length, by));
    };
    for (qsizetype i = 0; i < text.size() && variants.size() < 4; ++i) {
        if (betűk::kicsi(text[i]) == one.front())
            replaced(i, 1, two);
        else if (i + 1 < text.size() && betűk::kicsi(text[i]) == two.front() && betűk::kicsi(text[i + 1]) == two.back())
            replaced(i, 2, one);
    }
    return variants;
}

void sort_by_value(QVector<közelítés> &found, int weight_of_cost) {
    for (közelítés &one : found)
        one.érték = weight_of_cost * one.költség - one.gyakoriság;
    std::ranges::stable_sort(found, {}, &közelítés::érték);
}

/// Headwords of the letters of a text that sounds like what was typed; one that was found by its letters costs less
/// now.
void add_same_letters(QVector<közelítés> &found, címszólista &headwords, const QByteArray &text,
                      címszólista::nyelv language) {
    const auto group = headwords.csoport(text.size());
    const betűhalmaz set = betűk::halmaza(text);
    const QByteArray letters = bare(text);
    const eltérésmérő distance(text, language);
    for (qsizetype i = 0; i < group.darab(); ++i) {
        if (group.halmazok[i] != set || bare(group.elem(i).kulcs) != letters)
            continue;
        const auto item = group.elem(i);
        found.removeIf([&](const közelítés &other) { return other.kulcs == item.kulcs; });
        add(found, item, eltérésköltség::elöl + distance.mér(item.kulcs, no_bound));
    }
}

}  // namespace

QVector<közelítés> írásmódok(címszólista &címszavak, címszólista::nyelv nyelv, const QByteArray &szöveg,
                             const elavult &régi) {
    const QByteArray letters = bare(szöveg);
    const betűhalmaz set = betűk::halmaza(szöveg);
    const eltérésmérő distance(szöveg, nyelv);
    QVector<közelítés> found;
    if (letters.isEmpty())
        return found;
    scan(
        címszavak, szöveg.size(), régi, [set](betűhalmaz other) { return other == set; },
        [&](const címszólista::tétel &item) {
            if (item.kulcs != szöveg && bare(item.kulcs) == letters)
                add(found, item, distance.mér(item.kulcs, no_bound));
        });
    constexpr int weight_of_cost = 24;
    sort_by_value(found, weight_of_cost);
    return found;
}

QVector<közelítés> elírások(címszólista &címszavak, címszólista::nyelv nyelv, const QByteArray &szöveg,
                            qsizetype legfeljebb, const elavult &régi) {
    const eltérésmérő distance(szöveg, nyelv);
    const int bound = distance.szokásos_határ();
    QVector<közelítés> found;
    if (bound == 0)
        return found;
    const betűhalmaz set = betűk::halmaza(szöveg);
    const int surplus = eltérésmérő::legnagyobb_többlet(bound);
    const int difference = eltérésmérő::legnagyobb_eltérés(bound);
    const QByteArray letters = bare(szöveg);
    scan(
        címszavak, szöveg.size(), régi,
        [=](betűhalmaz other) {
            const int more = betűk::többlet(set, other);
            const int fewer = betűk::többlet(other, set);
            return more <= surplus && fewer <= surplus && more + fewer <= difference;
        },
        [&](const címszólista::tétel &item) {
            const int cost = distance.mér(item.kulcs, bound);
            if (cost <= bound && bare(item.kulcs) != letters)
                add(found, item, cost);
        });
    for (const QByteArray &variant : heard_alike(szöveg, nyelv))
        add_same_letters(found, címszavak, variant, nyelv);
    constexpr int weight_of_cost = 16;
    sort_by_value(found, weight_of_cost);
    if (found.size() > legfeljebb)
        found.resize(legfeljebb);
    return found;
}

}  // namespace íráskereső
