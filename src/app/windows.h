#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>

#include "app/main_window_surroundings.h"
#include "exercises/common/widgets/exercise_surroundings.h"
#include "exercises/learning/widgets/learning_window.h"
#include "exercises/letter_puzzle/widgets/letter_puzzle_window.h"
#include "exercises/memory/widgets/memory_window.h"
#include "exercises/multiple_choice/widgets/multiple_choice_window.h"
#include "exercises/typed_quiz/widgets/typed_quiz_window.h"
#include "lookup/widgets/help_window.h"
#include "media/music_timer.h"
#include "media/playback.h"
#include "media/widgets/music_settings_window.h"
#include "media/widgets/sound_settings_window.h"
#include "print/widgets/print_settings_window.h"
#include "ui/messages/result_message_window.h"
#include "ui/window/window_reference.h"
#include "ui/window/window_surroundings.h"
#include "wordlist/word_pair_list.h"

/// The owner of the windows that the menus open: each is made at its first use and gone when it is unloaded. The
/// handlers carry the names of their menu items.
class ablakok final {
  public:
    /// `k`, `főablak` and `lista` must outlive this object. `vége` is true once the program is to end.
    ablakok(const szótárkörnyezet &k, ablak &főablak, const szópárlista &lista, std::function<bool()> vége);

    /// Starts the playlist, which goes on as long as the program runs.
    void zenét_indít();
    /// True when the windows let the program end: that of the sounds saves when it closes, and stays open when it
    /// cannot.
    [[nodiscard]] bool kiléphet();
    void elrejt();

    // The menu "Fel&adatok"
    void mnufeladattanul_Click();
    void mnufeladatkikérd_Click();
    void mnufeladatválaszt_Click();
    void mnu_fájl_kirakó_Click();
    void mnufeladatmemória_Click();

    void mnufájlnyomtatás_Click();
    void mnubeállításhang_Click() { hangbeáll_.get().mutat(); }
    void mnubeállítászene_Click() { zenebeáll_.get().mutat(); }

    // The menu "&Info"
    void mnu_súgó_Click();
    void mnunévjegy_Click();
    void mnu_cim_Click();

  private:
    [[nodiscard]] ablakkörnyezet közös() const;
    [[nodiscard]] feladatkörnyezet feladatnak();
    [[nodiscard]] hangkörnyezet hangoknak();
    [[nodiscard]] nyomtatáskörnyezet nyomtatásnak() const;
    [[nodiscard]] súgókörnyezet súgónak();

    /// Hides the main window, shows an exercise until it closes, shows the main window again and unloads the exercise.
    template <class Feladat>
    void feladatot_mutat(WindowReference<Feladat> &feladat);
    void üzenetmutat(qint16 ezredmásodperc, const QStringList &sorok);
    void súgót_előhoz();
    void rendszeradatokat_mutat();
    void rövid_üzenetet_mutat(const QString &szöveg);
    void egyszer_szól(const QString &szöveg);

    const szótárkörnyezet &k_;
    ablak &főablak_;
    const szópárlista &lista_;
    const std::function<bool()> vége_;
    /// What is told once.
    QStringList elmondott_;
    WindowReference<üzenet> üzenet_;
    WindowReference<tanulás> tanulás_;
    WindowReference<kikérdező> kikérdező_;
    WindowReference<választás> választás_;
    WindowReference<frm_kirakó> kirakó_;
    WindowReference<frm_memory> memória_;
    WindowReference<frm_nyomtatás> nyomtatás_;
    WindowReference<frm_súgó> súgó_;
    lejátszó játszó_;
    WindowReference<frm_hangbeáll> hangbeáll_;
    WindowReference<frm_zenebeáll> zenebeáll_;
    zeneóra zeneóra_;
    /// Every connection hangs on it, so that no event reaches windows that are gone.
    QObject események_;
};
