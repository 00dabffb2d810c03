#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "exercises/common/widgets/direction_buttons.h"
#include "exercises/common/widgets/exercise_surroundings.h"
#include "exercises/typed_quiz/typed_quiz.h"
#include "ui/controls/picture_box.h"
#include "ui/window/window.h"

/// The typed quiz: asks every pair once, in random order, and those that failed again; reports the error ratio at the
/// end and closes. Keeps the direction under the key "nyelv".
class kikérdező final : public ablak {
  public:
    /// Loads the window and asks the first pair.
    explicit kikérdező(const feladatkörnyezet &környezet);

  protected:
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;

  private:
    void elhelyezés();
    void beállít();
    void kérdez();
    void kiírás();
    void eredmény();
    void bezár();
    void cmd_ok_Click();
    void cmd_kilép_Click();
    void nyelvoptb_Click();

    const feladatkörnyezet k_;
    kikérdezés quiz_;
    PictureBox *Pic_kérdés_;
    QLineEdit *txt_megoldás_;
    QPushButton *cmd_ok_;
    QPushButton *cmd_kilép_;
    iránygombok irány_;
    QLabel *label_info_;
    QLabel *Label_felirat_;
};
