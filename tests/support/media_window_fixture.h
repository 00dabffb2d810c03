#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest/QTest>
#include <functional>
#include <memory>

#include "media/widgets/media_surroundings.h"
#include "support/fake_multimedia.h"
#include "support/files_for_tests.h"
#include "support/window_checks.h"
#include "support/window_fixture.h"
#include "ui/controls/list_box.h"

using namespace Qt::StringLiterals;

/// A window of the sounds or the music, with a program folder and a drive C of its own, a device that notes what it is
/// told, and message boxes that are noted, not shown.
template <class Window>
class MediaWindowTest : public WindowTest {
  protected:
    MediaWindowTest() {
        for (const char *folder : {"c", "program/hangok", "program/zenemid", "program/kavaro"})
            make_folder(folder);
        state_.programkönyvtár = place("program");
    }

    void load() {
        window_ = std::make_unique<Window>(hangkörnyezet{.közös = common(),
                                                         .programkönyvtár = state_.programkönyvtár,
                                                         .meghajtó = DriveC(place("c")),
                                                         .játszó = player_});
    }

    /// Opens the window as its menu item does, and returns when `act` has been carried out in it.
    void open(const std::function<void()> &act) {
        bool opened = false;
        QTimer::singleShot(0, window_.get(), [&] {
            opened = window_->isVisible();
            QApplication::setActiveWindow(window_.get());
            act();
            window_->hide();
        });
        window_->mutat();
        EXPECT_TRUE(opened);
    }

    /// The window as it is when it has been opened. What was sent and told by that is not forgotten.
    void start() {
        load();
        QWidget *focus = nullptr;
        open([&] { focus = window_->focusWidget(); });
        window_->show();
        QApplication::setActiveWindow(window_.get());
        focus->setFocus();
    }

    void make_folder(const char *name) const { QDir(root_.path()).mkpath(QString::fromUtf8(name)); }
    /// Lets nothing be written at this place, not even by root.
    void make_unwritable(const char *folder) const {
        QDir(place(folder)).removeRecursively();
        write_file(place(folder), "no folder");
    }
    void write(const char *name, const QByteArray &bytes) const { write_file(place(name), bytes); }
    [[nodiscard]] QByteArray written(const char *name) const { return read_file(place(name)); }

    [[nodiscard]] ListBox *list(const char *name) const { return control<ListBox>(*window_, name); }
    [[nodiscard]] QPushButton *button(const char *name) const { return control<QPushButton>(*window_, name); }
    [[nodiscard]] QCheckBox *box(const char *name) const { return control<QCheckBox>(*window_, name); }
    [[nodiscard]] QString label(const char *name) const { return control<QLabel>(*window_, name)->text(); }
    [[nodiscard]] bool enabled(const char *name) const { return control<QWidget>(*window_, name)->isEnabled(); }
    /// The selected text of a list; "" when there is none.
    [[nodiscard]] QString selected(const char *name) const {
        return list(name)->selected() < 0 ? QString() : list(name)->item(list(name)->selected());
    }

    void click(const char *name) { QTest::mouseClick(button(name), Qt::LeftButton); }
    /// Changes a switch with the mouse, on its square.
    void toggle(const char *name) { QTest::mouseClick(box(name), Qt::LeftButton, {}, {8, box(name)->height() / 2}); }
    void click_item(const char *name, const QString &text) {
        const auto row = list(name)->items().indexOf(text);
        ASSERT_GE(row, 0) << "no " << text.toStdString();
        const QModelIndex index = list(name)->model()->index(static_cast<int>(row), 0);
        list(name)->scrollTo(index);
        QTest::mouseClick(list(name)->viewport(), Qt::LeftButton, {}, list(name)->visualRect(index).center());
    }
    /// Presses a key in a control, which has the focus then.
    void press(const char *name, Qt::Key key) {
        control<QWidget>(*window_, name)->setFocus();
        QTest::keyClick(control<QWidget>(*window_, name), key);
    }
    /// A key that has been held down for a while: its press, and repeats of it.
    void hold(const char *name, Qt::Key key) {
        press(name, key);
        for (int i = 0; i < 3; ++i) {
            QKeyEvent repeat(QEvent::KeyPress, key, Qt::NoModifier, QString(), true);
            QApplication::sendEvent(control<QWidget>(*window_, name), &repeat);
        }
    }

    [[nodiscard]] static QImage picture(const QPushButton *button) {
        return button->icon().pixmap(button->iconSize()).toImage();
    }
    /// Picture and caption of a button stand beside each other whole.
    void expect_room_for_the_caption(const QPushButton *button) const {
        const int taken = button->iconSize().width() + QFontMetrics(button->font()).horizontalAdvance(button->text());
        EXPECT_LE(taken + 4, button->width()) << button->objectName().toStdString();
    }

    global::programállapot state_;
    FakeMultimedia multimedia_;
    lejátszó player_{multimedia_, state_};
    std::unique_ptr<Window> window_;
};
