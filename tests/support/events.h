#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

/// Lets events run until a condition holds; false when it does not within 20 seconds.
template <typename Condition>
[[nodiscard]] bool comes_true(Condition condition) {
    const QDeadlineTimer deadline(20000);
    while (!condition() && !deadline.hasExpired()) {
        QCoreApplication::processEvents();
        QThread::usleep(200);
    }
    return condition();
}
