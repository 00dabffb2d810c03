#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <functional>

#include "app/main_window_controls.h"
#include "exercises/common/widgets/exercise_surroundings.h"
#include "exercises/common/word_list_reader.h"
#include "exercises/learning/widgets/learning_window.h"
#include "exercises/letter_puzzle/widgets/letter_puzzle_window.h"
#include "exercises/memory/widgets/memory_window.h"
#include "exercises/multiple_choice/widgets/multiple_choice_window.h"
#include "exercises/typed_quiz/widgets/typed_quiz_window.h"
#include "lookup/widgets/help_window.h"
#include "lookup/widgets/mini_window.h"
#include "media/music_timer.h"
#include "media/playback.h"
#include "media/widgets/music_settings_window.h"
#include "media/widgets/sound_settings_window.h"
#include "platform/dialogs.h"
#include "platform/drive_c.h"
#include "platform/information_tool.h"
#include "platform/multimedia_commands.h"
#include "platform/random_numbers.h"
#include "print/printed_word_list.h"
#include "print/printers.h"
#include "print/widgets/print_settings_window.h"
#include "state/global.h"
#include "state/settings_store.h"
#include "ui/messages/result_message_window.h"
#include "ui/window/reference_window.h"
#include "ui/window/window.h"
#include "ui/window/window_fitting.h"
#include "ui/window/window_reference.h"
#include "wordlist/word_list_files.h"
#include "wordlist/word_pair_list.h"

/// What the main window is given. Everything referred to must outlive it.
struct szótárkörnyezet {
    global::programállapot &állapot;
    frm_referencia &referencia;
    const Module_hasznos &hasznos;
    MessageBoxes &üzenetek;
    FileDialogs &fájlablakok;
    DriveC meghajtó;
    RandomNumbers &véletlen;
    global::beállítástár &beállítások;
    Printers &nyomtatók;
    TopMost &legfelül;
    MultimediaCommands &multimédia;
    /// Begins to watch the clipboard.
    std::function<std::unique_ptr<ClipboardWatch>()> vágólap;
    /// Places of all screens, in twips.
    std::function<QVector<QRectF>()> képernyők;
    /// Makes the browser of the help viewer.
    WebBrowserFactory böngésző;
    /// Starts the system's information tool.
    std::function<InformationTool()> rendszeradatok;
    /// Lets a moment pass between two steps of an animation, and between two of a glide, which has four times as many.
    std::function<void()> lépésköz;
    std::function<void()> siklásköz;
    /// The time, for what appears only when something takes long.
    PrintProgress::Clock óra;
    /// Ends the program.
    std::function<void()> vége;
};

/// The main window: looks words up, keeps the word list, opens and saves it, and leads to the other windows. Its lists
/// `szószedet` and `szómagylist` are the word list; its handlers carry the names of their controls and events.
///
/// Sources: main_window.cpp its life, size and exit; main_window_lookup.cpp the dictionary; main_window_list.cpp the
/// word list; main_window_files.cpp the menu of files; main_window_exercises.cpp the menu of exercises;
/// main_window_print.cpp printing; main_window_mini.cpp the mini window; main_window_media.cpp sounds and music;
/// main_window_info.cpp the menu of help and information.
class szótár final : public ablak,
                     private szószedetablak,
                     private szószedetolvasó,
                     private nyomtatottszószedet,
                     private nagyablak {
  public:
    explicit szótár(szótárkörnyezet környezet);

    /// Makes the window ready to be shown and opens the list that the command line names, if it names one.
    void Form_Load(const QString &parancssor);

    // What other windows call.
    /// Adds the selected hit and meaning to the word list, with a beep. With nothing selected it only beeps; a word
    /// that a file would not give back is refused with a message.
    void hozzáad_Click() override;
    /// Looks the text of `angolszó` up in the dictionary of the current direction.
    void Ok_Click() override;
    /// Asks about unsaved changes and ends the program unless the user wants to stay.
    void kilép_Click() override;
    void magyarlist_DblClick() override;
    /// Hides this window and opens the mini window in its place.
    void cmd_kisablak_Click();

    [[nodiscard]] const szópárlista &szavak() const { return lista_; }
    /// True once the program is to end.
    [[nodiscard]] bool vége() const override { return vége_; }

  protected:
    void closeEvent(QCloseEvent *event) override;

  private:
    // Life and size (main_window.cpp)
    void eseményeket_köt();
    void Form_QueryUnload(bool &mégse);
    void címbeállít(const QString &cím) override;
    void mentbeállít() override;
    void ablakigazít() override;
    void magasságot_csúsztat(double honnan, double hová);

    // The dictionary (main_window_lookup.cpp)
    void lookup_eseményeket_köt();
    void angolszó_Change();
    void szólist_Click();
    void magyarlist_Click();
    void nyelv_Click();
    void Command2_Click();
    void keresőlisták_ürít();
    void nincs_szótár(const QString &fájl);
    [[nodiscard]] bool angolról() const override { return v_.nyelv[0]->isChecked(); }

    // The word list (main_window_list.cpp)
    void lista_eseményeket_köt();
    void szószedet_Click();
    void szövegmező_Change();
    void módosít_Click();
    void sztöröl_Click();
    void fókusz_változott(const QWidget *honnan, const QWidget *hová);
    /// False, after telling why, when no file could hold the pair.
    [[nodiscard]] bool felvehető(const szópár &pár);
    void szövegmezőketürít() override;

    // The files (main_window_files.cpp)
    void fájl_eseményeket_köt();
    void fájllistmutat(const QStringList &fájlok) override;
    [[nodiscard]] QStringList fájllist() const override;

    // Printing (main_window_print.cpp)
    void nyomtatás_eseményeket_köt();
    void mnufájlnyomtatás_Click();
    [[nodiscard]] nyomtatáskörnyezet nyomtatásnak();

    // The mini window and its file (main_window_mini.cpp)
    void kisablakfájlolvas();
    void kisablakfájlír();
    /// Makes sure that the file can be written when the program ends: only into a folder that holds a file.
    void kisablakfájlnak_helyet_csinál();
    void kisablakot_elenged();
    void angolszóba_ír(const QString &szöveg) override { v_.angolszó->setText(szöveg); }
    [[nodiscard]] QStringList szólist_elemei() const override { return v_.szólist->items(); }
    [[nodiscard]] int szólist_kijelölt() const override { return v_.szólist->selected(); }
    void szólist_kijelöl(int index) override { v_.szólist->select(index); }
    [[nodiscard]] QStringList magyarlist_elemei() const override { return v_.magyarlist->items(); }
    void magyarlist_kijelöl(int index) override { v_.magyarlist->select(index); }
    [[nodiscard]] QRectF helye() const override;
    void visszatér(const QPointF &közép) override;
    [[nodiscard]] QRectF képernyője(const QPointF &hol) const;

    // Sounds and music (main_window_media.cpp)
    void hang_eseményeket_köt();
    void mnubeállításhang_Click();
    void mnubeállítászene_Click();
    [[nodiscard]] hangkörnyezet hangoknak();

    // Help and information (main_window_info.cpp)
    void info_eseményeket_köt();
    void súgót_előhoz();
    void mnu_súgó_Click();
    void mnunévjegy_Click();
    void mnu_cim_Click();
    void Label4_Click() { mnu_cim_Click(); }
    void rendszeradatokat_mutat();
    void rövid_üzenetet_mutat(const QString &szöveg);
    [[nodiscard]] std::unique_ptr<frm_súgó> új_súgó();

    // The exercises (main_window_exercises.cpp)
    void feladat_eseményeket_köt();
    void mnufeladattanul_Click();
    void mnufeladatkikérd_Click();
    void mnufeladatválaszt_Click();
    void mnu_fájl_kirakó_Click();
    void mnufeladatmemória_Click();
    /// Hides the main window, shows an exercise until it closes, shows the main window again and unloads the exercise.
    template <class Feladat>
    void feladatot_mutat(WindowReference<Feladat> &feladat);
    void üzenetmutat(qint16 ezredmásodperc, const QStringList &sorok);
    [[nodiscard]] feladatkörnyezet feladatnak();
    [[nodiscard]] const QVector<szópár> &párok() const override { return lista_.párok(); }

    szótárkörnyezet k_;
    szópárlista lista_;
    szótárvezérlők v_;
    szótármenü m_;
    szószedetfájlok fájlok_;
    WindowReference<üzenet> üzenet_;
    WindowReference<tanulás> tanulás_;
    WindowReference<kikérdező> kikérdező_;
    WindowReference<választás> választás_;
    WindowReference<frm_kirakó> kirakó_;
    WindowReference<frm_memory> memória_;
    WindowReference<frm_nyomtatás> nyomtatás_;
    WindowReference<frm_kisablak> kisablak_;
    WindowReference<frm_súgó> súgó_;
    lejátszó játszó_;
    WindowReference<frm_hangbeáll> hangbeáll_;
    WindowReference<frm_zenebeáll> zenebeáll_;
    zeneóra zeneóra_;

    /// Number of the newest search: an older one that still runs has been taken over.
    int keresés_ = 0;
    /// True after an exit procedure in which the user chose to stay or a save did not happen, and while one asks.
    bool kilépésmégse_ = false;
    /// True while the exit procedure asks, so that a second request does not ask again.
    bool kilép_ = false;
    /// Set when the program ends; a search that runs stops then.
    bool vége_ = false;
    /// Whether the missing dictionary of a direction (0 from English, 1 from Hungarian) has been told.
    std::array<bool, 2> hiány_szólt_{};

    /// Every connection of the window hangs on it. It goes before the other members, so that no event that the end of
    /// the window itself raises asks for one of them.
    QObject események_;
};
