#include <gtest/gtest.h>

#include <QFile>
#include <random>

#include "support/dictionary_for_tests.h"
#include "support/files_for_tests.h"
#include "support/memory_source.h"
#include "support/printing.h"
#include "support/test_places.h"

namespace {

/// The dictionaries that were made for this build.
class RealDictionary : public testing::TestWithParam<const char *> {
  protected:
    RealDictionary() : path_(test_places::in_program(QString::fromLatin1(GetParam()))) {}

    QString path_;
    QByteArray bytes_ = read_file(path_);
};

TEST_P(RealDictionary, begins_with_a_notice_that_the_walk_cannot_pass) {
    EXPECT_GE(bytes_.indexOf("\r\n"), 101);
}

TEST_P(RealDictionary, is_searched_as_the_definition_of_a_hit_says) {
    const QByteArrayList headwords = headwords_of(bytes_);
    ASSERT_GT(headwords.size(), 80000);
    FileSource source(path_);
    std::mt19937 random(20);
    for (int i = 0; i < 1000; ++i) {
        const QByteArray &chosen = headwords[static_cast<qsizetype>(random()) % headwords.size()];
        const QByteArrayView headword = keresőkulcs(QByteArrayView(chosen));
        const auto length = std::min<qsizetype>(1 + static_cast<qsizetype>(random() % 8), headword.size());
        const QByteArray text = headword.first(length).toByteArray();
        // With the key's own "to " the caller's comparison ends the search; that is another test.
        if (text.startsWith("to "))
            continue;
        ASSERT_EQ(without_verbs_before(find_in(source, text).headwords, text), brute_force(headwords, text))
            << text.constData();
    }
}

TEST_P(RealDictionary, is_read_only_near_the_text_and_its_hits) {
    const QByteArrayList headwords = headwords_of(bytes_);
    FileSource source(path_);
    std::mt19937 random(21);
    for (int i = 0; i < 1000; ++i) {
        const QByteArray &chosen = headwords[static_cast<qsizetype>(random()) % headwords.size()];
        const QByteArray text =
            keresőkulcs(QByteArrayView(chosen)).toByteArray().left(1 + static_cast<int>(random() % 8));
        if (text.startsWith("to "))
            continue;
        CountingSource counted(source);

        const Found found = find_in(counted, text);

        qsizetype hits = 0;
        for (qsizetype hit = 0; hit < found.headwords.size(); ++hit)
            hits += found.headwords[hit].size() + found.meanings[hit].size() + 3;
        // About twenty probes of two lines, a walk and the overshoot of a quarter.
        ASSERT_LE(counted.bytes_read, 20000 + hits * 5 / 4) << text.constData();
        ASSERT_LE(counted.reads, 100 + hits / 1000) << text.constData();
    }
}

INSTANTIATE_TEST_SUITE_P(Both, RealDictionary, testing::Values("am.txt", "ma.txt"),
                         [](const auto &one) { return std::string(one.param, 2); });

}  // namespace
