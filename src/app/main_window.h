#pragma once

#include <QObject>
#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <memory>

#include "app/lookup_panel.h"
#include "app/main_window_controls.h"
#include "app/main_window_surroundings.h"
#include "app/mini_window_owner.h"
#include "app/windows.h"
#include "app/word_list_panel.h"
#include "dictionary/word_lookup.h"
#include "lookup/widgets/large_window.h"
#include "suggestions/language_knowledge.h"
#include "suggestions/offer_list.h"
#include "ui/window/window.h"
#include "wordlist/word_list_files.h"
#include "wordlist/word_pair_list.h"

/// The main window: menus, size, start and exit. What is looked up is the business of its `keresőpanel`, the word list
/// of its `szószedetpanel`, the other windows that of `ablakok` and `kisablakgazda`. Its lists `szószedet` and
/// `szómagylist` are the word list; its handlers carry the names of their controls and events.
class szótár final : public ablak, private szószedetablak, private nagyablak {
  public:
    explicit szótár(szótárkörnyezet környezet);

    /// Makes the window ready to be shown and opens the list that the command line names, if it names one.
    void Form_Load(const QString &parancssor);

    // What other windows call.
    bool hozzáad_Click() override { return szószedet_.hozzáad_Click(); }
    void Ok_Click() override { keresés_.Ok_Click(); }
    bool magyarlist_DblClick() override { return keresés_.magyarlist_DblClick(); }
    /// Asks about unsaved changes and ends the program unless the user wants to stay.
    void kilép_Click() override;

    [[nodiscard]] const szópárlista &szavak() const { return lista_; }
    /// True once the program is to end.
    [[nodiscard]] bool vége() const override { return vége_; }

  protected:
    void closeEvent(QCloseEvent *event) override;

  private:
    void eseményeket_köt();
    void menüt_köt();
    void Form_QueryUnload(bool &mégse);
    void fókusz_változott(const QWidget *honnan, const QWidget *hová);

    // Size
    void mentbeállít();
    void ablakigazít();
    void magasságot_csúsztat(double honnan, double hová);

    // What the files want of the window
    void címbeállít(const QString &cím) override;
    void listához_igazít() override;
    void szövegmezőketürít() override { szószedet_.szövegmezőketürít(); }
    void változást_mutat() override;
    void fájllistmutat(const QStringList &fájlok) override;

    // What the mini window wants of the window
    void irányt_vált(bool angolról) override { keresés_.irányt_vált(angolról); }
    void kifejezéseket_keres(const QString &szöveg) override { ablakok_.kifejezéseket_keres(szöveg); }
    void angolszóba_ír(const QString &szöveg) override { v_.keresés.angolszó->setText(szöveg); }
    [[nodiscard]] QRectF helye() const override;
    void visszatér(const QPointF &közép) override { kisablak_.visszatér(közép); }

    /// What is known of both languages; made by the first who asks.
    [[nodiscard]] const std::shared_ptr<nyelvismeret> &ismeret();

    const szótárkörnyezet k_;
    szópárlista lista_;
    std::shared_ptr<nyelvismeret> ismeret_;
    szókereső kereső_;
    ajánlatlista ajánlatok_;
    szótárvezérlők v_;
    szótármenü m_;
    szószedetfájlok fájlok_;
    keresőpanel keresés_;
    szószedetpanel szószedet_;
    ablakok ablakok_;
    kisablakgazda kisablak_;

    /// True after an exit procedure in which the user chose to stay or a save did not happen, and while one asks.
    bool kilépésmégse_ = false;
    /// True while the exit procedure asks, so that a second request does not ask again.
    bool kilép_ = false;
    /// Set when the program ends; a search that runs stops then.
    bool vége_ = false;

    /// Every connection of the window hangs on it. It goes before the other members, so that no event that the end of
    /// the window itself raises asks for one of them.
    QObject események_;
};
