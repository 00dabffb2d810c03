#include "media/music_timer.h"

#include <gtest/gtest.h>

#include "support/fake_multimedia.h"
#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

const QString folder = u"/program/zenemid/"_s;

/// A playlist that starts what is selected, unless that was started last.
class Playlist final : public lejátszólista {
  public:
    explicit Playlist(lejátszó &player) : player_(player) {}

    QStringList names;
    bool allowed = true;
    int selected = -1;

    [[nodiscard]] bool zene_enged() const override { return allowed; }
    [[nodiscard]] int darab() const override { return static_cast<int>(names.size()); }
    [[nodiscard]] int kijelölt() const override { return selected; }
    [[nodiscard]] QString kijelölt_neve() const override { return names.at(selected); }

    void kijelöl(int index) override {
        selected = index;
        const QString path = folder + names.at(index);
        if (path != last_started_)
            player_.midilejátszás(path);
        last_started_ = path;
    }

  private:
    lejátszó &player_;
    QString last_started_;
};

/// A clock of seconds, at each of which the timer ticks, and a device whose pieces take `length` seconds. A piece of
/// the name "nincs.mid" cannot be opened.
class MusicTimer : public testing::Test {
  protected:
    /// Lets `seconds` pass and returns what was started meanwhile: "1 a.mid" is a piece started in the first second.
    QStringList pass(int seconds) {
        QStringList started;
        for (int second = 0; second < seconds; ++second) {
            ++now_;
            if (now_ >= end_ && device_.mode == u"playing"_s)
                device_.mode = u"stopped"_s;
            timer_.Timer_zene_Timer();
            for (const QString &command : device_.take_sent().filter(u"open "_s)) {
                const QString name = command.section(u'"', 1, 1).mid(folder.size());
                started.append(QString::number(now_) + u' ' + name);
                const bool missing = name == u"nincs.mid"_s;
                device_.mode = missing ? QString() : u"playing"_s;
                end_ = now_ + length_;
            }
        }
        return started;
    }

    FakeMultimedia device_;
    global::programállapot state_;
    lejátszó player_{device_, state_};
    Playlist list_{player_};
    QStringList captions_;
    int asked_for_list_ = 0;
    zeneóra timer_{player_,
                   [this]() -> lejátszólista & {
                       ++asked_for_list_;
                       return list_;
                   },
                   [this](const QString &caption) { captions_.append(caption); }};
    int now_ = 0;
    int end_ = 0;
    int length_ = 3;
};

TEST_F(MusicTimer, makes_no_playlist_before_the_first_tick) {
    EXPECT_EQ(asked_for_list_, 0);

    pass(1);

    EXPECT_EQ(asked_for_list_, 1);
}

TEST_F(MusicTimer, plays_the_whole_list_in_order_and_starts_over_at_the_top) {
    list_.names = {u"a.mid"_s, u"b.mid"_s, u"c.mid"_s};

    EXPECT_EQ(pass(12), (QStringList{u"1 a.mid"_s, u"4 b.mid"_s, u"7 c.mid"_s, u"10 a.mid"_s}));
}

TEST_F(MusicTimer, shows_the_name_of_each_entry_that_it_selects) {
    list_.names = {u"a.mid"_s, u"b.mid"_s};

    pass(7);

    EXPECT_EQ(captions_, (QStringList{u"a.mid"_s, u"b.mid"_s, u"a.mid"_s}));
}

TEST_F(MusicTimer, plays_a_single_entry_once_and_stays_silent_then) {
    list_.names = {u"a.mid"_s};

    EXPECT_EQ(pass(20), QStringList(u"1 a.mid"_s));
    EXPECT_EQ(list_.selected, 0);
}

TEST_F(MusicTimer, does_nothing_while_music_is_not_allowed) {
    list_.names = {u"a.mid"_s};
    list_.allowed = false;

    timer_.Timer_zene_Timer();

    EXPECT_EQ(device_.sent, QStringList());
    EXPECT_EQ(list_.selected, -1);
    EXPECT_EQ(captions_, QStringList());
}

TEST_F(MusicTimer, goes_on_with_the_list_when_music_is_allowed_again) {
    list_.names = {u"a.mid"_s, u"b.mid"_s};
    pass(2);
    list_.allowed = false;
    EXPECT_EQ(pass(10), QStringList());

    list_.allowed = true;

    EXPECT_EQ(pass(1), QStringList(u"13 b.mid"_s));
}

TEST_F(MusicTimer, leaves_a_piece_that_is_played_alone) {
    list_.names = {u"a.mid"_s, u"b.mid"_s};
    list_.selected = 1;
    device_.mode = u"playing"_s;

    timer_.Timer_zene_Timer();

    EXPECT_EQ(device_.sent, QStringList(u"Status midi mode|255"_s));
    EXPECT_EQ(list_.selected, 1);
    EXPECT_EQ(captions_, QStringList());
}

TEST_F(MusicTimer, does_not_pass_over_a_piece_that_is_paused) {
    list_.names = {u"a.mid"_s, u"b.mid"_s};
    pass(1);
    device_.mode = u"paused"_s;

    EXPECT_EQ(pass(60), QStringList());
    EXPECT_EQ(list_.selected, 0);
}

TEST_F(MusicTimer, looks_at_the_beginning_of_the_mode_only) {
    list_.names = {u"a.mid"_s};
    for (const char *mode : {"playing on", "pausedly"}) {
        device_.mode = QString::fromLatin1(mode);
        timer_.Timer_zene_Timer();
        EXPECT_EQ(list_.selected, -1) << mode;
    }

    device_.mode = u"not playing"_s;
    timer_.Timer_zene_Timer();

    EXPECT_EQ(list_.selected, 0);
}

TEST_F(MusicTimer, takes_every_other_mode_for_silence) {
    list_.names = {u"a.mid"_s, u"b.mid"_s};
    for (const char *mode : {"", "stopped", "not ready", "open", "Playing", "pause"}) {
        list_.selected = -1;
        device_.mode = QString::fromLatin1(mode);

        timer_.Timer_zene_Timer();

        EXPECT_EQ(list_.selected, 0) << mode;
    }
}

TEST_F(MusicTimer, does_nothing_with_an_empty_list) {
    EXPECT_EQ(pass(3), QStringList());
    EXPECT_EQ(list_.selected, -1);
    EXPECT_EQ(captions_, QStringList());
}

TEST_F(MusicTimer, passes_over_missing_files_one_a_second) {
    list_.names = {u"a.mid"_s, u"nincs.mid"_s, u"b.mid"_s};

    EXPECT_EQ(pass(5), (QStringList{u"1 a.mid"_s, u"4 nincs.mid"_s, u"5 b.mid"_s}));
}

TEST_F(MusicTimer, starts_with_the_first_entry_when_none_is_selected) {
    list_.names = {u"a.mid"_s, u"b.mid"_s};
    list_.selected = -1;

    EXPECT_EQ(pass(1), QStringList(u"1 a.mid"_s));
}

TEST_F(MusicTimer, goes_on_behind_the_entry_that_the_user_selected) {
    list_.names = {u"a.mid"_s, u"b.mid"_s, u"c.mid"_s};
    list_.selected = 1;

    EXPECT_EQ(pass(4), (QStringList{u"1 c.mid"_s, u"4 a.mid"_s}));
}

TEST_F(MusicTimer, begins_the_next_piece_within_a_second_after_the_music_was_stopped) {
    list_.names = {u"a.mid"_s, u"b.mid"_s};
    pass(2);
    player_.midilejátszás(QString());
    device_.mode.clear();

    EXPECT_EQ(pass(1), QStringList(u"3 b.mid"_s));
}

TEST_F(MusicTimer, walks_through_a_list_of_5000_entries) {
    for (int i = 0; i < 5000; ++i)
        list_.names.append(QString::number(i) + u".mid"_s);
    length_ = 1;

    const QStringList started = pass(5001);

    EXPECT_EQ(started.size(), 5001);
    EXPECT_EQ(started.value(4999), u"5000 4999.mid"_s);
    EXPECT_EQ(started.value(5000), u"5001 0.mid"_s);
}

}  // namespace
