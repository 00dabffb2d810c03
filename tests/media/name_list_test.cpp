#include "media/name_list.h"

#include <gtest/gtest.h>

#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

/// The names with the selected one in brackets: "a [b] c".
QString shown(const névlista &list) {
    QStringList names = list.nevek();
    if (list.kijelölt() >= 0)
        names[list.kijelölt()] = u'[' + names[list.kijelölt()] + u']';
    return names.join(u' ');
}

/// A list of the letters of `names`, of which `selected` is selected.
névlista list_of(const QString &names, int selected) {
    névlista list;
    list.feltölt(names.split(QString(), Qt::SkipEmptyParts));
    list.kijelöl(selected);
    return list;
}

TEST(NameList, is_empty_at_first) {
    const névlista list;

    EXPECT_EQ(list.darab(), 0);
    EXPECT_EQ(list.kijelölt(), -1);
}

TEST(NameList, puts_a_new_name_to_the_end_and_selects_it) {
    névlista list = list_of(u"ab"_s, 0);

    list.hozzáad(u"c"_s);

    EXPECT_EQ(shown(list), u"a b [c]"_s);
}

TEST(NameList, selects_a_name_that_is_there_instead_of_adding_it_again) {
    névlista list = list_of(u"abc"_s, 2);

    list.hozzáad(u"a"_s);

    EXPECT_EQ(shown(list), u"[a] b c"_s);
}

TEST(NameList, tells_small_letters_from_capitals) {
    névlista list = list_of(u"a"_s, 0);

    list.hozzáad(u"A"_s);

    EXPECT_EQ(shown(list), u"a [A]"_s);
}

TEST(NameList, selects_the_name_that_comes_into_the_place_of_the_removed_one) {
    névlista list = list_of(u"abc"_s, 1);

    list.töröl();

    EXPECT_EQ(shown(list), u"a [c]"_s);
}

TEST(NameList, selects_the_new_last_name_after_the_last_one_was_removed) {
    névlista list = list_of(u"abc"_s, 2);

    list.töröl();

    EXPECT_EQ(shown(list), u"a [b]"_s);
}

TEST(NameList, has_nothing_selected_after_its_only_name_was_removed) {
    névlista list = list_of(u"a"_s, 0);

    list.töröl();

    EXPECT_EQ(list.darab(), 0);
    EXPECT_EQ(list.kijelölt(), -1);
}

TEST(NameList, removes_nothing_without_a_selection) {
    névlista empty;
    névlista list = list_of(u"ab"_s, -1);

    empty.töröl();
    list.töröl();

    EXPECT_EQ(empty.darab(), 0);
    EXPECT_EQ(shown(list), u"a b"_s);
}

TEST(NameList, selects_after_removing_by_name_as_after_removing_the_selected_one) {
    névlista first = list_of(u"abc"_s, 2);
    névlista last = list_of(u"abc"_s, 0);
    névlista unselected = list_of(u"abc"_s, -1);

    first.töröl(u"a"_s);
    last.töröl(u"c"_s);
    unselected.töröl(u"b"_s);

    EXPECT_EQ(shown(first), u"[b] c"_s);
    EXPECT_EQ(shown(last), u"a [b]"_s);
    EXPECT_EQ(shown(unselected), u"a [c]"_s);
}

TEST(NameList, leaves_everything_as_it_is_when_a_name_to_remove_is_missing) {
    névlista list = list_of(u"ab"_s, 1);

    list.töröl(u"x"_s);

    EXPECT_EQ(shown(list), u"a [b]"_s);
}

TEST(NameList, moves_the_selected_name_up_and_down_and_keeps_it_selected) {
    névlista up = list_of(u"abc"_s, 1);
    névlista down = list_of(u"abc"_s, 1);

    up.áthelyez(-1);
    down.áthelyez(1);

    EXPECT_EQ(shown(up), u"[b] a c"_s);
    EXPECT_EQ(shown(down), u"a c [b]"_s);
}

TEST(NameList, moves_neither_the_first_name_up_nor_the_last_one_down) {
    névlista first = list_of(u"abc"_s, 0);
    névlista last = list_of(u"abc"_s, 2);

    first.áthelyez(-1);
    last.áthelyez(1);

    EXPECT_EQ(shown(first), u"[a] b c"_s);
    EXPECT_EQ(shown(last), u"a b [c]"_s);
}

TEST(NameList, moves_nothing_without_a_selection) {
    névlista list = list_of(u"ab"_s, -1);

    list.áthelyez(1);
    list.áthelyez(-1);

    EXPECT_EQ(shown(list), u"a b"_s);
}

TEST(NameList, has_nothing_selected_after_it_was_filled_anew) {
    névlista list = list_of(u"abc"_s, 2);

    list.feltölt({u"x"_s});

    EXPECT_EQ(shown(list), u"x"_s);
}

TEST(NameList, names_only_files_of_its_own_folder) {
    for (const char16_t *name : {u"a.wav", u"két szó.wav", u"\".wav", u"őű.mid", u".."})
        EXPECT_TRUE(mappa_nélküli(QString::fromUtf16(name))) << QString::fromUtf16(name).toStdString();

    for (const char16_t *name : {u"../a.wav", u"/etc/passwd", u"a/", u"..\\a.wav", u"c:\\a.wav", u"\\"})
        EXPECT_FALSE(mappa_nélküli(QString::fromUtf16(name))) << QString::fromUtf16(name).toStdString();
    EXPECT_FALSE(mappa_nélküli(u"a"_s + QChar(QChar::Null)));
}

}  // namespace
