#pragma once

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVector>
#include <functional>

#include "platform/random_numbers.h"

/// The letter tiles of one word in their frame, without a widget: where they are scattered, how they move, and how they
/// close up to a word. Places are twips on the inner surface of the frame.
class betűlapok final {
  public:
    struct lap {
        QString betű;
        QRectF hely;
    };
    /// Size of the tile of a letter in letters of `pont` points; grows with `pont`.
    using mérő = std::function<QSizeF(const QString &betű, int pont)>;

    explicit betűlapok(const QSizeF &keret) : keret_(keret) {}

    /// Replaces all tiles by one for each letter, scattered so that none overlaps another.
    ///
    /// The letters have `nagy` points, or less where the frame would not hold the tiles in one row, or where no place
    /// is found for one of them in a bounded number of draws. Where not even `kicsi` points will do, or the larger
    /// `egy_sorhoz`, the tiles stand in rows, in random order, as large as leaves room for the word below them, in rows
    /// too; where none is left in letters of `kicsi` points, of more rows than the frame holds, each covers part of the
    /// row before. Returns the size of the letters in points.
    int kirak(const QStringList &betűk, const mérő &mér, int nagy, int kicsi, RandomNumbers &véletlen,
              int egy_sorhoz = 0);

    [[nodiscard]] const QVector<lap> &lapok() const { return lapok_; }

    /// Moves a tile as near to this place of its top left corner as the frame allows.
    void mozgat(int i, const QPointF &hová);

    /// Closes the tiles up to a row without gaps, in the order of their left edges, from where the leftmost lies; where
    /// the row would reach out of the frame on the right, it begins as much further left. Tiles that stand in rows
    /// close up to rows, in the order in which a text is read; where these are more than the frame holds, to one row in
    /// which each tile covers part of the one before. Returns the word.
    QString kirakott_szó();

    /// Lays the next free tile with this letter behind those that were typed before, at the foot of the frame; a tile
    /// of several characters also takes the keys that follow its first one. Returns the tile, −1 when there is none.
    /// What is closed up is free again.
    int gépel(const QString &jel);
    /// Puts the tile that was typed last back to where it was; returns it, −1 when there is none.
    int visszavesz();

    /// Draws for the place of one tile before the letters are made smaller.
    static constexpr int legtöbb_húzás = 200;

  private:
    /// A tile that was typed, and where it was before.
    struct gépelt {
        int i;
        QPointF honnan;
    };

    void méretez(const QStringList &betűk, const mérő &mér, int pont);
    [[nodiscard]] double összes_szélesség() const;
    [[nodiscard]] double magasság() const;
    [[nodiscard]] bool kever(RandomNumbers &véletlen);
    [[nodiscard]] bool átfed(int i) const;
    [[nodiscard]] bool elférnek_sorokban(const QVector<int> &sorrend) const;
    /// Lets the tiles follow each other in rows from the left edge on; returns the number of rows.
    int folyat(const QVector<int> &sorrend, double fent, double sorköz);
    void sorokba(const QVector<int> &sorrend);
    [[nodiscard]] QVector<int> olvasási_sorrend() const;
    void egy_sorba(const QVector<int> &sorrend, double hossz);
    [[nodiscard]] QString szó(const QVector<int> &sorrend) const;

    [[nodiscard]] int szabad(const QString &eleje, bool egészen, Qt::CaseSensitivity kisnagy) const;
    int lerak(int i, const QString &jelek);

    QSizeF keret_;
    QVector<lap> lapok_;
    bool sorokban_ = false;
    /// For which there is room at the foot of the frame.
    int gépelhető_sorok_ = 1;
    QVector<gépelt> gépeltek_;
    /// Keys that the last of them has taken.
    QString jelek_;
};
