#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>
#include <QTimerEvent>

/// Lets a timer that is running fire now.
inline void expire(QTimer &timer) {
    ASSERT_TRUE(timer.isActive()) << timer.objectName().toStdString() << " is not running";
    QTimerEvent over(timer.timerId());
    QCoreApplication::sendEvent(&timer, &over);
}
