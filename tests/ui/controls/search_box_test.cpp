#include "ui/controls/search_box.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QtTest/QTest>

#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

class SearchBoxTest : public testing::Test {
  protected:
    SearchBoxTest() {
        box_.show();
        QGuiApplication::clipboard()->setText(u" \r\n apple\npie \n"_s);
    }

    SearchBox box_;
};

TEST_F(SearchBoxTest, takes_a_pasted_text_without_line_ends_and_the_blanks_around_it) {
    QTest::keyClick(&box_, Qt::Key_V, Qt::ControlModifier);

    EXPECT_EQ(box_.text(), u"apple pie"_s);
}

TEST_F(SearchBoxTest, pastes_in_place_of_what_is_selected_and_takes_it_back) {
    box_.setText(u"an old pear"_s);
    box_.setSelection(3, 3);

    QTest::keyClick(&box_, Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(box_.text(), u"an apple pie pear"_s);
    box_.undo();

    EXPECT_EQ(box_.text(), u"an old pear"_s);
}

TEST_F(SearchBoxTest, takes_a_text_pasted_by_its_menu_in_the_same_way) {
    QContextMenuEvent wanted(QContextMenuEvent::Mouse, {5, 5}, box_.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&box_, &wanted);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);

    for (QAction *item : menu->actions()) {
        if (item->text().startsWith(QLineEdit::tr("&Paste")))
            item->trigger();
    }
    menu->close();

    EXPECT_EQ(box_.text(), u"apple pie"_s);
}

TEST_F(SearchBoxTest, takes_a_dropped_text_in_the_same_way) {
    QMimeData dropped;
    dropped.setText(u" apple \n"_s);
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QDragMoveEvent move({5, 5}, Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);
    QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &dropped, Qt::LeftButton, Qt::NoModifier);

    for (QEvent *step : std::initializer_list<QEvent *>{&enter, &move, &drop})
        QApplication::sendEvent(&box_, step);

    EXPECT_EQ(box_.text(), u"apple"_s);
}

TEST_F(SearchBoxTest, leaves_typed_blanks) {
    QTest::keyClicks(&box_, u"apple "_s);

    EXPECT_EQ(box_.text(), u"apple "_s);
}

}  // namespace
