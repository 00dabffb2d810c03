#include "support/main_window_fixture.h"

using namespace Qt::StringLiterals;

namespace {

const QString question = u"Kilépés|Akarja menteni a változtatásokat?|yes no cancel"_s;

class MainWindowExit : public MainWindowTest {
  protected:
    void start_and_add() {
        start();
        type("apple");
        click("hozzáad");
    }

    /// The folder of the mini window's file exists and holds a file.
    void make_mini_window_folder(const QByteArray &values = {}) {
        QDir(root_.path()).mkpath(u"c/zbrmk/angol"_s);
        write_file(place("c/zbrmk/angol/kisablak.ini"), values);
    }

    [[nodiscard]] QByteArray mini_window_file() const { return read_file(place("c/zbrmk/angol/kisablak.ini")); }
};

TEST_F(MainWindowExit, asks_nothing_when_nothing_has_changed) {
    start();

    click("kilép");

    EXPECT_TRUE(ended_);
    EXPECT_TRUE(boxes_.asked.isEmpty());
}

TEST_F(MainWindowExit, stays_on_cancel_with_the_window_open) {
    start_and_add();
    boxes_.answers = {Answer::cancel};

    EXPECT_FALSE(window_->close());

    EXPECT_EQ(boxes_.asked, QStringList{question});
    EXPECT_FALSE(ended_);
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(pairs(), u"apple:alma"_s);
}

TEST_F(MainWindowExit, ends_without_saving_on_no) {
    start_and_add();
    boxes_.answers = {Answer::no};

    EXPECT_TRUE(window_->close());

    EXPECT_TRUE(ended_);
    EXPECT_TRUE(dialogs_.proposals.isEmpty());
}

TEST_F(MainWindowExit, saves_on_yes_and_ends) {
    start_and_add();
    boxes_.answers = {Answer::yes};
    dialogs_.choices = {place("gyumi.szs")};

    click("kilép");

    EXPECT_TRUE(ended_);
    EXPECT_EQ(read_file(place("gyumi.szs")), "apple:alma\r\n");
}

TEST_F(MainWindowExit, stays_when_the_save_is_cancelled_or_fails) {
    start_and_add();
    boxes_.answers = {Answer::yes, Answer::yes};

    click("kilép");
    EXPECT_FALSE(ended_);
    dialogs_.choices = {place("nincs/lista")};
    click("kilép");

    EXPECT_FALSE(ended_);
    EXPECT_EQ(boxes_.told.size(), 1);
    EXPECT_EQ(pairs(), u"apple:alma"_s);
}

TEST_F(MainWindowExit, asks_only_once_while_it_is_asking) {
    start_and_add();
    boxes_.answers = {Answer::yes};
    dialogs_.meanwhile = [this] { window_->kilép_Click(); };

    click("kilép");

    EXPECT_EQ(boxes_.asked.size(), 1);
}

TEST_F(MainWindowExit, writes_the_mini_windows_values_as_they_were_read) {
    make_mini_window_folder(" 999999 \r\n-300 \r\n 1 \r\n");
    start();
    EXPECT_EQ(state_.kisablakbal, 999999);
    EXPECT_EQ(state_.kisablakfent, -300);
    EXPECT_EQ(state_.kisablakmód, 1);

    click("kilép");

    EXPECT_EQ(mini_window_file(), " 999999 \r\n-300 \r\n 1 \r\n");
}

TEST_F(MainWindowExit, starts_in_the_screens_middle_when_the_mini_windows_file_is_missing_or_rubbish) {
    start();
    EXPECT_EQ(state_.kisablakbal, 7680);
    EXPECT_EQ(state_.kisablakfent, 5760);
    EXPECT_EQ(state_.kisablakmód, 0);

    for (const char *rubbish : {"rubbish", " 1 \r\n 2 \r\n"}) {
        make_mini_window_folder(rubbish);
        start();
        EXPECT_EQ(state_.kisablakbal, 7680);
    }
}

TEST_F(MainWindowExit, writes_no_mini_window_file_without_its_folder_and_says_nothing) {
    start();

    click("kilép");

    EXPECT_FALSE(QFile::exists(place("c/zbrmk")));
    EXPECT_TRUE(boxes_.told.isEmpty());
    EXPECT_TRUE(ended_);
}

TEST_F(MainWindowExit, writes_the_mini_window_file_even_when_the_user_stays) {
    make_mini_window_folder("rubbish");
    start_and_add();
    boxes_.answers = {Answer::cancel};

    click("kilép");

    EXPECT_EQ(mini_window_file(), " 7680 \r\n 5760 \r\n 0 \r\n");
}

}  // namespace
