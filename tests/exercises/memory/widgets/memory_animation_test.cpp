#include "support/memory_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class MemoryAnimation : public MemoryTest {
  protected:
    /// Any two cards of this game belong together.
    void start_with_taxis() {
        QVector<szópár> pairs;
        for (int i = 0; i < 7; ++i)
            pairs.append({u"taxi"_s, u"taxi"_s});
        start_small(pairs);
    }

    void expect_clean_new_deal(qsizetype cards_dealt) const {
        ASSERT_EQ(cards().size(), cards_dealt);
        EXPECT_EQ(board(), QString(cards_dealt, u'.'));
        EXPECT_EQ(progress(), u"0/%1"_s.arg(cards_dealt / 2));
        for (const ChoosablePicture *one : cards()) {
            EXPECT_NEAR(one->width(), card(0)->width(), 1);
            EXPECT_NEAR(one->height(), card(0)->height(), 1);
        }
        EXPECT_FALSE(step_timer()->isActive());
    }
};

TEST_F(MemoryAnimation, shrinks_each_card_in_eleven_steps_round_its_middle) {
    start_with_taxis();
    const QVector<QRect> before = places();
    QVector<QRect> seen[2];
    during_step_ = [&] {
        const int shrinking = card(2)->isVisible() ? 2 : 6;
        seen[shrinking == 2 ? 0 : 1].append(card(shrinking)->geometry());
        EXPECT_EQ(step_timer()->interval(), 5);
        EXPECT_EQ(progress(), u"0/6"_s);
        if (shrinking == 2) {
            EXPECT_EQ(card(6)->geometry(), before[6]);
        }
    };

    turn(6, 2);

    for (const int i : {2, 6}) {
        const QVector<QRect> &sizes = seen[i == 2 ? 0 : 1];
        ASSERT_EQ(sizes.size(), 11) << "card " << i;
        for (int step = 0; step < 11; ++step) {
            const double scale = 1 - step / 10.0;
            EXPECT_NEAR(sizes[step].width(), before[i].width() * scale, 1.01) << "step " << step;
            EXPECT_NEAR(sizes[step].height(), before[i].height() * scale, 1.01) << "step " << step;
            EXPECT_NEAR(sizes[step].center().x(), before[i].center().x(), 1.01) << "step " << step;
            EXPECT_NEAR(sizes[step].center().y(), before[i].center().y(), 1.01) << "step " << step;
        }
    }
    EXPECT_EQ(steps_, 22);
    EXPECT_EQ(progress(), u"1/6"_s);
}

TEST_F(MemoryAnimation, leaves_the_cards_hidden_at_their_places_in_their_size) {
    start();
    const int found = partner(4);
    const QRectF expected[] = {window_->hely(card(4)), window_->hely(card(found))};

    turn(4, found);

    EXPECT_EQ(board(), board_with(u'-', {4, found}));
    for (const int i : {4, found}) {
        const QRectF &before = expected[i == 4 ? 0 : 1];
        EXPECT_NEAR(window_->hely(card(i)).left(), before.left(), 0.51);
        EXPECT_NEAR(window_->hely(card(i)).top(), before.top(), 0.51);
        EXPECT_NEAR(window_->hely(card(i)).width(), before.width(), 0.001);
        EXPECT_NEAR(window_->hely(card(i)).height(), before.height(), 0.001);
        EXPECT_NEAR(card(i)->width(), card(0)->width(), 1);
    }
    EXPECT_FALSE(step_timer()->isActive());
}

TEST_F(MemoryAnimation, never_shifts_the_cards_of_later_games) {
    start_small();
    find_all_pairs();
    const QVector<QRect> after_one_game = places();

    for (int i = 0; i < 5; ++i)
        find_all_pairs();

    EXPECT_EQ(places(), after_one_game);
}

TEST_F(MemoryAnimation, shows_the_shrinking_card_with_its_face_and_not_its_back) {
    start_with_taxis();
    click_card(2);
    const QImage face = card(2)->grab().toImage();
    int looks = 0;
    during_step_ = [&] {
        if (++looks == 1) {
            EXPECT_EQ(card(2)->picture().toImage().size(), face.size());
        }
        if (looks < 10) {
            EXPECT_FALSE(card(2)->picture().isNull());
            EXPECT_NE(card(2)->picture().cacheKey(), pattern()->picture().cacheKey());
            EXPECT_TRUE(card(2)->printed_area().isEmpty());
            EXPECT_TRUE(turned_up(6));
        }
    };

    click_card(6);

    EXPECT_EQ(looks, 22);
}

TEST_F(MemoryAnimation, lets_another_card_be_turned_as_the_first_of_the_next_try) {
    for (const int step : {1, 5, 11, 16, 21}) {
        start_with_taxis();
        bool was_shrinking = false;
        at_step(step, [&] {
            was_shrinking = step_timer()->isActive();
            click_card(9);
            EXPECT_EQ(board().count(u'o'), 1 + (step < 11 ? 1 : 0)) << step;
        });

        turn(2, 6);

        EXPECT_TRUE(was_shrinking);
        EXPECT_EQ(board(), u"..-...-..o.."_s) << step;
        EXPECT_EQ(progress(), u"1/6"_s);
        click_card(10);
        EXPECT_EQ(board(), u"..-...-..--."_s) << step;
        EXPECT_EQ(progress(), u"2/6"_s);
    }
}

TEST_F(MemoryAnimation, lets_a_wrong_pair_be_turned_meanwhile) {
    start();
    const int found = partner(0);
    QList<int> wrong;
    at_step(4, [&] {
        wrong.append(stranger({0}));
        wrong.append(stranger({0, wrong[0]}));
        turn(wrong[0], wrong[1]);
        EXPECT_TRUE(cover_timer()->isActive());
    });

    turn(0, found);

    EXPECT_EQ(progress(), u"1/10"_s);
    EXPECT_EQ(board().count(u'-'), 2);
    ASSERT_EQ(wrong.size(), 2);
    EXPECT_TRUE(turned_up(wrong[0]) && turned_up(wrong[1]));
    expire(*cover_timer());
    EXPECT_EQ(board(), board_with(u'-', {0, found}));
}

TEST_F(MemoryAnimation, lets_a_second_pair_be_found_meanwhile) {
    for (const int step : {1, 8, 11, 14}) {
        start_with_taxis();
        at_step(step, [this] {
            turn(4, 9);
            EXPECT_FALSE(card(4)->isVisible() || card(9)->isVisible());
        });

        turn(2, 6);

        EXPECT_EQ(board(), u"..-.-.-..-.."_s) << step;
        EXPECT_EQ(progress(), u"2/6"_s);
        for (const int i : {2, 4, 6, 9})
            EXPECT_NEAR(card(i)->width(), card(0)->width(), 1);
    }
}

TEST_F(MemoryAnimation, ends_before_the_game_is_won_even_when_the_last_pair_is_found_meanwhile) {
    start_with_taxis();
    for (int i = 0; i < 8; i += 2)
        turn(i, i + 1);
    ASSERT_EQ(progress(), u"4/6"_s);
    QString at_message;
    during_message_ = [&] { at_message = progress() + u' ' + board(); };
    at_step(3, [this] { turn(10, 11); });

    turn(8, 9);

    EXPECT_EQ(messages_.size(), 1);
    EXPECT_EQ(at_message, u"6/6 ------------"_s);
    expect_clean_new_deal(12);
}

TEST_F(MemoryAnimation, ignores_clicks_on_the_cards_that_shrink) {
    start_with_taxis();
    at_step(3, [this] {
        click_card(2);
        click_card(6);
    });

    turn(2, 6);

    EXPECT_EQ(board(), u"..-...-....."_s);
    EXPECT_EQ(progress(), u"1/6"_s);
    click_card(0);
    EXPECT_EQ(board(), u"o.-...-....."_s);
}

TEST_F(MemoryAnimation, is_ended_by_a_new_game) {
    for (const int step : {1, 6, 11, 15, 21}) {
        start();
        const int steps_before = steps_;
        at_step(step, [this] { trigger("mnu_fájl_újjáték"); });

        turn(0, partner(0));

        expect_clean_new_deal(20);
        EXPECT_LE(steps_ - steps_before, step + 1) << step;
        find_a_pair();
        EXPECT_EQ(progress(), u"1/10"_s);
    }
}

TEST_F(MemoryAnimation, is_ended_by_another_board) {
    for (const int size : {0, 2, 5}) {
        for (const int step : {1, 6, 15}) {
            start();
            at_step(step, [&] {
                in_settings([&](frm_memory_beáll &settings) {
                    control<QRadioButton>(settings, u"Option_méret(%1)"_s.arg(size))->setChecked(true);
                    click(settings, "cmd_ok");
                });
            });

            // The last card, which a smaller board lacks.
            turn(partner(19), 19);

            expect_clean_new_deal(size == 0 ? 12 : (size == 2 ? 20 : 36));
            store("méret", 2);
        }
    }
}

TEST_F(MemoryAnimation, goes_on_while_the_settings_are_open_and_cancelled) {
    start();
    at_step(5, [this] { in_settings([](frm_memory_beáll &settings) { click(settings, "cmd_mégsem"); }); });

    turn(0, partner(0));

    EXPECT_EQ(board().count(u'-'), 2);
    EXPECT_EQ(progress(), u"1/10"_s);
}

TEST_F(MemoryAnimation, is_ended_when_the_window_is_closed) {
    const std::function<void()> ways[] = {[this] { press_key(Qt::Key_Escape); }, [this] { trigger("mnu_fájl_kilép"); },
                                          [this] { window_->close(); }};
    for (const auto &leave : ways) {
        load(numbered_pairs(20));
        int steps_at_the_end = -1;
        at_step(4, [&] {
            leave();
            steps_at_the_end = steps_;
        });

        show_modally(*window_, [this] { turn(0, partner(0)); });

        EXPECT_EQ(steps_at_the_end, 4);
        EXPECT_EQ(steps_, 4);
        EXPECT_EQ(progress(), u"0/10"_s);
        EXPECT_FALSE(step_timer()->isActive());
        EXPECT_FALSE(cover_timer()->isActive());
        EXPECT_TRUE(messages_.isEmpty());
    }
}

TEST_F(MemoryAnimation, is_ended_with_another_within_it_when_the_window_is_closed) {
    load(numbered_pairs(20));

    show_modally(*window_, [this] {
        at_step(4, [this] {
            at_step(4, [this] { window_->close(); });
            const int next = stranger({0});
            turn(next, partner(next));
        });
        turn(0, partner(0));
    });

    EXPECT_EQ(steps_, 8);
    EXPECT_EQ(progress(), u"0/10"_s);
    EXPECT_FALSE(step_timer()->isActive());
}

}  // namespace
