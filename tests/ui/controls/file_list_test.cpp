#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QtTest/QTest>

#include "support/file_list_fixture.h"

using namespace Qt::StringLiterals;

namespace {

TEST_F(FileList, shows_the_files_that_match_the_pattern_in_small_letters_and_capitals) {
    for (const char *name : {"a.wav", "B.WAV", "c.Wav", "d.wave", "e.mid", "wav", "f.wav.txt"})
        make(name);

    list_.set_folder(folder_.path());

    EXPECT_EQ(list_.items(), names({"a.wav", "B.WAV", "c.Wav"}));
}

TEST_F(FileList, orders_names_by_their_letters_whether_small_or_capital) {
    for (const char *name : {"citrom.wav", "Barack.wav", "alma 2.wav", "DIÓ.wav", "alma 10.wav"})
        make(name);

    list_.set_folder(folder_.path());

    EXPECT_EQ(list_.items(), names({"alma 10.wav", "alma 2.wav", "Barack.wav", "citrom.wav", "DIÓ.wav"}));
}

TEST_F(FileList, orders_accented_letters_beside_those_without_an_accent) {
    for (const char *name : {"Őszi eső.wav", "zene.wav", "Érik a szőlő.wav", "öröm.wav", "este.wav", "ostor.wav"})
        make(name);

    list_.set_folder(folder_.path());

    EXPECT_EQ(list_.items(),
              names({"Érik a szőlő.wav", "este.wav", "ostor.wav", "öröm.wav", "Őszi eső.wav", "zene.wav"}));
}

TEST_F(FileList, shows_no_folders) {
    make("hang.wav");
    QDir(folder_.path()).mkdir(u"mappa.wav"_s);

    list_.set_folder(folder_.path());

    EXPECT_EQ(list_.items(), names({"hang.wav"}));
}

TEST_F(FileList, is_empty_for_a_missing_folder) {
    show_three();

    list_.set_folder(place("nincs"));

    EXPECT_EQ(list_.count(), 0);
    EXPECT_EQ(list_.file_name(), QString());
}

TEST_F(FileList, gives_the_name_of_the_selected_file_and_its_path) {
    show_three();
    EXPECT_EQ(list_.file_name(), QString());

    list_.select(1);

    EXPECT_EQ(list_.file_name(), u"barack.wav"_s);
    EXPECT_EQ(list_.path_of(list_.file_name()), place("barack.wav"));
    EXPECT_EQ(list_.folder(), folder_.path());
}

TEST_F(FileList, reads_the_folder_again_and_selects_nothing) {
    show_three();
    list_.select(1);
    selected_.clear();
    QFile::remove(place("alma.wav"));
    make("banán.wav");
    EXPECT_EQ(list_.items(), names({"alma.wav", "barack.wav", "citrom.wav"}));

    list_.refresh();

    EXPECT_EQ(list_.items(), names({"banán.wav", "barack.wav", "citrom.wav"}));
    EXPECT_EQ(list_.selected(), -1);
    EXPECT_EQ(selected_.count(), 0);
}

TEST_F(FileList, keeps_the_selected_file_selected_where_it_is_now) {
    show_three();
    list_.select(1);
    selected_.clear();
    make("banán.wav");

    list_.refresh_keeping_selection();

    EXPECT_EQ(list_.selected(), 2);
    EXPECT_EQ(list_.file_name(), u"barack.wav"_s);
    EXPECT_EQ(selected_.count(), 0);
}

TEST_F(FileList, selects_nothing_when_the_selected_file_has_gone) {
    show_three();
    list_.select(1);
    QFile::remove(place("barack.wav"));

    list_.refresh_keeping_selection();

    EXPECT_EQ(list_.selected(), -1);
}

TEST_F(FileList, selects_nothing_when_the_focus_comes) {
    show_three();
    list_.refresh_keeping_selection();
    QApplication::setActiveWindow(&list_);

    list_.setFocus();

    ASSERT_TRUE(list_.hasFocus());
    EXPECT_EQ(list_.selected(), -1);
    EXPECT_EQ(selected_.count(), 0);
}

TEST_F(FileList, tells_of_the_delete_key_and_leaves_the_file_alone) {
    show_three();
    list_.select(1);

    QTest::keyClick(&list_, Qt::Key_Delete);

    EXPECT_EQ(deleted_.count(), 1);
    EXPECT_TRUE(QFile::exists(place("barack.wav")));
    EXPECT_EQ(list_.file_name(), u"barack.wav"_s);
}

TEST_F(FileList, tells_once_of_a_delete_key_that_is_held_down) {
    show_three();

    QTest::keyPress(&list_, Qt::Key_Delete);
    for (int i = 0; i < 3; ++i) {
        QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier, QString(), true);
        QApplication::sendEvent(&list_, &repeat);
    }
    EXPECT_EQ(deleted_.count(), 1);
    QTest::keyRelease(&list_, Qt::Key_Delete);
    QTest::keyClick(&list_, Qt::Key_Delete);
    EXPECT_EQ(deleted_.count(), 2);
}

TEST_F(FileList, takes_delete_with_another_key_and_backspace_for_no_delete) {
    show_three();

    QTest::keyClick(&list_, Qt::Key_Delete, Qt::ShiftModifier);
    QTest::keyClick(&list_, Qt::Key_Delete, Qt::ControlModifier);
    QTest::keyClick(&list_, Qt::Key_Backspace);

    EXPECT_EQ(deleted_.count(), 0);
}

TEST_F(FileList, moves_its_selection_by_keys_as_any_list) {
    show_three();
    list_.select(0);

    QTest::keyClick(&list_, Qt::Key_Down);

    EXPECT_EQ(list_.file_name(), u"barack.wav"_s);
    EXPECT_EQ(selected_.count(), 2);
}

TEST_F(FileList, takes_the_delete_key_of_the_number_pad_for_one) {
    show_three();

    QTest::keyClick(&list_, Qt::Key_Delete, Qt::KeypadModifier);

    EXPECT_EQ(deleted_.count(), 1);
}

}  // namespace
