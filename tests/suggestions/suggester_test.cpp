#include "suggestions/suggester.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <semaphore>

#include "support/dictionary_folder.h"
#include "support/fake_form_reader.h"
#include "support/headwords.h"

using namespace Qt::StringLiterals;

namespace {

bool never() {
    return false;
}

class Suggester : public testing::Test {
  protected:
    QStringList headwords(const QString &text, bool from_english = true) {
        QStringList all;
        for (const ajánlat &offer : suggester_.ajánl({text, from_english}, never).ajánlatok)
            all.append((offer.angolról == from_english ? QString() : u"other: "_s) + offer.címszó);
        return all;
    }

    DictionaryFolder folder_{
        small_dictionary({u"Apple:Apple cég÷"_s, u"apple:alma÷"_s, u"colour:szín÷"_s, u"ice-cream:fagylalt÷"_s,
                          u"lying:fekvő÷"_s, u"Monday:hétfő÷"_s, u"offer:ajánlat÷"_s, u"to go, went, gone:megy÷"_s,
                          u"to lie:hazudik÷"_s, u"to offer:ajánl÷"_s, u"to receive:kap÷"_s,
                          u"to turn off:kikapcsol÷"_s}),
        small_dictionary({u"alma:apple÷"_s, u"ház:house÷"_s, u"hűtő:fridge÷"_s, u"tör:to break÷"_s, u"tőr:dagger÷"_s,
                          u"köszönöm:thank you÷"_s})};
    FakeFormReader english_forms_;
    FakeFormReader hungarian_forms_;
    címszólista english_{folder_.path(), címszólista::nyelv::angol};
    címszólista hungarian_{folder_.path(), címszólista::nyelv::magyar};
    kifejezéskereső phrases_{folder_.path(), {}};
    ajánló suggester_{{.angol_címszavak = english_,
                       .magyar_címszavak = hungarian_,
                       .angol_alakok = &english_forms_,
                       .magyar_alakok = &hungarian_forms_,
                       .kifejezések = &phrases_}};
};

TEST_F(Suggester, finds_other_capitals_accents_and_hyphens) {
    EXPECT_EQ(headwords(u"monday"_s), QStringList{u"Monday"_s});
    EXPECT_EQ(headwords(u"APPLE"_s), (QStringList{u"Apple"_s, u"apple"_s}));
    EXPECT_EQ(headwords(u"Köszönöm!"_s, false), QStringList{u"köszönöm"_s});
    EXPECT_EQ(headwords(u"huto"_s, false), QStringList{u"hűtő"_s});
    EXPECT_THAT(headwords(u"tor"_s, false).first(2), testing::UnorderedElementsAre(u"tör"_s, u"tőr"_s));
    EXPECT_EQ(headwords(u"„hűtő”."_s, false), QStringList{u"hűtő"_s});
    EXPECT_EQ(headwords(u"hûtõ"_s, false), QStringList{u"hűtő"_s});
    EXPECT_EQ(headwords(u"icecream"_s), QStringList{u"ice-cream"_s});
    EXPECT_EQ(headwords(u"color"_s), QStringList{u"colour"_s});
}

TEST_F(Suggester, finds_slips_and_names_a_verb_with_its_to) {
    EXPECT_EQ(headwords(u"recieve"_s), QStringList{u"to receive"_s});
    EXPECT_EQ(headwords(u"to recieve"_s), QStringList{u"to receive"_s});
    EXPECT_EQ(headwords(u"offre"_s), QStringList{u"offer"_s});
}

TEST_F(Suggester, explains_forms_first_and_marks_the_base_as_the_link) {
    english_forms_.add(u"lying"_s, {.alapalak = u"to lie"_s, .magyarázat = u"-ing"_s});
    english_forms_.add(u"lying"_s, {.alapalak = u"lying"_s, .magyarázat = QString()});
    const ajánlás answer = suggester_.ajánl({u"lying"_s, true}, never);

    ASSERT_EQ(answer.ajánlatok.size(), 2);
    EXPECT_EQ(answer.ajánlatok[0].fajta, ajánlatfajta::alak);
    EXPECT_EQ(answer.ajánlatok[0].szöveg, u"lying = to lie + -ing"_s);
    EXPECT_EQ(answer.ajánlatok[0].hivatkozás, (szövegrész{11, 3}));
    EXPECT_EQ(answer.ajánlatok[0].címszó, u"to lie"_s);
    EXPECT_EQ(answer.ajánlatok[1].címszó, u"lying"_s);
}

TEST_F(Suggester, keeps_the_apostrophe_of_a_possessive_plural) {
    english_forms_.add(u"apples'"_s, {.alapalak = u"apple"_s, .magyarázat = u"birtokos"_s});
    english_forms_.add(u"apples’"_s, {.alapalak = u"apple"_s, .magyarázat = u"birtokos"_s});

    EXPECT_EQ(headwords(u"apples'"_s).value(0), u"apple"_s);
    EXPECT_EQ(headwords(u"apples’."_s).value(0), u"apple"_s);
    EXPECT_EQ(headwords(u"'köszönömökös'"_s, false), headwords(u"köszönömökös"_s, false));
}

TEST_F(Suggester, explains_nothing_of_a_headword_that_is_only_itself) {
    english_forms_.add(u"apple"_s, {.alapalak = u"apple"_s, .magyarázat = QString()});

    EXPECT_EQ(headwords(u"apple"_s), QStringList{u"Apple"_s});
}

TEST_F(Suggester, tries_accents_for_words_of_twenty_letters_at_most) {
    EXPECT_TRUE(headwords(u"almaimatokertsemmiben"_s, false).isEmpty());
    EXPECT_LE(hungarian_forms_.asked, 2);

    EXPECT_TRUE(headwords(u"almaimatokertsemmibe"_s, false).isEmpty());
    EXPECT_GT(hungarian_forms_.asked, 10);
}

TEST_F(Suggester, finds_torn_units) {
    english_forms_.add(u"turned"_s, {.alapalak = u"to turn"_s, .magyarázat = u"múlt idő"_s});

    EXPECT_EQ(headwords(u"turned it off"_s), QStringList{u"to turn off"_s});
    EXPECT_EQ(headwords(u"turn the big light off"_s), QStringList());
}

TEST_F(Suggester, offers_the_other_dictionary_where_its_own_knows_nothing) {
    EXPECT_EQ(headwords(u"ház"_s), QStringList{u"other: ház"_s});
    EXPECT_EQ(headwords(u"huto"_s), QStringList{u"other: hűtő"_s});
    EXPECT_EQ(headwords(u"colour"_s, false), QStringList{u"other: colour"_s});
    EXPECT_EQ(headwords(u"apple"_s), QStringList{u"Apple"_s});
}

TEST_F(Suggester, answers_nothing_to_what_is_no_word) {
    for (const QString &text : {QString(), u"  "_s, u"?!"_s, u"日本語"_s, u"42"_s, QString(101, u'a')})
        EXPECT_EQ(headwords(text), QStringList()) << text.toStdString();
}

TEST_F(Suggester, ends_when_the_question_is_out_of_date) {
    int asked = 0;
    const ajánlás answer = suggester_.ajánl({u"recieve"_s, true}, [&] {
        ++asked;
        return true;
    });

    EXPECT_TRUE(answer.ajánlatok.isEmpty());
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(english_forms_.asked, 0);
}

TEST_F(Suggester, counts_the_phrases) {
    EXPECT_EQ(suggester_.ajánl({u"alma"_s, false}, never).kifejezések, 0);
    folder_.write_index();
    kifejezéskereső phrases(folder_.path(), {});
    ajánló suggester({.angol_címszavak = english_, .magyar_címszavak = hungarian_, .kifejezések = &phrases});
    EXPECT_EQ(suggester.ajánl({u"alma"_s, false}, never).kifejezések, 1);
}

/// Takes as long to load as it is let.
class SlowFormReader final : public alakelemző {
  public:
    [[nodiscard]] std::vector<olvasat> olvasatok(const QString &) override { return {}; }
    [[nodiscard]] QStringList hiányok() override {
        ++loads;
        loaded.acquire();
        return {};
    }
    [[nodiscard]] QString sor(const QString &alak, const olvasat &) const override { return alak; }

    std::atomic<int> loads = 0;
    std::binary_semaphore loaded{0};
};

TEST_F(Suggester, has_loaded_by_its_first_question_what_that_does_not_wait_for) {
    SlowFormReader slow;
    {
        ajánló suggester({.angol_címszavak = english_, .magyar_címszavak = hungarian_, .magyar_alakok = &slow});
        EXPECT_TRUE(suggester.ajánl({u"?"_s, true}, never).ajánlatok.isEmpty());
        EXPECT_EQ(slow.loads, 0);

        EXPECT_EQ(suggester.ajánl({u"recieve"_s, true}, never).ajánlatok.size(), 1);
        EXPECT_EQ(suggester.ajánl({u"monday"_s, true}, never).ajánlatok.size(), 1);
        slow.loaded.release();
    }
    EXPECT_EQ(slow.loads, 1);
}

TEST_F(Suggester, tells_two_meanings_of_a_form_of_one_base_in_one_line) {
    for (const QString &meaning : {u"jelen idő, ti"_s, u"múlt idő, ők"_s, u"harmadik"_s})
        hungarian_forms_.add(u"mentek"_s, {.alapalak = u"alma"_s, .magyarázat = meaning});

    const ajánlás answer = suggester_.ajánl({u"mentek"_s, false}, never);

    ASSERT_EQ(answer.ajánlatok.size(), 1);
    EXPECT_EQ(answer.ajánlatok[0].szöveg, u"mentek = alma + jelen idő, ti vagy múlt idő, ők"_s);
}

TEST_F(Suggester, says_all_that_is_missing) {
    hungarian_forms_.missing = {u"Hiányzik: hu_HU.aff."_s};
    const QString all = suggester_.hiányok().join(u'\n');

    for (const QString &name : {u"am.gyk"_s, u"ma.gyk"_s, u"szavak.idx"_s, u"hu_HU.aff"_s})
        EXPECT_TRUE(all.contains(name)) << name.toStdString();
    EXPECT_EQ(suggester_.hiányok().size(), 4);
}

TEST(SuggesterOfRealWords, never_offers_more_than_five_nor_one_twice) {
    címszólista english(test_places::program(), címszólista::nyelv::angol);
    címszólista hungarian(test_places::program(), címszólista::nyelv::magyar);
    ajánló suggester({.angol_címszavak = english, .magyar_címszavak = hungarian});
    for (const QString &headword : real_headwords("ma.txt", 200)) {
        for (const bool from_english : {false, true}) {
            const ajánlás answer = suggester.ajánl({headword.chopped(1), from_english}, never);
            ASSERT_LE(answer.ajánlatok.size(), ajánló::legtöbb);
            QSet<QString> seen;
            ajánlatfajta last = ajánlatfajta::alak;
            for (const ajánlat &offer : answer.ajánlatok) {
                EXPECT_LE(last, offer.fajta);
                last = offer.fajta;
                EXPECT_TRUE((offer.angolról ? english : hungarian).van(offer.címszó)) << offer.címszó.toStdString();
                const QString name = offer.címszó + (offer.angolról ? u" a"_s : u" m"_s);
                EXPECT_FALSE(seen.contains(name)) << name.toStdString();
                seen.insert(name);
            }
        }
    }
}

}  // namespace
