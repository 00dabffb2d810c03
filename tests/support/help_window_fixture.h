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
#include "support/files_for_tests.h"
#include "support/window_fixture.h"

using namespace Qt::StringLiterals;

/// A program folder of the test's own, with a help document, and the help viewer in front of it. Notes are collected,
/// not shown.
class HelpWindowTest : public WindowTest {
  protected:
    HelpWindowTest() {
        QDir().mkpath(program_);
        QDir().mkpath(program_ + u"kavaro/help"_s);
    }

    /// The help document's real path.
    [[nodiscard]] QString document() const { return program_ + u"kavaro/help/Kavaro súgó.mht"_s; }

    /// Loads the viewer, but does not show it.
    void load(WebBrowserFactory browser) {
        window_ = std::make_unique<frm_súgó>(
            súgókörnyezet{.közös = common(),
                          .programkönyvtár = program_,
                          .rövidüzenet =
                              [this](const QString &text) {
                                  notes_.append(text);
                                  during_note_();
                              },
                          .egyszer_szól = [this](const QString &text) { warnings_.append(text); },
                          .böngésző = std::move(browser),
                          .bezárva = [this] { ++closed_; }});
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

    /// Text of the program folder.
    QString program_ = place(u"program"_s);
    QStringList notes_;
    QStringList warnings_;
    /// Called while a note would be open.
    std::function<void()> during_note_ = [] {};
    int closed_ = 0;
    std::unique_ptr<frm_súgó> window_;
};
