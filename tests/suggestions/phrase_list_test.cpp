#include "suggestions/phrase_list.h"

#include <gtest/gtest.h>

#include <QSemaphore>

#include "support/events.h"

using namespace Qt::StringLiterals;

namespace {

kifejezés phrase(const QString &english, const QString &hungarian) {
    return {.angol = english, .magyar = hungarian, .angol_találatok = {{0, 2}}, .egész_szó = true};
}

TEST(PhraseList, fills_itself_page_by_page_and_tells_the_end) {
    kifejezéslista list([](const QString &, const kifejezésfigyelő &watcher) {
        watcher.lap({phrase(u"to go"_s, u"megy"_s)});
        watcher.lap({phrase(u"to go on"_s, u"folytat"_s), phrase(u"to go off"_s, u"elsül"_s)});
        return 3;
    });
    bool ended = false;

    list.keres(u"to"_s, [&] { ended = true; });

    ASSERT_TRUE(comes_true([&] { return ended; }));
    ASSERT_EQ(list.darab(), 3);
    EXPECT_EQ(list.index(1, kifejezéslista::angol_oszlop).data(), u"to go on"_s);
    EXPECT_EQ(list.index(1, kifejezéslista::magyar_oszlop).data(), u"folytat"_s);
    EXPECT_EQ(
        list.index(0, kifejezéslista::angol_oszlop).data(kifejezéslista::találatok_szerepe).value<QList<QPoint>>(),
        QList<QPoint>({{0, 2}}));
    EXPECT_EQ(list.headerData(1, Qt::Horizontal, Qt::DisplayRole), u"Magyarul"_s);
}

TEST(PhraseList, drops_a_search_for_a_newer_one) {
    QSemaphore begins;
    QSemaphore goes_on;
    kifejezéslista list([&](const QString &text, const kifejezésfigyelő &watcher) {
        begins.release();
        goes_on.acquire();
        watcher.lap({phrase(text, text)});
        return 1;
    });
    bool older_ended = false;
    bool newer_ended = false;

    list.keres(u"older"_s, [&] { older_ended = true; });
    begins.acquire();
    list.keres(u"newer"_s, [&] { newer_ended = true; });
    goes_on.release(2);

    ASSERT_TRUE(comes_true([&] { return newer_ended; }));
    EXPECT_FALSE(older_ended);
    ASSERT_EQ(list.darab(), 1);
    EXPECT_EQ(list.egyik(0).angol, u"newer"_s);
}

}  // namespace
