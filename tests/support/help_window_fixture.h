#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <QtTest/QTest>
#include <utility>

#include "lookup/widgets/help_window.h"
#include "support/fake_dialogs.h"
#include "support/files_for_tests.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

/// A program folder of the test's own, with a help document, and the help viewer in front of it. Notes are collected,
/// not shown.
class HelpWindowTest : public testing::Test {
  protected:
    HelpWindowTest() {
        reference_.feliratbeállít(u"Zimbora Angol-Magyar Szótár"_s);
        main_window_.háttérszínbeállít(Qt::cyan);
        QDir().mkpath(program_);
        QDir().mkpath(program_ + u"kavaro/help"_s);
    }

    /// The help document's real path.
    [[nodiscard]] QString document() const { return program_ + u"kavaro/help/Kavaro súgó.mht"_s; }

    /// Loads the viewer, but does not show it.
    void load(WebBrowserFactory browser) {
        window_ = std::make_unique<frm_súgó>(súgókörnyezet{program_, fitting_, main_window_, boxes_,
                                                           [this](const QString &text) {
                                                               notes_.append(text);
                                                               during_note_();
                                                           },
                                                           std::move(browser), [this] { ++closed_; }});
    }

    void show() {
        window_->show();
        QApplication::setActiveWindow(window_.get());
        ASSERT_TRUE(QTest::qWaitForWindowActive(window_.get()));
    }

    template <class Control>
    [[nodiscard]] Control *control(const char *name) const {
        auto *found = dynamic_cast<Control *>(window_->findChild<QObject *>(QString::fromUtf8(name)));
        if (!found)
            qFatal("no control %s", name);
        return found;
    }

    [[nodiscard]] QComboBox *address_box() const { return control<QComboBox>("cboAddress"); }
    [[nodiscard]] QString caption() const { return window_->windowTitle(); }

    [[nodiscard]] QStringList listed() const {
        QStringList entries;
        for (int i = 0; i < address_box()->count(); ++i)
            entries.append(address_box()->itemText(i));
        return entries;
    }

    void press(const char *button) { QTest::mouseClick(control<QToolButton>(button), Qt::LeftButton); }

    void enter_address(const QString &address) {
        address_box()->setFocus();
        address_box()->setEditText(address);
        QTest::keyClick(address_box(), Qt::Key_Return);
    }

    QTemporaryDir root_{QDir::tempPath() + u"/zimboraXXXXXX"_s};
    /// Text of the program folder.
    QString program_ = root_.filePath(u"program"_s);
    QRectF screen_{0, 0, 1024 * 15, 768 * 15};
    frm_referencia reference_;
    ablak main_window_{u"szótár"_s};
    Module_hasznos fitting_{reference_, [this] { return screen_; }};
    FakeMessageBoxes boxes_;
    QStringList notes_;
    /// Called while a note would be open.
    std::function<void()> during_note_ = [] {};
    int closed_ = 0;
    std::unique_ptr<frm_súgó> window_;
};
