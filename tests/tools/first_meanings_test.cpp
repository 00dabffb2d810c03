// What learners get of the dictionaries of this build: the right meaning first, and a hit for the words they meet.

#include <gtest/gtest.h>

#include <algorithm>

#include "tools/built_dictionary.h"

using namespace Qt::StringLiterals;

namespace {

using freedict::Language;

const QString lists = u"" ZIMBORA_TEST_DATA "/first_meanings/"_s;
const QString known = u"" ZIMBORA_KNOWN_MEANINGS "/"_s;

/// The part of a list's words whose first meaning is accepted; the others are named in `missed`.
double right_first(const QString &file, Language language, const QList<AcceptedMeanings> &list, QStringList &missed) {
    const BuiltDictionary dictionary(file);
    for (const auto &[headword, accepted] : list) {
        const QString first = dictionary.meanings(headword).value(0);
        const bool right = std::ranges::any_of(accepted, [&](const QString &one) {
            return freedict::base_form(one, language) == freedict::base_form(first, language);
        });
        if (!right)
            missed.append(headword + u'=' + first);
    }
    return 1 - static_cast<double>(missed.size()) / static_cast<double>(list.size());
}

TEST(FirstMeanings, are_right_for_everyday_english_words) {
    const auto list = accepted_meanings(lists + u"english.txt"_s);
    QStringList missed;

    EXPECT_GE(list.size(), 600);
    EXPECT_GE(right_first(u"am.txt"_s, Language::hungarian, list, missed), 0.94) << qPrintable(missed.join(u'\n'));
}

TEST(FirstMeanings, are_right_for_everyday_hungarian_words) {
    const auto list = accepted_meanings(lists + u"hungarian.txt"_s);
    QStringList missed;

    EXPECT_GE(list.size(), 400);
    EXPECT_GE(right_first(u"ma.txt"_s, Language::english, list, missed), 0.94) << qPrintable(missed.join(u'\n'));
}

TEST(FirstMeanings, are_tested_with_words_that_the_weights_do_not_come_from) {
    for (const char *name : {"english.txt", "hungarian.txt"}) {
        QSet<QString> fitted;
        for (const auto &one : accepted_meanings(known + QString::fromLatin1(name)))
            fitted.insert(one.headword);
        for (const auto &one : accepted_meanings(lists + QString::fromLatin1(name)))
            EXPECT_FALSE(fitted.contains(one.headword)) << qPrintable(one.headword);
    }
}

TEST(FirstMeanings, of_a_verb_that_is_beyond_comparison_more_usual_than_its_noun_are_the_verbs) {
    const BuiltDictionary dictionary(u"am.txt"_s);

    EXPECT_EQ(dictionary.meanings(u"go"_s).value(0), u"megy"_s);
    EXPECT_EQ(dictionary.meanings(u"see"_s).value(0), u"lát"_s);
    EXPECT_EQ(dictionary.meanings(u"offer"_s).value(0), u"ajánlat"_s);
}

/// What a learner may look up instead of a form: the word without a regular ending.
QStringList base_forms_of(const QString &word) {
    static const std::pair<const char *, const char *> endings[] = {
        {"'s", ""}, {"s", ""},   {"es", ""},   {"ies", "y"}, {"ves", "f"}, {"ves", "fe"},
        {"ed", ""}, {"ed", "e"}, {"d", ""},    {"ied", "y"}, {"ing", ""},  {"ing", "e"},
        {"er", ""}, {"er", "e"}, {"ier", "y"}, {"est", ""},  {"est", "e"}, {"iest", "y"}};
    QStringList bases;
    for (const auto &[ending, instead] : endings) {
        const QString tail = QString::fromLatin1(ending);
        if (!word.endsWith(tail) || word.size() - tail.size() < 2)
            continue;
        const QString base = word.chopped(tail.size()) + QString::fromLatin1(instead);
        bases.append(base);
        if (base[base.size() - 1] == base[base.size() - 2])
            bases.append(base.chopped(1));
    }
    return bases;
}

bool leads_to_hit(const BuiltDictionary &dictionary, const QString &word) {
    const QString small = word.toLower();
    const auto as_it_stands = [&](const QString &form) {
        return dictionary.has(form) || dictionary.has_form(form) ||
               dictionary.has(form.first(1).toUpper() + form.sliced(1));
    };
    return as_it_stands(word) || as_it_stands(small) || dictionary.has(word.toUpper()) ||
           std::ranges::any_of(base_forms_of(small), as_it_stands);
}

/// The first `count` words of spoken English, without names and pieces of words, that lead to no hit.
QStringList words_without_hit(qsizetype count) {
    const QString data = u"" ZIMBORA_TEST_DATA "/"_s;
    QStringList words = lines_of_list(data + u"spoken_english.txt"_s).first(count);
    QSet<QString> left_out;
    for (const char *name : {"left_out_names.txt", "left_out_scraps.txt"}) {
        for (const QString &word : lines_of_list(data + QString::fromLatin1(name)))
            left_out.insert(word);
    }
    const BuiltDictionary dictionary(u"am.txt"_s);
    words.removeIf([&](const QString &word) { return left_out.contains(word) || leads_to_hit(dictionary, word); });
    return words;
}

TEST(SpokenEnglish, all_of_the_first_500_words_lead_to_a_hit) {
    EXPECT_EQ(words_without_hit(500).join(u' ').toStdString(), "");
}

TEST(SpokenEnglish, of_the_first_2000_words_995_in_1000_lead_to_a_hit) {
    const QStringList missed = words_without_hit(2'000);

    EXPECT_LE(missed.size(), 10) << qPrintable(missed.join(u' '));
}

TEST(SpokenEnglish, of_the_first_10000_words_98_in_100_lead_to_a_hit) {
    const QStringList missed = words_without_hit(10'000);

    EXPECT_LE(missed.size(), 200) << qPrintable(missed.join(u' '));
}

}  // namespace
