#pragma once

#include <gtest/gtest.h>

#include <QDir>
#include <QRectF>
#include <QTemporaryDir>

#include "support/fake_dialogs.h"
#include "support/printing.h"
#include "ui/window/reference_window.h"
#include "ui/window/window_fitting.h"
#include "ui/window/window_surroundings.h"

using namespace Qt::StringLiterals;

/// The desktop of a window that is tested: a screen, a main window that is nothing but its colour, message boxes that
/// are noted, not shown, and a folder of the test's own.
class WindowTest : public testing::Test {
  protected:
    WindowTest() {
        reference_.feliratbeállít(u"Zimbora Angol-Magyar Szótár"_s);
        main_window_.háttérszínbeállít(Qt::cyan);
    }

    void use_screen(const QSize &pixels) { screen_ = QRectF(QPointF(0, 0), QSizeF(pixels) * 15); }

    /// What every window is given.
    [[nodiscard]] ablakkörnyezet common() { return {.hasznos = fitting_, .főablak = main_window_, .üzenetek = boxes_}; }

    [[nodiscard]] QString place(const QString &name) const { return root_.filePath(name); }
    [[nodiscard]] QString place(const char *name) const { return place(QString::fromUtf8(name)); }

    // Below /tmp there is no dot in a path unless the test wants one.
    QTemporaryDir root_{QDir::tempPath() + u"/zimboraXXXXXX"_s};
    QRectF screen_{0, 0, 1024 * 15, 768 * 15};
    frm_referencia reference_;
    ablak main_window_{u"szótár"_s};
    Module_hasznos fitting_{reference_, [this] { return screen_; }};
    FakeMessageBoxes boxes_;
};
