#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QWindow>
#include <QtTest/QTest>
#include <functional>

#include "exercises/common/widgets/exercise_surroundings.h"
#include "support/fake_dialogs.h"
#include "support/printing.h"
#include "support/seeded_random.h"
#include "support/window_checks.h"
#include "support/word_pairs.h"

using namespace Qt::StringLiterals;

/// A word list that a test fills.
class WordListForTests final : public szószedetolvasó {
  public:
    QVector<szópár> pairs;

    [[nodiscard]] const QVector<szópár> &párok() const override { return pairs; }
};

/// A meaning of 200 letters.
inline QString long_text() {
    QString text;
    while (text.size() < 200)
        text += u"megkülönböztető jegy, "_s;
    return text.left(199) + u'x';
}

/// A word of 200 letters, without a blank to break it at.
inline QString long_word() {
    return QString(200, u'ű');
}

/// What an exercise window is given, with a word list, settings and a seeded generator of the test's own. Messages are
/// noted, not shown.
class ExerciseTest : public testing::Test {
  protected:
    struct Message {
        int milliseconds;
        QStringList lines;
    };

    ExerciseTest() {
        reference_.feliratbeállít(u"Zimbora Angol-Magyar Szótár"_s);
        main_window_.háttérszínbeállít(Qt::cyan);
    }

    [[nodiscard]] feladatkörnyezet surroundings() {
        return {list_,
                fitting_,
                main_window_,
                random_,
                settings_,
                boxes_,
                [this](qint16 milliseconds, const QStringList &lines) {
                    messages_.append({milliseconds, lines});
                    during_message_();
                }};
    }

    void use_screen(const QSize &pixels) { screen_ = QRectF(QPointF(0, 0), QSizeF(pixels) * 15); }

    static void show(ablak &window) {
        window.show();
        QApplication::setActiveWindow(&window);
    }

    static void click(const ablak &window, const char *name) {
        auto *button = control<QAbstractButton>(window, name);
        // The label of an option button takes the click, not the empty space behind it.
        const QPoint at = qobject_cast<QRadioButton *>(button) ? QPoint(10, button->height() / 2) : QPoint();
        QTest::mouseClick(button, Qt::LeftButton, {}, at);
    }

    [[nodiscard]] static QString label(const ablak &window, const char *name) {
        return control<QLabel>(window, name)->text();
    }

    /// What a picture shows.
    [[nodiscard]] static QString shown(const ablak &window, const char *name) {
        return control<PictureBox>(window, name)->property("tag").toString();
    }

    QTemporaryDir root_{QDir::tempPath() + u"/zimboraXXXXXX"_s};
    QRectF screen_{0, 0, 1024 * 15, 768 * 15};
    frm_referencia reference_;
    ablak main_window_{u"szótár"_s};
    Module_hasznos fitting_{reference_, [this] { return screen_; }};
    WordListForTests list_;
    SeededRandom random_;
    global::beállítástár settings_{root_.filePath(u"settings.ini"_s)};
    FakeMessageBoxes boxes_;
    QList<Message> messages_;
    /// Called while a message would be open.
    std::function<void()> during_message_ = [] {};
};
