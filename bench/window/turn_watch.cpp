#include "window/turn_watch.h"

#include <QCoreApplication>
#include <algorithm>

TurnWatch::TurnWatch() {
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { take_turn(); });
    timer_.start(1);
    since_turn_.start();
}

void TurnWatch::restart() {
    longest_ = 0;
    since_turn_.restart();
}

void TurnWatch::run_turns(int turns) {
    const int end = turns_ + turns;
    while (turns_ < end)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void TurnWatch::take_turn() {
    longest_ = std::max(longest_, since_turn_.nsecsElapsed());
    since_turn_.restart();
    ++turns_;
}
