#include "suggestions/worker_thread.h"

#include <gtest/gtest.h>

#include <QSemaphore>
#include <QThread>

#include "support/events.h"

using namespace Qt::StringLiterals;

namespace {

TEST(WorkerThread, works_elsewhere_and_tells_the_window_on_its_thread) {
    munkaszál worker;
    QThread *worked_on = nullptr;
    QThread *told_on = nullptr;
    worker.végez([&](const munkaszál::elavult &old) {
        worked_on = QThread::currentThread();
        worker.közöl(old, [&] { told_on = QThread::currentThread(); });
    });

    ASSERT_TRUE(comes_true([&] { return told_on != nullptr; }));
    EXPECT_EQ(told_on, QThread::currentThread());
    EXPECT_NE(worked_on, QThread::currentThread());
}

TEST(WorkerThread, drops_older_work_and_what_it_would_have_told) {
    munkaszál worker;
    QSemaphore runs;
    std::atomic<bool> told_to_end = false;
    int waited = 0;
    QStringList told;
    worker.végez([&](const munkaszál::elavult &old) {
        worker.közöl(old, [&] { told.append(u"first"_s); });
        runs.release();
        while (!old())
            QThread::usleep(100);
        told_to_end = true;
    });
    runs.acquire();
    worker.végez([&](const munkaszál::elavult &) { ++waited; });
    worker.végez([&](const munkaszál::elavult &old) { worker.közöl(old, [&] { told.append(u"last"_s); }); });

    ASSERT_TRUE(comes_true([&] { return !told.isEmpty(); }));
    EXPECT_EQ(told, QStringList{u"last"_s});
    EXPECT_TRUE(told_to_end);
    EXPECT_EQ(waited, 0);
}

TEST(WorkerThread, tells_nothing_after_it_was_told_to_drop_all) {
    munkaszál worker;
    QSemaphore done;
    bool told = false;
    worker.végez([&](const munkaszál::elavult &old) {
        worker.közöl(old, [&] { told = true; });
        done.release();
    });
    done.acquire();
    worker.elvet();
    QCoreApplication::processEvents();

    EXPECT_FALSE(told);
}

TEST(WorkerThread, ends_with_its_owner_while_work_runs) {
    QSemaphore runs;
    bool ended = false;
    {
        munkaszál worker;
        worker.végez([&](const munkaszál::elavult &old) {
            runs.release();
            while (!old())
                QThread::usleep(100);
            ended = true;
        });
        runs.acquire();
    }
    EXPECT_TRUE(ended);
}

}  // namespace
