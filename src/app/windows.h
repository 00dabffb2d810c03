#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>

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
#include "suggestions/language_knowledge.h"
#include "suggestions/offer_list.h"
#include "suggestions/widgets/phrases_window.h"
#include "ui/messages/result_message_window.h"
#include "ui/window/window_reference.h"
#include "ui/window/window_surroundings.h"
#include "wordlist/word_pair_list.h"

/// What the owner of the windows is given beside the surroundings. Everything referred to must outlive it.
struct ablakokkörnyezet {
    ablak &főablak;
    const szópárlista &lista;
    ajánlatlista &ajánlatok;
    /// What is known of both languages; made by the first who asks.
    std::function<std::shared_ptr<nyelvismeret>()> ismeret;
    /// Adds a pair to the word list, with a beep, or tells why not; true when it is there.
    std::function<bool(const szópár &pár)> felvesz;
    /// True once the program is to end.
    std::function<bool()> vége;
};

/// The owner of the windows that the menus open: each is made at its first use and gone when it is unloaded. The
/// handlers carry the names of their menu items.
class ablakok final {
  public:
    /// `k` must outlive this object.
    ablakok(const szótárkörnyezet &k, ablakokkörnyezet környezet);

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

    // The menu "&Szótár"
    void mnuszótárkifejezések_Click() { kifejezéseket_keres({}); }
    /// Shows the window of phrases, with those in which the words of a text stand.
    void kifejezéseket_keres(const QString &szöveg);

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
    [[nodiscard]] kifejezéskörnyezet kifejezéseknek();

    /// Hides the main window, shows an exercise until it closes, shows the main window again and unloads the exercise.
    template <class Feladat>
    void feladatot_mutat(WindowReference<Feladat> &feladat);
    void üzenetmutat(qint16 ezredmásodperc, const QStringList &sorok);
    void rendszeradatokat_mutat();
    void rövid_üzenetet_mutat(const QString &szöveg);
    void egyszer_szól(const QString &szöveg);

    const szótárkörnyezet &k_;
    const ablakokkörnyezet mik_;
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
    WindowReference<frm_kifejezések> kifejezések_;
    lejátszó játszó_;
    WindowReference<frm_hangbeáll> hangbeáll_;
    WindowReference<frm_zenebeáll> zenebeáll_;
    zeneóra zeneóra_;
    /// Every connection hangs on it, so that no event reaches windows that are gone.
    QObject események_;
};
