// Typing errors, doubled headwords, capitals and pronunciations.

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "freedict/capitals.h"
#include "freedict/doubled_headwords.h"
#include "freedict/pronunciations.h"
#include "freedict/typing_errors.h"
#include "tools/sample_package.h"

using namespace Qt::StringLiterals;

namespace {

using freedict::Entry;
using freedict::Language;
using freedict::Lexicon;
using freedict::Mend;
using freedict::Spelling;

/// Spelling dictionaries of a few words.
Spelling sample_spelling() {
    const QTemporaryDir folder;
    const std::pair<const char *, QByteArray> words[] = {
        {"en_GB", "8\napple\nsauce\npromissory\nnote\nMonday\nmay\nMay\nEnglish\n"},
        {"en_US", "5\napple\nsauce\nenglish\ncolor\nprairie\n"},
        {"hu_HU", "4\nállvány\nbuli\nbúcsú\nsokk\n"},
    };
    for (const auto &[name, text] : words) {
        const QString base = folder.filePath(QString::fromLatin1(name));
        SamplePackage::put(base + u".aff"_s, "SET UTF-8\n");
        SamplePackage::put(base + u".dic"_s, text);
    }
    auto read = freedict::read_spelling(folder.path());
    return std::get<Spelling>(std::move(read));
}

QString mended(const Lexicon &lexicon, const QString &text) {
    const Spelling spelling = sample_spelling();
    for (const Mend &mend : freedict::typing_errors(lexicon, &spelling)) {
        if (mend.text == text)
            return mend.mended;
    }
    return text;
}

Lexicon lexicon_of(const QVector<Entry> &english) {
    return {english, {}};
}

TEST(TypingErrors, a_word_one_letter_from_a_known_one_with_the_same_meaning_is_mended) {
    const Lexicon lexicon = lexicon_of({{u"apple souce"_s, {u"almaszósz"_s}}, {u"apple sauce"_s, {u"almaszósz"_s}}});

    EXPECT_EQ(mended(lexicon, u"apple souce"_s), u"apple sauce"_s);
}

TEST(TypingErrors, one_with_another_meaning_or_at_its_beginning_or_that_is_known_stays) {
    const Lexicon lexicon = lexicon_of({{u"apple souce"_s, {u"valami más"_s}},
                                        {u"apple sauce"_s, {u"almaszósz"_s}},
                                        {u"opple"_s, {u"alma"_s}},
                                        {u"apple"_s, {u"alma"_s}},
                                        {u"may"_s, {u"lehet"_s}},
                                        {u"mauy"_s, {u"más"_s}}});

    for (const Entry &entry : lexicon.english)
        EXPECT_EQ(mended(lexicon, entry.headword), entry.headword);
}

TEST(TypingErrors, a_letter_that_stands_three_times_makes_a_known_word) {
    const Lexicon lexicon = lexicon_of({{u"promisssory note"_s, {u"álllvány"_s}}, {u"psssst"_s, {u"sssz"_s}}});

    EXPECT_EQ(mended(lexicon, u"promisssory note"_s), u"promissory note"_s);
    EXPECT_EQ(mended(lexicon, u"álllvány"_s), u"állvány"_s);
    EXPECT_EQ(mended(lexicon, u"psssst"_s), u"psssst"_s);
}

TEST(TypingErrors, blanks_and_a_bracket_are_mended_without_spelling_dictionaries) {
    const auto mends = freedict::typing_errors(lexicon_of({{u"a  b"_s, {u" c"_s, u"sorozat (pókerban("_s}}}), nullptr);

    ASSERT_EQ(mends.size(), 3);
    EXPECT_EQ(mends[0].mended, u"a b"_s);
    EXPECT_EQ(mends[1].mended, u"c"_s);
    EXPECT_EQ(mends[2].mended, u"sorozat (pókerban)"_s);
}

TEST(Renaming, an_entry_whose_name_is_there_is_joined_and_its_meanings_stand_once) {
    Lexicon lexicon{{{u"wrong"_s, {u"a"_s, u"b"_s}}, {u"right"_s, {u"b"_s, u"c"_s}}},
                    {{u"b"_s, {u"wrong"_s, u"right"_s}}}};

    const auto done = freedict::rename_texts(lexicon, Language::english, {{u"wrong"_s, u"right"_s}});

    ASSERT_EQ(lexicon.english.size(), 1);
    EXPECT_EQ(lexicon.english[0].meanings, (QStringList{u"b"_s, u"c"_s, u"a"_s}));
    EXPECT_EQ(lexicon.hungarian[0].meanings, QStringList{u"right"_s});
    EXPECT_EQ(done.joined, 1);
    EXPECT_EQ(done.doubled_in_joined, 1);
    EXPECT_EQ(done.doubled, 1);
}

TEST(DoubledHeadwords, forms_that_another_one_has_too_are_joined_and_others_are_counted) {
    const auto doubled = freedict::doubled_headwords({{u"to get, got"_s, {u"a"_s}},
                                                      {u"to get, got, gotten"_s, {u"a"_s, u"b"_s}},
                                                      {u"to lie, lay, lain"_s, {u"c"_s}},
                                                      {u"to lie, lied"_s, {u"d"_s}},
                                                      {u"to burn"_s, {u"e"_s}},
                                                      {u"to burn, burnt"_s, {u"e"_s}}});

    EXPECT_EQ(doubled.joined, (QHash<QString, QString>{{u"to get, got"_s, u"to get, got, gotten"_s}}));
    EXPECT_EQ(doubled.left, 2);
}

TEST(Capitals, are_given_back_where_a_word_is_accepted_only_with_them) {
    const Spelling spelling = sample_spelling();
    const auto supplement = std::get<0>(
        freedict::parse_supplement("English | adjective | angol\nTV | noun | tévé\n", u"s"_s, Language::english));

    const auto names = freedict::texts_with_capitals(lexicon_of({{u"monday"_s, {u"x"_s}},
                                                                 {u"may"_s, {u"x"_s}},
                                                                 {u"on monday i'm 10th"_s, {u"x"_s}},
                                                                 {u"english tv"_s, {u"x"_s}},
                                                                 {u"unknownword"_s, {u"x"_s}}}),
                                                     Language::english, spelling, {supplement, {}});

    EXPECT_EQ(names, (QHash<QString, QString>{{u"monday"_s, u"Monday"_s},
                                              {u"on monday i'm 10th"_s, u"on Monday I'm 10th"_s},
                                              {u"english tv"_s, u"English TV"_s}}));
}

TEST(Pronunciation, the_stress_stands_before_the_syllable) {
    const std::pair<const char *, const char *> words[] = {
        {"dɪstɹˈɔɪ", "dɪˈstɹɔɪ"},           {"ˈapəl", "ˈapəl"},     {"kəmpjˈuːtə", "kəmˈpjuːtə"},
        {"ˌʌndəstˈandɪŋ", "ˌʌndəˈstandɪŋ"}, {"tʃˈɜːtʃ", "ˈtʃɜːtʃ"}, {"ɪndʒˈɔɪ", "ɪnˈdʒɔɪ"},
    };
    for (const auto &[before, after] : words) {
        EXPECT_EQ(freedict::mended_pronunciation(u"x"_s, QString::fromUtf8(before)).toStdString(), after);
    }
}

TEST(Pronunciation, sy_and_sg_are_read_out) {
    EXPECT_EQ(freedict::mended_pronunciation(u"to give sy sg"_s, u"tə ɡˈɪv sˈaɪ ˌɛsdʒˈiː"_s),
              u"tə ˈɡɪv ˈsʌmbədi ˈsʌmθɪŋ"_s);
}

TEST(Pronunciation, the_file_is_ordered_like_the_dictionary_and_begins_with_a_notice) {
    freedict::Package package;
    package.name = u"N: M"_s;

    const QList<QByteArray> lines =
        freedict::pronunciation_text(
            package,
            {{u"to go"_s, {}, u"tə ɡˈəʊ"_s}, {u"goal"_s, {}, u"ɡˈəʊl"_s}, {u"new"_s, {}}, {u"Ada"_s, {}, u"ˈeɪdə"_s}})
            .split('\n');

    ASSERT_EQ(lines.size(), 5);
    EXPECT_GE(lines[0].size(), 101);
    EXPECT_FALSE(lines[0].contains(':'));
    EXPECT_EQ(lines[1].toStdString(), "Ada:ˈeɪdə\r");
    EXPECT_EQ(lines[2].toStdString(), "to go:tə ˈɡəʊ\r");
    EXPECT_EQ(lines[3].toStdString(), "goal:ˈɡəʊl\r");
}

}  // namespace
