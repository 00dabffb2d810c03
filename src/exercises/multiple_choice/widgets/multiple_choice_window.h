#pragma once

#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVector>

#include "exercises/common/widgets/exercise_surroundings.h"
#include "exercises/multiple_choice/multiple_choice.h"
#include "exercises/multiple_choice/widgets/multiple_choice_settings_window.h"
#include "ui/controls/choosable_picture.h"
#include "ui/window/window.h"
#include "ui/window/window_reference.h"

/// The multiple-choice game: one word of each pair is shown, its other member is picked from the candidates, by a click
/// or by dragging it into the frame. 1400 milliseconds after the pick the answer is checked. Stays open after the
/// result.
class választás final : public ablak {
  public:
    /// Loads the window and begins a game.
    explicit választás(const feladatkörnyezet &környezet);

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;

  private:
    void elhelyezés();
    void elrendez();
    void újrakezd();
    void kínálatot_rak(int darab);
    void következő();
    void eredmény();
    /// Puts candidate `k` into the frame and starts the timer.
    void választ(int k);
    void keretet_ürít();

    void mnu_fájl_beáll_Click();
    void pic_kínálat_Click(int k);
    void pic_megoldás_DragDrop(int k, const QPoint &hová);
    void pic_megoldás_Click();
    void Timer1_Timer();
    void cmd_ok_Click();
    void cmd_kilép_Click();

    const feladatkörnyezet k_;
    választójáték játék_;
    QLabel *label_felirat_;
    PictureBox *pic_feladat_;
    PictureBox *pic_kötőjel_;
    ChoosablePicture *pic_megoldás_;
    QVector<ChoosablePicture *> pic_kínálat_;
    QLabel *Label_info_;
    QPushButton *cmd_ok_;
    QPushButton *cmd_kilép_;
    QTimer *Timer1_;
    WindowReference<választás_beáll> beállító_;
    /// The candidate in the frame; −1 while the frame is empty.
    int választott_ = -1;
};
