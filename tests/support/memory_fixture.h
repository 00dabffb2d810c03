#pragma once

#include <algorithm>

#include "exercises/memory/widgets/memory_window.h"
#include "support/exercise_window_fixture.h"
#include "support/timers.h"
#include "ui/drawing/fonts.h"

using namespace Qt::StringLiterals;

/// A memory game, what is seen of it, and what a user does with it. The steps of its animations follow each other
/// without waiting.
class MemoryTest : public ExerciseWindowTest<frm_memory, frm_memory_beáll> {
  protected:
    MemoryTest() {
        QObject::connect(&hurry_, &QTimer::timeout, [this] {
            if (window_ && step_timer()->isActive())
                expire(*step_timer());
        });
        hurry_.start(0);
    }

    void load(const QVector<szópár> &pairs) {
        ExerciseWindowTest::load(pairs);
        steps_ = 0;
        QObject::connect(step_timer(), &QTimer::timeout, [this] { step(); });
    }
    void start(const QVector<szópár> &pairs) {
        load(pairs);
        show(*window_);
    }
    void start(int pairs = 20) { start(numbered_pairs(pairs)); }
    /// The smallest board, of six pairs.
    void start_small(const QVector<szópár> &pairs = numbered_pairs(7)) {
        store("méret", 0);
        start(pairs);
        ASSERT_EQ(cards().size(), 12);
    }

    void store(const char *key, const QVariant &value) {
        settings_.beállításment(ablak(u"frm_memory_beáll"_s), QString::fromUtf8(key), value);
    }

    [[nodiscard]] QTimer *cover_timer() const { return control<QTimer>(*window_, "Timer_lefed"); }
    [[nodiscard]] QTimer *step_timer() const { return control<QTimer>(*window_, "Timer_várj"); }
    [[nodiscard]] PictureBox *pattern() const { return control<PictureBox>(*window_, "Picture_minta"); }
    [[nodiscard]] QString progress() const { return label(*window_, "Label_info"); }

    [[nodiscard]] ChoosablePicture *card(int i) const {
        return window_->findChild<ChoosablePicture *>(u"pic_kártya(%1)"_s.arg(i));
    }
    [[nodiscard]] QVector<ChoosablePicture *> cards() const {
        QVector<ChoosablePicture *> all;
        while (ChoosablePicture *next = card(static_cast<int>(all.size())))
            all.append(next);
        return all;
    }
    [[nodiscard]] QVector<QRect> places() const {
        QVector<QRect> all;
        for (const ChoosablePicture *one : cards())
            all.append(one->geometry());
        return all;
    }
    /// The text of a card, whether it is seen or not.
    [[nodiscard]] QString text(int i) const { return card(i)->property("tag").toString(); }
    [[nodiscard]] QStringList texts() const {
        QStringList all;
        for (int i = 0; i < cards().size(); ++i)
            all.append(text(i));
        return all;
    }

    [[nodiscard]] bool covered(int i) const {
        return card(i)->printed_area().isEmpty() && card(i)->picture().cacheKey() == pattern()->picture().cacheKey();
    }
    [[nodiscard]] bool turned_up(int i) const {
        return !card(i)->printed_area().isEmpty() && card(i)->picture().isNull();
    }
    /// A letter for each card: "." for a covered one, "o" for one that is turned up, "-" for none, and "?" for one that
    /// is neither covered nor turned up.
    [[nodiscard]] QString board() const {
        QString line;
        for (int i = 0; i < cards().size(); ++i)
            line += !card(i)->isVisible() ? u'-' : (covered(i) ? u'.' : (turned_up(i) ? u'o' : u'?'));
        return line;
    }
    /// The line of board() for covered cards, but for some.
    [[nodiscard]] QString board_with(char16_t sign, const QList<int> &these) const {
        QString line(cards().size(), u'.');
        for (const int i : these)
            line[i] = sign;
        return line;
    }

    [[nodiscard]] bool belong_together(int a, int b) const {
        return std::any_of(list_.párok().cbegin(), list_.párok().cend(), [&](const szópár &pair) {
            const QString hungarian =
                pair.magyar.isEmpty() ? u"Kéne írni ide valamit!"_s : pair.magyar.section(u',', 0, 0);
            return (text(a) == pair.angol && text(b) == hungarian) || (text(b) == pair.angol && text(a) == hungarian);
        });
    }
    /// The first card in the game that belongs to card `i`.
    [[nodiscard]] int partner(int i) const {
        for (int k = 0; k < cards().size(); ++k) {
            if (k != i && card(k)->isVisible() && belong_together(i, k))
                return k;
        }
        ADD_FAILURE() << "no card belongs to " << text(i).toStdString();
        return i;
    }
    /// The first covered card that is none of these and belongs to none of them.
    [[nodiscard]] int stranger(const QList<int> &these) const {
        for (int k = 0; k < cards().size(); ++k) {
            const auto is_or_belongs = [&](int i) { return i == k || belong_together(i, k); };
            if (covered(k) && card(k)->isVisible() && std::none_of(these.cbegin(), these.cend(), is_or_belongs))
                return k;
        }
        ADD_FAILURE() << "no such card";
        return 0;
    }

    void click_card(int i) { click_at(middle_of(card(i))); }
    void turn(int a, int b) {
        click_card(a);
        click_card(b);
    }
    /// Turns the first card in the game and the one that belongs to it.
    void find_a_pair() {
        const int first = static_cast<int>(board().indexOf(u'.'));
        ASSERT_GE(first, 0);
        turn(first, partner(first));
    }
    void find_all_pairs() {
        const auto pairs = cards().size() / 2;
        for (int i = 0; i < pairs; ++i)
            find_a_pair();
    }

    /// Turns card `i` up alone, calls `look`, and lets it be covered again.
    void look_at(int i, const std::function<void()> &look) {
        click_card(i);
        ASSERT_TRUE(turned_up(i));
        look();
        click_card(stranger({i}));
        expire(*cover_timer());
    }

    void press_key(Qt::Key key) {
        QTest::keyClick(window_->focusWidget() ? window_->focusWidget() : window_.get(), key);
    }
    [[nodiscard]] int focused_card() const {
        return static_cast<int>(cards().indexOf(dynamic_cast<ChoosablePicture *>(window_->focusWidget())));
    }

    /// Lets `act` happen after so many steps of the next animation, while it waits for the step that follows.
    void at_step(int step, const std::function<void()> &act) {
        acting_step_ = steps_ + step;
        act_ = act;
    }
    /// Steps that animations have made.
    int steps_ = 0;
    /// Called at the end of each step.
    std::function<void()> during_step_ = [] {};

  private:
    void step() {
        during_step_();
        if (++steps_ == acting_step_)
            QTimer::singleShot(0, window_.get(), act_);
    }

    QTimer hurry_;
    int acting_step_ = 0;
    std::function<void()> act_;
};
