// What is known of English beside the packages, and what is done with it.

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "freedict/known_meanings.h"
#include "freedict/usual_verbs.h"
#include "freedict/word_classes.h"
#include "freedict/word_net.h"
#include "tools/sample_package.h"

using namespace Qt::StringLiterals;

namespace {

using freedict::Language;
using freedict::Lexicon;
using freedict::WordNet;

/// A folder with a small WordNet: "go" as a noun met once and as a verb met 300 times; "truck" is also called "lorry".
class OutsideKnowledge : public testing::Test {
  protected:
    OutsideKnowledge() {
        put("data.noun",
            "  1 licence\n"
            "00000100 04 n 01 go 0 000 | a try; \"give it a go\"\n"
            "00000200 06 n 02 truck 0 lorry 0 001 @ 00000300 n 0000 | an automotive vehicle\n"
            "00000300 06 n 01 vehicle 0 001 ~ 00000200 n 0000 | a conveyance\n");
        put("index.noun", "go n 1 0 1 1 00000100\ntruck n 1 1 @ 1 0 00000200\nvehicle n 1 1 ~ 1 0 00000300\n");
        put("data.verb", "00000400 38 v 02 go 0 travel 0 000 01 + 01 00 | change location\n");
        put("index.verb", "go v 1 0 1 1 00000400\n");
        for (const char *name : {"data.adj", "data.adv", "index.adj", "index.adv"})
            put(name, "");
        put("cntlist.rev", "go%1:04:00:: 1 1\ngo%2:38:00:: 1 300\n");
    }

    void put(const char *name, const QByteArray &text) const {
        SamplePackage::put(folder_.filePath(QString::fromLatin1(name)), text);
    }
    [[nodiscard]] WordNet net() const { return std::get<WordNet>(WordNet::read(folder_.path())); }

    QTemporaryDir folder_;
};

TEST_F(OutsideKnowledge, verbs_and_nouns_are_counted_apart) {
    EXPECT_EQ(net().count(u"go"_s, true), 300);
    EXPECT_EQ(net().count(u"go"_s, false), 1);
    EXPECT_EQ(net().count(u"lorry"_s, false), 0);
}

TEST_F(OutsideKnowledge, a_sense_is_related_to_its_words_its_neighbours_and_its_explanation) {
    const WordNet net = this->net();
    const auto senses = net.senses(u"truck"_s, false);

    ASSERT_EQ(senses.size(), 1);
    EXPECT_EQ(senses[0].share, 1);
    const auto relation = [&](const char *word) {
        return net.relation(senses[0].synset, net.number(QString::fromLatin1(word)));
    };
    EXPECT_EQ(relation("lorry"), 1);
    EXPECT_EQ(relation("vehicle"), 0.5);
    EXPECT_FLOAT_EQ(static_cast<float>(relation("automotive")), 0.2F);
    EXPECT_EQ(relation("travel"), 0);
}

TEST_F(OutsideKnowledge, a_damaged_line_of_wordnet_is_told_with_file_and_line) {
    put("index.verb", "go v 1 0 1 1 00000400\nnonsense\n");

    const auto result = WordNet::read(folder_.path());

    ASSERT_TRUE(std::holds_alternative<Failure>(result));
    EXPECT_EQ(std::get<Failure>(result).sentence,
              u"A(z) „%1” fájl sérült: értelmezhetetlen a(z) 2. sora."_s.arg(folder_.filePath(u"index.verb"_s)));
}

TEST_F(OutsideKnowledge, a_usual_verb_lends_its_first_two_meanings_to_the_noun) {
    Lexicon lexicon{{{u"go"_s, {u"alku"_s, u"jár"_s}},
                     {u"to go, went, gone"_s, {u"megy"_s, u"jár"_s, u"működik"_s}},
                     {u"truck"_s, {u"teherautó"_s}},
                     {u"to truck"_s, {u"cserél"_s}}},
                    {}};

    const qsizetype lent = freedict::lend_usual_verbs(lexicon, net());

    EXPECT_EQ(lexicon.english[0].meanings, (QStringList{u"megy"_s, u"jár"_s, u"alku"_s}));
    EXPECT_EQ(lexicon.english[2].meanings, QStringList{u"teherautó"_s});
    EXPECT_EQ(lent, 1);
}

TEST_F(OutsideKnowledge, a_words_class_is_that_of_the_smallest_list_and_a_texts_that_of_its_rarest_word) {
    put("english-words.10", "go\nhome\n");
    put("british-words.50", "go\nhomewards\n");

    const auto read = freedict::WordClasses::read(folder_.path());

    const auto &classes = std::get<freedict::WordClasses>(read);
    EXPECT_EQ(classes.of(u"go"_s), 10);
    EXPECT_EQ(classes.of_rarest(u"to go homewards"_s), 50);
    EXPECT_EQ(classes.of(u"eftsoons"_s), freedict::WordClasses::unknown);
}

TEST_F(OutsideKnowledge, word_lists_that_are_not_there_are_told) {
    EXPECT_TRUE(std::holds_alternative<Failure>(freedict::WordClasses::read(folder_.path())));
}

TEST(FittedWeights, make_the_accepted_meanings_first) {
    QVector<freedict::Choice> choices;
    for (int i = 0; i < 20; ++i) {
        freedict::Features good{};
        freedict::Features bad{};
        good[freedict::more_words] = 0;
        bad[freedict::more_words] = 1 + i % 3;
        bad[freedict::letters] = i % 2;
        choices.append({u"w"_s, {bad, good}, {false, true}});
    }
    const freedict::Used all = freedict::Used().set();

    const freedict::Features weights = freedict::fitted_weights(choices, all);

    EXPECT_LT(weights[freedict::more_words], -0.5);
    EXPECT_EQ(freedict::right_among_first(choices, weights, 1), 20);
    EXPECT_EQ(freedict::cross_validated(choices, all, 1), 20);
    EXPECT_EQ(freedict::right_among_first(choices, freedict::Features{}, 1), 0);
}

TEST(KnownMeaningsFile, a_damaged_line_is_told_with_file_and_line) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"k.txt"_s);
    SamplePackage::put(path, "# comment\ngo | megy; jár\nback\n");

    const auto result = freedict::read_known_meanings(path);

    ASSERT_TRUE(std::holds_alternative<Failure>(result));
    EXPECT_EQ(std::get<Failure>(result).sentence, u"A(z) „%1” fájl sérült: értelmezhetetlen a(z) 3. sora."_s.arg(path));
}

}  // namespace
