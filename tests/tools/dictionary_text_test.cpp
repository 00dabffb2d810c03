#include "freedict/dictionary_text.h"

#include <gtest/gtest.h>

#include "platform/code_page.h"

namespace {

using freedict::Counts;
using freedict::Dictionary;
using freedict::Entry;
using freedict::Package;

Package package_with(const QVector<Entry> &entries) {
    return {.name = QStringLiteral("N"),
            .edition = QStringLiteral("1"),
            .licence = QStringLiteral("L"),
            .stated_headwords = entries.size(),
            .entries = entries};
}

/// The lines behind the notice.
QStringList lines_of(const QVector<Entry> &entries, const Dictionary &dictionary = freedict::english_hungarian) {
    const FileContent text = freedict::dictionary_text(package_with(entries), dictionary);
    if (const auto *failure = std::get_if<Failure>(&text)) {
        ADD_FAILURE() << qPrintable(failure->sentence);
        return {};
    }
    QStringList lines = code_page::decode(std::get<QByteArray>(text)).split(QStringLiteral("\r\n"));
    EXPECT_TRUE(lines.takeLast().isEmpty());
    lines.removeFirst();
    return lines;
}

QString sentence(const Entry &entry, const Dictionary &dictionary) {
    const FileContent text = freedict::dictionary_text(package_with({entry}), dictionary);
    const auto *failure = std::get_if<Failure>(&text);
    return failure == nullptr ? QString() : failure->sentence;
}

QByteArray notice_of(const Package &package) {
    const auto text = std::get<QByteArray>(freedict::dictionary_text(package, freedict::english_hungarian));
    return text.left(text.indexOf("\r\n"));
}

TEST(DictionaryText, an_entry_is_a_line_in_the_code_page_with_a_division_sign_behind_each_meaning) {
    const auto text = std::get<QByteArray>(freedict::dictionary_text(
        package_with({{QStringLiteral("to go"), {QStringLiteral("megy"), QStringLiteral("jár")}},
                      {QStringLiteral("tree"), {QStringLiteral("fő: fű")}}}),
        freedict::hungarian_english));

    EXPECT_EQ(text.mid(text.indexOf('\n') + 1).toStdString(), "to go:megy\xF7j\xE1r\xF7\r\ntree:f\xF5: f\xFB\xF7\r\n");
}

TEST(DictionaryText, the_english_hungarian_packages_circumflexes_become_double_acutes) {
    const auto lines = lines_of({{QStringLiteral("fô"), {QStringLiteral("ûÛ"), QStringLiteral("ôÔ")}}});

    EXPECT_EQ(lines, QStringList{QStringLiteral("fő:űŰ÷őŐ÷")});
}

TEST(DictionaryText, a_circumflex_written_as_a_separate_accent_is_mended_too) {
    const auto lines = lines_of({{QStringLiteral("a"), {QStringLiteral("u\u0302o\u0302")}}});

    EXPECT_EQ(lines, QStringList{QStringLiteral("a:űő÷")});
}

TEST(DictionaryText, the_hungarian_english_packages_circumflexes_stay) {
    const auto lines = lines_of({{QStringLiteral("sztár"), {QStringLiteral("rôle Ô")}}}, freedict::hungarian_english);

    EXPECT_EQ(lines, QStringList{QStringLiteral("sztár:rôle Ô÷")});
}

TEST(DictionaryText, a_grave_accent_becomes_an_apostrophe_in_both_dictionaries) {
    for (const Dictionary &dictionary : freedict::dictionaries) {
        const auto lines = lines_of({{QStringLiteral("`tis"), {QStringLiteral("one`s")}}}, dictionary);

        EXPECT_EQ(lines, QStringList{QStringLiteral("'tis:one's÷")});
    }
}

TEST(DictionaryText, a_colon_of_a_headword_becomes_a_dash_and_one_of_a_meaning_stays) {
    const auto lines = lines_of({{QStringLiteral("válasszatok: tett, vagy halál"), {QStringLiteral("choose: or die")}}},
                                freedict::hungarian_english);

    EXPECT_EQ(lines, QStringList{QStringLiteral("válasszatok – tett, vagy halál:choose: or die÷")});
}

TEST(DictionaryText, the_lines_stand_in_byte_order_with_the_leading_to_left_out_of_account) {
    const QStringList meanings{QStringLiteral("x")};
    const auto lines = lines_of({{QStringLiteral("élan"), meanings},
                                 {QStringLiteral("zoo"), meanings},
                                 {QStringLiteral("to go"), meanings},
                                 {QStringLiteral("goal"), meanings},
                                 {QStringLiteral("go-by"), meanings},
                                 {QStringLiteral("to to day"), meanings},
                                 {QStringLiteral("tiger"), meanings},
                                 {QStringLiteral("today"), meanings},
                                 {QStringLiteral("Zulu"), meanings},
                                 {QStringLiteral("'tis"), meanings}});

    EXPECT_EQ(
        lines.join(u' '),
        QStringLiteral("'tis:x÷ Zulu:x÷ go-by:x÷ to go:x÷ goal:x÷ tiger:x÷ to to day:x÷ today:x÷ zoo:x÷ élan:x÷"));
}

TEST(DictionaryText, entries_with_the_same_headword_both_stay) {
    const auto lines = lines_of({{QStringLiteral("go"), {QStringLiteral("b")}},
                                 {QStringLiteral("go"), {QStringLiteral("a")}},
                                 {QStringLiteral("go"), {QStringLiteral("b")}}});

    EXPECT_EQ(lines.join(u' '), QStringLiteral("go:a÷ go:b÷ go:b÷"));
}

TEST(DictionaryText, a_character_that_the_code_page_lacks_is_named_with_its_entry) {
    EXPECT_EQ(
        sentence({QStringLiteral("rubel %1"), {QStringLiteral("ok"), QStringLiteral("₽")}},
                 freedict::hungarian_english),
        QStringLiteral(
            "A(z) magyar–angol szótár „rubel %1” szócikke nem írható ki: a „₽” karakter nincs meg "
            "a windows-1250 kódlapon."));
    EXPECT_EQ(sentence({QStringLiteral("fûre"), {QStringLiteral("ok")}}, freedict::hungarian_english),
              QStringLiteral("A(z) magyar–angol szótár „fûre” szócikke nem írható ki: a „û” karakter nincs meg a "
                             "windows-1250 kódlapon."));
}

TEST(DictionaryText, a_meaning_with_a_division_sign_is_named_with_its_entry) {
    EXPECT_EQ(sentence({QStringLiteral("osztás"), {QStringLiteral("division"), QStringLiteral("the ÷ sign")}},
                       freedict::hungarian_english),
              QStringLiteral("A(z) magyar–angol szótár „osztás” szócikke nem írható ki: a(z) „the ÷ sign” jelentésben "
                             "„÷” jel áll."));
}

TEST(DictionaryNotice, it_names_the_source_the_edition_the_count_and_the_conditions) {
    Package package = package_with({});
    package.name = QStringLiteral("English-Hungarian FreeDict Dictionary");
    package.edition = QStringLiteral("0.2.1");
    package.licence = QStringLiteral("Under the GNU General Public License");
    package.stated_headwords = 89679;

    const QString notice = code_page::decode(notice_of(package));

    EXPECT_TRUE(notice.contains(u"FreeDict (freedict.org) angol–magyar szótára"));
    EXPECT_TRUE(notice.contains(u"English-Hungarian FreeDict Dictionary, kiadása 0.2.1, 89679 címszó."));
    EXPECT_TRUE(notice.endsWith(u"Under the GNU General Public License"));
}

TEST(DictionaryNotice, the_search_can_skip_it_however_short_the_description_is) {
    EXPECT_GE(notice_of(package_with({})).size(), freedict::notice_bytes);
}

TEST(DictionaryNotice, it_cannot_be_taken_for_an_entry_whatever_the_description_holds) {
    Package package = package_with({});
    package.licence = QStringLiteral("see http://freedict.org ÷\r\nand: more");

    const QByteArray notice = notice_of(package);

    EXPECT_FALSE(notice.contains(':'));
    EXPECT_FALSE(notice.contains('\xF7'));
    EXPECT_TRUE(notice.endsWith("and \x96 more"));
}

TEST(DictionaryNotice, a_character_that_the_code_page_lacks_is_a_failure) {
    Package package = package_with({});
    package.licence = QStringLiteral("№");

    const FileContent text = freedict::dictionary_text(package, freedict::english_hungarian);

    ASSERT_TRUE(std::holds_alternative<Failure>(text));
    EXPECT_EQ(std::get<Failure>(text).sentence,
              QStringLiteral("A(z) angol–magyar szótár első sora nem írható ki: a „№” karakter nincs meg a "
                             "windows-1250 kódlapon."));
}

TEST(DictionaryCounts, the_first_line_and_the_headwords_count_no_meaning) {
    const Counts counts = freedict::counts_in("notice \xF7\r\na:x\xF7y\xF7\r\nb\xF7:z\xF7\r\n");

    EXPECT_EQ(counts, (Counts{.entries = 2, .meanings = 3}));
}

TEST(DictionaryCounts, a_package_that_states_another_number_is_a_failure) {
    Package package = package_with({{QStringLiteral("a"), {QStringLiteral("b")}}});
    package.stated_headwords = 2;

    const auto failure = freedict::difference(package, {.entries = 1, .meanings = 1});

    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->sentence, QStringLiteral("A(z) „N” leírása szerint 2 címszava van, de 1 szócikke írható ki."));
}

TEST(DictionaryCounts, a_lost_meaning_is_a_failure) {
    const Package package = package_with({{QStringLiteral("a"), {QStringLiteral("b"), QStringLiteral("c")}}});

    const auto failure = freedict::difference(package, {.entries = 1, .meanings = 1});

    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->sentence,
              QStringLiteral("A(z) „N” 1 szócikkéből és 2 jelentéséből 1 szócikk és 1 jelentés maradt."));
}

TEST(DictionaryCounts, equal_counts_are_no_failure) {
    const Package package = package_with({{QStringLiteral("a"), {QStringLiteral("b"), QStringLiteral("c")}}});

    EXPECT_FALSE(freedict::difference(package, {.entries = 1, .meanings = 2}));
}

}  // namespace
