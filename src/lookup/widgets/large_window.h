#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>

/// The main window as the mini window sees it: it searches, holds the hits and adds to the word list. The main window
/// implements it.
class nagyablak {
  public:
    virtual ~nagyablak() = default;

    /// Writes into the search field, which searches. Other events run meanwhile.
    virtual void angolszóba_ír(const QString &szöveg) = 0;
    virtual void Ok_Click() = 0;

    /// The hits, and which is selected; −1 for none. Selecting one fills the translations.
    [[nodiscard]] virtual QStringList szólist_elemei() const = 0;
    [[nodiscard]] virtual int szólist_kijelölt() const = 0;
    virtual void szólist_kijelöl(int index) = 0;
    /// The translations of the selected hit.
    [[nodiscard]] virtual QStringList magyarlist_elemei() const = 0;
    virtual void magyarlist_kijelöl(int index) = 0;
    virtual void magyarlist_DblClick() = 0;
    virtual void hozzáad_Click() = 0;

    /// Whether the dictionary leads from English to Hungarian.
    [[nodiscard]] virtual bool angolról() const = 0;
    /// Place among all screens, in twips; what it was before it was hidden.
    [[nodiscard]] virtual QRectF helye() const = 0;
    /// Comes back in place of the mini window, which is gone afterwards; centred on `közép` as far as its screen
    /// allows.
    virtual void visszatér(const QPointF &közép) = 0;
    /// Ends the program unless the user wants to stay.
    virtual void kilép_Click() = 0;
    /// True once the program is to end.
    [[nodiscard]] virtual bool vége() const = 0;
};
