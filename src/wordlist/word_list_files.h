#pragma once

#include <QString>
#include <QStringList>
#include <QVector>
#include <optional>

#include "platform/dialogs.h"
#include "platform/files.h"
#include "state/global.h"
#include "wordlist/word_pair_list.h"

/// What the file procedures want of the window that shows the word list.
class szószedetablak {
  public:
    virtual ~szószedetablak() = default;

    virtual void címbeállít(const QString &cím) = 0;
    /// Enables the menus that fit the list, and gives the window the height that fits it.
    virtual void listához_igazít() = 0;
    virtual void szövegmezőketürít() = 0;
    /// Shows whether the list has changes that are not saved.
    virtual void változást_mutat() = 0;
    /// Shows these files, at most four, in the recent-files menu.
    virtual void fájllistmutat(const QStringList &fájlok) = 0;
};

/// The menu "&Fájl" without a widget: opening, appending, saving and naming the word list, its questions and messages,
/// and the recent-files list. Every failure is told in a message box and changes nothing: the pairs, the current file
/// and the changed flag stay as they were.
class szószedetfájlok final {
  public:
    /// All referenced objects must outlive this one. `legutóbbi` is the real path of "c:\zbrmkfnh.ini".
    szószedetfájlok(global::programállapot &állapot, szópárlista &lista, szószedetablak &ablak, MessageBoxes &üzenetek,
                    FileDialogs &fájlablakok, QString legutóbbi);

    /// Opens the file that the command line names; tells so when there is none.
    void parancssorból(const QString &parancssor);

    void mnufájlúj();
    void mnufájlmegnyit();
    void mnufájlhozzáfűz();
    void mnufájlment();
    void mnufájlmentmásként();
    /// Opens a file of the recent-files menu, if it is still there.
    void mnufájlfájl(const QString &út);

    /// Reads the recent-files list and shows it in the menu; tells once when it is there and cannot be read.
    void fájlistolvas();

    /// Asks what is to become of unsaved changes; true when the program may end.
    [[nodiscard]] bool kilépéskérdés();

  private:
    /// Puts `párok`, read from `út`, into the list, which has been cleared; `út` becomes the current file.
    void fájlmegnyit(const QString &út, const QVector<szópár> &párok);
    /// Saves, after asking for a name when there is none; sets `mentésmégse_` when nothing was written.
    void szószedetmentés();
    /// Asks for a file name until an acceptable one is given; "*" and the previous name when the user cancels.
    [[nodiscard]] QString névmegadás();
    [[nodiscard]] QString javasoltnév() const;
    /// Writes the list into the file `út`; tells why when it cannot.
    [[nodiscard]] bool kiír(const QString &út);

    /// Offers to save changes; false when the wanted save did not happen, so that the list must stay.
    [[nodiscard]] bool elengedhető();
    /// Saves because the user has said so; false when that did not happen, and then the reason is known to him.
    [[nodiscard]] bool kérésre_ment();
    void ürít();
    /// Replaces the list by the file `út`; tells why when it cannot be read, and changes nothing then.
    [[nodiscard]] bool lecserél(const QString &út);
    /// The pairs of the file `út`; tells why when it cannot be read.
    [[nodiscard]] std::optional<QVector<szópár>> párokat(const QString &út);
    /// The open dialog, shown again until an existing file is chosen; nothing when the user cancels.
    [[nodiscard]] std::optional<QString> meglévőfájl(const QString &javaslat);
    [[nodiscard]] QString programkönyvtárminta() const;
    /// Writes the recent-files list with the current file first, in a folder that is made if it is missing.
    void fájllistír();
    /// Tells it unless it was told before.
    void egyszer_szól(const Failure &miről);
    void címbeállít();
    [[nodiscard]] bool mentetlen() const { return állapot_.változott == 1; }

    global::programállapot &állapot_;
    szópárlista &lista_;
    szószedetablak &ablak_;
    MessageBoxes &üzenetek_;
    FileDialogs &fájlablakok_;
    QString legutóbbi_;
    /// What is told once.
    QStringList elmondott_;
    /// What the recent-files menu shows.
    QStringList fájllist_;
    bool mentésmégse_ = false;
};
