#include "suggestions/headword_list.h"

#include <gtest/gtest.h>

#include "support/dictionary_folder.h"
#include "support/headwords.h"

using namespace Qt::StringLiterals;

namespace {

using nyelv = címszólista::nyelv;

DictionaryFolder folder_of_words() {
    return {small_dictionary({u"apple:alma÷"_s, u"to go, went, gone:megy÷"_s, u"go:alku÷"_s, u"Monday:hétfő÷"_s}),
            small_dictionary({u"alma:apple÷"_s, u"aki mer, az nyer:who dares wins÷"_s, u"megy:to go, went, gone÷"_s})};
}

TEST(HeadwordList, knows_headwords_without_their_further_forms) {
    const DictionaryFolder folder = folder_of_words();
    címszólista english(folder.path(), nyelv::angol);

    EXPECT_TRUE(english.van(u"apple"));
    EXPECT_TRUE(english.van(u"to go"));
    EXPECT_TRUE(english.van(u"go"));
    EXPECT_TRUE(english.van(u"Monday"));
    EXPECT_FALSE(english.van(u"monday"));
    EXPECT_FALSE(english.van(u"went"));
    EXPECT_FALSE(english.van(u"to apple"));
    EXPECT_FALSE(english.van(u""));
    EXPECT_FALSE(english.van(u"日本"));
}

TEST(HeadwordList, leaves_the_commas_of_hungarian_texts) {
    const DictionaryFolder folder = folder_of_words();
    címszólista hungarian(folder.path(), nyelv::magyar);

    EXPECT_TRUE(hungarian.van(u"aki mer, az nyer"));
    EXPECT_FALSE(hungarian.van(u"aki mer"));
    ASSERT_EQ(hungarian.egyezők("megy").size(), 1);
    EXPECT_TRUE(hungarian.egyezők("megy").front().ige);
    EXPECT_FALSE(hungarian.egyezők("alma").front().ige);
}

TEST(HeadwordList, has_the_frequencies_of_the_lines) {
    const DictionaryFolder folder = folder_of_words();
    folder.write_frequencies(QByteArray("\x05\xc8\x14\x1e", 4), QByteArray("\x01\x02\x03", 3));
    címszólista english(folder.path(), nyelv::angol);

    EXPECT_EQ(english.gyakoriság(u"apple"), 5);
    EXPECT_EQ(english.gyakoriság(u"to go"), 200);
    EXPECT_EQ(english.gyakoriság(u"go"), 20);
    EXPECT_EQ(english.gyakoriság(u"pear"), 0);
    EXPECT_TRUE(english.hiányok().isEmpty());
}

TEST(HeadwordList, says_that_frequencies_are_cut) {
    const DictionaryFolder folder(small_dictionary({u"apple:alma÷"_s, u"pear:körte÷"_s}), small_dictionary({}));
    címszólista english(folder.path(), címszólista::nyelv::angol);
    folder.write_frequencies("\x05\x06", {});
    EXPECT_EQ(english.hiányok(), QStringList());

    címszólista cut(folder.path(), címszólista::nyelv::angol);
    folder.write_frequencies("\x05", {});
    ASSERT_EQ(cut.hiányok().size(), 1);
    EXPECT_TRUE(cut.hiányok().front().contains(u"am.gyk"));
    EXPECT_EQ(cut.gyakoriság(u"apple"), 5);
}

TEST(HeadwordList, does_without_frequencies_of_another_dictionary_and_says_so) {
    const DictionaryFolder folder = folder_of_words();
    folder.write("am.gyk", gyakoriságfájl::fájlja("another dictionary", "\x05\x05\x05\x05"));
    címszólista english(folder.path(), nyelv::angol);

    EXPECT_TRUE(english.van(u"apple"));
    EXPECT_EQ(english.gyakoriság(u"apple"), 0);
    ASSERT_EQ(english.hiányok().size(), 1);
    EXPECT_TRUE(english.hiányok().front().contains(u"am.gyk"));
}

TEST(HeadwordList, is_empty_without_its_dictionary_and_says_so) {
    const DictionaryFolder folder = folder_of_words();
    folder.remove("ma.txt");
    címszólista hungarian(folder.path(), nyelv::magyar);

    EXPECT_FALSE(hungarian.van(u"alma"));
    ASSERT_EQ(hungarian.hiányok().size(), 1);
    EXPECT_TRUE(hungarian.hiányok().front().contains(u"ma.txt"));
}

TEST(HeadwordList, takes_any_bytes_for_a_dictionary) {
    const DictionaryFolder folder = folder_of_words();
    const QByteArray oddities[] = {"",
                                   "\n",
                                   "no line end",
                                   "notice\n:\n::\nword",
                                   "notice\n\xff\xfe:\xf7\xf7\n",
                                   "notice\n" + QByteArray(100000, 'a') + ":b\xf7\n"};
    for (const QByteArray &bytes : oddities) {
        folder.write("am.txt", bytes);
        címszólista english(folder.path(), nyelv::angol);
        EXPECT_FALSE(english.van(u"apple"));
    }
}

TEST(HeadwordList, knows_every_headword_of_the_real_dictionaries) {
    címszólista english(test_places::program(), nyelv::angol);
    for (const QString &headword : real_headwords("am.txt", 2000)) {
        const QString base = headword.section(u", "_s, 0, 0);
        EXPECT_TRUE(english.van(base)) << base.toStdString();
    }
    címszólista hungarian(test_places::program(), nyelv::magyar);
    for (const QString &headword : real_headwords("ma.txt", 2000))
        EXPECT_TRUE(hungarian.van(headword)) << headword.toStdString();
    EXPECT_TRUE(english.hiányok().isEmpty());
    EXPECT_TRUE(hungarian.hiányok().isEmpty());
}

TEST(HeadwordList, knows_which_real_headwords_are_common) {
    címszólista english(test_places::program(), nyelv::angol);
    címszólista hungarian(test_places::program(), nyelv::magyar);

    for (const auto &[common, rare] :
         {std::pair{u"house", u"houseleek"}, {u"to receive", u"to rescind"}, {u"because", u"becalm"}})
        EXPECT_GT(english.gyakoriság(common), english.gyakoriság(rare)) << QString::fromUtf16(rare).toStdString();
    for (const auto &[common, rare] : {std::pair{u"ház", u"házfedél"}, {u"könyv", u"könyök"}, {u"eszik", u"esztergál"}})
        EXPECT_GT(hungarian.gyakoriság(common), hungarian.gyakoriság(rare)) << QString::fromUtf16(rare).toStdString();
}

}  // namespace
