#include "freedict/supplement.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "tools/sample_package.h"

using namespace Qt::StringLiterals;

namespace {

using freedict::Language;
using freedict::SupplementEntry;
using freedict::SupplementMeaning;
using Back = freedict::SupplementMeaning::Back;

QVector<SupplementEntry> entries_of(const QByteArray &text, Language language = Language::english) {
    auto result = freedict::parse_supplement(text, u"s.txt"_s, language);
    if (const auto *failure = std::get_if<Failure>(&result)) {
        ADD_FAILURE() << qPrintable(failure->sentence);
        return {};
    }
    return std::get<QVector<SupplementEntry>>(result);
}

std::string sentence(const QByteArray &text, Language language = Language::english) {
    const auto result = freedict::parse_supplement(text, u"s.txt"_s, language);
    const auto *failure = std::get_if<Failure>(&result);
    return failure == nullptr ? std::string() : failure->sentence.toStdString();
}

TEST(Supplement, an_entry_has_a_headword_a_part_of_speech_and_meanings_that_may_lead_back) {
    const auto entries = entries_of("# comment\n\nbook | noun | könyv <<; füzet <; libretto (operáé)\n");

    ASSERT_EQ(entries.size(), 1);
    EXPECT_EQ(
        entries[0],
        (SupplementEntry{u"book"_s,
                         u"noun"_s,
                         {{u"könyv"_s, Back::in_front}, {u"füzet"_s, Back::yes}, {u"libretto (operáé)"_s, Back::no}}}));
}

TEST(Supplement, an_empty_file_has_no_entries) {
    EXPECT_TRUE(entries_of("").isEmpty());
    EXPECT_TRUE(entries_of("\n# nothing\n\n").isEmpty());
}

TEST(Supplement, the_same_headword_may_be_two_parts_of_speech) {
    EXPECT_EQ(entries_of("warm | adjective | meleg\nto warm | verb | melegít\nwarm | noun | meleg\n").size(), 3);
}

TEST(Supplement, a_damaged_line_is_told_with_file_and_line) {
    const std::pair<const char *, const char *> damaged[] = {
        {"book | könyv", "nem „címszó | szófaj | jelentések” áll."},
        {"book | noun | könyv | x", "nem „címszó | szófaj | jelentések” áll."},
        {" | noun | könyv", "üres vagy hibásan írt címszó áll."},
        {"a  b | noun | könyv", "üres vagy hibásan írt címszó áll."},
        {"book | nuon | könyv", "ismeretlen szófaj áll („nuon”)."},
        {"book | noun | könyv: x", "„:” jel áll, amely a szótárfájl jeleit zavarná."},
        {"a ÷ b | noun | könyv", "„÷” jel áll, amely a szótárfájl jeleit zavarná."},
        {"book | noun | kûnyv", "a „û” karakter nincs meg a windows-1250 kódlapon."},
        {"book | noun | k\u0151nyv; ko\u0308nyv", "külön ékezettel írt betű áll."},
        {"to book | noun | könyv", "„to ” kezdi a(z) „to book” címszót, pedig nem ige."},
        {"book | verb | foglal", "hiányzik a „to ” a(z) „book” ige elől."},
        {"book | noun | könyv; könyv <", "kétszer áll a(z) „könyv” jelentés."},
        {"book | noun | könyv;füzet", "üres vagy hibásan írt jelentés áll („könyv;füzet”)."},
        {"book | noun | könyv; ", "üres vagy hibásan írt jelentés áll („”)."},
        {"book | noun | könyv <<<", "üres vagy hibásan írt jelentés áll („könyv <<<”)."},
    };
    for (const auto &[line, reason] : damaged) {
        const QByteArray text = line;
        EXPECT_EQ(sentence("# one\ngood | adjective | jó\n" + text + '\n'),
                  std::string("A(z) „s.txt” fájl 3. sorában ") + reason)
            << line;
    }
}

TEST(Supplement, an_entry_that_is_there_already_is_told_with_both_places) {
    EXPECT_EQ(sentence("good | adjective | jó\n\ngood | adjective | derék\n"),
              "A(z) „s.txt” fájl 3. sorában olyan szócikk áll, amely már megvan: „s.txt” 1. sora.");
}

TEST(Supplement, a_file_that_is_cut_off_or_in_another_encoding_is_told) {
    EXPECT_EQ(sentence("good | adjective | jó"), "A(z) „s.txt” fájl sérült: az utolsó sora csonka.");
    EXPECT_EQ(sentence("good | adjective | j\xF3\n"), "A(z) „s.txt” fájl sérült: nem UTF-8 kódolású.");
}

TEST(Supplement, a_hungarian_headword_may_begin_with_to) {
    EXPECT_EQ(entries_of("to | noun | lake\n", Language::hungarian).size(), 1);
}

TEST(SupplementFolder, both_directions_are_read_by_the_names_of_their_files) {
    const QTemporaryDir folder;
    QDir(folder.path()).mkdir(u"english"_s);
    QDir(folder.path()).mkdir(u"hungarian"_s);
    SamplePackage::put(folder.filePath(u"english/b.txt"_s), "b | noun | két\n");
    SamplePackage::put(folder.filePath(u"english/a.txt"_s), "a | noun | egy\n");
    SamplePackage::put(folder.filePath(u"hungarian/c.txt"_s), "c | noun | three\n");

    const auto result = freedict::read_supplement(folder.path());

    const auto &supplement = std::get<freedict::Supplement>(result);
    ASSERT_EQ(supplement.english.size(), 2);
    EXPECT_EQ(supplement.english[0].headword, u"a"_s);
    ASSERT_EQ(supplement.hungarian.size(), 1);
}

TEST(SupplementFolder, one_without_entries_is_told) {
    const QTemporaryDir folder;

    const auto result = freedict::read_supplement(folder.path());

    ASSERT_TRUE(std::holds_alternative<Failure>(result));
    EXPECT_EQ(std::get<Failure>(result).sentence,
              u"A(z) „%1/english” mappában nincs szótárkiegészítés."_s.arg(folder.path()));
}

}  // namespace
