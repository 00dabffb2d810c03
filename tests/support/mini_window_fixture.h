#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>
#include <QtTest/QTest>
#include <memory>

#include "lookup/widgets/mini_window.h"
#include "support/dictionary_for_tests.h"
#include "support/fake_desktop.h"
#include "support/fake_large_window.h"
#include "support/fake_suggestions.h"
#include "support/files_for_tests.h"
#include "support/timers.h"
#include "support/window_fixture.h"

using namespace Qt::StringLiterals;

/// A mini window beside a main window, a clipboard and a screen of the test's own. Time stands still: the test steps
/// the glide and the timer.
class MiniWindowTest : public WindowTest {
  protected:
    MiniWindowTest() {
        state_.programkönyvtár = root_.path();
        put_dictionary({"alma:apple\xf7",
                        "almafa:apple tree\xf7"
                        "apple wood\xf7",
                        "h\xe1z:house\xf7home\xf7"});
        state_.kisablakbal = 1234;
        state_.kisablakfent = 2345;
        state_.kisablakmód = 1;
    }

    ~MiniWindowTest() override {
        large_.ends = true;
        window_.reset();
    }

    MiniWindowTest(const MiniWindowTest &) = delete;
    MiniWindowTest &operator=(const MiniWindowTest &) = delete;

    /// Gives the program a dictionary of these entries.
    void put_dictionary(const QByteArrayList &entries) { write_file(place("am.txt"), dictionary_of(entries)); }

    void load() {
        window_ = std::make_unique<frm_kisablak>(
            kisablakkörnyezet{.közös = common(),
                              .nagy = large_,
                              .kereső = lookup_,
                              .ajánlatok = offers_,
                              .állapot = state_,
                              .legfelül = top_most_,
                              .vágólap = [this] { return std::make_unique<FakeClipboardWatch>(clipboard_); },
                              .képernyők = [this] { return screens_; },
                              .lépésköz = [this] { between_steps_(); }});
    }

    void open() {
        load();
        window_->Form_Activate();
        QApplication::setActiveWindow(window_.get());
    }

    template <class Control>
    [[nodiscard]] Control *control(const char *name) const {
        auto *found = window_->findChild<Control *>(QString::fromUtf8(name));
        if (!found)
            qFatal("no control %s", name);
        return found;
    }
    [[nodiscard]] ListBox *list(const char *name) const { return control<ListBox>(name); }
    [[nodiscard]] QLabel *label(const char *name) const { return control<QLabel>(name); }
    [[nodiscard]] QPushButton *button(const char *name) const { return control<QPushButton>(name); }
    [[nodiscard]] QLineEdit *search_box() const { return control<QLineEdit>("txt_keres"); }
    [[nodiscard]] QStringList hits() const { return list("lst_találatlista")->items(); }
    [[nodiscard]] QStringList meanings() const { return list("lst_translate")->items(); }
    [[nodiscard]] QString focused() const {
        return window_->focusWidget() ? window_->focusWidget()->objectName() : QString();
    }

    void type(const char *text) {
        for (const QChar letter : QString::fromUtf8(text))
            QTest::sendKeyEvent(QTest::Click, search_box(), Qt::Key_unknown, QString(letter), Qt::NoModifier);
    }
    void click(const char *name) { QTest::mouseClick(control<QWidget>(name), Qt::LeftButton); }
    [[nodiscard]] QPoint middle_of_item(const char *name, int row) const {
        return list(name)->visualRect(list(name)->model()->index(row, 0)).center();
    }
    void click_item(const char *name, int row) {
        QTest::mouseClick(list(name)->viewport(), Qt::LeftButton, {}, middle_of_item(name, row));
    }

    /// A clipboard text is copied by another program, and the timer's time comes.
    void copy(const QString &text) {
        clipboard_.put(text);
        tick();
    }
    void copy(const char *text) { copy(QString::fromUtf8(text)); }
    void tick() { expire(*window_->findChild<QTimer *>(u"Timer1"_s)); }

    // The mouse, at a place on the screen in pixels.
    static void mouse(QWidget *on, QEvent::Type type, const QPoint &at, Qt::MouseButton button,
                      Qt::MouseButtons buttons) {
        QMouseEvent event(type, on->mapFromGlobal(QPointF(at)), QPointF(at), button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(on, &event);
    }
    static void press(QWidget *on, const QPoint &at, Qt::MouseButton button = Qt::LeftButton) {
        mouse(on, QEvent::MouseButtonPress, at, button, button);
    }
    static void move(QWidget *on, const QPoint &to, Qt::MouseButtons held = Qt::LeftButton) {
        mouse(on, QEvent::MouseMove, to, Qt::NoButton, held);
    }
    static void release(QWidget *on, const QPoint &at, Qt::MouseButton button = Qt::LeftButton) {
        mouse(on, QEvent::MouseButtonRelease, at, button, Qt::NoButton);
    }
    [[nodiscard]] static QPoint middle_of(const QWidget *widget) {
        return widget->mapToGlobal(widget->rect().center());
    }

    /// The place that is kept, in twips.
    [[nodiscard]] QPoint kept_place() const { return {state_.kisablakbal, state_.kisablakfent}; }

    QVector<QRectF> screens_{screen_};
    global::programállapot state_;
    szókereső lookup_{state_};
    std::shared_ptr<FakeSuggestions> suggestions_ = std::make_shared<FakeSuggestions>();
    ajánlatlista offers_{[this] { return suggestions_; }};
    FakeLargeWindow large_{lookup_};
    FakeTopMost top_most_;
    FakeClipboard clipboard_;
    /// Called between two steps of a glide.
    std::function<void()> between_steps_ = [] {};
    std::unique_ptr<frm_kisablak> window_;
};
