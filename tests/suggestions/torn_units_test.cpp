#include "suggestions/torn_units.h"

#include <gtest/gtest.h>

#include "support/real_suggestions.h"
#include "support/suggestion_tables.h"

using namespace Qt::StringLiterals;

namespace {

class TornUnits : public testing::Test {
  protected:
    QStringList units(const QString &text, bool english) {
        return english ? szétvált_egységek::angol(text, all_.english, &all_.english_forms)
                       : szétvált_egységek::magyar(text, all_.hungarian, &all_.hungarian_forms);
    }

    void expect_units(const QString &table, bool english) {
        const auto lines = suggestion_table(table);
        ASSERT_GE(lines.size(), 40);
        for (const TableLine &line : lines) {
            EXPECT_TRUE(units(line.text, english).contains(line.wanted))
                << line.text.toStdString() << ": " << units(line.text, english).join(u", "_s).toStdString();
        }
    }

    void expect_none(const QString &table, bool english) {
        const auto lines = suggestion_table(table);
        ASSERT_GE(lines.size(), 20);
        for (const TableLine &line : lines)
            EXPECT_EQ(units(line.text, english).join(u", "_s).toStdString(), "") << line.text.toStdString();
    }

  private:
    RealSuggestions all_;
};

TEST_F(TornUnits, of_english_verbs_and_particles_are_found) {
    expect_units(u"english_units.txt"_s, true);
}

TEST_F(TornUnits, are_not_found_in_english_texts_that_have_none) {
    expect_none(u"english_no_units.txt"_s, true);
}

TEST_F(TornUnits, of_hungarian_verbs_and_preverbs_are_found) {
    expect_units(u"hungarian_units.txt"_s, false);
}

TEST_F(TornUnits, are_not_found_in_hungarian_texts_that_have_none) {
    expect_none(u"hungarian_no_units.txt"_s, false);
}

}  // namespace
