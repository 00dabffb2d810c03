#pragma once

#include <QLabel>
#include <QTimer>
#include <QVector>

#include "exercises/common/widgets/exercise_surroundings.h"
#include "exercises/memory/memory_game.h"
#include "exercises/memory/widgets/memory_settings_window.h"
#include "ui/controls/choosable_picture.h"
#include "ui/window/window.h"
#include "ui/window/window_reference.h"

/// The memory game: the words of the pairs lie on covered cards, two of which are turned up at a time; those that
/// belong together shrink away, the others are covered again after a while. A won game is followed by the next one.
/// With fewer than seven pairs the window says so and closes.
class frm_memory final : public ablak {
  public:
    /// Loads the window and deals a game.
    explicit frm_memory(const feladatkörnyezet &környezet);

  protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;

  private:
    void játéktérépít();
    [[nodiscard]] ChoosablePicture *új_kártya(int i);
    void újjáték();
    void infokiír();
    void lefed(int i);
    void felfed(int i);
    /// Lets the cards of the pair that was just found shrink away. Other events run meanwhile; one that deals a new
    /// game or closes the window ends this at once.
    void páreltüntet();
    /// False when the game has ended meanwhile.
    [[nodiscard]] bool zsugorít(int i, int játszma);
    void vár();

    void pic_kártya_Click(int i);
    void Timer_lefed_Timer();
    void Timer_várj_Timer();
    void mnu_fájl_beáll_Click();
    void kilépés();

    const feladatkörnyezet k_;
    memóriajáték játék_;
    QLabel *Label_feladat_;
    QLabel *Label_info_;
    PictureBox *Picture_minta_;
    QVector<ChoosablePicture *> pic_kártya_;
    QTimer *Timer_lefed_;
    QTimer *Timer_várj_;
    QTimer *Timer_kiléptető_;
    WindowReference<frm_memory_beáll> beállító_;
    /// The smallest size of letters, in points, that a card of this deal needs: all are printed in it.
    double legkisebbbetű_ = 0;
    /// Ends one step of the animation.
    bool várakozásvége_ = false;
    /// Number of the deal; closing counts as one.
    int játszma_ = 0;
};
