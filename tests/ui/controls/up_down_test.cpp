#include "ui/controls/up_down.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QStyleOptionSpinBox>
#include <QtTest/QTest>

#include "support/printing.h"

using namespace Qt::StringLiterals;

namespace {

class UpDownTest : public testing::Test {
  protected:
    UpDownTest() {
        control_.setRange(1, 3);
        control_.resize(60, 30);
        control_.show();
    }

    [[nodiscard]] QRect part(QStyle::SubControl which) const {
        QStyleOptionSpinBox option;
        option.initFrom(&control_);
        option.subControls = QStyle::SC_All;
        return control_.style()->subControlRect(QStyle::CC_SpinBox, &option, which, &control_);
    }

    UpDown control_;
};

TEST_F(UpDownTest, is_seen_where_its_arrows_are_and_nowhere_else) {
    EXPECT_TRUE(control_.mask().contains(part(QStyle::SC_SpinBoxUp).center()));
    EXPECT_TRUE(control_.mask().contains(part(QStyle::SC_SpinBoxDown).center()));
    EXPECT_FALSE(control_.mask().contains(QPoint(5, 15)));
    EXPECT_FALSE(control_.findChild<QLineEdit *>()->isVisible());
}

TEST_F(UpDownTest, counts_by_its_arrows_and_by_the_keyboard) {
    QTest::mouseClick(&control_, Qt::LeftButton, {}, part(QStyle::SC_SpinBoxUp).center());
    EXPECT_EQ(control_.value(), 2);
    QTest::mouseClick(&control_, Qt::LeftButton, {}, part(QStyle::SC_SpinBoxDown).center());
    EXPECT_EQ(control_.value(), 1);

    QTest::keyClick(&control_, Qt::Key_Up);
    QTest::keyClick(&control_, Qt::Key_Up);
    QTest::keyClick(&control_, Qt::Key_Up);
    EXPECT_EQ(control_.value(), 3);
    QTest::keyClick(&control_, Qt::Key_Down);
    EXPECT_EQ(control_.value(), 2);
    QTest::keyClicks(&control_, u"1"_s);
    EXPECT_EQ(control_.value(), 2);
}

}  // namespace
