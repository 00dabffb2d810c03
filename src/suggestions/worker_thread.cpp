#include "suggestions/worker_thread.h"

#include <QMetaObject>
#include <utility>

munkaszál::~munkaszál() {
    elvet();
    thread_.quit();
    thread_.wait();
}

void munkaszál::végez(munka teendő) {
    const int number = ++*newest_;
    if (!there_) {
        there_ = new QObject;
        there_->moveToThread(&thread_);
        QObject::connect(&thread_, &QThread::finished, there_, &QObject::deleteLater);
        thread_.start();
    }
    elavult out_of_date = [newest = newest_, number] { return *newest != number; };
    QMetaObject::invokeMethod(there_, [teendő = std::move(teendő), out_of_date = std::move(out_of_date)] {
        if (!out_of_date())
            teendő(out_of_date);
    });
}

void munkaszál::közöl(const elavult &régi, közlés mondanivaló) {
    QMetaObject::invokeMethod(&here_, [régi, mondanivaló = std::move(mondanivaló)] {
        if (!régi())
            mondanivaló();
    });
}
