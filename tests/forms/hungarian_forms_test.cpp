#include "forms/hungarian_forms.h"

#include <gmock/gmock.h>

#include <QFile>
#include <thread>

#include "support/forms_for_tests.h"

using namespace Qt::StringLiterals;

namespace {

class HungarianForms : public testing::Test {
  protected:
    /// One analyser for all tests: loading it takes most of their time.
    static magyar_alakelemző &reader() {
        static magyar_alakelemző one(forms_folder(), questions_about("ma.txt"));
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

TEST_F(HungarianForms, of_the_list_lead_to_their_bases) {
    const FormFigures figures = figures_of(reader(), rows_of(u"hungarian.txt"_s));

    ASSERT_GE(figures.rows, 300);
    EXPECT_GE(figures.first * 100, figures.rows * 90) << figures.not_first.join(u'\n').toStdString();
    EXPECT_GE(figures.among * 100, figures.rows * 95) << figures.missing.join(u'\n').toStdString();
    RecordProperty("first", figures.first);
    RecordProperty("among", figures.among);
}

TEST_F(HungarianForms, of_the_list_are_explained_word_for_word) {
    const FormFigures figures = figures_of(reader(), rows_of(u"hungarian.txt"_s));

    EXPECT_TRUE(figures.explained_otherwise.isEmpty()) << figures.explained_otherwise.join(u'\n').toStdString();
}

TEST_F(HungarianForms, are_one_line_with_the_base_and_its_endings) {
    EXPECT_EQ(line(u"házaimban"_s), "házaimban = ház + többes szám + birtokos: én + -ban/-ben (hol?)");
    EXPECT_EQ(line(u"felhívta"_s), "felhívta = felhív + múlt idő, ő, tárgyas ragozás");
}

TEST_F(HungarianForms, of_two_words_have_both_bases) {
    EXPECT_EQ(bases(u"almát"_s), (QStringList{u"alma"_s, u"alom"_s}));
}

TEST_F(HungarianForms, of_a_compound_have_the_longest_tail_that_is_a_headword) {
    EXPECT_EQ(line(u"konyhaasztalon"_s), "konyhaasztalon = konyha + asztal + -n/-on/-en/-ön (hol?)");
}

TEST_F(HungarianForms, that_serve_both_conjugations_are_one_reading) {
    EXPECT_EQ(line(u"láttam"_s), "láttam = lát + múlt idő, én, alanyi vagy tárgyas ragozás");
}

TEST_F(HungarianForms, with_two_finite_endings_are_none) {
    for (const olvasat &reading : reader().olvasatok(u"mentem"_s))
        EXPECT_FALSE(reading.magyarázat.contains(u"múlt idő, ő"_s)) << reading.magyarázat.toStdString();
}

TEST_F(HungarianForms, of_pronouns_lead_to_the_person) {
    EXPECT_EQ(line(u"engem"_s), "engem = én + -t (kit? mit?)");
    EXPECT_EQ(line(u"hozzánk"_s), "hozzánk = mi + -hoz/-hez/-höz (hová? kihez?)");
    EXPECT_EQ(line(u"mellettem"_s), "mellettem = mellett + személy: én");
}

TEST_F(HungarianForms, of_derived_headwords_lead_to_these) {
    EXPECT_EQ(line(u"főzést"_s), "főzést = főzés + -t (kit? mit?)");
    EXPECT_EQ(line(u"nyelvtanulóknak"_s), "nyelvtanulóknak = nyelv + tanuló + többes szám + -nak/-nek (kinek? minek?)");
}

TEST_F(HungarianForms, of_derived_headwords_are_not_taken_apart_any_further) {
    EXPECT_EQ(bases(u"dolgoznak"_s), QStringList{u"dolgozik"_s});
    EXPECT_EQ(bases(u"esőben"_s), QStringList{u"eső"_s});
    EXPECT_EQ(bases(u"futó"_s), (QStringList{u"futó"_s, u"fut"_s}));
    EXPECT_TRUE(bases(u"nevettetett"_s).contains(u"nevet"_s));
    EXPECT_TRUE(bases(u"huszadikat"_s).contains(u"húsz"_s));
}

TEST_F(HungarianForms, of_words_with_another_stem_lead_to_the_word_that_learners_look_up) {
    EXPECT_EQ(line(u"fia"_s), "fia = fiú + birtokos: ő");
    EXPECT_EQ(line(u"fiaimmal"_s), "fiaimmal = fiú + többes szám + birtokos: én + -val/-vel (kivel? mivel?)");
    EXPECT_EQ(line(u"emlékszem"_s), "emlékszem = emlékszik + jelen idő, én, alanyi ragozás");
    EXPECT_EQ(line(u"emlékezem"_s), "emlékezem = emlékezik + jelen idő, én, alanyi vagy tárgyas ragozás");
    EXPECT_EQ(line(u"lehetne"_s), "lehetne = lehet + feltételes mód, ő, alanyi ragozás");
}

TEST_F(HungarianForms, of_the_highest_degree_are_none_of_the_middle_one) {
    EXPECT_EQ(bases(u"legjobbak"_s), QStringList{u"jó"_s});
}

TEST_F(HungarianForms, are_themselves_where_they_are_the_base) {
    EXPECT_EQ(line(u"látszik"_s), "látszik = látszik");
    EXPECT_EQ(line(u"ház"_s), "ház = ház");
}

TEST_F(HungarianForms, without_a_headword_have_no_reading) {
    magyar_alakelemző none(forms_folder(), {.van = [](QStringView) { return false; }});

    EXPECT_TRUE(none.olvasatok(u"házaimban"_s).empty());
}

TEST_F(HungarianForms, are_understood_with_any_capitals) {
    for (const QString &form : {u"Házaimban"_s, u"HÁZAIMBAN"_s, u" házaimban "_s})
        EXPECT_EQ(bases(form).value(0), u"ház"_s) << form.toStdString();
    EXPECT_EQ(bases(u"londonban"_s).value(0), u"London"_s);
}

TEST_F(HungarianForms, are_understood_with_accents_of_their_own) {
    EXPECT_EQ(bases(u"házaimban"_s.normalized(QString::NormalizationForm_D)).value(0), u"ház"_s);
}

TEST_F(HungarianForms, of_texts_that_are_no_words_have_no_reading) {
    for (const QString &text : {u""_s, u" "_s, u"két szó"_s, u"12"_s, u"ház\nak"_s, u"!"_s, QString(QChar(0xd800))})
        EXPECT_TRUE(reader().olvasatok(text).empty()) << text.toStdString();
}

TEST_F(HungarianForms, of_more_than_fifty_letters_are_not_taken_apart) {
    magyar_alakelemző all(forms_folder(), {.van = [](QStringView) { return true; }});

    EXPECT_FALSE(all.olvasatok(u"konyha"_s.repeated(7) + u"asztalon"_s).empty());
    EXPECT_TRUE(all.olvasatok(u"konyha"_s.repeated(7) + u"asztalomon"_s).empty());
}

TEST_F(HungarianForms, that_are_equally_plain_stand_by_how_common_the_headwords_are) {
    címszókérdések questions = questions_about("ma.txt");
    questions.gyakoriság = [](QStringView headword) { return headword == u"érik" ? 1 : 0; };
    magyar_alakelemző by_frequency(forms_folder(), questions);

    const auto readings = by_frequency.olvasatok(u"értek"_s);
    const auto place = [&](const QString &base) {
        return std::ranges::find(readings, base, &olvasat::alapalak) - readings.begin();
    };
    EXPECT_LT(place(u"érik"_s), place(u"ér"_s));
}

TEST_F(HungarianForms, are_read_by_many_threads_at_once) {
    magyar_alakelemző fresh(forms_folder(), questions_about("ma.txt"));
    std::vector<std::thread> threads;
    std::atomic<int> right = 0;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            for (int turn = 0; turn < 50; ++turn) {
                const auto readings = fresh.olvasatok(u"lovakkal"_s);
                right += !readings.empty() && readings.front().alapalak == u"ló"_s ? 1 : 0;
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();

    EXPECT_EQ(right, 200);
}

TEST_F(HungarianForms, are_loaded_by_the_first_question_only) {
    int loads = 0;
    magyar_alakelemző counted(forms_folder(), questions_about("ma.txt"),
                              [&](const QString &rules, const QString &words) {
                                  ++loads;
                                  return load_hunspell(rules, words);
                              });
    EXPECT_EQ(loads, 0);

    static_cast<void>(counted.olvasatok(u"házak"_s));
    static_cast<void>(counted.olvasatok(u"lovak"_s));

    EXPECT_EQ(loads, 1);
}

class DamagedHungarianData : public testing::TestWithParam<const char *> {
  protected:
    [[nodiscard]] QString path() const { return data_.path(QString::fromLatin1(GetParam())); }

    void expect_that_it_is_told() {
        magyar_alakelemző reader(data_.folder(), questions_about("ma.txt"));
        EXPECT_TRUE(reader.olvasatok(u"házak"_s).empty());
        EXPECT_TRUE(reader.hiányok().join(u' ').contains(QDir::toNativeSeparators(path())))
            << reader.hiányok().join(u' ').toStdString();
    }

    CopiedForms data_;
};

TEST_P(DamagedHungarianData, that_is_missing_gives_no_readings_and_is_told) {
    QFile::remove(path());

    expect_that_it_is_told();
}

TEST_P(DamagedHungarianData, that_is_cut_gives_no_readings_and_is_told) {
    const QByteArray whole = read_file(path());
    write_file(path(), whole.first(whole.size() / 2));

    magyar_alakelemző reader(data_.folder(), questions_about("ma.txt"));
    EXPECT_TRUE(reader.olvasatok(u"házak"_s).empty());
    EXPECT_FALSE(reader.hiányok().isEmpty());
}

TEST_P(DamagedHungarianData, that_is_a_folder_gives_no_readings_and_is_told) {
    QFile::remove(path());
    QDir().mkpath(path());

    expect_that_it_is_told();
}

INSTANTIATE_TEST_SUITE_P(Files, DamagedHungarianData, testing::Values("hu_HU.aff", "hu_HU.dic", "osszegek.txt"));

TEST_F(HungarianForms, have_a_changed_letter_of_the_data_told) {
    const CopiedForms data;
    QByteArray words = read_file(data.path(u"hu_HU.dic"_s));
    words[words.size() / 2] = '\x01';
    write_file(data.path(u"hu_HU.dic"_s), words);
    magyar_alakelemző damaged(data.folder(), questions_about("ma.txt"));

    EXPECT_TRUE(damaged.olvasatok(u"házak"_s).empty());
    EXPECT_EQ(damaged.hiányok().size(), 1);
}

TEST_F(HungarianForms, have_a_missing_library_told) {
    magyar_alakelemző without(forms_folder(), questions_about("ma.txt"),
                              [](const QString &, const QString &) { return std::unique_ptr<szóelemző>(); });

    EXPECT_TRUE(without.olvasatok(u"házak"_s).empty());
    EXPECT_EQ(without.hiányok().size(), 1);
}

TEST_F(HungarianForms, have_nothing_to_tell_of_whole_data) {
    EXPECT_TRUE(reader().hiányok().isEmpty()) << reader().hiányok().join(u' ').toStdString();
}

}  // namespace
