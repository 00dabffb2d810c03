#include "forms/english_forms.h"

#include <gmock/gmock.h>

#include <QFile>
#include <thread>

#include "support/forms_for_tests.h"

using namespace Qt::StringLiterals;

namespace {

class EnglishForms : public testing::Test {
  protected:
    static angol_alakelemző &reader() {
        static angol_alakelemző one(forms_folder(), questions_about("am.txt"));
        return one;
    }

    static std::string line(const QString &form) {
        const auto readings = reader().olvasatok(form);
        return readings.empty() ? "" : reader().sor(form, readings.front()).toStdString();
    }

    static QStringList bases(const QString &form) {
        QStringList all;
        for (const olvasat &reading : reader().olvasatok(form))
            all.append(reading.alapalak);
        return all;
    }
};

TEST_F(EnglishForms, of_the_list_lead_to_their_bases) {
    const FormFigures figures = figures_of(reader(), rows_of(u"english.txt"_s));

    ASSERT_GE(figures.rows, 200);
    EXPECT_GE(figures.first * 100, figures.rows * 90) << figures.not_first.join(u'\n').toStdString();
    EXPECT_GE(figures.among * 100, figures.rows * 95) << figures.missing.join(u'\n').toStdString();
    RecordProperty("first", figures.first);
    RecordProperty("among", figures.among);
}

TEST_F(EnglishForms, of_the_list_are_explained_word_for_word) {
    const FormFigures figures = figures_of(reader(), rows_of(u"english.txt"_s));

    EXPECT_TRUE(figures.explained_otherwise.isEmpty()) << figures.explained_otherwise.join(u'\n').toStdString();
}

TEST_F(EnglishForms, are_one_line_with_the_base_and_what_they_are) {
    EXPECT_EQ(line(u"went"_s), "went = go (múlt idő)");
    EXPECT_EQ(line(u"children"_s), "children = child (többes szám)");
    EXPECT_EQ(line(u"bigger"_s), "bigger = big (középfok)");
}

TEST_F(EnglishForms, of_two_words_have_both_the_likelier_first) {
    EXPECT_EQ(bases(u"lying"_s), QStringList{u"to lie"_s});
    EXPECT_THAT(bases(u"meeting"_s), testing::UnorderedElementsAre(u"to meet"_s, u"meeting"_s));
    EXPECT_EQ(bases(u"left"_s).value(0), u"to leave"_s);
    EXPECT_TRUE(bases(u"leaves"_s).contains(u"to leave"_s));
}

TEST_F(EnglishForms, have_a_stem_in_front_of_a_foreign_plural) {
    EXPECT_EQ(bases(u"a"_s), QStringList{u"a"_s});
    EXPECT_TRUE(bases(u"bacteria"_s).contains(u"bacterium"_s));
}

TEST_F(EnglishForms, that_are_contracted_are_no_possessives) {
    EXPECT_EQ(bases(u"let's"_s), (QStringList{u"to let"_s, u"let's"_s}));
    EXPECT_EQ(line(u"parents'"_s), "parents' = parent (többes szám, birtokos eset: s')");
}

TEST_F(EnglishForms, that_only_look_inflected_are_themselves) {
    for (const QString &word : {u"evening"_s, u"number"_s, u"during"_s, u"his"_s, u"always"_s, u"bed"_s, u"news"_s})
        EXPECT_EQ(bases(word).value(0), word) << line(word);
}

TEST_F(EnglishForms, without_a_headword_have_no_reading) {
    angol_alakelemző none(forms_folder(), {.van = [](QStringView) { return false; }});

    EXPECT_TRUE(none.olvasatok(u"went"_s).empty());
}

TEST_F(EnglishForms, are_understood_with_any_capitals_and_apostrophe) {
    EXPECT_EQ(bases(u"WENT"_s).value(0), u"to go"_s);
    EXPECT_EQ(bases(u"Children"_s).value(0), u"child"_s);
    EXPECT_EQ(bases(u"don’t"_s).value(0), u"to do"_s);
}

TEST_F(EnglishForms, of_texts_that_are_no_words_have_no_reading) {
    for (const QString &text : {u""_s, u"'s"_s, u"s'"_s, u"n't"_s, u"two words"_s, u"'"_s, u"-"_s, u"x"_s.repeated(51)})
        EXPECT_TRUE(reader().olvasatok(text).empty()) << text.toStdString();
}

TEST_F(EnglishForms, are_read_by_many_threads_at_once) {
    angol_alakelemző fresh(forms_folder(), questions_about("am.txt"));
    std::vector<std::thread> threads;
    std::atomic<int> right = 0;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            const auto readings = fresh.olvasatok(u"mice"_s);
            right += !readings.empty() && readings.front().alapalak == u"mouse"_s ? 1 : 0;
        });
    }
    for (std::thread &thread : threads)
        thread.join();

    EXPECT_EQ(right, 4);
}

TEST(EnglishHeadwords, bring_their_forms) {
    const auto forms =
        hozott_alakok({u"to go, went, gone"_s, u"to be, was/were, been"_s, u"ox, oxen"_s, u"to buy, bought"_s});

    EXPECT_EQ(forms.value(u"went"_s).magyarázat, u"múlt idő"_s);
    EXPECT_EQ(forms.value(u"gone"_s).magyarázat, u"múlt idejű melléknévi igenév"_s);
    EXPECT_EQ(forms.value(u"were"_s).alapalak, u"to be"_s);
    EXPECT_EQ(forms.value(u"oxen"_s).magyarázat, u"többes szám"_s);
    EXPECT_EQ(forms.value(u"bought"_s).magyarázat, u"múlt idő vagy múlt idejű melléknévi igenév"_s);
}

TEST(EnglishHeadwords, bring_nothing_that_is_no_form) {
    EXPECT_TRUE(hozott_alakok({u"now, now!"_s, u"the check, please!"_s, u"snipe, snipe"_s, u","_s, u""_s, u"to , x"_s})
                    .isEmpty());
}

class DamagedEnglishData : public testing::TestWithParam<const char *> {};

TEST_P(DamagedEnglishData, that_is_missing_or_cut_gives_no_readings_and_is_told) {
    const CopiedForms data;
    const QString path = data.path(QString::fromLatin1(GetParam()));
    const QByteArray whole = read_file(path);
    for (const bool cut : {true, false}) {
        QFile::remove(path);
        if (cut)
            write_file(path, whole.first(whole.size() / 2 - 7));
        // A list of sums that is cut in its middle has that of the first file still.
        if (cut && path.endsWith(u"osszegek.txt"_s))
            write_file(path, whole.first(20));

        angol_alakelemző reader(data.folder(), questions_about("am.txt"));
        EXPECT_TRUE(reader.olvasatok(u"went"_s).empty());
        EXPECT_EQ(reader.hiányok().size(), 1);
    }
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedEnglishData, testing::Values("angol.txt", "osszegek.txt"));

TEST(EnglishData, of_any_bytes_is_read) {
    for (const char *bytes : {"", "\n", "#", "n", "n ", "n a\n\nv", "N x 1x\n", "N x \nN x"}) {
        const angol_adatok data{QByteArray(bytes)};
        EXPECT_TRUE(data.alapalakok(angol_szófaj::ige, u"went"_s).isEmpty());
        EXPECT_LT(data.gyakoriság(angol_szófaj::főnév, u"x"_s), 1);
        static_cast<void>(data.alakok(angol_szófaj::főnév, u"x"_s));
    }
}

}  // namespace
