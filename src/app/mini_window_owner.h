#pragma once

#include <QObject>
#include <QPointF>
#include <QRectF>

#include "app/main_window_surroundings.h"
#include "dictionary/word_lookup.h"
#include "lookup/widgets/large_window.h"
#include "lookup/widgets/mini_window.h"
#include "suggestions/offer_list.h"
#include "ui/window/window.h"
#include "ui/window/window_reference.h"

/// The owner of the mini window: its file, its opening in place of the main window, and the way back.
class kisablakgazda final {
  public:
    /// Everything must outlive this object; `nagy` is the main window as the mini window sees it, `főablak` its window.
    kisablakgazda(const szótárkörnyezet &k, ablak &főablak, nagyablak &nagy, szókereső &kereső,
                  ajánlatlista &ajánlatok);

    /// Reads place and mode from "c:\zbrmk\angol\kisablak.ini"; without a readable file, the middle of the screen.
    /// One that is there and cannot be read is told.
    void fájlolvas();
    /// Writes them, but only into a folder that holds a file.
    void fájlír();

    /// Hides the main window and opens the mini window in its place.
    void cmd_kisablak_Click();
    /// Shows the main window with this middle, wholly on its screen, and unloads the mini window.
    void visszatér(const QPointF &közép);
    void elrejt();

  private:
    /// Makes sure that the file can be written when the program ends.
    void fájlnak_helyet_csinál();
    void elenged();
    /// The screen on which this place lies; the main one when it lies on none.
    [[nodiscard]] QRectF képernyője(const QPointF &hol) const;

    const szótárkörnyezet &k_;
    ablak &főablak_;
    WindowReference<frm_kisablak> kisablak_;
    /// What is still to happen hangs on it, so that it does not happen to an owner that is gone.
    QObject események_;
};
