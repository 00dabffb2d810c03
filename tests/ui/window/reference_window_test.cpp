#include "ui/window/reference_window.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "support/printing.h"
#include "support/timers.h"

using namespace Qt::StringLiterals;

namespace {

TEST(ReferenceWindow, runs_the_timer_of_the_music_once_a_second_from_the_start) {
    frm_referencia window;

    EXPECT_EQ(window.Timer_zene().objectName(), u"Timer_zene"_s);
    EXPECT_TRUE(window.Timer_zene().isActive());
    EXPECT_EQ(window.Timer_zene().interval(), 1000);
    EXPECT_FALSE(window.Timer_zene().isSingleShot());
}

TEST(ReferenceWindow, goes_on_ticking_after_a_tick) {
    frm_referencia window;
    const QSignalSpy ticks(&window.Timer_zene(), &QTimer::timeout);

    expire(window.Timer_zene());
    expire(window.Timer_zene());

    EXPECT_EQ(ticks.count(), 2);
}

TEST(ReferenceWindow, keeps_the_caption_that_it_is_given) {
    frm_referencia window;

    window.feliratbeállít(u"induló.mid"_s);

    EXPECT_EQ(window.felirat(), u"induló.mid"_s);
    EXPECT_FALSE(window.isVisible());
}

}  // namespace
