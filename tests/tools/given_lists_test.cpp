#include "word_lists/given_lists.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

/// A folder that is given the lists "a.szs" and "b.szs".
class GivenLists : public testing::Test {
  protected:
    /// How many lists were written.
    int give(const QByteArray &a, const QByteArray &b) {
        const auto result = word_lists::give({{u"a.szs"_s, a}, {u"b.szs"_s, b}}, folder_, record_);
        const int *count = std::get_if<int>(&result);
        EXPECT_NE(count, nullptr);
        return count ? *count : -1;
    }
    [[nodiscard]] QString place(const char *name) const { return folder_ + u'/' + QString::fromUtf8(name); }

    QTemporaryDir root_;
    const QString folder_ = root_.filePath(u"szószedetek"_s);
    const QString record_ = root_.filePath(u"given.txt"_s);
};

TEST_F(GivenLists, are_written_into_a_folder_that_is_made) {
    EXPECT_EQ(give("1", "2"), 2);

    EXPECT_EQ(read_file(place("a.szs")), "1");
    EXPECT_EQ(read_file(place("b.szs")), "2");
}

TEST_F(GivenLists, are_renewed_where_nobody_has_touched_them) {
    give("1", "2");

    EXPECT_EQ(give("1", "new"), 2);

    EXPECT_EQ(read_file(place("b.szs")), "new");
}

TEST_F(GivenLists, that_the_user_changed_stay_as_they_are) {
    give("1", "2");
    write_file(place("a.szs"), "mine");

    EXPECT_EQ(give("new", "2"), 1);

    EXPECT_EQ(read_file(place("a.szs")), "mine");
}

TEST_F(GivenLists, that_the_user_deleted_do_not_come_back) {
    give("1", "2");
    QFile::remove(place("a.szs"));

    give("1", "2");
    give("new", "2");

    EXPECT_FALSE(QFile::exists(place("a.szs")));
}

TEST_F(GivenLists, leave_a_list_of_the_same_name_alone_that_was_there_before) {
    QDir().mkpath(folder_);
    write_file(place("a.szs"), "mine");

    EXPECT_EQ(give("1", "2"), 1);
    EXPECT_EQ(give("1", "2"), 1);

    EXPECT_EQ(read_file(place("a.szs")), "mine");
}

TEST_F(GivenLists, tell_a_folder_that_cannot_be_made) {
    write_file(folder_, "a file in its place");

    const auto result = word_lists::give({{u"a.szs"_s, "1"}}, folder_, record_);

    ASSERT_TRUE(std::holds_alternative<Failure>(result));
    EXPECT_TRUE(std::get<Failure>(result).sentence.contains(folder_));
}

}  // namespace
