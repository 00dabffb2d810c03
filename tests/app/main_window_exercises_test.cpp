#include "support/main_window_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class MainWindowExercises : public MainWindowTest {
  protected:
    /// A main window with the word list of the file `bytes` open.
    void start_with_list(const QByteArray &bytes) {
        file_ = word_list("list.szs", bytes);
        start(file_);
    }

    /// Opens an exercise from the menu; `act` is called while it is open.
    void practise(const char *menu_item, const char *expected_window, const std::function<void(ablak &)> &act) {
        const QString before = pairs();
        const QByteArray bytes_before = read_file(file_);
        const auto changed_before = state_.változott;
        bool opened = false;
        QTimer::singleShot(0, window_.get(), [&] {
            auto *exercise = dynamic_cast<ablak *>(QApplication::activeModalWidget());
            ASSERT_NE(exercise, nullptr);
            opened = true;
            EXPECT_EQ(exercise->objectName(), QString::fromUtf8(expected_window));
            EXPECT_EQ(exercise->windowModality(), Qt::ApplicationModal);
            EXPECT_FALSE(window_->isVisible());
            act(*exercise);
            exercise->close();
        });

        action(menu_item)->trigger();

        EXPECT_TRUE(opened);
        EXPECT_TRUE(window_->isVisible());
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        EXPECT_EQ(pairs(), before);
        EXPECT_EQ(read_file(file_), bytes_before);
        EXPECT_EQ(state_.változott, changed_before);
        EXPECT_FALSE(ended_);
    }

    [[nodiscard]] static QString shown(const ablak &window, const char *picture) {
        return window.findChild<QWidget *>(QString::fromUtf8(picture))->property("tag").toString();
    }

    QString file_;
};

TEST_F(MainWindowExercises, learning_window_takes_the_place_of_the_main_window) {
    start_with_list("dog:kutya\r\ncat:macska\r\n");

    practise("mnufeladattanul", "tanulás", [](const ablak &learning) {
        EXPECT_EQ(shown(learning, "label1"), u"dog"_s);
        EXPECT_EQ(shown(learning, "label3"), u"kutya"_s);
    });
}

TEST_F(MainWindowExercises, learning_window_shows_the_list_as_it_is_at_every_opening) {
    start_with_list("dog:kutya\r\n");
    practise("mnufeladattanul", "tanulás", [](const ablak &) {});
    click_item("szószedet", 0);
    text_box("szómagytext")->setText(u"eb"_s);
    click("módosít");

    practise("mnufeladattanul", "tanulás",
             [](const ablak &learning) { EXPECT_EQ(shown(learning, "label3"), u"eb"_s); });
}

TEST_F(MainWindowExercises, typed_quiz_takes_the_place_of_the_main_window) {
    start_with_list("dog:kutya\r\n");

    practise("mnufeladatkikérd", "kikérdező",
             [](const ablak &quiz) { EXPECT_EQ(shown(quiz, "Pic_kérdés"), u"kutya"_s); });
}

TEST_F(MainWindowExercises, typed_quiz_is_won_to_the_end_and_the_main_window_is_back) {
    start_with_list("dog:kutya\r\n");
    QStringList result;

    practise("mnufeladatkikérd", "kikérdező", [&](const ablak &quiz) {
        QTimer::singleShot(0, window_.get(), [&result] {
            auto *message = dynamic_cast<ablak *>(QApplication::activeModalWidget());
            ASSERT_NE(message, nullptr);
            EXPECT_EQ(message->objectName(), u"üzenet"_s);
            for (int i = 0; i < 3; ++i)
                result.append(shown(*message, qUtf8Printable(u"Pic_szöveg(%1)"_s.arg(i))));
            message->close();
        });
        auto *answer = quiz.findChild<QLineEdit *>(u"txt_megoldás"_s);
        QTest::keyClicks(answer, u"dog"_s);
        QTest::keyClick(answer, Qt::Key_Return);
        EXPECT_FALSE(quiz.isVisible());
    });

    EXPECT_EQ(result, QStringList({u"Gratulálok! Sikerült!"_s, u" "_s, u"Hibaarány:  0%"_s}));
}

TEST_F(MainWindowExercises, multiple_choice_opens_with_two_pairs) {
    start_with_list("dog:kutya\r\ncat:macska\r\n");

    practise("mnufeladatválaszt", "választás", [](const ablak &game) {
        EXPECT_NE(game.findChild<QWidget *>(u"pic_kínálat(1)"_s), nullptr);
        EXPECT_EQ(game.findChild<QWidget *>(u"pic_kínálat(2)"_s), nullptr);
    });
}

TEST_F(MainWindowExercises, multiple_choice_of_one_pair_is_a_warning_before_the_main_window) {
    start_with_list("dog:kutya\r\n");
    QString window;
    bool main_window_seen = false;
    QTimer::singleShot(0, window_.get(), [&] {
        window = QApplication::activeModalWidget()->objectName();
        main_window_seen = window_->isVisible();
        QApplication::activeModalWidget()->close();
    });

    action("mnufeladatválaszt")->trigger();

    EXPECT_EQ(window, u"üzenet"_s);
    EXPECT_TRUE(main_window_seen);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(pairs(), u"dog:kutya"_s);
}

TEST_F(MainWindowExercises, menu_has_the_five_exercises_in_their_order) {
    start_with_list("dog:kutya\r\n");

    const auto *menu = control<QMenu>("mnufeladat");
    QStringList items;
    for (const QAction *one : menu->actions())
        items.append(one->objectName() + u' ' + one->text());

    EXPECT_EQ(menu->title(), u"Fel&adatok"_s);
    EXPECT_EQ(items, QStringList({u"mnufeladattanul &Tanulás"_s, u"mnufeladatkikérd &Kikérdezés"_s,
                                  u"mnufeladatválaszt &Választás"_s, u"mnu_fájl_kirakó &Kirakó"_s,
                                  u"mnufeladatmemória &Memória"_s}));
}

TEST_F(MainWindowExercises, letter_puzzle_takes_the_place_of_the_main_window) {
    start_with_list("dog:kutya\r\n");

    practise("mnu_fájl_kirakó", "frm_kirakó", [](const ablak &puzzle) {
        EXPECT_EQ(shown(puzzle, "pic_feladvány"), u"kutya"_s);
        EXPECT_NE(puzzle.findChild<QWidget *>(u"Label_betű(2)"_s), nullptr);
        EXPECT_EQ(puzzle.findChild<QWidget *>(u"Label_betű(3)"_s), nullptr);
    });
}

TEST_F(MainWindowExercises, letter_puzzle_that_is_solved_closes_and_the_main_window_is_back) {
    start_with_list("o:\xf3\r\n");
    QString result;

    practise("mnu_fájl_kirakó", "frm_kirakó", [&](const ablak &puzzle) {
        QTimer::singleShot(0, window_.get(), [&result] {
            auto *message = dynamic_cast<ablak *>(QApplication::activeModalWidget());
            ASSERT_NE(message, nullptr);
            result = message->objectName() + u' ' + shown(*message, "Pic_szöveg(0)");
            message->close();
        });
        QTest::keyClick(puzzle.focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(puzzle.isVisible());
    });

    EXPECT_EQ(result, u"üzenet o - ó"_s);
}

TEST_F(MainWindowExercises, memory_game_takes_the_place_of_the_main_window) {
    start_with_list("a:1\r\nb:2\r\nc:3\r\nd:4\r\ne:5\r\nf:6\r\ng:7\r\n");

    practise("mnufeladatmemória", "frm_memory", [](const ablak &game) {
        EXPECT_NE(game.findChild<QWidget *>(u"pic_kártya(11)"_s), nullptr);
        EXPECT_EQ(game.findChild<QWidget *>(u"pic_kártya(12)"_s), nullptr);
    });
}

TEST_F(MainWindowExercises, memory_game_of_six_pairs_is_refused_and_the_main_window_is_back) {
    start_with_list("a:1\r\nb:2\r\nc:3\r\nd:4\r\ne:5\r\nf:6\r\n");
    const QString before = pairs();
    QString message;
    QTimer::singleShot(0, window_.get(), [&] {
        auto *shown_window = dynamic_cast<ablak *>(QApplication::activeModalWidget());
        ASSERT_NE(shown_window, nullptr);
        message = shown_window->objectName() + u' ' + shown(*shown_window, "Pic_szöveg(1)");
        shown_window->close();
    });

    action("mnufeladatmemória")->trigger();

    EXPECT_EQ(message, u"üzenet legalább hat szópárra"_s);
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(pairs(), before);
    EXPECT_FALSE(ended_);
}

TEST_F(MainWindowExercises, exercise_has_the_colour_of_the_program) {
    start_with_list("a:1\r\nb:2\r\nc:3\r\nd:4\r\ne:5\r\nf:6\r\ng:7\r\n");

    for (const auto &[item, name] : {std::pair{"mnufeladattanul", "tanulás"},
                                     {"mnufeladatkikérd", "kikérdező"},
                                     {"mnufeladatválaszt", "választás"},
                                     {"mnu_fájl_kirakó", "frm_kirakó"},
                                     {"mnufeladatmemória", "frm_memory"}})
        practise(item, name, [this](const ablak &exercise) {
            EXPECT_EQ(exercise.háttérszín(), reference_.háttérszín());
            EXPECT_TRUE(exercise.windowTitle().startsWith(u"Zimbora Angol-Magyar Szótár - "_s));
        });
}

TEST_F(MainWindowExercises, list_of_five_thousand_pairs_is_practised_in_every_exercise) {
    QByteArray bytes;
    for (int i = 0; i < 5000; ++i)
        bytes += "word" + QByteArray::number(i) + ":sz\xf3" + QByteArray::number(i) + "\r\n";
    start_with_list(bytes);

    for (const auto &[item, name] : {std::pair{"mnufeladattanul", "tanulás"},
                                     {"mnufeladatkikérd", "kikérdező"},
                                     {"mnufeladatválaszt", "választás"},
                                     {"mnu_fájl_kirakó", "frm_kirakó"},
                                     {"mnufeladatmemória", "frm_memory"}})
        practise(item, name, [](const ablak &) {});
}

}  // namespace
