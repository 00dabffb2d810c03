#pragma once

#include <QObject>

#include "app/main_window_controls.h"
#include "dictionary/word_lookup.h"
#include "platform/dialogs.h"
#include "state/global.h"
#include "wordlist/word_list_files.h"
#include "wordlist/word_pair_list.h"

/// What the panel is given. Everything referred to must outlive it.
struct szószedetpanelkörnyezet {
    szópárlista &lista;
    const szókereső &kereső;
    global::programállapot &állapot;
    MessageBoxes &üzenetek;
    /// The window that the list is in.
    szószedetablak &ablak;
};

/// The lower half of the main window: adds to the word list, changes and deletes its pairs. Its handlers carry the
/// names of their controls and events. Everything it is given must outlive it.
class szószedetpanel final {
  public:
    szószedetpanel(szószedetvezérlők &vezérlők, const szószedetpanelkörnyezet &környezet);

    /// Adds the selected hit and meaning to the word list, with a beep. With nothing selected it only beeps; a word
    /// that a file would not give back is refused with a message. True when the list has them now.
    bool hozzáad_Click();
    /// Adds a pair by the same rule, with a beep, or tells why no file could hold it; true when it is in the list.
    bool felvesz(const szópár &pár);
    void szövegmezőketürít();
    /// The keyboard has moved on from one control of the main window to another.
    void fókusz_változott(const QWidget *honnan, const QWidget *hová);

  private:
    void eseményeket_köt();
    void szószedet_Click();
    void szövegmező_Change();
    /// Shows a side of a pair in its text box, in which one that is cut cannot be changed.
    static void beír(QLineEdit &mező, const QString &szöveg);
    /// The pair as the text boxes have it; of a side that they show cut, the whole.
    [[nodiscard]] szópár beírt_pár() const;
    void módosít_Click();
    void sztöröl_Click();
    /// False, after telling why, when no file could hold the pair.
    [[nodiscard]] bool felvehető(const szópár &pár);

    szószedetvezérlők &v_;
    const szószedetpanelkörnyezet k_;
    /// Every connection of the panel hangs on it, so that no event reaches a panel that is gone.
    QObject események_;
};
