#include "freedict/freedict_package.h"

#include <gtest/gtest.h>

#include "tools/sample_package.h"

using namespace Qt::StringLiterals;

namespace {

using freedict::Entry;
using freedict::Package;
using freedict::PackageResult;

PackageResult parsed(const SamplePackage &sample) {
    return freedict::parse_package(sample.index(), sample.data(), u"sample"_s);
}

QVector<Entry> entries_of(const SamplePackage &sample) {
    PackageResult result = parsed(sample);
    if (const auto *failure = std::get_if<Failure>(&result)) {
        ADD_FAILURE() << qPrintable(failure->sentence);
        return {};
    }
    return std::get<Package>(result).entries;
}

QString sentence(const SamplePackage &sample) {
    const PackageResult result = parsed(sample);
    const auto *failure = std::get_if<Failure>(&result);
    return failure == nullptr ? QString() : failure->sentence;
}

TEST(FreedictEntry, one_meaning_stands_as_it_is) {
    const auto entries = entries_of(SamplePackage().add("apple /ˈapəl/\n1. alma\n"));

    EXPECT_EQ(entries, (QVector<Entry>{{u"apple"_s, {u"1. alma"_s}, u"ˈapəl"_s}}));
}

TEST(FreedictEntry, several_meanings_lose_their_numbers) {
    const auto entries = entries_of(SamplePackage().add("to allow /təʊ/\n1. enged\n2. 2. megenged\n3.  ad\n"));

    EXPECT_EQ(entries, (QVector<Entry>{{u"to allow"_s, {u"enged"_s, u"2. megenged"_s, u" ad"_s}, u"təʊ"_s}}));
}

TEST(FreedictEntry, ten_meanings_and_more_are_numbered_with_two_digits) {
    QByteArray definition = "go /x/\n";
    for (int i = 1; i <= 12; ++i)
        definition += QByteArray::number(i) + ". m" + QByteArray::number(i) + '\n';

    const auto entries = entries_of(SamplePackage().add(definition));

    ASSERT_EQ(entries.size(), 1);
    EXPECT_EQ(entries[0].meanings.size(), 12);
    EXPECT_EQ(entries[0].meanings.last(), u"m12"_s);
}

TEST(FreedictEntry, the_headword_may_hold_a_slash) {
    const auto entries = entries_of(SamplePackage().add("he/she is /hiː ʃiː/\nő van\n").add("a /b /c/\nd\n"));

    ASSERT_EQ(entries.size(), 2);
    EXPECT_EQ(entries[0].headword, u"he/she is"_s);
    EXPECT_EQ(entries[1].headword, u"a /b"_s);
}

TEST(FreedictEntry, the_headword_is_taken_from_the_definition_and_not_from_the_index) {
    const auto entries = entries_of(SamplePackage().add("00648 gramm", "0,0648 gramm /x/\ngrain\n"));

    ASSERT_EQ(entries.size(), 1);
    EXPECT_EQ(entries[0].headword, u"0,0648 gramm"_s);
}

TEST(FreedictEntry, a_description_of_the_package_is_no_entry) {
    const auto entries = entries_of(SamplePackage().add("00databaseurl", "unknown\n").add("apple /x/\nalma\n"));

    ASSERT_EQ(entries.size(), 1);
    EXPECT_EQ(entries[0].headword, u"apple"_s);
}

TEST(FreedictEntry, a_byte_order_mark_is_not_dropped_in_silence) {
    const auto entries =
        entries_of(SamplePackage().add("\xEF\xBB\xBF"
                                       "apple /x/\nalma\n"));

    ASSERT_EQ(entries.size(), 1);
    EXPECT_EQ(entries[0].headword, u"\uFEFFapple"_s);
}

TEST(FreedictEntry, a_definition_that_makes_no_sense_is_named) {
    const char *const senseless[] = {
        "apple\nalma\n",                   // no pronunciation
        "apple /x\nalma\n",                // its end missing
        "apple/\nalma\n",                  // its beginning missing
        " /x/\nalma\n",                    // no headword
        "  /x/\nalma\n",                   // a blank one
        "apple /x/\n",                     // no meaning
        "apple /x/\n\n",                   // an empty one
        "apple /x/\n1. alma\n2.  \n",      // a blank one among others
        "apple /x/\nalma\nkörte\n",        // not numbered
        "apple /x/\n1. alma\n3. körte\n",  // wrongly numbered
        "apple /x/\n1. alma\n2.körte\n",   // the blank missing
        "apple /x/\nalma",                 // cut off
        "apple /x/\nal\xC3\n",             // no UTF-8
        "apple /\xFF/\nalma\n",            // nor here
        "apple /x/\nal\rma\n",             // a line end of another kind
        "app\tle /x/\nalma\n",             // a control character in the headword
        "apple /x/\nalma\xC2\x85\n",       // and one of Latin-1
        "",                                // nothing
    };
    for (const char *definition : senseless) {
        const SamplePackage sample = SamplePackage().add("pear /x/\nkörte\n").add("%1 apple", definition);

        EXPECT_EQ(sentence(sample),
                  u"A(z) „sample.dict.dz” fájl sérült: értelmezhetetlen a(z) "
                  "„%1 apple” szócikk (az index 3. sora)."_s)
            << definition;
    }
}

TEST(FreedictPackage, its_description_gives_name_edition_count_and_conditions) {
    const PackageResult result = parsed(SamplePackage().state(12));

    const auto &package = std::get<Package>(result);
    EXPECT_EQ(package.name, u"Sample FreeDict Dictionary"_s);
    EXPECT_EQ(package.edition, u"1.2.3"_s);
    EXPECT_EQ(package.stated_headwords, 12);
    EXPECT_EQ(package.licence,
              u"Copyright (C) 2000 Somebody and somebody else Available under the terms "
              "of the GNU General Public License ver. 2.0."_s);
}

TEST(FreedictPackage, a_description_that_lacks_anything_of_that_is_refused) {
    const std::pair<const char *, const char *> missing[] = {
        {"Sample FreeDict Dictionary", ""},
        {"Edition: 1.2.3", "Edition:"},
        {"Edition: 1.2.3\n", ""},
        {"Size: COUNT headwords\n", ""},
        {"COUNT", "many"},
        {"headwords", "words"},
        {"Availability:\n", ""},
        {"Public License", "Licence"},
        {"Availability:", "Availability:\n\nNotes:"},
        {"Somebody", "\xFF"},
    };
    for (const auto &[part, by] : missing) {
        EXPECT_EQ(sentence(SamplePackage().describe(part, by)),
                  u"A(z) „sample.dict.dz” fájl sérült: a csomag leírásából (00databaseinfo) hiányzik a "
                  "név, a kiadás, a címszavak száma vagy a GNU GPL engedély."_s)
            << part;
    }
}

TEST(FreedictPackage, a_package_without_a_description_is_refused) {
    const PackageResult result = freedict::parse_package("apple\tA\tP\n", "apple /x/\nalma\n", u"sample"_s);

    ASSERT_TRUE(std::holds_alternative<Failure>(result));
    EXPECT_EQ(std::get<Failure>(result).sentence,
              u"A(z) „sample.dict.dz” fájl sérült: nincs benne a csomag leírása (00databaseinfo)."_s);
}

}  // namespace
