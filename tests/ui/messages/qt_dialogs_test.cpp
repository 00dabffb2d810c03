#include "ui/messages/qt_dialogs.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QFontMetrics>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest/QTest>
#include <algorithm>
#include <functional>
#include <utility>

#include "support/files_for_tests.h"
#include "support/printing.h"
#include "ui/drawing/fonts.h"
#include "ui/drawing/twips.h"

using namespace Qt::StringLiterals;

namespace {

class DialogsOnAScreen : public testing::Test {
  protected:
    void use_screen(double width, double height) {
        screen_ = QRectF(0, 0, width * twips::per_pixel, height * twips::per_pixel);
    }

    QRectF screen_{0, 0, 1024 * twips::per_pixel, 768 * twips::per_pixel};
    frm_referencia reference_;
    Module_hasznos fitting_{reference_, [this] { return screen_; }};
};

class QtDialogs : public DialogsOnAScreen {
  protected:
    using Act = std::function<void(QMessageBox &)>;

    /// Lets `act` be called with the box that opens next, which has been closed afterwards.
    static void when_open(const Act &act) {
        QTimer::singleShot(0, qApp, [act] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            act(*box);
            if (box->isVisible())
                box->done(QMessageBox::NoButton);
        });
    }

    static void press(const QMessageBox &box, QMessageBox::StandardButton button) {
        QTest::mouseClick(box.button(button), Qt::LeftButton);
    }

    [[nodiscard]] Answer ask_yes_no() { return boxes_.ask_yes_no(u"Cím"_s, u"Kérdés?"_s); }

    /// The window that a box stands in front of.
    [[nodiscard]] const QWidget *window_behind_a_box() {
        const QWidget *behind = nullptr;
        when_open([&](QMessageBox &box) { behind = box.parentWidget(); });
        boxes_.tell(u"Üzenet."_s);
        return behind;
    }

    QtMessageBoxes boxes_{fitting_};
};

TEST_F(QtDialogs, question_of_yes_and_no_is_answered_by_its_buttons) {
    when_open([](QMessageBox &box) { press(box, QMessageBox::Yes); });
    EXPECT_EQ(ask_yes_no(), Answer::yes);

    when_open([](QMessageBox &box) { press(box, QMessageBox::No); });
    EXPECT_EQ(ask_yes_no(), Answer::no);
}

TEST_F(QtDialogs, question_of_yes_and_no_is_not_answered_by_escape_or_by_its_frame) {
    when_open([](QMessageBox &box) {
        QTest::keyClick(&box, Qt::Key_Escape);
        EXPECT_TRUE(box.isVisible());
        box.close();
        EXPECT_TRUE(box.isVisible());
        press(box, QMessageBox::Yes);
    });

    EXPECT_EQ(ask_yes_no(), Answer::yes);
}

TEST_F(QtDialogs, question_of_yes_and_no_does_not_hold_up_the_end_of_the_program) {
    Answer answer = Answer::yes;
    QTimer::singleShot(0, qApp, [&] {
        when_open([](QMessageBox &box) {
            QCoreApplication::quit();
            EXPECT_FALSE(box.isVisible());
        });
        answer = ask_yes_no();
        QCoreApplication::exit();
    });

    QApplication::exec();

    EXPECT_EQ(answer, Answer::no);
}

TEST_F(QtDialogs, question_with_cancel_is_cancelled_by_escape_and_by_its_frame) {
    const Act ways[] = {[](QMessageBox &box) { QTest::keyClick(&box, Qt::Key_Escape); },
                        [](QMessageBox &box) { box.close(); },
                        [](QMessageBox &box) { press(box, QMessageBox::Cancel); }};
    for (const Act &cancel : ways) {
        when_open(cancel);
        EXPECT_EQ(boxes_.ask_yes_no_cancel(u"Cím"_s, u"Kérdés?"_s), Answer::cancel);
    }
}

TEST_F(QtDialogs, box_stands_in_front_of_a_window_that_is_seen) {
    QWidget main_window;
    QWidget exercise;
    boxes_.set_window(&main_window);
    EXPECT_EQ(window_behind_a_box(), nullptr);

    exercise.show();
    QApplication::setActiveWindow(nullptr);
    EXPECT_EQ(window_behind_a_box(), &exercise);
    QWidget settings;
    settings.show();
    QApplication::setActiveWindow(&settings);
    EXPECT_EQ(window_behind_a_box(), &settings);

    main_window.show();
    QApplication::setActiveWindow(&settings);
    EXPECT_EQ(window_behind_a_box(), &main_window);
}

TEST_F(QtDialogs, box_stands_in_front_of_a_modal_window_and_not_behind_it) {
    QWidget main_window;
    boxes_.set_window(&main_window);
    main_window.show();
    QWidget modal;
    modal.setWindowModality(Qt::ApplicationModal);
    modal.show();

    EXPECT_EQ(window_behind_a_box(), &modal);
}

TEST_F(QtDialogs, box_and_its_buttons_have_larger_letters_on_a_larger_screen) {
    const auto letters = [this] {
        double points = 0;
        when_open([&](QMessageBox &box) {
            points = fonts::points(box.button(QMessageBox::Ok)->font());
            EXPECT_EQ(box.findChild<QLabel *>(u"qt_msgbox_label"_s)->font(), box.font());
        });
        boxes_.tell(u"Üzenet."_s);
        return points;
    };
    const double small = letters();
    use_screen(2560, 1440);

    EXPECT_NEAR(letters(), std::max(small, 9 * 1440.0 / 768), 0.1);
}

TEST_F(QtDialogs, box_is_wider_than_its_title) {
    const QString title = u"Egy igencsak hosszú cím, amely jóval szélesebb annál, ami alatta áll"_s;
    int width = 0;
    when_open([&](QMessageBox &box) {
        width = box.width();
        press(box, QMessageBox::Yes);
    });

    static_cast<void>(boxes_.ask_yes_no(title, u"Nos?"_s));

    QFont bold = QApplication::font("QMdiSubWindowTitleBar");
    bold.setBold(true);
    EXPECT_GT(width, QFontMetrics(bold).horizontalAdvance(title) + 100);
}

class QtFileDialog : public DialogsOnAScreen {
  protected:
    /// Lets `act` be called with the file dialog that opens next, which has been closed afterwards.
    static void when_open(const std::function<void(QFileDialog &)> &act) {
        QTimer::singleShot(0, qApp, [act] {
            auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
            if (dialog->isVisible())
                dialog->reject();
        });
    }

    QTemporaryDir root_;
    QtFileDialogs dialogs_{fitting_};
};

TEST_F(QtFileDialog, for_a_pdf_offers_its_kind_of_files_and_the_proposed_name) {
    const QString proposal = root_.filePath(u"list.pdf"_s);
    when_open([&](const QFileDialog &dialog) {
        EXPECT_EQ(dialog.nameFilters(), QStringList(u"PDF-fájl (*.pdf)"_s));
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialog.selectedFiles(), QStringList(proposal));
    });

    EXPECT_EQ(dialogs_.save_pdf(proposal), std::nullopt);
}

TEST_F(QtFileDialog, for_a_word_list_offers_its_kind_of_files) {
    when_open(
        [](const QFileDialog &dialog) { EXPECT_EQ(dialog.nameFilters(), QStringList(u"Szószedet fájl (*?szs)"_s)); });

    EXPECT_EQ(dialogs_.save(root_.filePath(u"list.szs"_s)), std::nullopt);
}

TEST_F(QtFileDialog, returns_the_name_as_it_was_chosen_and_does_not_ask_about_a_file_that_exists) {
    const QString proposal = root_.filePath(u"list.pdf"_s);
    write_file(proposal, "old");
    when_open([](QFileDialog &dialog) {
        QTest::keyClick(dialog.findChild<QLineEdit *>(), Qt::Key_Return);
        EXPECT_FALSE(dialog.isVisible());
    });

    EXPECT_EQ(dialogs_.save_pdf(proposal), QDir::toNativeSeparators(proposal));
}

TEST_F(QtFileDialog, is_larger_with_its_letters_on_a_larger_screen) {
    const auto look = [this] {
        std::pair<double, int> letters_and_width;
        when_open([&](const QFileDialog &dialog) {
            letters_and_width = {fonts::points(dialog.findChild<QLineEdit *>()->font()), dialog.width()};
        });
        EXPECT_EQ(dialogs_.open(root_.filePath(u"list.szs"_s)), std::nullopt);
        return letters_and_width;
    };
    const auto [small_letters, small_width] = look();
    use_screen(2560, 1440);
    const auto [large_letters, large_width] = look();

    EXPECT_GT(large_letters, small_letters * 1.3);
    // How much wider, the screen of the test decides.
    EXPECT_GT(large_width, small_width);
}

}  // namespace
