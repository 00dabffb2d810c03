#include <QKeyEvent>

#include "support/memory_fixture.h"

using namespace Qt::StringLiterals;

namespace {

using MemoryPlaying = MemoryTest;

TEST_F(MemoryPlaying, click_turns_a_card_up) {
    start();

    click_card(3);

    EXPECT_EQ(board(), board_with(u'o', {3}));
    EXPECT_FALSE(cover_timer()->isActive());
    EXPECT_EQ(progress(), u"0/10"_s);
}

TEST_F(MemoryPlaying, click_on_a_card_that_is_up_does_nothing) {
    start();
    click_card(3);

    click_card(3);

    EXPECT_EQ(board(), board_with(u'o', {3}));
    const int other = stranger({3});
    click_card(other);
    EXPECT_EQ(board(), board_with(u'o', {3, other}));
    EXPECT_TRUE(cover_timer()->isActive());
}

TEST_F(MemoryPlaying, right_click_turns_nothing) {
    start();

    press_at(middle_of(card(3)), Qt::RightButton);
    release_at(middle_of(card(3)), Qt::RightButton);

    EXPECT_EQ(board(), QString(20, u'.'));
}

TEST_F(MemoryPlaying, click_between_the_cards_turns_nothing) {
    start();

    click_at(card(0)->mapTo(window_.get(), QPoint(5, card(0)->height() + 2)));

    EXPECT_EQ(board(), QString(20, u'.'));
}

TEST_F(MemoryPlaying, wrong_pair_is_seen_until_the_timer_fires) {
    start();
    const int other = stranger({3});

    turn(3, other);

    EXPECT_EQ(board(), board_with(u'o', {3, other}));
    EXPECT_EQ(progress(), u"0/10"_s);
    EXPECT_EQ(cover_timer()->interval(), 2000);
    expire(*cover_timer());
    EXPECT_EQ(board(), QString(20, u'.'));
    EXPECT_FALSE(cover_timer()->isActive());
    click_card(5);
    EXPECT_EQ(board(), board_with(u'o', {5}));
    EXPECT_FALSE(cover_timer()->isActive());
}

TEST_F(MemoryPlaying, wrong_pair_is_seen_as_long_as_the_settings_say_at_that_moment) {
    store("felfedésiidő", 15);
    start();
    turn(3, stranger({3}));
    EXPECT_EQ(cover_timer()->interval(), 1500);
    expire(*cover_timer());

    for (QWidget *settings : QApplication::topLevelWidgets()) {
        if (settings->objectName() == u"frm_memory_beáll"_s)
            settings->findChild<QSpinBox *>(u"UpDown_idő"_s)->setValue(37);
    }
    turn(3, stranger({3}));

    EXPECT_EQ(cover_timer()->interval(), 3700);
    EXPECT_TRUE(cover_timer()->isActive());
}

TEST_F(MemoryPlaying, third_card_covers_the_wrong_pair_and_is_the_first_of_the_next_try) {
    start();
    const int second = stranger({0});
    turn(0, second);
    const int third = stranger({0, second});

    click_card(third);

    EXPECT_EQ(board(), board_with(u'o', {third}));
    EXPECT_FALSE(cover_timer()->isActive());
    click_card(partner(third));
    EXPECT_EQ(progress(), u"1/10"_s);
}

TEST_F(MemoryPlaying, click_on_a_card_of_the_wrong_pair_begins_the_next_try_with_it) {
    start();
    const int second = stranger({0});
    turn(0, second);

    click_card(second);

    EXPECT_EQ(board(), board_with(u'o', {second}));
    EXPECT_FALSE(cover_timer()->isActive());
}

TEST_F(MemoryPlaying, right_pair_disappears_and_counts_whichever_card_is_turned_first) {
    start();
    const int found = partner(0);

    turn(0, found);
    EXPECT_EQ(board(), board_with(u'-', {0, found}));
    EXPECT_EQ(progress(), u"1/10"_s);
    EXPECT_FALSE(cover_timer()->isActive());
    EXPECT_TRUE(messages_.isEmpty());

    const auto next = static_cast<int>(board().indexOf(u'.'));
    turn(partner(next), next);
    EXPECT_EQ(progress(), u"2/10"_s);
    EXPECT_EQ(board().count(u'-'), 4);
}

TEST_F(MemoryPlaying, cards_are_turned_as_ever_after_a_found_pair) {
    start();
    find_a_pair();
    const QString left = board();
    const auto first = static_cast<int>(left.indexOf(u'.'));

    click_card(first);
    EXPECT_EQ(board().count(u'o'), 1);
    click_card(stranger({first}));
    EXPECT_EQ(board().count(u'o'), 2);
    expire(*cover_timer());

    EXPECT_EQ(board(), left);
}

TEST_F(MemoryPlaying, click_where_a_found_card_was_does_nothing) {
    start();
    const QPoint at = middle_of(card(0));
    turn(0, partner(0));
    const QString left = board();

    click_at(at);
    click_at(at);

    EXPECT_EQ(board(), left);
}

TEST_F(MemoryPlaying, won_game_is_congratulated_and_followed_by_a_new_deal) {
    start();
    const QStringList before = texts();
    QString at_message;
    during_message_ = [&] { at_message = progress() + u' ' + board(); };

    find_all_pairs();

    ASSERT_EQ(messages_.size(), 1);
    EXPECT_EQ(messages_[0].milliseconds, 3000);
    EXPECT_EQ(messages_[0].lines, QStringList({u"Gratulálok!"_s, u"Kitűnő megoldás"_s}));
    EXPECT_EQ(at_message, u"10/10 "_s + QString(20, u'-'));
    EXPECT_EQ(progress(), u"0/10"_s);
    EXPECT_EQ(board(), QString(20, u'.'));
    EXPECT_NE(texts(), before);
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(MemoryPlaying, every_board_can_be_won_again_and_again) {
    for (int size = 0; size < 6; ++size) {
        store("méret", size);
        start();
        messages_.clear();

        find_all_pairs();
        find_all_pairs();

        EXPECT_EQ(messages_.size(), 2);
        EXPECT_EQ(board(), QString(cards().size(), u'.'));
    }
}

TEST_F(MemoryPlaying, game_closed_during_the_congratulation_is_not_dealt_anew) {
    start_small();
    during_message_ = [this] { window_->close(); };

    find_all_pairs();

    EXPECT_FALSE(window_->isVisible());
    EXPECT_EQ(progress(), u"6/6"_s);
    EXPECT_EQ(board(), QString(12, u'-'));
}

TEST_F(MemoryPlaying, cards_of_equal_texts_are_interchangeable) {
    QVector<szópár> pairs = numbered_pairs(5);
    pairs.append({u"dog"_s, u"kutya"_s});
    pairs.append({u"dog"_s, u"kutya, eb"_s});
    for (int tries = 0; tries < 20; ++tries) {
        start_small(pairs);
        if (texts().count(u"dog"_s) == 2)
            break;
    }
    const auto dog = static_cast<int>(texts().indexOf(u"dog"_s));
    const auto other_dog = static_cast<int>(texts().lastIndexOf(u"dog"_s));
    const auto kutya = static_cast<int>(texts().indexOf(u"kutya"_s));
    const auto other_kutya = static_cast<int>(texts().lastIndexOf(u"kutya"_s));
    ASSERT_NE(dog, other_dog);

    turn(dog, other_dog);
    EXPECT_EQ(progress(), u"0/6"_s);
    turn(dog, other_kutya);
    EXPECT_EQ(progress(), u"1/6"_s);
    turn(other_dog, kutya);
    EXPECT_EQ(progress(), u"2/6"_s);
}

TEST_F(MemoryPlaying, pair_with_two_equal_sides_is_found) {
    QVector<szópár> pairs;
    for (int i = 0; i < 7; ++i)
        pairs.append({u"taxi"_s, u"taxi"_s});
    start_small(pairs);

    for (int i = 0; i < 12; ++i)
        click_card(i);

    ASSERT_EQ(messages_.size(), 1);
    EXPECT_EQ(progress(), u"0/6"_s);
}

TEST_F(MemoryPlaying, pair_without_hungarian_shows_the_reminder_and_is_found) {
    QVector<szópár> pairs = numbered_pairs(7);
    for (szópár &one : pairs)
        one.magyar.clear();
    start_small(pairs);
    EXPECT_EQ(texts().count(u"Kéne írni ide valamit!"_s), 6);

    find_all_pairs();

    EXPECT_EQ(messages_.size(), 1);
}

TEST_F(MemoryPlaying, arrows_walk_over_the_board) {
    start();
    ASSERT_EQ(focused_card(), 0);
    // Four columns of five cards.
    const std::pair<Qt::Key, int> way[] = {
        {Qt::Key_Down, 1},   {Qt::Key_Down, 2}, {Qt::Key_Right, 7}, {Qt::Key_Right, 12}, {Qt::Key_Right, 17},
        {Qt::Key_Right, 17}, {Qt::Key_Up, 16},  {Qt::Key_Up, 15},   {Qt::Key_Up, 15},    {Qt::Key_Left, 10}};

    for (const auto &[key, expected] : way) {
        press_key(key);
        EXPECT_EQ(focused_card(), expected);
    }
    EXPECT_EQ(board(), QString(20, u'.'));
}

TEST_F(MemoryPlaying, arrows_pass_over_cards_that_are_gone) {
    QVector<szópár> pairs;
    for (int i = 0; i < 7; ++i)
        pairs.append({u"taxi"_s, u"taxi"_s});
    start_small(pairs);
    turn(1, 2);
    ASSERT_EQ(board(), u".--........."_s);
    card(0)->setFocus();

    press_key(Qt::Key_Down);
    EXPECT_EQ(focused_card(), 3);
    press_key(Qt::Key_Up);
    EXPECT_EQ(focused_card(), 0);
}

TEST_F(MemoryPlaying, space_turns_the_card_with_the_focus) {
    start();
    press_key(Qt::Key_Down);

    press_key(Qt::Key_Space);

    EXPECT_EQ(board(), board_with(u'o', {1}));
    EXPECT_EQ(focused_card(), 1);
}

TEST_F(MemoryPlaying, space_that_is_held_down_turns_one_card) {
    start();
    press_key(Qt::Key_Space);
    press_key(Qt::Key_Down);

    QKeyEvent repeat(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier, u" "_s, true);
    QApplication::sendEvent(window_->focusWidget(), &repeat);

    EXPECT_EQ(board(), board_with(u'o', {0}));
}

TEST_F(MemoryPlaying, other_keys_turn_nothing) {
    start();

    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_A, Qt::Key_1, Qt::Key_Tab})
        press_key(key);

    EXPECT_EQ(board(), QString(20, u'.'));
    EXPECT_TRUE(window_->isVisible());
    EXPECT_EQ(focused_card(), 1);
}

TEST_F(MemoryPlaying, focus_goes_to_a_card_that_is_left_when_its_own_is_found) {
    start();
    card(0)->setFocus();
    press_key(Qt::Key_Space);
    const int found = partner(0);
    card(found)->setFocus();

    press_key(Qt::Key_Space);

    ASSERT_GE(focused_card(), 0);
    EXPECT_TRUE(card(focused_card())->isVisible());
}

TEST_F(MemoryPlaying, tab_reaches_every_card_in_its_order) {
    start_small();
    QStringList expected;
    for (int i = 0; i < 12; ++i)
        expected.append(u"pic_kártya(%1)"_s.arg(i));

    EXPECT_EQ(tab_order(*window_), expected.join(u' '));
}

TEST_F(MemoryPlaying, whole_game_is_played_by_the_keyboard_alone) {
    start_small();
    const auto go_to = [this](int i) {
        // To the first card in the game, and from there on with Tab.
        for (int k = 0; focused_card() != i && k < 50; ++k)
            press_key(Qt::Key_Tab);
        EXPECT_EQ(focused_card(), i);
    };

    for (int i = 0; i < 6; ++i) {
        const auto first = static_cast<int>(board().indexOf(u'.'));
        const int second = partner(first);
        go_to(first);
        press_key(Qt::Key_Space);
        go_to(second);
        press_key(Qt::Key_Space);
    }

    EXPECT_EQ(messages_.size(), 1);
    EXPECT_EQ(progress(), u"0/6"_s);
    EXPECT_EQ(focused_card(), 0);
    press_key(Qt::Key_Escape);
    EXPECT_FALSE(window_->isVisible());
}

}  // namespace
