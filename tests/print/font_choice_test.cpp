#include "print/font_choice.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// The index that is chosen of fonts separated by ";"; those that end with "Serif" have serifs, and "Stand-In" is what
/// the screen shows for the missing ones.
int choice(const char *fonts) {
    const QString list = QString::fromUtf8(fonts);
    return választott_betűtípus(list.isEmpty() ? QStringList() : list.split(u';'), u"Stand-In"_s,
                                [](const QString &font) { return font.endsWith(u"Serif"_s); });
}

TEST(FontChoice, is_times_new_roman_ce_where_there_is_one) {
    EXPECT_EQ(choice("A Serif;Times New Roman;Times New Roman CE;Z"), 2);
}

TEST(FontChoice, is_times_new_roman_where_the_central_european_one_is_missing) {
    EXPECT_EQ(choice("A Serif;B;Times New Roman;Z"), 2);
}

TEST(FontChoice, is_the_stand_in_of_the_screen_where_both_are_missing) {
    EXPECT_EQ(choice("A Serif;B;Stand-In;Z"), 2);
    EXPECT_EQ(choice("A Serif;Stand-In;Times New Roman"), 2);
    // The toolkit tells it in small letters.
    EXPECT_EQ(choice("A Serif;STAND-IN"), 1);
}

TEST(FontChoice, is_the_first_serif_face_where_all_these_are_missing) {
    EXPECT_EQ(choice("A Sans;B Sans;C Serif;D Serif"), 2);
    EXPECT_EQ(choice("times new roman;Times New Roman CE bold;C Serif"), 2);
}

TEST(FontChoice, is_the_first_face_where_none_has_serifs) {
    EXPECT_EQ(choice("A Sans;B Sans"), 0);
}

TEST(FontChoice, is_none_where_there_is_no_font) {
    EXPECT_EQ(choice(""), -1);
}

}  // namespace
