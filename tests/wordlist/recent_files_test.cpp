#include "wordlist/recent_files.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

bool always(const QString &) {
    return true;
}

TEST(RecentFiles, uses_the_first_four_that_exist) {
    const QByteArray bytes = "/a.szs\r\n/gone.szs\r\n/b.szs\r\n\r\n/c.szs\r\n/d.szs\r\n/e.szs\r\n";

    const QStringList read = legutóbbifájlok::olvas(bytes, [](const QString &path) { return path != u"/gone.szs"_s; });

    EXPECT_EQ(read, QStringList({u"/a.szs"_s, u"/b.szs"_s, u"/c.szs"_s, u"/d.szs"_s}));
}

TEST(RecentFiles, are_found_among_rubbish) {
    QByteArray rubbish;
    for (int i = 0; i < 5000; ++i)
        rubbish.append(static_cast<char>(i * 7919 % 256));

    const auto is_there = [](const QString &path) { return path == u"/van.szs"_s; };

    EXPECT_TRUE(legutóbbifájlok::olvas("", always).isEmpty());
    EXPECT_TRUE(legutóbbifájlok::olvas(rubbish, is_there).isEmpty());
    EXPECT_EQ(legutóbbifájlok::olvas(rubbish + "\r\n/van.szs\r\n" + rubbish, is_there), QStringList{u"/van.szs"_s});
}

TEST(RecentFiles, are_asked_for_no_further_than_needed_in_fifty_lines) {
    QByteArray bytes;
    for (int i = 0; i < 50; ++i)
        bytes += "/" + QByteArray::number(i) + ".szs\r\n";
    int asked = 0;

    const QStringList read = legutóbbifájlok::olvas(bytes, [&](const QString &) { return ++asked > 0; });

    EXPECT_EQ(read.size(), 4);
    EXPECT_EQ(asked, 4);
}

TEST(RecentFiles, show_a_file_twice_that_stands_twice) {
    EXPECT_EQ(legutóbbifájlok::olvas("/a.szs\r\n/a.szs\r\n", always), QStringList({u"/a.szs"_s, u"/a.szs"_s}));
}

TEST(RecentFiles, put_the_current_file_first_and_only_once) {
    const legutóbbifájlok::írott file = legutóbbifájlok::ír(u"/ő.szs"_s, {u"/a.szs"_s, u"/ő.szs"_s, u"/b.szs"_s});

    EXPECT_EQ(file.bytes, "/\xf5.szs\r\n/a.szs\r\n/b.szs\r\n");
    EXPECT_TRUE(file.kimaradtak.isEmpty());
}

/// What is told of a path that cannot be written.
QString told_of(const QString &path) {
    const legutóbbifájlok::írott file = legutóbbifájlok::ír(path, {u"/a.szs"_s});
    EXPECT_EQ(file.bytes, "/a.szs\r\n");
    return file.kimaradtak.size() == 1 ? file.kimaradtak[0].sentence : QString();
}

TEST(RecentFiles, leave_out_the_line_only_of_a_path_that_the_code_page_cannot_hold) {
    EXPECT_EQ(told_of(u"/火.szs"_s),
              u"A(z) „/火.szs” fájl használható, de nem kerülhet a legutóbbi fájlok közé, mert a nevében a(z) „火” "
              "betű nem írható le a közép-európai kódlapon. Ha más nevet kap, a menüben is ott lesz."_s);
}

TEST(RecentFiles, never_change_a_path_whose_accents_are_separate) {
    EXPECT_TRUE(told_of(u"/e\u0301n.szs"_s).contains(u"mert a nevében a(z) „e\u0301” betű ékezete külön jel"_s));
}

TEST(RecentFiles, never_make_two_lines_of_a_path_with_a_line_break) {
    EXPECT_EQ(
        told_of(u"/a\nb.szs"_s),
        u"A(z) „/a b.szs” fájl használható, de nem kerülhet a legutóbbi fájlok közé, mert a nevében sortörés van. "
        "Ha más nevet kap, a menüben is ott lesz."_s);
}

TEST(RecentFiles, are_found_behind_a_line_longer_than_any_path) {
    const QByteArray bytes = QByteArray(1 << 20, 'x') + "\r\n/a.szs\r\n";
    qsizetype longest = 0;

    const QStringList read = legutóbbifájlok::olvas(bytes, [&](const QString &path) {
        longest = std::max(longest, path.size());
        return true;
    });

    EXPECT_EQ(read, QStringList{u"/a.szs"_s});
    EXPECT_LE(longest, 65536);
}

TEST(RecentFiles, have_the_path_behind_the_first_four_characters_of_their_caption) {
    EXPECT_EQ(legutóbbifájlok::felirat(1, u"/szavak/allatok.szs"_s), u"&1: /szavak/allatok.szs"_s);
    EXPECT_EQ(legutóbbifájlok::útvonal(u"&1: /szavak/allatok.szs"_s), u"/szavak/allatok.szs"_s);
}

TEST(RecentFiles, keep_an_ampersand_of_the_path) {
    const QString path = u"/R&D && más/a&.szs"_s;

    EXPECT_EQ(legutóbbifájlok::útvonal(legutóbbifájlok::felirat(4, path)), path);
}

}  // namespace
