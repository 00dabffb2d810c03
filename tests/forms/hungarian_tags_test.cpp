#include "forms/hungarian_tags.h"

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QSet>

#include "forms/morphology.h"
#include "support/forms_for_tests.h"

using namespace Qt::StringLiterals;

namespace {

/// Every tag that the rules and the words of the Hungarian dictionary name.
QSet<QString> tags_of_the_data() {
    static const QRegularExpression tag(u"(?:^|[ \\t])((?:is|ds|ts|ip):[^ \\t\\r\\n]+)"_s,
                                        QRegularExpression::MultilineOption);
    QSet<QString> tags;
    for (const QString &file : {u"hu_HU.aff"_s, u"hu_HU.dic"_s}) {
        auto found = tag.globalMatch(QString::fromUtf8(read_file(forms_folder() + u'/' + file)));
        while (found.hasNext())
            tags.insert(found.next().captured(1));
    }
    return tags;
}

bool has_a_code_name(const QString &text) {
    static const QRegularExpression code(u"[A-Z]{2}|_|[a-z]:[^ ]"_s);
    return code.match(text).hasMatch();
}

TEST(HungarianTags, are_all_known) {
    const QSet<QString> tags = tags_of_the_data();
    ASSERT_GT(tags.size(), 150);
    for (const QString &tag : tags) {
        if (tag != u"ip:PREF"_s) {
            EXPECT_TRUE(fajtája(tag)) << tag.toStdString();
        }
    }
}

TEST(HungarianTags, never_show_a_code_name) {
    for (const QString &tag : tags_of_the_data()) {
        const QString text = címkék_magyarázata({tag}, u"noun"_s);
        EXPECT_FALSE(has_a_code_name(text)) << tag.toStdString() << ": " << text.toStdString();
        if (fajtája(tag).value_or(címkefajta::néma) != címkefajta::néma) {
            EXPECT_FALSE(text.isEmpty()) << tag.toStdString();
        }
    }
}

TEST(HungarianTags, that_are_unknown_are_left_out) {
    EXPECT_FALSE(fajtája(u"is:SOMETHING_NEW"_s));
    EXPECT_EQ(címkék_magyarázata({u"is:PLUR"_s, u"is:SOMETHING_NEW"_s}, u"noun"_s), u"többes szám"_s);
}

TEST(HungarianTags, of_a_finite_verb_are_mood_person_and_conjugation) {
    EXPECT_EQ(címkék_magyarázata({u"is:PAST_INDIC_DEF_SG_3"_s}, u"vrb"_s), u"múlt idő, ő, tárgyas ragozás"_s);
    EXPECT_EQ(címkék_magyarázata({u"is:SUBJ/IMPER_INDEF_PL_1"_s}, u"vrb"_s), u"felszólító mód, mi, alanyi ragozás"_s);
    EXPECT_EQ(címkék_magyarázata({u"is:PRES_INDIC_SG_1_OBJ_2"_s}, u"vrb"_s), u"jelen idő, én téged (-lak/-lek)"_s);
}

elemzés one_analysis(const char *text) {
    const auto all = elemzések_szövegből(text);
    return all.empty() ? elemzés{} : all.front();
}

TEST(HungarianAnalysis, has_the_last_stem_and_what_stands_in_front_of_it) {
    const elemzés compound =
        one_analysis("pa:konyha st:konyha po:noun ts:NOM pa:asztalon  st:asztal po:noun ts:NOM is:SUE");
    EXPECT_EQ(compound.tő, u"asztal"_s);
    EXPECT_EQ(compound.előtagok, QStringList{u"konyha"_s});

    const elemzés verb = one_analysis("ip:PREF sp:fel  st:hív po:vrb al:hívat is:PAST_INDIC_DEF_SG_3");
    EXPECT_EQ(verb.igekötő + verb.tő, u"felhív"_s);
    EXPECT_EQ(verb.címkék, QStringList{u"is:PAST_INDIC_DEF_SG_3"_s});
}

TEST(HungarianAnalysis, with_alternatives_is_as_many_analyses) {
    const auto all = elemzések_szövegből(
        "pa:négyzet st:négyzet po:noun pa:méternyi  (  st:méter po:noun is:a |  st:met po:noun is:b ) ");

    ASSERT_EQ(all.size(), 2U);
    EXPECT_EQ(all[0].tő, u"méter"_s);
    EXPECT_EQ(all[1].tő, u"met"_s);
}

TEST(HungarianAnalysis, of_any_bytes_ends) {
    for (const char *text : {"", ":", "st:", " ( ", " ) ( ", " ( | ) ", "pa:x", "st:a ( st:b", "\xff\xfe st:\xff"})
        static_cast<void>(elemzések_szövegből(text));
}

TEST(HungarianAnalysis, counts_the_plural_of_a_stem_only_where_nothing_follows) {
    EXPECT_EQ(beszédes_címkék(one_analysis("st:tó po:noun ts:PLUR ts:NOM"), u"tavak"), QStringList{u"ts:PLUR"_s});
    EXPECT_EQ(beszédes_címkék(one_analysis("st:víz po:noun ts:PLUR ts:NOM is:ACC"), u"vizet"),
              QStringList{u"is:ACC"_s});
}

}  // namespace
