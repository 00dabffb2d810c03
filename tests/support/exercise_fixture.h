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
#include "support/seeded_random.h"
#include "support/window_checks.h"
#include "support/window_fixture.h"
#include "support/word_pairs.h"

using namespace Qt::StringLiterals;

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
class ExerciseTest : public WindowTest {
  protected:
    struct Message {
        int milliseconds;
        QStringList lines;
    };

    [[nodiscard]] feladatkörnyezet surroundings() {
        return {.közös = common(),
                .szószedet = list_,
                .véletlen = random_,
                .beállítások = settings_,
                .üzenetmutat = [this](qint16 milliseconds, const QStringList &lines) {
                    messages_.append({milliseconds, lines});
                    during_message_();
                }};
    }

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

    /// Puts these pairs in the place of those in the list.
    void fill(const QVector<szópár> &pairs) {
        list_.kiürít();
        list_.hozzáfűz(pairs);
    }

    /// What a picture shows.
    [[nodiscard]] static QString shown(const ablak &window, const char *name) {
        return control<PictureBox>(window, name)->property("tag").toString();
    }

    szópárlista list_;
    SeededRandom random_;
    global::beállítástár settings_{place(u"settings.ini"_s)};
    QList<Message> messages_;
    /// Called while a message would be open.
    std::function<void()> during_message_ = [] {};
};
