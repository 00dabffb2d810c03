#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "platform/dialogs.h"
#include "print/document_names.h"
#include "print/page_layouts.h"
#include "print/printers.h"
#include "print/widgets/print_progress.h"
#include "print/widgets/print_settings_controls.h"
#include "state/global.h"
#include "state/settings_store.h"
#include "ui/window/window.h"
#include "ui/window/window_surroundings.h"
#include "wordlist/word_pair_list.h"

/// What the print settings are given. Everything referred to must outlive them.
struct nyomtatáskörnyezet {
    ablakkörnyezet közös;
    const szópárlista &szószedet;
    const global::programállapot &állapot;
    global::beállítástár &beállítások;
    FileDialogs &fájlablakok;
    Printers &nyomtatók;
    /// The time, to tell long work from short.
    PrintProgress::Clock óra;
};

/// The print settings: printer, font, columns, orientation and kind of a print-out, with a live sample of the font.
/// Made anew each time; keeps everything but the kind in the settings once it has printed. A print-out that fails is
/// told and leaves the window open as it is; nothing is stored then.
class frm_nyomtatás final : public ablak {
  public:
    explicit frm_nyomtatás(const nyomtatáskörnyezet &környezet);

  protected:
    void showEvent(QShowEvent *event) override;

  private:
    void eseményeket_köt();
    void Form_Load();
    void gombokat_igazít();
    void beállbetölt();
    void beállment();

    void nyomtatókat_felsorol();
    /// Selects a printer, which is as good as a click on it.
    void nyomtatót_kijelöl(int index);
    void betűtípusokat_felsorol();
    void list_nyomtatók_Click();
    /// Makes the printer that is selected the current one.
    void nyomtatót_választ();

    void előkép();
    void UpDown_betűméret_Change();
    void UpDown_hasábszám_Change();

    void cmd_nyomtat_Click();
    void cmd_nyomtatásikép_Click();
    void cmd_mégsem_Click();

    [[nodiscard]] nyomtatástípus típus() const;
    [[nodiscard]] nyomtatandó mit() const;
    void beállít(PagePrinter &nyomtató) const;
    [[nodiscard]] nyomtatásvége lerak(PagePrinter &hova, const QString &felirat);
    /// The current printer's document; nothing when the user names no file for it, or after telling why there is none.
    [[nodiscard]] std::unique_ptr<PrintJob> feladat();
    [[nodiscard]] std::unique_ptr<PrintJob> pdf_feladat();
    [[nodiscard]] std::optional<QString> pdf_neve();
    /// True when the document has gone where it should.
    [[nodiscard]] bool kinyomtat(PrintJob &feladat);
    [[nodiscard]] bool pdfbe() const { return nyomtató_.isEmpty(); }
    /// True, after telling so, when the chosen layout has nothing to put on paper.
    [[nodiscard]] bool nincs_mit();

    const nyomtatáskörnyezet k_;
    nyomtatásvezérlők v_;
    const dokumentumnevek nevek_;
    /// The current printer; empty for the PDF file.
    QString nyomtató_;
    /// The PDF file that is proposed; the one that was named last.
    QString pdf_javaslat_ = nevek_.pdf;
};
