#include "ui/controls/list_box.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QStyledItemDelegate>
#include <QToolTip>
#include <QtTest/QTest>

#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

class ListBoxTest : public testing::Test {
  protected:
    ListBoxTest() {
        for (const char *text : {"alma", "barack", "citrom"})
            list_.add(QString::fromLatin1(text));
        list_.resize(200, 200);
        list_.show();
    }

    void click(int row) {
        const QRect place = list_.visualRect(list_.model()->index(row, 0));
        QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, place.center());
    }

    ListBox list_;
    QSignalSpy selected_{&list_, &ListBox::itemSelected};
};

TEST_F(ListBoxTest, has_nothing_selected_at_first) {
    EXPECT_EQ(list_.count(), 3);
    EXPECT_EQ(list_.item(1), u"barack"_s);
    EXPECT_EQ(list_.selected(), -1);
}

TEST_F(ListBoxTest, takes_other_items_at_once_and_selects_none_of_them) {
    const QStringList others{u"dió"_s, u"eper"_s};
    list_.select(2);
    selected_.clear();

    list_.set_items(others);

    EXPECT_EQ(list_.items(), others);
    EXPECT_EQ(list_.count(), 2);
    EXPECT_EQ(list_.selected(), -1);
    EXPECT_EQ(selected_.count(), 0);
}

TEST_F(ListBoxTest, shows_its_own_tip_over_an_item_that_it_does_not_cut_off) {
    list_.setToolTip(u"Gyümölcsök"_s);
    const QPoint at = list_.visualRect(list_.model()->index(0, 0)).center();

    QHelpEvent hover(QEvent::ToolTip, at, list_.viewport()->mapToGlobal(at));
    QApplication::sendEvent(list_.viewport(), &hover);

    EXPECT_EQ(QToolTip::text(), u"Gyümölcsök"_s);
    QToolTip::hideText();
}

TEST_F(ListBoxTest, announces_a_selection_by_the_program_each_time) {
    list_.select(2);
    list_.select(2);

    EXPECT_EQ(list_.selected(), 2);
    EXPECT_EQ(selected_.count(), 2);
}

TEST_F(ListBoxTest, announces_a_click_once_even_on_the_selected_item) {
    click(1);
    EXPECT_EQ(selected_.count(), 1);

    click(1);
    EXPECT_EQ(selected_.count(), 2);
    EXPECT_EQ(list_.selected(), 1);
}

TEST_F(ListBoxTest, keeps_its_selection_at_a_click_below_the_items) {
    list_.select(1);

    QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, QPoint(100, 190));

    EXPECT_EQ(list_.selected(), 1);
    EXPECT_TRUE(list_.selectionModel()->isSelected(list_.currentIndex()));
    EXPECT_EQ(selected_.count(), 1);
}

TEST_F(ListBoxTest, keeps_its_selection_at_a_click_or_space_with_ctrl) {
    list_.select(1);
    const QPoint place = list_.visualRect(list_.currentIndex()).center();

    QTest::mouseClick(list_.viewport(), Qt::LeftButton, Qt::ControlModifier, place);
    EXPECT_TRUE(list_.selectionModel()->isSelected(list_.currentIndex()));
    QTest::keyClick(&list_, Qt::Key_Space, Qt::ControlModifier);

    EXPECT_EQ(list_.selected(), 1);
    EXPECT_TRUE(list_.selectionModel()->isSelected(list_.currentIndex()));
}

TEST_F(ListBoxTest, announces_a_selection_by_key) {
    list_.select(0);

    QTest::keyClick(&list_, Qt::Key_Down);

    EXPECT_EQ(list_.selected(), 1);
    EXPECT_EQ(selected_.count(), 2);
}

TEST_F(ListBoxTest, says_nothing_when_nothing_is_selected) {
    list_.select(0);
    selected_.clear();

    list_.select(-1);
    list_.clear();

    EXPECT_EQ(list_.selected(), -1);
    EXPECT_EQ(list_.count(), 0);
    EXPECT_EQ(selected_.count(), 0);
}

TEST_F(ListBoxTest, announces_a_double_click_on_an_item_only) {
    QSignalSpy doubled(&list_, &ListBox::itemDoubleClicked);
    const QPoint below(100, 190);

    QTest::mouseDClick(list_.viewport(), Qt::LeftButton, {}, below);
    EXPECT_EQ(doubled.count(), 0);

    QTest::mouseDClick(list_.viewport(), Qt::LeftButton, {}, list_.visualRect(list_.model()->index(0, 0)).center());
    EXPECT_EQ(doubled.count(), 1);
}

TEST_F(ListBoxTest, keeps_an_item_of_a_million_letters_whole_and_shows_its_beginning) {
    const QString longest(1 << 20, u'x');
    list_.add(longest);

    EXPECT_EQ(list_.item(3), longest);
    const auto *delegate = qobject_cast<QStyledItemDelegate *>(list_.itemDelegate());
    EXPECT_EQ(delegate->displayText(longest, QLocale()), longest.left(1000) + u'…');
}

TEST_F(ListBoxTest, shows_a_column_of_a_model) {
    QStandardItemModel pairs;
    pairs.appendRow({new QStandardItem(u"dog"_s), new QStandardItem(u"kutya"_s)});
    pairs.appendRow({new QStandardItem(u"cat"_s), new QStandardItem(u"macska"_s)});
    ListBox hungarian(&pairs, 1);

    EXPECT_EQ(hungarian.count(), 2);
    EXPECT_EQ(hungarian.item(1), u"macska"_s);
    hungarian.select(1);
    EXPECT_EQ(hungarian.selected(), 1);
}

/// Shows what is selected as some themes do in a list that has not the focus.
class PaleTheme final : public QProxyStyle {
  public:
    PaleTheme() : QProxyStyle(u"fusion"_s) {}

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override {
        if (element == PE_PanelItemViewItem && option->state & State_Selected)
            painter->fillRect(option->rect, QColor(250, 250, 250));
        else
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
};

TEST_F(ListBoxTest, shows_its_selected_item_as_clearly_without_the_focus_whatever_the_theme) {
    PaleTheme theme;
    list_.setStyle(&theme);
    list_.select(1);
    list_.clearFocus();

    const QRect row = list_.visualRect(list_.model()->index(1, 0));
    const QColor behind_it = list_.viewport()->grab().toImage().pixelColor(row.right() - 3, row.center().y());

    EXPECT_EQ(behind_it, list_.palette().color(QPalette::Active, QPalette::Highlight));
    list_.setStyle(nullptr);
}

}  // namespace
