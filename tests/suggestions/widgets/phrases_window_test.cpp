#include "suggestions/widgets/phrases_window.h"

#include <QApplication>
#include <QClipboard>
#include <QtTest/QTest>

#include "support/events.h"
#include "support/window_fixture.h"

namespace {

class PhrasesWindow : public WindowTest {
  protected:
    PhrasesWindow() {
        window_.show();
        QApplication::setActiveWindow(&window_);
    }

    static int search(const QString &text, const kifejezésfigyelő &watcher) {
        const QVector<kifejezés> all{{.angol = u"to turn off"_s, .magyar = u"lekapcsol"_s, .angol_találatok = {{3, 4}}},
                                     {.angol = u"to turn on"_s, .magyar = u"bekapcsol"_s, .angol_találatok = {{3, 4}}}};
        if (text != u"turn"_s)
            return 0;
        watcher.lap(all);
        return 2;
    }

    template <class Control>
    [[nodiscard]] Control *control(const char *name) {
        auto *found = window_.findChild<Control *>(QString::fromUtf8(name));
        if (!found)
            qFatal("no control %s", name);
        return found;
    }
    [[nodiscard]] QTreeView *list() { return control<QTreeView>("lst_kifejezések"); }
    [[nodiscard]] QLineEdit *box() { return control<QLineEdit>("txt_kifejezés"); }
    [[nodiscard]] QString count() { return control<QLabel>("Label_kifejezések")->text(); }
    void find_turn() {
        QTest::keyClicks(box(), u"turn"_s);
        ASSERT_TRUE(comes_true([&] { return list()->model()->rowCount() == 2; }));
    }

    QStringList added_;
    bool closed_ = false;
    bool taken_ = true;
    frm_kifejezések window_{{.közös = common(),
                             .keresés = search,
                             .hozzáad =
                                 [this](const QString &english, const QString &hungarian) {
                                     added_.append(english + u':' + hungarian);
                                     return taken_;
                                 },
                             .bezárva = [this] { closed_ = true; }}};
};

TEST_F(PhrasesWindow, is_empty_and_ready_to_type_at_first) {
    EXPECT_TRUE(box()->hasFocus());
    EXPECT_EQ(list()->model()->rowCount(), 0);
    EXPECT_EQ(count(), QString());
    EXPECT_FALSE(control<QPushButton>("cmd_kifejezést_ad")->isEnabled());
}

TEST_F(PhrasesWindow, finds_while_it_is_typed_and_tells_how_many) {
    find_turn();

    EXPECT_EQ(count(), u"2 kifejezés"_s);
    EXPECT_EQ(list()->currentIndex().row(), 0);
}

TEST_F(PhrasesWindow, says_that_there_is_none) {
    QTest::keyClicks(box(), u"qqq"_s);

    EXPECT_TRUE(comes_true([&] { return count() == u"nincs találat"_s; }));
    EXPECT_EQ(list()->model()->rowCount(), 0);
}

TEST_F(PhrasesWindow, is_empty_again_when_the_text_is) {
    find_turn();
    box()->clear();

    EXPECT_EQ(list()->model()->rowCount(), 0);
    EXPECT_EQ(count(), QString());
}

TEST_F(PhrasesWindow, adds_the_selected_pair_by_enter_from_the_text_and_from_the_list) {
    find_turn();

    QTest::keyClick(box(), Qt::Key_Return);
    QTest::keyClick(box(), Qt::Key_Down);
    ASSERT_TRUE(list()->hasFocus());
    QTest::keyClick(list(), Qt::Key_Down);
    QTest::keyClick(list(), Qt::Key_Return);

    EXPECT_EQ(added_, QStringList({u"to turn off:lekapcsol"_s, u"to turn on:bekapcsol"_s}));
}

TEST_F(PhrasesWindow, adds_the_pair_that_is_double_clicked) {
    find_turn();
    const QPoint second = list()->visualRect(list()->model()->index(1, 0)).center();

    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, second);
    QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, second);

    EXPECT_EQ(added_, QStringList{u"to turn on:bekapcsol"_s});
}

TEST_F(PhrasesWindow, tells_what_was_added_and_not_what_was_refused) {
    find_turn();
    taken_ = false;
    QTest::keyClick(box(), Qt::Key_Return);
    EXPECT_EQ(count(), u"2 kifejezés"_s);

    taken_ = true;
    QTest::keyClick(box(), Qt::Key_Return);
    EXPECT_EQ(count(), u"Szószedetben: to turn off – lekapcsol"_s);
}

TEST_F(PhrasesWindow, copies_both_sides_of_the_selected_pair) {
    find_turn();
    QTest::keyClick(box(), Qt::Key_Down);

    QTest::keyClick(list(), Qt::Key_C, Qt::ControlModifier);

    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"to turn off\tlekapcsol"_s);
}

TEST_F(PhrasesWindow, closes_by_escape) {
    QTest::keyClick(box(), Qt::Key_Escape);

    EXPECT_FALSE(window_.isVisible());
    EXPECT_TRUE(comes_true([&] { return closed_; }));
}

TEST_F(PhrasesWindow, gives_the_list_what_room_there_is) {
    const QSize before = list()->size();
    window_.resize(window_.width() + 200, window_.height() + 100);
    QCoreApplication::processEvents();

    EXPECT_EQ(list()->size(), before + QSize(200, 100));
}

}  // namespace
