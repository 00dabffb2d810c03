#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QFontMetrics>
#include <QLabel>
#include <QRadioButton>
#include <QTimer>
#include <QtTest/QTest>
#include <functional>

#include "ui/controls/picture_box.h"
#include "ui/window/window.h"

// What the tests of windows ask of a window, whichever it is.

/// Screens in pixels: the smallest that is used, and larger ones.
inline const QList<QSize> screens{{800, 600}, {1024, 768}, {2560, 1440}};

template <class Control>
[[nodiscard]] Control *control(const ablak &window, const QString &name) {
    auto *found = dynamic_cast<Control *>(window.findChild<QObject *>(name));
    if (!found)
        qFatal("no control %s", qPrintable(name));
    return found;
}
template <class Control>
[[nodiscard]] Control *control(const ablak &window, const char *name) {
    return control<Control>(window, QString::fromUtf8(name));
}

inline void expect_text_inside(const ablak &window, const QString &name) {
    const auto *picture = control<PictureBox>(window, name);
    const QRectF text = picture->printed_area();
    EXPECT_FALSE(text.isEmpty()) << name.toStdString();
    EXPECT_TRUE(QRectF(QPointF(0, 0), picture->inner_size()).contains(text))
        << name.toStdString() << ": " << text.left() << ' ' << text.top() << ' ' << text.right() << ' ' << text.bottom()
        << " in " << picture->inner_size().width() << " x " << picture->inner_size().height();
}

/// Nothing of the caption of a button, option button, check box or label is cut off.
inline void expect_whole_caption(const ablak &window, const QString &name) {
    const auto *captioned = control<QWidget>(window, name);
    if (qobject_cast<const QRadioButton *>(captioned) || qobject_cast<const QCheckBox *>(captioned)) {
        EXPECT_LE(captioned->sizeHint().width(), captioned->width()) << name.toStdString();
        EXPECT_LE(captioned->sizeHint().height(), captioned->height()) << name.toStdString();
        return;
    }
    const auto *text = qobject_cast<const QLabel *>(captioned);
    const QString caption = text ? text->text() : control<QAbstractButton>(window, name)->text();
    EXPECT_FALSE(caption.isEmpty()) << name.toStdString();
    if (text && text->wordWrap()) {
        EXPECT_LE(text->heightForWidth(text->width()), text->height()) << name.toStdString();
        return;
    }
    const QFontMetrics letters(captioned->font());
    EXPECT_LE(letters.horizontalAdvance(caption), captioned->width()) << name.toStdString();
    EXPECT_LE(letters.height(), captioned->height()) << name.toStdString();
}

/// Every control has its place within the window and covers no other, but for frames round others.
inline void expect_no_overlap(const ablak &window) {
    const QRectF inner(0, 0, window.belsőszélesség(), window.belsőmagasság());
    const auto is_left_out = [](const QWidget *one) {
        return one->isHidden() || one->inherits("QGroupBox") || one->metaObject() == &QFrame::staticMetaObject;
    };
    for (const QWidget *one : window.vezérlők()) {
        EXPECT_TRUE(one->isHidden() || inner.contains(window.hely(one))) << one->objectName().toStdString();
        for (const QWidget *other : window.vezérlők()) {
            if (one == other || is_left_out(one) || is_left_out(other))
                continue;
            // Places that only touch may differ in the last digit when they are scaled.
            EXPECT_FALSE(window.hely(one).adjusted(0.01, 0.01, -0.01, -0.01).intersects(window.hely(other)))
                << one->objectName().toStdString() << " and " << other->objectName().toStdString();
        }
    }
}

/// Names of the controls that Tab reaches, from the one with the focus on.
[[nodiscard]] inline QString tab_order(const ablak &window) {
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
inline void show_modally(ablak &window, const std::function<void()> &act) {
    QTimer::singleShot(0, &window, [&] {
        act();
        EXPECT_FALSE(window.isVisible());
        window.hide();
    });
    window.mutatmodálisan();
}
