#include <gtest/gtest.h>

#include <algorithm>

#include "dictionary/dictionary_search.h"
#include "support/real_suggestions.h"
#include "support/suggestion_tables.h"

using namespace Qt::StringLiterals;

namespace {

class SuggestionTables : public testing::Test {
  protected:
    [[nodiscard]] bool leads_to(const TableLine &line, bool from_english) {
        const ajánlás answer = all_.suggester.ajánl({line.text, from_english}, [] { return false; });
        return std::ranges::any_of(answer.ajánlatok, [&](const ajánlat &offer) {
            return offer.angolról == from_english &&
                   (offer.címszó == line.wanted || (from_english && keresőkulcs(offer.címszó) == line.wanted));
        });
    }

    void expect_table(const QString &name, bool from_english, double least) {
        const auto table = suggestion_table(name);
        ASSERT_GT(table.size(), 150);
        QStringList missed;
        for (const TableLine &line : table) {
            if (!leads_to(line, from_english))
                missed.append(line.text + u" | "_s + line.wanted);
        }
        const auto found = static_cast<double>(table.size() - missed.size()) / static_cast<double>(table.size());
        EXPECT_GE(found, least) << missed.join(u'\n').toStdString();
        RecordProperty("found", std::to_string(found));
        RecordProperty("missed", missed.join(u'\n').toStdString());
    }

    [[nodiscard]] QString offers_for(const QString &text) {
        QStringList lines;
        for (const ajánlat &offer : all_.suggester.ajánl({text, false}, [] { return false; }).ajánlatok)
            lines.append(offer.szöveg);
        return lines.join(u"; "_s);
    }

    [[nodiscard]] qsizetype slips(const QString &text, bool from_english) {
        return std::ranges::count(all_.suggester.ajánl({text, from_english}, [] { return false; }).ajánlatok,
                                  ajánlatfajta::elírás, &ajánlat::fajta);
    }

  private:
    RealSuggestions all_;
};

TEST_F(SuggestionTables, have_no_slips_beside_what_is_certain) {
    for (const QString &text : {u"várok"_s, u"karja"_s, u"menj"_s, u"levelet"_s, u"hívta fel"_s, u"ment el"_s})
        EXPECT_EQ(slips(text, false), 0) << text.toStdString();
    for (const QString &text : {u"turn it off"_s, u"pick me up"_s})
        EXPECT_EQ(slips(text, true), 0) << text.toStdString();
    EXPECT_GT(slips(u"begining"_s, true), 0);
    EXPECT_GT(slips(u"telfon"_s, false), 0);
}

TEST_F(SuggestionTables, have_the_right_english_word_for_95_of_100_misspelt_ones) {
    expect_table(u"english_slips.txt"_s, true, 0.95);
}

TEST_F(SuggestionTables, have_the_right_hungarian_word_for_95_of_100_misspelt_ones) {
    expect_table(u"hungarian_slips.txt"_s, false, 0.95);
}

TEST_F(SuggestionTables, lead_from_inflected_forms_without_accents_to_their_base) {
    const QStringList lines{u"kutyaimmal | kutya"_s,    u"konyveket | könyv"_s,  u"almat | alma"_s,
                            u"koszonetet | köszönet"_s, u"baratommal | barát"_s, u"iskolaban | iskola"_s,
                            u"orarol | óra"_s,          u"varosokban | város"_s, u"kepeslapot | képeslap"_s,
                            u"gyereknek | gyerek"_s};
    for (const QString &line : lines) {
        const TableLine one{line.section(u" | "_s, 0, 0), line.section(u" | "_s, 1)};
        EXPECT_TRUE(leads_to(one, false)) << line.toStdString() << ": " << offers_for(one.text).toStdString();
    }
}

}  // namespace
