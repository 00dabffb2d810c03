#include "freedict/dictionary_text.h"

#include <gtest/gtest.h>

#include "platform/code_page.h"

using namespace Qt::StringLiterals;

namespace {

using freedict::Counts;
using freedict::Dictionary;
using freedict::Entry;
using freedict::Package;

Package package_with(const QVector<Entry> &entries) {
    return {
        .name = u"N"_s, .edition = u"1"_s, .licence = u"L"_s, .stated_headwords = entries.size(), .entries = entries};
}

/// The lines behind the notice.
QStringList lines_of(const QVector<Entry> &entries, const Dictionary &dictionary = freedict::english_hungarian) {
    const FileContent text = freedict::dictionary_text(package_with(entries), dictionary);
    if (const auto *failure = std::get_if<Failure>(&text)) {
        ADD_FAILURE() << qPrintable(failure->sentence);
        return {};
    }
    QStringList lines = code_page::decode(std::get<QByteArray>(text)).split(u"\r\n"_s);
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
        package_with({{u"to go"_s, {u"megy"_s, u"jár"_s}}, {u"tree"_s, {u"fő: fű"_s}}}), freedict::hungarian_english));

    EXPECT_EQ(text.mid(text.indexOf('\n') + 1).toStdString(), "to go:megy\xF7j\xE1r\xF7\r\ntree:f\xF5: f\xFB\xF7\r\n");
}

TEST(DictionaryText, the_english_hungarian_packages_circumflexes_become_double_acutes) {
    const auto lines = lines_of({{u"fô"_s, {u"ûÛ"_s, u"ôÔ"_s}}});

    EXPECT_EQ(lines, QStringList{u"fő:űŰ÷őŐ÷"_s});
}

TEST(DictionaryText, a_circumflex_written_as_a_separate_accent_is_mended_too) {
    const auto lines = lines_of({{u"a"_s, {u"u\u0302o\u0302"_s}}});

    EXPECT_EQ(lines, QStringList{u"a:űő÷"_s});
}

TEST(DictionaryText, the_hungarian_english_packages_circumflexes_stay) {
    const auto lines = lines_of({{u"sztár"_s, {u"rôle Ô"_s}}}, freedict::hungarian_english);

    EXPECT_EQ(lines, QStringList{u"sztár:rôle Ô÷"_s});
}

TEST(DictionaryText, a_grave_accent_becomes_an_apostrophe_in_both_dictionaries) {
    for (const Dictionary &dictionary : freedict::dictionaries) {
        const auto lines = lines_of({{u"`tis"_s, {u"one`s"_s}}}, dictionary);

        EXPECT_EQ(lines, QStringList{u"'tis:one's÷"_s});
    }
}

TEST(DictionaryText, a_colon_of_a_headword_becomes_a_dash_and_one_of_a_meaning_stays) {
    const auto lines =
        lines_of({{u"válasszatok: tett, vagy halál"_s, {u"choose: or die"_s}}}, freedict::hungarian_english);

    EXPECT_EQ(lines, QStringList{u"válasszatok – tett, vagy halál:choose: or die÷"_s});
}

TEST(DictionaryText, the_lines_stand_in_byte_order_with_the_leading_to_left_out_of_account) {
    const QStringList meanings{u"x"_s};
    const auto lines = lines_of({{u"élan"_s, meanings},
                                 {u"zoo"_s, meanings},
                                 {u"to go"_s, meanings},
                                 {u"goal"_s, meanings},
                                 {u"go-by"_s, meanings},
                                 {u"to to day"_s, meanings},
                                 {u"tiger"_s, meanings},
                                 {u"today"_s, meanings},
                                 {u"Zulu"_s, meanings},
                                 {u"'tis"_s, meanings}});

    EXPECT_EQ(lines.join(u' '),
              u"'tis:x÷ Zulu:x÷ go-by:x÷ to go:x÷ goal:x÷ tiger:x÷ to to day:x÷ today:x÷ zoo:x÷ élan:x÷"_s);
}

TEST(DictionaryText, entries_with_the_same_headword_both_stay) {
    const auto lines = lines_of({{u"go"_s, {u"b"_s}}, {u"go"_s, {u"a"_s}}, {u"go"_s, {u"b"_s}}});

    EXPECT_EQ(lines.join(u' '), u"go:a÷ go:b÷ go:b÷"_s);
}

TEST(DictionaryText, a_character_that_the_code_page_lacks_is_named_with_its_entry) {
    EXPECT_EQ(sentence({u"rubel %1"_s, {u"ok"_s, u"₽"_s}}, freedict::hungarian_english),
              u"A(z) magyar–angol szótár „rubel %1” szócikke nem írható ki: a „₽” karakter nincs meg "
              "a windows-1250 kódlapon."_s);
    EXPECT_EQ(sentence({u"fûre"_s, {u"ok"_s}}, freedict::hungarian_english),
              u"A(z) magyar–angol szótár „fûre” szócikke nem írható ki: a „û” karakter nincs meg a "
              "windows-1250 kódlapon."_s);
}

TEST(DictionaryText, a_meaning_with_a_division_sign_is_named_with_its_entry) {
    EXPECT_EQ(sentence({u"osztás"_s, {u"division"_s, u"the ÷ sign"_s}}, freedict::hungarian_english),
              u"A(z) magyar–angol szótár „osztás” szócikke nem írható ki: a(z) „the ÷ sign” jelentésben "
              "„÷” jel áll."_s);
}

TEST(DictionaryNotice, it_names_the_source_the_edition_the_count_and_the_conditions) {
    Package package = package_with({});
    package.name = u"English-Hungarian FreeDict Dictionary"_s;
    package.edition = u"0.2.1"_s;
    package.licence = u"Under the GNU General Public License"_s;
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
    package.licence = u"see http://freedict.org ÷\r\nand: more"_s;

    const QByteArray notice = notice_of(package);

    EXPECT_FALSE(notice.contains(':'));
    EXPECT_FALSE(notice.contains('\xF7'));
    EXPECT_TRUE(notice.endsWith("and \x96 more"));
}

TEST(DictionaryNotice, a_character_that_the_code_page_lacks_is_a_failure) {
    Package package = package_with({});
    package.licence = u"№"_s;

    const FileContent text = freedict::dictionary_text(package, freedict::english_hungarian);

    ASSERT_TRUE(std::holds_alternative<Failure>(text));
    EXPECT_EQ(std::get<Failure>(text).sentence,
              u"A(z) angol–magyar szótár első sora nem írható ki: a „№” karakter nincs meg a "
              "windows-1250 kódlapon."_s);
}

TEST(DictionaryCounts, the_first_line_and_the_headwords_count_no_meaning) {
    const Counts counts = freedict::counts_in("notice \xF7\r\na:x\xF7y\xF7\r\nb\xF7:z\xF7\r\n");

    EXPECT_EQ(counts, (Counts{.entries = 2, .meanings = 3}));
}

TEST(DictionaryCounts, a_package_that_states_another_number_is_a_failure) {
    Package package = package_with({{u"a"_s, {u"b"_s}}});
    package.stated_headwords = 2;

    const auto failure = freedict::difference(package, {.entries = 1, .meanings = 1});

    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->sentence, u"A(z) „N” leírása szerint 2 címszava van, de 1 szócikke írható ki."_s);
}

TEST(DictionaryCounts, a_lost_meaning_is_a_failure) {
    const Package package = package_with({{u"a"_s, {u"b"_s, u"c"_s}}});

    const auto failure = freedict::difference(package, {.entries = 1, .meanings = 1});

    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->sentence, u"A(z) „N” 1 szócikkéből és 2 jelentéséből 1 szócikk és 1 jelentés maradt."_s);
}

TEST(DictionaryCounts, equal_counts_are_no_failure) {
    const Package package = package_with({{u"a"_s, {u"b"_s, u"c"_s}}});

    EXPECT_FALSE(freedict::difference(package, {.entries = 1, .meanings = 2}));
}

}  // namespace
