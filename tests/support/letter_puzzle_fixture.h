#pragma once

#include <algorithm>

#include "exercises/letter_puzzle/widgets/letter_puzzle_window.h"
#include "support/exercise_window_fixture.h"

using namespace Qt::StringLiterals;

/// A letter puzzle, what is seen of it, and what a user does with it. Places and sizes are pixels of the frame.
class LetterPuzzleTest : public ExerciseWindowTest<frm_kirakó, frm_kirakó_beáll> {
  protected:
    using ExerciseWindowTest::start;
    void start(int pairs) { start(numbered_pairs(pairs)); }

    void store(const char *key, const QVariant &value) {
        settings_.beállításment(ablak(u"frm_kirakó_beáll"_s), QString::fromUtf8(key), value);
    }

    [[nodiscard]] ChoosablePicture *frame() const { return control<ChoosablePicture>(*window_, "pic_keret"); }
    [[nodiscard]] QString question() const { return shown(*window_, "pic_feladvány"); }
    [[nodiscard]] QString counter() const { return label(*window_, "Label_info"); }

    [[nodiscard]] LetterTile *tile(int i) const { return frame()->findChild<LetterTile *>(u"Label_betű(%1)"_s.arg(i)); }
    /// In the order of the answer.
    [[nodiscard]] QVector<LetterTile *> tiles() const {
        QVector<LetterTile *> all;
        while (LetterTile *next = tile(static_cast<int>(all.size())))
            all.append(next);
        return all;
    }
    [[nodiscard]] QVector<LetterTile *> tiles_from_left() const {
        QVector<LetterTile *> all = tiles();
        std::stable_sort(all.begin(), all.end(), [](const auto *a, const auto *b) { return a->x() < b->x(); });
        return all;
    }
    [[nodiscard]] static QString letters(const QVector<LetterTile *> &tiles) {
        QStringList all;
        for (const LetterTile *one : tiles)
            all.append(one->text());
        return all.join(u' ');
    }
    /// The places of the tiles in the order of the answer.
    [[nodiscard]] QVector<QRect> places() const {
        QVector<QRect> all;
        for (const LetterTile *one : tiles())
            all.append(one->geometry());
        return all;
    }
    /// The letters in the order of the answer: "sz ő l ő".
    [[nodiscard]] QString answer() const { return letters(tiles()); }
    /// The letters as they lie, from left to right.
    [[nodiscard]] QString row() const { return letters(tiles_from_left()); }

    /// The tiles stand in one row, each beside the one before.
    [[nodiscard]] bool closed_up() const {
        const QVector<LetterTile *> all = tiles_from_left();
        for (qsizetype i = 1; i < all.size(); ++i) {
            if (all[i]->x() != all[i - 1]->x() + all[i - 1]->width() || all[i]->y() != all[0]->y())
                return false;
        }
        return true;
    }

    /// Every tile lies in the frame and covers no other.
    void expect_apart_in_frame(const std::string &when) const {
        const QVector<QRect> all = places();
        EXPECT_FALSE(all.isEmpty()) << when;
        for (qsizetype i = 0; i < all.size(); ++i) {
            EXPECT_TRUE(frame()->rect().contains(all[i])) << when << ", tile " << i;
            for (qsizetype k = 0; k < i; ++k)
                EXPECT_FALSE(all[i].intersects(all[k])) << when << ", tiles " << k << " and " << i;
        }
    }

    /// A place of the window where the frame is bare.
    [[nodiscard]] QPoint bare_place() const {
        for (int y = 3; y < frame()->height(); y += 5) {
            for (int x = 3; x < frame()->width(); x += 5) {
                if (!frame()->childAt(x, y))
                    return frame()->mapTo(window_.get(), QPoint(x, y));
            }
        }
        ADD_FAILURE() << "The tiles cover the whole frame.";
        return {};
    }
    void click_frame() { click_at(bare_place()); }

    /// Drags tile `i` by its middle until its top left corner lies at `to`.
    void drag(int i, const QPoint &to) {
        const QPoint from = middle_of(tile(i));
        const QPoint way = to - tile(i)->pos();
        press_at(from);
        move_to(from + way / 2);
        move_to(from + way);
        release_at(from + way);
    }
    /// Lays the tiles in this order with the mouse, side by side in a free row.
    void lay_out(const QVector<int> &order) {
        click_frame();
        const QRect closed = tile(0)->geometry();
        const bool room_below = closed.bottom() + 1 + closed.height() <= frame()->height();
        QPoint to(0, room_below ? closed.bottom() + 1 : 0);
        for (const int i : order) {
            drag(i, to);
            EXPECT_EQ(tile(i)->pos(), to);
            to.rx() += tile(i)->width();
        }
    }
    /// Places of the tiles in the order of the answer, or the other way round.
    [[nodiscard]] QVector<int> right_order() const {
        QVector<int> order;
        for (int i = 0; i < tiles().size(); ++i)
            order.append(i);
        return order;
    }
    [[nodiscard]] QVector<int> wrong_order() const {
        QVector<int> order = right_order();
        std::reverse(order.begin(), order.end());
        return order;
    }

    void check() { click(*window_, "cmd_ok"); }
    void answer_rightly() {
        lay_out(right_order());
        check();
    }
    void answer_wrongly() {
        lay_out(wrong_order());
        check();
    }

    void press_key(Qt::Key key, Qt::KeyboardModifiers held = {}) {
        QTest::keyClick(window_->focusWidget() ? window_->focusWidget() : window_.get(), key, held);
    }

    static inline const QStringList wrong_message{u"Ez sajnos nem jó!"_s, u" "_s, u"Kérlek, próbáld újra!"_s};
    static inline const QVector<szópár> grape{{u"grape"_s, u"szőlő"_s}};
};
