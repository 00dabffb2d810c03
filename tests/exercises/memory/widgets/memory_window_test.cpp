#include "exercises/memory/widgets/memory_window.h"

#include <QAccessible>
#include <QSet>

#include "support/memory_fixture.h"

using namespace Qt::StringLiterals;

namespace {

class MemoryWindow : public MemoryTest {
  protected:
    /// Everything that an assistive program tells of a card.
    [[nodiscard]] QString told_of(int i) const {
        QAccessibleInterface *card_told = QAccessible::queryAccessibleInterface(card(i));
        QString all = card(i)->toolTip() + card(i)->statusTip() + card(i)->whatsThis();
        for (const QAccessible::Text kind :
             {QAccessible::Name, QAccessible::Description, QAccessible::Value, QAccessible::Help})
            all += card_told->text(kind);
        return all;
    }

    /// The size of letters, in points, that a text has when it is fitted into card `i`.
    [[nodiscard]] double size_in_card(int i, const QString &text) const {
        PictureBox box;
        box.resize(card(i)->size());
        box.setFont(card(i)->font());
        Module_hasznos::szövegbeigazít(box, text);
        return fonts::points(box.font());
    }

    /// Turns every card up once and returns the sizes of letters that were seen.
    [[nodiscard]] QSet<double> printed_sizes() {
        QSet<double> sizes;
        for (int i = 0; i < cards().size(); ++i) {
            look_at(i, [&] {
                sizes.insert(fonts::points(card(i)->font()));
                expect_text_inside(*window_, u"pic_kártya(%1)"_s.arg(i));
            });
        }
        return sizes;
    }
};

TEST_F(MemoryWindow, has_every_control_under_its_name_with_its_caption) {
    start();

    EXPECT_EQ(window_->objectName(), u"frm_memory"_s);
    EXPECT_EQ(window_->windowTitle(), u"Zimbora Angol-Magyar Szótár - Memória"_s);
    EXPECT_EQ(label(*window_, "Label_feladat"), u"Keresd meg az összetartozó párokat!"_s);
    EXPECT_EQ(progress(), u"0/10"_s);
    EXPECT_EQ(cards().size(), 20);
    EXPECT_FALSE(pattern()->isVisible());
    for (const char *timer : {"Timer_lefed", "Timer_várj", "Timer_kiléptető"})
        EXPECT_FALSE(control<QTimer>(*window_, timer)->isActive());
}

TEST_F(MemoryWindow, has_every_menu_item_under_its_name_with_its_caption) {
    start();

    EXPECT_EQ(control<QMenu>(*window_, "mnu_fájl")->title(), u"&Fájl"_s);
    EXPECT_EQ(menu_items(), QStringList({u"mnu_fájl_újjáték &Új játék"_s, u"mnu_fájl_beáll &Beállítások"_s,
                                         u"mnu_fájl_elv"_s, u"mnu_fájl_kilép &Kilép"_s}));
}

TEST_F(MemoryWindow, lays_every_board_out_in_columns_of_equal_cards_on_every_screen) {
    const std::pair<int, int> boards[] = {{3, 4}, {4, 4}, {4, 5}, {4, 6}, {5, 6}, {6, 6}};
    for (const QSize &pixels : screens) {
        for (int size = 0; size < 6; ++size) {
            const auto [columns, in_column] = boards[size];
            use_screen(pixels);
            store("méret", size);
            start();
            SCOPED_TRACE(u"board %1 of %2"_s.arg(size).arg(pixels.width()).toStdString());

            ASSERT_EQ(cards().size(), columns * in_column);
            EXPECT_EQ(progress(), u"0/%1"_s.arg(columns * in_column / 2));
            const QRectF first = window_->hely(card(0));
            const double gap = first.width() / 1695 * 120;
            EXPECT_NEAR(first.height() / first.width(), 855.0 / 1695, 0.001);
            for (int k = 0; k < cards().size(); ++k) {
                const QRectF place = window_->hely(card(k));
                EXPECT_NEAR(place.left(), first.left() + (k / in_column) * (first.width() + gap), 0.01);
                EXPECT_NEAR(place.top(), first.top() + (k % in_column) * (first.height() + gap), 0.01);
                EXPECT_NEAR(place.width(), first.width(), 0.01);
                EXPECT_NEAR(place.height(), first.height(), 0.01);
                EXPECT_TRUE(card(k)->isVisible());
            }
            const QRectF last = window_->hely(card(columns * in_column - 1));
            EXPECT_NEAR(window_->hely(control<QLabel>(*window_, "Label_feladat")).left(), first.left(), 0.01);
            EXPECT_NEAR(window_->hely(control<QLabel>(*window_, "Label_feladat")).right(), last.right(), 0.01);
            EXPECT_NEAR(window_->hely(control<QLabel>(*window_, "Label_info")).right(), last.right(), 0.01);
            EXPECT_NEAR(window_->hely(control<QLabel>(*window_, "Label_info")).top(), last.bottom() + gap, 0.01);
            expect_no_overlap(*window_);
            expect_whole_caption(*window_, u"Label_feladat"_s);
            expect_whole_caption(*window_, u"Label_info"_s);
            const double share =
                std::max(window_->szélesség() / screen_.width(), window_->magasság() / screen_.height());
            EXPECT_NEAR(share, 0.9, 0.03);
        }
    }
}

TEST_F(MemoryWindow, refuses_six_pairs_and_closes_by_itself) {
    load(numbered_pairs(6));
    ASSERT_EQ(messages_.size(), 1);
    EXPECT_EQ(messages_[0].milliseconds, 3000);
    EXPECT_EQ(messages_[0].lines,
              QStringList({u"Sajnos ehhez a játékhoz"_s, u"legalább hat szópárra"_s, u"van szükség!"_s}));

    window_->mutatmodálisan();

    EXPECT_FALSE(window_->isVisible());
    EXPECT_FALSE(window_->windowHandle() && window_->windowHandle()->isVisible());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_EQ(messages_.size(), 1);
}

TEST_F(MemoryWindow, refuses_an_empty_list_and_closes_by_itself) {
    load({});

    window_->mutatmodálisan();

    EXPECT_EQ(messages_.size(), 1);
    EXPECT_FALSE(window_->isVisible());
}

TEST_F(MemoryWindow, plays_seven_pairs_on_the_smallest_board) {
    start(7);

    EXPECT_EQ(cards().size(), 12);
    EXPECT_EQ(progress(), u"0/6"_s);
    EXPECT_EQ(board(), u"............"_s);
    EXPECT_TRUE(messages_.isEmpty());
}

TEST_F(MemoryWindow, deals_both_words_of_different_pairs) {
    start(30);
    const QStringList dealt = texts();

    EXPECT_EQ(QSet<QString>(dealt.begin(), dealt.end()).size(), 20);
    EXPECT_EQ(dealt.filter(u"word"_s).size(), 10);
    for (int i = 0; i < dealt.size(); ++i)
        EXPECT_NE(partner(i), i);
}

TEST_F(MemoryWindow, prints_a_translation_up_to_its_first_comma_and_the_whole_english) {
    QVector<szópár> pairs;
    for (int i = 0; i < 7; ++i)
        pairs.append({u"deer, roe %1"_s.arg(i), u"őz %1, szarvas,vad"_s.arg(i)});
    start_small(pairs);

    const QStringList dealt = texts();

    EXPECT_EQ(dealt.filter(u"deer, roe "_s).size(), 6);
    EXPECT_EQ(dealt.filter(u"őz "_s).size(), 6);
    EXPECT_TRUE(dealt.filter(u"szarvas"_s).isEmpty());
}

TEST_F(MemoryWindow, prints_all_cards_in_the_smallest_size_that_one_of_them_needs) {
    QVector<szópár> pairs = numbered_pairs(6);
    pairs.append({u"electroencephalographically"_s, u"ló"_s});
    for (int i = 0; i < 3; ++i) {
        start_small(pairs);

        double smallest = 1000;
        double largest = 0;
        for (int k = 0; k < cards().size(); ++k) {
            smallest = std::min(smallest, size_in_card(k, text(k)));
            largest = std::max(largest, size_in_card(k, text(k)));
        }

        EXPECT_LT(smallest, largest);
        EXPECT_EQ(printed_sizes(), QSet<double>{smallest});
    }
}

TEST_F(MemoryWindow, prints_larger_letters_in_a_deal_of_shorter_words) {
    QVector<szópár> pairs = numbered_pairs(7);
    for (szópár &one : pairs)
        one.angol += u" electroencephalographically"_s;
    start_small(pairs);
    double small = 0;
    look_at(0, [&] { small = fonts::points(card(0)->font()); });

    start_small();

    look_at(0, [&] { EXPECT_GT(fonts::points(card(0)->font()), small); });
}

TEST_F(MemoryWindow, keeps_the_texts_inside_their_cards_on_every_board_and_screen) {
    QVector<szópár> pairs = numbered_pairs(20);
    for (int i = 0; i < 20; ++i) {
        pairs[i].angol = u"%1 to look forward to something very pleasant"_s.arg(i);
        if (i % 5 == 0)
            pairs[i].magyar = QString::number(i) + u"megszentségteleníthetetlenségeskedéseitekért"_s;
    }
    for (const QSize &pixels : screens) {
        for (const int size : {0, 2, 5}) {
            use_screen(pixels);
            store("méret", size);
            start(pairs);
            SCOPED_TRACE(u"board %1 of %2"_s.arg(size).arg(pixels.width()).toStdString());

            EXPECT_EQ(printed_sizes().size(), 1);
        }
    }
}

TEST_F(MemoryWindow, keeps_a_text_of_two_hundred_letters_inside_its_card) {
    for (const QSize &pixels : screens) {
        for (const QString &text : {long_text().replace(u',', u';'), long_word()}) {
            QVector<szópár> pairs = numbered_pairs(7);
            for (szópár &one : pairs)
                one.angol = text.left(199) + one.angol.back();
            use_screen(pixels);
            start_small(pairs);
            SCOPED_TRACE(u"%1: %2"_s.arg(pixels.width()).arg(text).toStdString());

            EXPECT_EQ(printed_sizes().size(), 1);
        }
    }
}

TEST_F(MemoryWindow, prints_a_text_of_several_words_in_lines) {
    QVector<szópár> pairs;
    for (int i = 0; i < 7; ++i)
        pairs.append({u"to look forward to something very pleasant %1"_s.arg(i),
                      u"előre örül valami nagyon kellemesnek %1"_s.arg(i)});
    start_small(pairs);

    look_at(3, [this] {
        const QSizeF in_one_line = PictureBox::text_size(text(3), card(3)->font());
        EXPECT_GE(card(3)->printed_area().height(), 2 * in_one_line.height() - 1);
        EXPECT_LT(card(3)->printed_area().width(), in_one_line.width());
    });
}

TEST_F(MemoryWindow, prints_in_the_middle_of_the_card) {
    start();

    look_at(7, [this] {
        const QPointF middle = card(7)->printed_area().center();
        EXPECT_NEAR(middle.x(), card(7)->inner_size().width() / 2, 1);
        EXPECT_NEAR(middle.y(), card(7)->inner_size().height() / 2, 1);
    });
}

TEST_F(MemoryWindow, shows_the_same_pattern_on_every_covered_card) {
    start();
    turn(4, stranger({4}));
    expire(*cover_timer());
    window_->setFocus();

    EXPECT_FALSE(pattern()->picture().isNull());
    EXPECT_EQ(board(), QString(20, u'.'));
    // Some cards are a pixel wider or higher than others.
    QHash<std::pair<int, int>, QImage> backs;
    for (const ChoosablePicture *one : cards()) {
        const std::pair size(one->width(), one->height());
        const QImage back = const_cast<ChoosablePicture *>(one)->grab().toImage();
        EXPECT_EQ(backs.value(size, back), back) << one->objectName().toStdString();
        backs.insert(size, back);
    }
    EXPECT_LE(backs.size(), 4);
    card(7)->setFocus();
    click_card(7);
    EXPECT_NE(card(7)->grab().toImage(), backs.value({card(7)->width(), card(7)->height()}));
}

TEST_F(MemoryWindow, tells_the_word_of_a_card_only_while_it_is_turned_up) {
    start();
    const QString word = text(7);
    EXPECT_FALSE(told_of(7).isEmpty());
    for (int i = 0; i < 20; ++i) {
        for (const QString &one : texts())
            EXPECT_FALSE(told_of(i).contains(one)) << one.toStdString();
    }

    look_at(7, [&] { EXPECT_TRUE(told_of(7).contains(word)); });

    EXPECT_FALSE(told_of(7).contains(word));
    EXPECT_NE(card(7)->accessibleName(), card(8)->accessibleName());
}

TEST_F(MemoryWindow, deals_anew_by_the_menu) {
    start();
    const QStringList before = texts();
    find_a_pair();
    const int first = static_cast<int>(board().indexOf(u'.'));
    turn(first, stranger({first}));

    trigger("mnu_fájl_újjáték");

    EXPECT_EQ(progress(), u"0/10"_s);
    EXPECT_EQ(board(), QString(20, u'.'));
    EXPECT_FALSE(cover_timer()->isActive());
    EXPECT_NE(texts(), before);
    EXPECT_EQ(focused_card(), 0);
    // The next card is the first of a try.
    click_card(3);
    EXPECT_EQ(board(), board_with(u'o', {3}));
}

TEST_F(MemoryWindow, ends_its_modal_display_with_escape_menu_and_frame) {
    expect_each_ends_modal_display(
        numbered_pairs(7),
        {[this] { press_key(Qt::Key_Escape); }, [this] { trigger("mnu_fájl_kilép"); }, [this] { window_->close(); }});
}

TEST_F(MemoryWindow, stops_its_timers_when_it_is_closed) {
    start();
    turn(0, stranger({0}));
    ASSERT_TRUE(cover_timer()->isActive());

    press_key(Qt::Key_Escape);

    EXPECT_FALSE(window_->isVisible());
    EXPECT_FALSE(cover_timer()->isActive());
    EXPECT_FALSE(step_timer()->isActive());
}

TEST_F(MemoryWindow, reads_the_list_once_and_leaves_it_alone) {
    start(10);
    const QVector<szópár> before = list_.párok();
    find_a_pair();
    EXPECT_EQ(list_.párok(), before);

    list_.kiürít();
    trigger("mnu_fájl_újjáték");
    EXPECT_EQ(texts().filter(u"word"_s).size(), 10);
}

TEST_F(MemoryWindow, opens_a_list_of_five_thousand_pairs) {
    store("méret", 5);
    start(5000);

    EXPECT_EQ(progress(), u"0/18"_s);
    find_a_pair();
    EXPECT_EQ(progress(), u"1/18"_s);
}

}  // namespace
