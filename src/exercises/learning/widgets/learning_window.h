#pragma once

#include <QLabel>
#include <QPushButton>

#include "exercises/common/widgets/exercise_surroundings.h"
#include "ui/controls/list_box.h"
#include "ui/controls/picture_box.h"
#include "ui/window/window.h"

/// The learning window pages through the pairs, the English word on the left and its meaning on the right. It starts
/// again from the first pair whenever it becomes the active window.
class tanulás final : public ablak {
  public:
    /// Loads the window; feltölt() gives it its pairs.
    explicit tanulás(const feladatkörnyezet &környezet);

    /// Replaces the pairs by these.
    void feltölt(const QVector<szópár> &szavak);

  protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

  private:
    void elrendez();
    void Form_Activate();
    void következő();
    void Command1_Click();
    void Command2_Click();

    ListBox *tanlist1_;
    ListBox *tanlist2_;
    PictureBox *label1_;
    PictureBox *label3_;
    QLabel *Label_info_;
    QLabel *Label4_;
    QPushButton *Command1_;
    QPushButton *Command2_;
    int index_ = -1;
};
