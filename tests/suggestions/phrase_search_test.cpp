#include "suggestions/phrase_search.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <algorithm>

#include "search_data/dictionary_lines.h"
#include "support/dictionary_folder.h"
#include "support/fake_form_reader.h"
#include "support/real_suggestions.h"

using namespace Qt::StringLiterals;

namespace {

DictionaryFolder folder_of_phrases() {
    DictionaryFolder folder(
        small_dictionary({u"house:ház÷épület÷"_s, u"at home:otthon÷a házban÷"_s, u"greenhouse:üvegház÷"_s,
                          u"to turn off:kikapcsol÷"_s, u"turnip:tarlórépa÷"_s}),
        small_dictionary({u"ház:house÷home÷"_s, u"a házban:at home÷"_s, u"kikapcsol:to turn off÷"_s}));
    folder.write_index([](const QByteArray &word) {
        return word == cp1250(u"házban") ? QVector<QByteArray>{cp1250(u"ház")} : QVector<QByteArray>();
    });
    return folder;
}

struct Found {
    QStringList rows;
    QVector<kifejezés> all;
};

Found found_by(kifejezéskereső &search, const QString &text) {
    Found found;
    const int count = search.keres(text, {.lap =
                                              [&](const QVector<kifejezés> &page) {
                                                  for (const kifejezés &row : page) {
                                                      found.all.append(row);
                                                      found.rows.append(row.angol + u'=' + row.magyar);
                                                  }
                                              },
                                          .megálljon = [] { return false; }});
    EXPECT_EQ(count, found.rows.size());
    return found;
}

TEST(PhraseSearch, finds_each_pair_once_whole_words_before_their_forms_and_parts_of_words) {
    const DictionaryFolder folder = folder_of_phrases();
    kifejezéskereső search(folder.path(), {});

    EXPECT_EQ(found_by(search, u"ház"_s).rows,
              (QStringList{u"house=ház"_s, u"home=ház"_s, u"at home=a házban"_s, u"greenhouse=üvegház"_s}));
    EXPECT_EQ(search.egész_szavak_száma(u"ház"_s), 3);
    EXPECT_EQ(found_by(search, u"turn"_s).rows, (QStringList{u"to turn off=kikapcsol"_s, u"turnip=tarlórépa"_s}));
    EXPECT_EQ(found_by(search, u"Turn"_s).all.front().angol_találatok, (QVector<szövegrész>{{3, 4}}));
}

TEST(PhraseSearch, marks_what_was_found_on_both_sides) {
    const DictionaryFolder folder = folder_of_phrases();
    kifejezéskereső search(folder.path(), {});

    const Found found = found_by(search, u"ház"_s);
    ASSERT_EQ(found.all.size(), 4);
    EXPECT_EQ(found.all[2].magyar_találatok, (QVector<szövegrész>{{2, 6}}));
    EXPECT_TRUE(found.all[2].egész_szó);
    EXPECT_EQ(found.all[3].magyar_találatok, (QVector<szövegrész>{{4, 3}}));
    EXPECT_FALSE(found.all[3].egész_szó);
    EXPECT_TRUE(found.all[3].angol_találatok.isEmpty());
}

TEST(PhraseSearch, finds_pairs_that_have_all_of_several_words) {
    const DictionaryFolder folder = folder_of_phrases();
    kifejezéskereső search(folder.path(), {});

    EXPECT_EQ(found_by(search, u"off kikapcsol"_s).rows, QStringList{u"to turn off=kikapcsol"_s});
    EXPECT_EQ(found_by(search, u"house otthon"_s).rows, QStringList());
}

TEST(PhraseSearch, finds_accented_words_by_bare_ones_and_base_forms_by_inflected_ones) {
    const DictionaryFolder folder = folder_of_phrases();
    FakeFormReader hungarian;
    hungarian.add(u"házaimban"_s, {.alapalak = u"ház"_s, .magyarázat = u"többes szám"_s});
    kifejezéskereső search(folder.path(), {.angol = nullptr, .magyar = &hungarian});

    EXPECT_EQ(found_by(search, u"haz"_s).rows.first(2), (QStringList{u"house=ház"_s, u"home=ház"_s}));
    EXPECT_EQ(found_by(search, u"házaimban"_s).rows,
              (QStringList{u"house=ház"_s, u"home=ház"_s, u"at home=a házban"_s}));
}

TEST(PhraseSearch, finds_nothing_for_what_is_no_word) {
    const DictionaryFolder folder = folder_of_phrases();
    kifejezéskereső search(folder.path(), {});

    for (const QString &text : {QString(), u"   "_s, u"?!"_s, u"日本"_s, u"xyzzy"_s, QString(100000, u'a')}) {
        EXPECT_TRUE(found_by(search, text).rows.isEmpty());
        EXPECT_EQ(search.egész_szavak_száma(text), 0);
    }
}

TEST(PhraseSearch, stops_when_it_is_told_to_and_after_the_most_rows) {
    kifejezéskereső search(test_places::program(), {});
    int pages = 0;
    const auto count_page = [&](const QVector<kifejezés> &) { ++pages; };

    EXPECT_EQ(search.keres(u"a"_s, {.lap = count_page, .megálljon = [] { return true; }}), 0);
    EXPECT_EQ(pages, 0);
    const int rows = search.keres(u"a"_s, {.lap = count_page, .megálljon = [&] { return pages == 2; }});
    EXPECT_EQ(pages, 2);
    EXPECT_GT(rows, 0);
    EXPECT_EQ(search.keres(u"to"_s, {.lap = count_page, .megálljon = [] { return false; }, .legfeljebb = 100}), 100);
}

TEST(PhraseSearch, says_what_is_missing_and_finds_nothing_without_it) {
    for (const char *name : {"am.txt", "ma.txt", "szavak.idx"}) {
        const DictionaryFolder folder = folder_of_phrases();
        folder.remove(name);
        kifejezéskereső search(folder.path(), {});
        EXPECT_TRUE(found_by(search, u"ház"_s).rows.isEmpty());
        ASSERT_EQ(search.hiányok().size(), 1);
        EXPECT_TRUE(search.hiányok().front().contains(QString::fromLatin1(name)));
    }
}

TEST(PhraseSearch, finds_nothing_by_an_index_of_other_dictionaries) {
    const DictionaryFolder folder = folder_of_phrases();
    folder.write("am.txt", small_dictionary({u"house:lak÷"_s}));
    kifejezéskereső search(folder.path(), {});

    EXPECT_TRUE(found_by(search, u"ház"_s).rows.isEmpty());
    EXPECT_EQ(search.hiányok().size(), 1);
}

TEST(PhraseSearch, takes_no_index_that_is_cut_or_has_another_byte) {
    const DictionaryFolder folder = folder_of_phrases();
    const QByteArray whole = read_file(folder.file("szavak.idx"));
    for (qsizetype at = 0; at < whole.size(); ++at) {
        // Zeros of the header mean nothing.
        QByteArray other = whole;
        other[at] = static_cast<char>(other[at] ^ 0x41);
        for (const QByteArray &bytes : {at < 48 || at >= 64 ? other : QByteArray(), whole.first(at)}) {
            folder.write("szavak.idx", bytes);
            kifejezéskereső search(folder.path(), {});
            ASSERT_TRUE(found_by(search, u"ház"_s).rows.isEmpty()) << at;
            ASSERT_EQ(search.hiányok().size(), 1) << at;
        }
    }
}

TEST(PhraseSearch, lives_when_the_dictionary_is_cut_behind_its_back) {
    const DictionaryFolder folder = folder_of_phrases();
    kifejezéskereső search(folder.path(), {});
    EXPECT_EQ(search.egész_szavak_száma(u"ház"_s), 3);
    folder.write("am.txt", "");

    for (const QString &row : found_by(search, u"ház"_s).rows)
        EXPECT_EQ(row, u"home=ház"_s);
}

/// What stands in the dictionaries, by reading all of them.
QSet<QString> pairs_with(const QByteArray &word) {
    QSet<QString> rows;
    for (const bool other : {false, true}) {
        const QByteArray bytes = read_file(test_places::in_program(other ? u"ma.txt"_s : u"am.txt"_s));
        for (const search_data::Line &line : search_data::lines_of(bytes)) {
            const bool in_headword = search_data::words_of(line.headword).contains(word);
            for (const search_data::Meaning &meaning : line.meanings) {
                if (!in_headword && !search_data::words_of(meaning.text).contains(word))
                    continue;
                const QString headword = code_page::decode(line.headword);
                const QString text = code_page::decode(meaning.text);
                rows.insert(other ? text + u'=' + headword : headword + u'=' + text);
            }
        }
    }
    return rows;
}

TEST(PhraseSearch, finds_in_the_real_dictionaries_what_reading_all_of_them_finds) {
    kifejezéskereső search(test_places::program(), {});
    for (const char16_t *word : {u"ház", u"off", u"sg", u"tükör", u"umbrella", u"vmi"}) {
        QSet<QString> whole;
        for (const kifejezés &row : found_by(search, QString::fromUtf16(word)).all) {
            const QString text = row.angol + u'=' + row.magyar;
            if (search_data::words_of(code_page::encode(text).value()).contains(cp1250(word)))
                whole.insert(text);
        }
        EXPECT_EQ(whole, pairs_with(cp1250(word))) << QString::fromUtf16(word).toStdString();
    }
}

TEST(PhraseSearch, finds_the_other_forms_of_a_word_in_the_real_dictionaries) {
    RealSuggestions all;
    const auto finds = [&](const QString &text, const QString &form) {
        const Found found = found_by(all.phrases, text);
        return std::ranges::any_of(found.all, [&](const kifejezés &row) {
            return row.egész_szó && (u' ' + row.angol + u' ' + row.magyar + u' ').contains(u' ' + form + u' ');
        });
    };

    EXPECT_TRUE(finds(u"ház"_s, u"házban"_s));
    EXPECT_TRUE(finds(u"házaimban"_s, u"ház"_s));
    EXPECT_TRUE(finds(u"lovakkal"_s, u"ló"_s));
    EXPECT_TRUE(finds(u"children"_s, u"child"_s));
    EXPECT_TRUE(finds(u"child"_s, u"children"_s));
}

}  // namespace
