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

#include "exercises/exercise_surroundings.h"
#include "support/fake_dialogs.h"
#include "support/printing.h"
#include "support/seeded_random.h"
#include "support/word_pairs.h"
#include "ui/picture_box.h"

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
        text += QStringLiteral("megkülönböztető jegy, ");
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
        reference_.feliratbeállít(QStringLiteral("Zimbora Angol-Magyar Szótár"));
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

    template <class Control>
    [[nodiscard]] static Control *control(const ablak &window, const QString &name) {
        auto *found = dynamic_cast<Control *>(window.findChild<QObject *>(name));
        if (!found)
            qFatal("no control %s", qPrintable(name));
        return found;
    }
    template <class Control>
    [[nodiscard]] static Control *control(const ablak &window, const char *name) {
        return control<Control>(window, QString::fromUtf8(name));
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

    static void expect_text_inside(const ablak &window, const QString &name) {
        const auto *picture = control<PictureBox>(window, name);
        const QRectF text = picture->printed_area();
        EXPECT_FALSE(text.isEmpty()) << name.toStdString();
        EXPECT_TRUE(QRectF(QPointF(0, 0), picture->inner_size()).contains(text))
            << name.toStdString() << ": " << text.left() << ' ' << text.top() << ' ' << text.right() << ' '
            << text.bottom() << " in " << picture->inner_size().width() << " x " << picture->inner_size().height();
    }

    /// Nothing of the caption of a button, option button or label is cut off.
    static void expect_whole_caption(const ablak &window, const QString &name) {
        const auto *captioned = control<QWidget>(window, name);
        if (qobject_cast<const QRadioButton *>(captioned)) {
            EXPECT_LE(captioned->sizeHint().width(), captioned->width()) << name.toStdString();
            EXPECT_LE(captioned->sizeHint().height(), captioned->height()) << name.toStdString();
            return;
        }
        const auto *text = qobject_cast<const QLabel *>(captioned);
        const QString caption = text ? text->text() : control<QAbstractButton>(window, name)->text();
        EXPECT_FALSE(caption.isEmpty()) << name.toStdString();
        const QFontMetrics letters(captioned->font());
        EXPECT_LE(letters.horizontalAdvance(caption), captioned->width()) << name.toStdString();
        EXPECT_LE(letters.height(), captioned->height()) << name.toStdString();
    }

    /// Every control has its place within the window and covers no other, but for frames round others.
    static void expect_no_overlap(const ablak &window) {
        const QRectF inner(0, 0, window.belsőszélesség(), window.belsőmagasság());
        for (const QWidget *one : window.vezérlők()) {
            if (one->isHidden() || one->inherits("QGroupBox"))
                continue;
            EXPECT_TRUE(inner.contains(window.hely(one))) << one->objectName().toStdString();
            for (const QWidget *other : window.vezérlők()) {
                if (one == other || other->isHidden() || other->inherits("QGroupBox"))
                    continue;
                EXPECT_FALSE(window.hely(one).intersects(window.hely(other)))
                    << one->objectName().toStdString() << " and " << other->objectName().toStdString();
            }
        }
    }

    /// Names of the controls that Tab reaches, from the one with the focus on.
    [[nodiscard]] static QString tab_order(const ablak &window) {
        QStringList order;
        const QWidget *first = window.focusWidget();
        for (QWidget *now = window.focusWidget(); now && order.size() < 20; now = window.focusWidget()) {
            order.append(now->objectName());
            QTest::keyClick(now, Qt::Key_Tab);
            if (window.focusWidget() == first)
                break;
        }
        return order.join(u' ');
    }

    /// Shows the window modally. `act` is called while it is open, and must make it close.
    static void show_modally(ablak &window, const std::function<void()> &act) {
        QTimer::singleShot(0, &window, [&] {
            act();
            EXPECT_FALSE(window.isVisible());
            window.hide();
        });
        window.mutatmodálisan();
    }

    static inline const QList<QSize> screens{{800, 600}, {1024, 768}, {2560, 1440}};

    QTemporaryDir root_{QDir::tempPath() + QStringLiteral("/zimboraXXXXXX")};
    QRectF screen_{0, 0, 1024 * 15, 768 * 15};
    frm_referencia reference_;
    ablak main_window_{QStringLiteral("szótár")};
    Module_hasznos fitting_{reference_, [this] { return screen_; }};
    WordListForTests list_;
    SeededRandom random_;
    global::beállítástár settings_{root_.filePath(QStringLiteral("settings.ini"))};
    FakeMessageBoxes boxes_;
    QList<Message> messages_;
    /// Called while a message would be open.
    std::function<void()> during_message_ = [] {};
};
