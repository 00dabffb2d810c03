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
    /// is found for one of them in a bounded number of draws. Where not even `kicsi` points will do, the tiles stand in
    /// rows, in random order; of more rows than the frame holds, each covers part of the row before.
    /// Returns the size of the letters in points.
    int kirak(const QStringList &betűk, const mérő &mér, int nagy, int kicsi, RandomNumbers &véletlen);

    [[nodiscard]] const QVector<lap> &lapok() const { return lapok_; }

    /// Moves a tile as near to this place of its top left corner as the frame allows.
    void mozgat(int i, const QPointF &hová);

    /// Closes the tiles up to a row without gaps, in the order of their left edges, from where the leftmost lies; where
    /// the row would reach out of the frame on the right, it begins as much further left. In a row that is longer than
    /// the frame each tile covers part of the one before. Returns the word.
    QString kirakott_szó();

    /// Draws for the place of one tile before the letters are made smaller.
    static constexpr int legtöbb_húzás = 200;

  private:
    [[nodiscard]] double összes_szélesség() const;
    [[nodiscard]] bool kever(RandomNumbers &véletlen);
    [[nodiscard]] bool átfed(int i) const;
    void sorokba(RandomNumbers &véletlen);

    QSizeF keret_;
    QVector<lap> lapok_;
};
