#pragma once

#include <QPointF>
#include <QRectF>
#include <QString>

/// The main window as the mini window sees it: what it does when its handlers are called by name.
class nagyablak {
  public:
    virtual ~nagyablak() = default;

    /// Writes into the search field, which searches. Other events run meanwhile.
    virtual void angolszóba_ír(const QString &szöveg) = 0;
    virtual void Ok_Click() = 0;
    /// Turns to the dictionary of a direction, which empties the search field.
    virtual void irányt_vált(bool angolról) = 0;
    /// Shows the phrases in which the words of a text stand.
    virtual void kifejezéseket_keres(const QString &szöveg) = 0;
    /// Both add the selected hit and meaning to the word list; true when the list has them now.
    virtual bool magyarlist_DblClick() = 0;
    virtual bool hozzáad_Click() = 0;

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
