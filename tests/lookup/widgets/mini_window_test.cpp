#include <QLabel>

#include "support/mini_window_fixture.h"
#include "ui/drawing/fonts.h"

using namespace Qt::StringLiterals;

namespace {

/// What the window looks like and how words are looked up with it; mini_window_moving_test.cpp moves it,
/// mini_window_clipboard_test.cpp watches the clipboard.
class MiniWindow : public MiniWindowTest {};

TEST_F(MiniWindow, has_its_captions) {
    load();

    EXPECT_EQ(label("Label1")->text(), u"Keresett szó:"_s);
    EXPECT_EQ(button("cmd_keres")->text(), u"Keres"_s);
    EXPECT_EQ(button("cmd_szószedethez_ad")->text(), u"Szószedet"_s);
    EXPECT_EQ(button("cmd_kilép")->text(), u"Nagy"_s);
    EXPECT_EQ(search_box()->text(), QString());
}

TEST_F(MiniWindow, explains_each_control_in_a_tooltip) {
    load();

    const QList<std::pair<const char *, QString>> tooltips{
        {"label_fejléc",
         u"Ha megfogja a fejlécet az egérrel, szabadon áthelyezheti az ablakot.  Az F2 megnyomására az "
         "ablak a képernyő sarkába ugrik."_s},
        {"cmd_lent", u"A szótár kisablakát a képernyő sarkába igazítja. (F2)"_s},
        {"cmd_x", u"Szótár bezárása"_s},
        {"txt_keres",
         u"Ide írja be a keresett szót. Ha valamely alkalmazásban a vágólapra helyez egy "
         "szót, az rögtön megjelenik a keresőmezőben."_s},
        {"cmd_keres", u"Keres"_s},
        {"lst_találatlista", u"A keresésnek megfelelő szavak listája"_s},
        {"lst_translate", u"Itt jelennek meg a keresett szó megfelelői."_s},
        {"cmd_szószedethez_ad",
         u"A szószedethez adja a keresett szót és a kijelölt fordítását. A szószedet használata segíti a "
         "tanulást, és a gyakorlást. A szószedet szavai csak a nagyablakban jelennek meg."_s},
        {"cmd_kilép", u"A nagy ablakra vált, melyben több szolgáltatás áll rendelkezésére."_s}};
    for (const auto &[name, tooltip] : tooltips)
        EXPECT_EQ(control<QWidget>(name)->toolTip(), tooltip) << name;
}

TEST_F(MiniWindow, has_a_readable_name_for_each_control_that_can_be_used) {
    load();

    for (const char *name : {"cmd_lent", "cmd_x", "txt_keres", "cmd_keres", "lst_találatlista", "lst_translate",
                             "cmd_szószedethez_ad", "cmd_kilép"})
        EXPECT_FALSE(control<QWidget>(name)->accessibleName().isEmpty()) << name;
}

TEST_F(MiniWindow, names_the_direction_of_the_dictionary_in_its_header) {
    load();
    EXPECT_EQ(label("label_fejléc")->text(), u"Zimbora Angol-magyar szótár"_s);
    EXPECT_EQ(window_->windowTitle(), u"Zimbora Angol-magyar szótár"_s);

    lookup_.irányt_vált(false);
    load();

    EXPECT_EQ(label("label_fejléc")->text(), u"Zimbora Magyar-angol szótár"_s);
}

TEST_F(MiniWindow, has_no_frame_and_asks_to_stay_above_other_windows) {
    load();

    EXPECT_TRUE(window_->windowFlags() & Qt::WindowStaysOnTopHint);
    EXPECT_TRUE(window_->windowFlags() & Qt::FramelessWindowHint);
    EXPECT_EQ(top_most_.made, 1);
    EXPECT_EQ(top_most_.renewed, 0);
}

TEST_F(MiniWindow, has_its_header_buttons_at_the_right_end_of_the_header) {
    open();

    const QRectF header = window_->hely(label("label_fejléc"));
    const QRectF corner = window_->hely(label("cmd_lent"));
    const QRectF x = window_->hely(label("cmd_x"));
    const double line = window_->hely(control<QFrame>("Line1(0)")).height();
    EXPECT_DOUBLE_EQ(header.top(), line);
    EXPECT_DOUBLE_EQ(header.bottom(), window_->hely(control<QFrame>("Line1(1)")).top());
    EXPECT_DOUBLE_EQ(header.left(), line);
    EXPECT_DOUBLE_EQ(header.right(), window_->belsőszélesség() - line);
    EXPECT_DOUBLE_EQ(x.right(), header.right());
    EXPECT_DOUBLE_EQ(corner.right(), x.left());
    for (const QRectF &place : {corner, x}) {
        EXPECT_DOUBLE_EQ(place.top(), header.top());
        EXPECT_DOUBLE_EQ(place.height(), header.height());
    }
}

TEST_F(MiniWindow, keeps_the_lines_round_its_header_as_thin_on_every_screen) {
    for (const QSize &pixels : {QSize(1024, 768), QSize(2560, 1440)}) {
        screen_ = QRectF(QPointF(0, 0), QSizeF(pixels) * 15);
        open();

        const QRectF title = window_->hely(label("label_fejléc"));
        const double header = window_->hely(control<QFrame>("Line1(1)")).bottom();
        EXPECT_DOUBLE_EQ(title.top(), 15);
        EXPECT_DOUBLE_EQ(title.height(), header - 30);
        EXPECT_GT(header, 330);
    }
}

TEST_F(MiniWindow, marks_its_header_buttons_with_an_arrow_and_a_drawn_cross) {
    open();

    EXPECT_EQ(label("cmd_lent")->text(), u">"_s);
    EXPECT_EQ(label("cmd_x")->text(), QString());
    EXPECT_FALSE(label("cmd_x")->pixmap(Qt::ReturnByValue).isNull());
    EXPECT_EQ(label("cmd_x")->alignment(), Qt::AlignCenter);
    EXPECT_NEAR(fonts::points(label("cmd_x")->font()), fonts::points(label("cmd_lent")->font()) - 1, 0.01);
}

TEST_F(MiniWindow, shows_whole_captions_on_every_screen) {
    for (const QSize &pixels : {QSize(800, 600), QSize(1024, 768), QSize(2560, 1440)}) {
        screen_ = QRectF(QPointF(0, 0), QSizeF(pixels) * 15);
        open();

        for (const char *name : {"cmd_keres", "cmd_szószedethez_ad", "cmd_kilép"}) {
            const QFontMetrics letters(button(name)->font());
            EXPECT_LT(letters.horizontalAdvance(button(name)->text()), button(name)->width()) << name;
            EXPECT_LE(letters.height(), button(name)->height()) << name;
        }
        const QFontMetrics letters(label("label_fejléc")->font());
        EXPECT_LE(
            letters.horizontalAdvance(label("label_fejléc")->text()) + label("label_fejléc")->contentsMargins().left(),
            label("cmd_lent")->x())
            << pixels.width();
        EXPECT_LT(window_->width(), pixels.width() / 2);
        EXPECT_LT(window_->height(), pixels.height() / 2);
    }
}

TEST_F(MiniWindow, has_the_keyboard_in_the_search_box_and_goes_round_with_tab) {
    open();

    QStringList order;
    for (int i = 0; i < 7; ++i) {
        order.append(focused());
        QTest::keyClick(window_->focusWidget(), Qt::Key_Tab);
    }

    EXPECT_EQ(order.join(u' '),
              u"txt_keres cmd_keres lst_találatlista lst_translate cmd_szószedethez_ad "
              "cmd_kilép txt_keres"_s);
}

TEST_F(MiniWindow, searches_while_the_word_is_typed) {
    open();

    type("alm");

    EXPECT_EQ(large_.searched(), QStringList({u"a"_s, u"al"_s, u"alm"_s}));
    EXPECT_EQ(hits(), QStringList({u"alma"_s, u"almafa"_s}));
    EXPECT_EQ(list("lst_találatlista")->selected(), 0);
    EXPECT_EQ(meanings(), QStringList{u"apple"_s});
}

TEST_F(MiniWindow, selects_the_hit_that_the_main_window_has_selected) {
    open();
    put_dictionary({"alma piros:red apple\xf7", "alma:apple\xf7", "almafa:apple tree\xf7"});

    type("alma");

    EXPECT_EQ(hits().size(), 3);
    EXPECT_EQ(list("lst_találatlista")->selected(), 1);
    EXPECT_EQ(meanings(), QStringList{u"apple"_s});
}

TEST_F(MiniWindow, has_empty_lists_when_nothing_is_found) {
    open();
    type("alma");

    type("x");

    EXPECT_TRUE(hits().isEmpty());
    EXPECT_TRUE(meanings().isEmpty());
}

TEST_F(MiniWindow, searches_again_by_its_button_and_returns_to_the_search_box) {
    open();
    type("alma");
    click_item("lst_találatlista", 1);
    large_.calls.clear();

    click("cmd_keres");

    EXPECT_EQ(large_.calls.value(0), u"Ok_Click"_s);
    EXPECT_EQ(hits(), QStringList({u"alma"_s, u"almafa"_s}));
    EXPECT_EQ(list("lst_találatlista")->selected(), 0);
    EXPECT_EQ(focused(), u"txt_keres"_s);
}

TEST_F(MiniWindow, searches_again_on_enter_in_the_search_box) {
    open();
    type("alma");
    large_.calls.clear();

    QTest::keyClick(search_box(), Qt::Key_Return);

    EXPECT_EQ(large_.calls.value(0), u"Ok_Click"_s);
}

TEST_F(MiniWindow, shows_the_meanings_of_the_hit_that_is_clicked) {
    open();
    type("alma");
    large_.calls.clear();

    click_item("lst_találatlista", 1);

    EXPECT_EQ(lookup_.kijelölt_találat().currentIndex().row(), 1);
    EXPECT_EQ(meanings(), QStringList({u"apple tree"_s, u"apple wood"_s}));
    EXPECT_EQ(list("lst_translate")->selected(), 0);
    EXPECT_EQ(list("lst_találatlista")->toolTip(), u"almafa"_s);
}

TEST_F(MiniWindow, shows_the_meanings_of_a_hit_that_the_arrow_keys_go_to) {
    open();
    type("alma");

    QTest::keyClick(list("lst_találatlista"), Qt::Key_Down);

    EXPECT_EQ(meanings(), QStringList({u"apple tree"_s, u"apple wood"_s}));
}

TEST_F(MiniWindow, tells_the_main_window_which_meaning_is_chosen) {
    open();
    type("ház");
    large_.calls.clear();

    click_item("lst_translate", 1);

    EXPECT_EQ(lookup_.kijelölt_jelentés().currentIndex().row(), 1);
}

TEST_F(MiniWindow, passes_a_double_click_on_a_meaning_to_the_main_window) {
    open();
    type("ház");
    click_item("lst_translate", 1);
    large_.calls.clear();

    QTest::mouseDClick(list("lst_translate")->viewport(), Qt::LeftButton, {}, middle_of_item("lst_translate", 1));

    EXPECT_EQ(large_.calls.count(u"magyarlist_DblClick"_s), 1);
    EXPECT_FALSE(large_.calls.contains(u"hozzáad_Click"_s));
}

TEST_F(MiniWindow, adds_to_the_word_list_and_returns_to_the_search_box) {
    open();
    type("ház");
    large_.calls.clear();

    click("cmd_szószedethez_ad");

    EXPECT_EQ(large_.calls, QStringList{u"hozzáad_Click"_s});
    EXPECT_EQ(focused(), u"txt_keres"_s);
}

TEST_F(MiniWindow, tells_in_its_header_for_two_seconds_what_was_added) {
    open();
    type("ház");

    click("cmd_szószedethez_ad");

    EXPECT_EQ(label("label_fejléc")->text(), u"Szószedetben: ház – house"_s);
    auto *timer = control<QTimer>("Timer_fejléc");
    EXPECT_EQ(timer->interval(), 2000);
    EXPECT_TRUE(timer->isSingleShot());
    expire(*timer);
    EXPECT_EQ(label("label_fejléc")->text(), u"Zimbora Angol-magyar szótár"_s);
}

TEST_F(MiniWindow, tells_in_its_header_what_a_double_click_has_added) {
    open();
    type("ház");
    click_item("lst_translate", 1);

    QTest::mouseDClick(list("lst_translate")->viewport(), Qt::LeftButton, {}, middle_of_item("lst_translate", 1));

    EXPECT_EQ(label("label_fejléc")->text(), u"Szószedetben: ház – home"_s);
}

TEST_F(MiniWindow, cuts_what_is_too_long_for_its_header) {
    put_dictionary({"alma:" + QByteArray(200, 'x') + "\xf7"});
    open();
    type("alma");

    click("cmd_szószedethez_ad");

    const QLabel *header = label("label_fejléc");
    EXPECT_TRUE(header->text().startsWith(u"Szószedetben: alma"_s));
    EXPECT_TRUE(header->text().endsWith(u"…"_s));
    EXPECT_LE(header->contentsMargins().left() + header->fontMetrics().horizontalAdvance(header->text()),
              label("cmd_lent")->x() - header->x());
}

TEST_F(MiniWindow, tells_of_nothing_that_was_not_added) {
    open();
    large_.adds = false;
    type("ház");

    click("cmd_szószedethez_ad");

    EXPECT_EQ(label("label_fejléc")->text(), u"Zimbora Angol-magyar szótár"_s);
}

TEST_F(MiniWindow, is_gone_through_from_the_search_box_to_the_meanings_by_the_arrow_keys) {
    open();
    type("ház");

    QTest::keyClick(search_box(), Qt::Key_Down);
    EXPECT_EQ(focused(), u"lst_találatlista"_s);
    QTest::keyClick(window_->focusWidget(), Qt::Key_Right);
    EXPECT_EQ(focused(), u"lst_translate"_s);
    QTest::keyClick(window_->focusWidget(), Qt::Key_Return);

    EXPECT_EQ(large_.calls.count(u"hozzáad_Click"_s), 1);
}

TEST_F(MiniWindow, comes_back_to_the_search_box_by_two_keys_and_selects_its_text) {
    open();
    type("ház");
    for (const auto &[key, held] : {std::pair(Qt::Key_L, Qt::ControlModifier), std::pair(Qt::Key_F6, Qt::NoModifier)}) {
        list("lst_translate")->setFocus();
        search_box()->deselect();

        QTest::keyClick(list("lst_translate"), key, held);

        EXPECT_EQ(focused(), u"txt_keres"_s);
        EXPECT_EQ(search_box()->selectedText(), u"ház"_s);
    }
}

TEST_F(MiniWindow, shows_the_selected_hit_in_the_middle_of_its_list) {
    // A blank comes before every letter, so the exact hit has many before it.
    QByteArrayList entries{"alma, r\xe9gi:old apple\xf7"};
    for (int i = 0; i < 40; ++i) {
        entries.append("alma " + QByteArray::number(i) + ":x\xf7");
        entries.append("almaf" + QByteArray::number(i) + ":x\xf7");
    }
    put_dictionary(entries);
    open();

    type("alma");

    const ListBox *found = list("lst_találatlista");
    ASSERT_EQ(found->selected(), 40);
    const int middle = found->visualRect(found->currentIndex()).center().y();
    EXPECT_NEAR(middle, found->viewport()->height() / 2.0, found->visualRect(found->currentIndex()).height());
}

TEST_F(MiniWindow, adds_on_enter_among_the_meanings) {
    open();
    type("ház");
    list("lst_translate")->setFocus();
    large_.calls.clear();

    QTest::keyClick(list("lst_translate"), Qt::Key_Return);

    EXPECT_EQ(large_.calls, QStringList{u"hozzáad_Click"_s});
}

TEST_F(MiniWindow, gives_its_place_back_to_the_main_window_in_its_middle) {
    open();

    click("cmd_kilép");

    EXPECT_EQ(large_.calls, QStringList{u"visszatér"_s});
    EXPECT_EQ(kept_place(), QPoint(1234, 2345));
    EXPECT_DOUBLE_EQ(large_.came_back_at.x(), 1234 + window_->szélesség() / 2);
    EXPECT_DOUBLE_EQ(large_.came_back_at.y(), 2345 + window_->magasság() / 2);
    EXPECT_FALSE(control<QTimer>("Timer1")->isActive());
}

TEST_F(MiniWindow, keeps_the_place_that_it_has_when_the_main_window_comes_back) {
    open();
    window_->move(200, 100);

    click("cmd_kilép");

    EXPECT_EQ(kept_place(), QPoint(3000, 1500));
    EXPECT_DOUBLE_EQ(large_.came_back_at.x(), 3000 + window_->szélesség() / 2);
}

TEST_F(MiniWindow, asks_for_the_end_of_the_program_by_its_x_and_stays_until_it_comes) {
    open();

    click("cmd_x");

    EXPECT_EQ(large_.calls, QStringList{u"kilép_Click"_s});
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(MiniWindow, asks_for_the_end_of_the_program_on_alt_f4_whatever_has_the_keyboard) {
    open();
    for (const char *name : {"txt_keres", "lst_találatlista", "lst_translate", "cmd_kilép"}) {
        large_.calls.clear();

        QTest::keyClick(control<QWidget>(name), Qt::Key_F4, Qt::AltModifier);

        EXPECT_EQ(large_.calls, QStringList{u"kilép_Click"_s}) << name;
        EXPECT_TRUE(window_->isVisible());
    }
}

TEST_F(MiniWindow, leaves_f4_alone_without_alt_and_with_more_than_alt) {
    open();

    QTest::keyClick(search_box(), Qt::Key_F4);
    QTest::keyClick(search_box(), Qt::Key_F4, Qt::AltModifier | Qt::ShiftModifier);

    EXPECT_TRUE(large_.calls.isEmpty());
}

TEST_F(MiniWindow, asks_for_the_end_of_the_program_when_the_window_manager_closes_it) {
    open();

    EXPECT_FALSE(window_->close());

    EXPECT_EQ(large_.calls, QStringList{u"kilép_Click"_s});
    EXPECT_TRUE(window_->isVisible());
}

TEST_F(MiniWindow, says_that_it_is_lost_when_the_program_goes_on_without_it) {
    open();

    window_.reset();

    EXPECT_EQ(boxes_.told, QStringList{u"Elveszett"_s});
}

TEST_F(MiniWindow, says_nothing_when_it_goes_with_the_program) {
    open();
    large_.ends = true;

    window_.reset();

    EXPECT_TRUE(boxes_.told.isEmpty());
}

}  // namespace
