#pragma once

#include <QObject>
#include <array>
#include <functional>

#include "app/main_window_controls.h"
#include "dictionary/word_lookup.h"
#include "platform/dialogs.h"
#include "state/global.h"
#include "suggestions/offer_list.h"

/// What the panel is given. Everything referred to must outlive it.
struct keresőpanelkörnyezet {
    szókereső &kereső;
    ajánlatlista &ajánlatok;
    const global::programállapot &állapot;
    MessageBoxes &üzenetek;
    /// True once the program is to end; a search that runs stops then.
    std::function<bool()> vége;
    /// Adds the selected hit and meaning to the word list, and says whether they are in it.
    std::function<bool()> hozzáad;
    /// Shows the phrases in which the words of a text stand.
    std::function<void(const QString &szöveg)> kifejezések;
};

/// The upper half of the main window: what is typed is looked up, the lists show the hits and their meanings. Its
/// handlers carry the names of their controls and events.
class keresőpanel final {
  public:
    keresőpanel(keresővezérlők &vezérlők, keresőpanelkörnyezet környezet);

    /// Looks the text of `angolszó` up in the dictionary of the current direction; an empty one empties the lists.
    void Ok_Click();
    /// Why no dictionary can be read has been told.
    void szótárhiány_elmondva() { hiány_szólt_.fill(true); }
    bool magyarlist_DblClick() { return k_.hozzáad(); }
    void irányt_vált(bool angolról) { v_.nyelv[angolról ? 0 : 1]->setChecked(true); }

  private:
    void eseményeket_köt();
    void angolszó_Change();
    void szólist_Click();
    void magyarlist_Click();
    void nyelv_Click();
    void Command2_Click();
    void lst_ajánlatok_Click(int i);
    /// Lists what was probably meant by the text that has been searched for; of a headword only what it may be a form
    /// of.
    void ajánlatot_kér(int kijelölendő);
    /// Gives the search field the keyboard, its text selected.
    void keresőmezőbe();
    /// Tells once for each direction when its dictionary is damaged.
    void szótárat_vizsgál();
    void nincs_szótár(const Failure &hiba);

    keresővezérlők &v_;
    const keresőpanelkörnyezet k_;
    /// Whether the missing dictionary of a direction (0 from English, 1 from Hungarian) has been told.
    std::array<bool, 2> hiány_szólt_{};
    /// Whether the dictionary of a direction has been looked at.
    std::array<bool, 2> vizsgált_{};
    /// Every connection of the panel hangs on it, so that no event reaches a panel that is gone.
    QObject események_;
};
