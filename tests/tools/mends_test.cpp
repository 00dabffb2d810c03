// Typing errors, doubled headwords, capitals and pronunciations.

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "freedict/capitals.h"
#include "freedict/doubled_headwords.h"
#include "freedict/pronunciations.h"
#include "freedict/typing_errors.h"
#include "tools/sample_package.h"

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
        SamplePackage::put(base + QStringLiteral(".aff"), "SET UTF-8\n");
        SamplePackage::put(base + QStringLiteral(".dic"), text);
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
    const Lexicon lexicon = lexicon_of({{QStringLiteral("apple souce"), {QStringLiteral("almaszósz")}},
                                        {QStringLiteral("apple sauce"), {QStringLiteral("almaszósz")}}});

    EXPECT_EQ(mended(lexicon, QStringLiteral("apple souce")), QStringLiteral("apple sauce"));
}

TEST(TypingErrors, one_with_another_meaning_or_at_its_beginning_or_that_is_known_stays) {
    const Lexicon lexicon = lexicon_of({{QStringLiteral("apple souce"), {QStringLiteral("valami más")}},
                                        {QStringLiteral("apple sauce"), {QStringLiteral("almaszósz")}},
                                        {QStringLiteral("opple"), {QStringLiteral("alma")}},
                                        {QStringLiteral("apple"), {QStringLiteral("alma")}},
                                        {QStringLiteral("may"), {QStringLiteral("lehet")}},
                                        {QStringLiteral("mauy"), {QStringLiteral("más")}}});

    for (const Entry &entry : lexicon.english)
        EXPECT_EQ(mended(lexicon, entry.headword), entry.headword);
}

TEST(TypingErrors, a_letter_that_stands_three_times_makes_a_known_word) {
    const Lexicon lexicon = lexicon_of({{QStringLiteral("promisssory note"), {QStringLiteral("álllvány")}},
                                        {QStringLiteral("psssst"), {QStringLiteral("sssz")}}});

    EXPECT_EQ(mended(lexicon, QStringLiteral("promisssory note")), QStringLiteral("promissory note"));
    EXPECT_EQ(mended(lexicon, QStringLiteral("álllvány")), QStringLiteral("állvány"));
    EXPECT_EQ(mended(lexicon, QStringLiteral("psssst")), QStringLiteral("psssst"));
}

TEST(TypingErrors, blanks_and_a_bracket_are_mended_without_spelling_dictionaries) {
    const auto mends = freedict::typing_errors(
        lexicon_of({{QStringLiteral("a  b"), {QStringLiteral(" c"), QStringLiteral("sorozat (pókerban(")}}}), nullptr);

    ASSERT_EQ(mends.size(), 3);
    EXPECT_EQ(mends[0].mended, QStringLiteral("a b"));
    EXPECT_EQ(mends[1].mended, QStringLiteral("c"));
    EXPECT_EQ(mends[2].mended, QStringLiteral("sorozat (pókerban)"));
}

TEST(Renaming, an_entry_whose_name_is_there_is_joined_and_its_meanings_stand_once) {
    Lexicon lexicon{{{QStringLiteral("wrong"), {QStringLiteral("a"), QStringLiteral("b")}},
                     {QStringLiteral("right"), {QStringLiteral("b"), QStringLiteral("c")}}},
                    {{QStringLiteral("b"), {QStringLiteral("wrong"), QStringLiteral("right")}}}};

    const auto done =
        freedict::rename_texts(lexicon, Language::english, {{QStringLiteral("wrong"), QStringLiteral("right")}});

    ASSERT_EQ(lexicon.english.size(), 1);
    EXPECT_EQ(lexicon.english[0].meanings,
              (QStringList{QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("a")}));
    EXPECT_EQ(lexicon.hungarian[0].meanings, QStringList{QStringLiteral("right")});
    EXPECT_EQ(done.joined, 1);
    EXPECT_EQ(done.doubled_in_joined, 1);
    EXPECT_EQ(done.doubled, 1);
}

TEST(DoubledHeadwords, forms_that_another_one_has_too_are_joined_and_others_are_counted) {
    const auto doubled = freedict::doubled_headwords(
        {{QStringLiteral("to get, got"), {QStringLiteral("a")}},
         {QStringLiteral("to get, got, gotten"), {QStringLiteral("a"), QStringLiteral("b")}},
         {QStringLiteral("to lie, lay, lain"), {QStringLiteral("c")}},
         {QStringLiteral("to lie, lied"), {QStringLiteral("d")}},
         {QStringLiteral("to burn"), {QStringLiteral("e")}},
         {QStringLiteral("to burn, burnt"), {QStringLiteral("e")}}});

    EXPECT_EQ(doubled.joined,
              (QHash<QString, QString>{{QStringLiteral("to get, got"), QStringLiteral("to get, got, gotten")}}));
    EXPECT_EQ(doubled.left, 2);
}

TEST(Capitals, are_given_back_where_a_word_is_accepted_only_with_them) {
    const Spelling spelling = sample_spelling();
    const auto supplement = std::get<0>(freedict::parse_supplement("English | adjective | angol\nTV | noun | tévé\n",
                                                                   QStringLiteral("s"), Language::english));

    const auto names =
        freedict::texts_with_capitals(lexicon_of({{QStringLiteral("monday"), {QStringLiteral("x")}},
                                                  {QStringLiteral("may"), {QStringLiteral("x")}},
                                                  {QStringLiteral("on monday i'm 10th"), {QStringLiteral("x")}},
                                                  {QStringLiteral("english tv"), {QStringLiteral("x")}},
                                                  {QStringLiteral("unknownword"), {QStringLiteral("x")}}}),
                                      Language::english, spelling, {supplement, {}});

    EXPECT_EQ(names,
              (QHash<QString, QString>{{QStringLiteral("monday"), QStringLiteral("Monday")},
                                       {QStringLiteral("on monday i'm 10th"), QStringLiteral("on Monday I'm 10th")},
                                       {QStringLiteral("english tv"), QStringLiteral("English TV")}}));
}

TEST(Pronunciation, the_stress_stands_before_the_syllable) {
    const std::pair<const char *, const char *> words[] = {
        {"dɪstɹˈɔɪ", "dɪˈstɹɔɪ"},           {"ˈapəl", "ˈapəl"},     {"kəmpjˈuːtə", "kəmˈpjuːtə"},
        {"ˌʌndəstˈandɪŋ", "ˌʌndəˈstandɪŋ"}, {"tʃˈɜːtʃ", "ˈtʃɜːtʃ"}, {"ɪndʒˈɔɪ", "ɪnˈdʒɔɪ"},
    };
    for (const auto &[before, after] : words) {
        EXPECT_EQ(freedict::mended_pronunciation(QStringLiteral("x"), QString::fromUtf8(before)).toStdString(), after);
    }
}

TEST(Pronunciation, sy_and_sg_are_read_out) {
    EXPECT_EQ(freedict::mended_pronunciation(QStringLiteral("to give sy sg"), QStringLiteral("tə ɡˈɪv sˈaɪ ˌɛsdʒˈiː")),
              QStringLiteral("tə ˈɡɪv ˈsʌmbədi ˈsʌmθɪŋ"));
}

TEST(Pronunciation, the_file_is_ordered_like_the_dictionary_and_begins_with_a_notice) {
    freedict::Package package;
    package.name = QStringLiteral("N: M");

    const QList<QByteArray> lines =
        freedict::pronunciation_text(package, {{QStringLiteral("to go"), {}, QStringLiteral("tə ɡˈəʊ")},
                                               {QStringLiteral("goal"), {}, QStringLiteral("ɡˈəʊl")},
                                               {QStringLiteral("new"), {}},
                                               {QStringLiteral("Ada"), {}, QStringLiteral("ˈeɪdə")}})
            .split('\n');

    ASSERT_EQ(lines.size(), 5);
    EXPECT_GE(lines[0].size(), 101);
    EXPECT_FALSE(lines[0].contains(':'));
    EXPECT_EQ(lines[1].toStdString(), "Ada:ˈeɪdə\r");
    EXPECT_EQ(lines[2].toStdString(), "to go:tə ˈɡəʊ\r");
    EXPECT_EQ(lines[3].toStdString(), "goal:ˈɡəʊl\r");
}

}  // namespace
