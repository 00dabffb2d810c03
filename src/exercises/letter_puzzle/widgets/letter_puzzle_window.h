#pragma once

#include <QLabel>
#include <QPushButton>
#include <QVector>

#include "exercises/common/widgets/exercise_surroundings.h"
#include "exercises/letter_puzzle/letter_puzzle.h"
#include "exercises/letter_puzzle/letter_tiles.h"
#include "exercises/letter_puzzle/widgets/letter_puzzle_settings_window.h"
#include "ui/controls/choosable_picture.h"
#include "ui/controls/letter_tile.h"
#include "ui/window/window.h"
#include "ui/window/window_reference.h"

/// The scrambled-letter puzzle: one word of each pair is shown, the letters of its other one lie scattered in a frame
/// and are moved into order with the mouse or with Ctrl and the arrow keys. Closes when every pair has been put
/// together.
class frm_kirakó final : public ablak {
  public:
    /// Loads the window and begins a game.
    explicit frm_kirakó(const feladatkörnyezet &környezet);

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;

  private:
    void elhelyezés();
    void elrendez();
    void újrakezd();
    /// Asks the next pair; without one the window closes. What was passed over is told when the question stands.
    void következő();
    void kérdez();
    void kihagyottakat_mond();
    void betűket_rak();
    /// Moves the tiles to where they lie; Tab goes through them as they lie now, from left to right. Returns the
    /// leftmost; without tiles, the button.
    QWidget *lapokat_igazít();
    QString kirakott_szó();
    void mozgat(int i, const QPointF &hová);
    /// Acts on an arrow key while tile `i` has the focus; true when the key was one.
    bool nyíl(const QKeyEvent &billentyű, int i);
    /// Takes up the next free tile with the letter that was typed, or puts the last one back; true when there was one.
    bool gépelés(const QKeyEvent &billentyű);

    void Label_betű_MouseDown(const QPointF &hol) { fogás_ = hol.toPoint(); }
    void Label_betű_MouseMove(int i, Qt::MouseButtons gombok, const QPointF &hol);
    void pic_keret_Click() { kirakott_szó(); }
    void mnu_fájl_beáll_Click();
    void cmd_ok_Click();

    const feladatkörnyezet k_;
    kirakójáték játék_;
    QLabel *Label_főcím_;
    PictureBox *pic_feladvány_;
    QLabel *Label1_;
    ChoosablePicture *pic_keret_;
    QVector<LetterTile *> Label_betű_;
    QPushButton *cmd_ok_;
    QLabel *Label_info_;
    WindowReference<frm_kirakó_beáll> beállító_;
    betűlapok lapok_{{0, 0}};
    /// Where on its tile a mouse button went down, in whole twips.
    QPointF fogás_;
    bool vége_ = false;
};
