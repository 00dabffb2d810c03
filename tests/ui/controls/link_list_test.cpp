#include "ui/controls/link_list.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QtTest/QTest>

using namespace Qt::StringLiterals;

namespace {

class LinkListTest : public testing::Test {
  protected:
    static constexpr int start = Qt::UserRole;
    static constexpr int length = Qt::UserRole + 1;

    /// Replaces the lines; the link of each is its last `link` letters.
    void set_lines(const QStringList &lines, int link) {
        QSignalBlocker quiet(model_);
        model_.clear();
        for (const QString &line : lines) {
            auto *item = new QStandardItem(line);
            item->setData(line.size() - link, start);
            item->setData(link, length);
            model_.appendRow(item);
        }
        quiet.unblock();
        Q_EMIT model_.modelReset({});
    }

    void focus(Qt::FocusReason reason) {
        list_.show();
        list_.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&list_));
        list_.clearFocus();
        list_.setFocus(reason);
    }

    QStandardItemModel model_;
    LinkList list_{&model_, {start, length}, LinkList::Layout::lines};
    QSignalSpy chosen_{&list_, &LinkList::chosen};
};

TEST_F(LinkListTest, is_not_seen_without_lines) {
    EXPECT_TRUE(list_.isHidden());

    set_lines({u"went = go"_s}, 2);
    EXPECT_FALSE(list_.isHidden());

    set_lines({}, 0);
    EXPECT_TRUE(list_.isHidden());
}

TEST_F(LinkListTest, shows_lines_as_they_are_whatever_signs_they_have) {
    set_lines({u"a <b> & \"c\" = go"_s, u"második = ige"_s}, 2);

    EXPECT_EQ(list_.toPlainText(), u"a <b> & \"c\" = go\nmásodik = ige"_s);
    EXPECT_EQ(list_.toolTip(), u"a <b> & \"c\" = go\nmásodik = ige"_s);
}

TEST_F(LinkListTest, goes_from_link_to_link_and_chooses_by_the_keyboard) {
    list_.resize(300, 100);
    set_lines({u"went = go"_s, u"left = leave"_s}, 2);
    focus(Qt::TabFocusReason);

    QTest::keyClick(&list_, Qt::Key_Return);
    QTest::keyClick(&list_, Qt::Key_Tab);
    QTest::keyClick(&list_, Qt::Key_Return);

    ASSERT_EQ(chosen_.size(), 2);
    EXPECT_EQ(chosen_.front().front(), 0);
    EXPECT_EQ(chosen_.back().front(), 1);
}

TEST_F(LinkListTest, begins_with_its_last_link_when_it_is_come_to_from_behind) {
    list_.resize(300, 100);
    set_lines({u"went = go"_s, u"left = leave"_s}, 2);
    focus(Qt::BacktabFocusReason);

    QTest::keyClick(&list_, Qt::Key_Return);

    ASSERT_EQ(chosen_.size(), 1);
    EXPECT_EQ(chosen_.front().front(), 1);
}

TEST_F(LinkListTest, chooses_the_line_whose_link_is_clicked) {
    list_.resize(300, 100);
    set_lines({u"go"_s, u"leave"_s}, 2);
    list_.show();

    QTest::mouseClick(list_.viewport(), Qt::LeftButton, {}, QPoint(4, 5));

    ASSERT_EQ(chosen_.size(), 1);
    EXPECT_EQ(chosen_.front().front(), 0);
}

TEST_F(LinkListTest, stands_in_one_line_where_there_is_room_for_one_only) {
    LinkList one(&model_, {start, length}, LinkList::Layout::single_line);
    set_lines({u"went = go"_s, u"left = go"_s}, 2);

    EXPECT_EQ(one.document()->blockCount(), 1);
    EXPECT_FALSE(one.toPlainText().contains(u'\n'));
}

TEST_F(LinkListTest, ends_a_line_that_is_cut_off_with_a_mark) {
    LinkList one(&model_, {start, length}, LinkList::Layout::single_line);
    one.resize(200, 20);
    const auto end_is_blank = [&] {
        const QImage end = one.grab(QRect(170, 0, 30, 20)).toImage();
        return end == end.copy(0, 0, 1, 1).scaled(end.size());
    };

    set_lines({u"leave"_s}, 5);
    one.show();
    EXPECT_TRUE(end_is_blank());

    const QString blanks(200, QChar::Nbsp);
    set_lines({u"go"_s + blanks + u"leave"_s}, 5);
    EXPECT_FALSE(end_is_blank());
}

}  // namespace
