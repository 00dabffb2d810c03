#pragma once

#include <QAbstractTableModel>
#include <QString>
#include <QVector>

/// One pair of the word list. The Hungarian side may hold several meanings joined by ", ".
struct szópár {
    QString angol;
    QString magyar;

    friend bool operator==(const szópár &, const szópár &) = default;
};

/// The word list (`szószedet`): an ordered list of pairs, in the order of insertion, never sorted. It is the only copy:
/// the two lists of the main window are its two columns, so that pair i is item i of both, and everybody else reads it.
class szópárlista final : public QAbstractTableModel {
  public:
    enum oszlop { angol_oszlop, magyar_oszlop, oszlopszám };

    /// True when the list holds no pair.
    [[nodiscard]] bool üres() const { return párok_.isEmpty(); }
    [[nodiscard]] int darab() const { return static_cast<int>(párok_.size()); }
    /// Pair `i`, 0 ≤ i < darab().
    [[nodiscard]] const szópár &pár(int i) const { return párok_.at(i); }
    [[nodiscard]] const QVector<szópár> &párok() const { return párok_; }

    /// Adds a hit of the dictionary and returns the index of its pair. A pair with this very English word (case counts)
    /// gets the meaning appended with ", " unless it has that meaning already; otherwise a new last pair is made.
    int felvesz(const QString &angol, const QString &magyar);

    /// Appends pairs as they are, repeats included.
    void hozzáfűz(const QVector<szópár> &újak);
    /// Puts `új` in the place of pair `i`.
    void módosít(int i, const szópár &új);
    /// Removes pair `i` and returns the index to select now: the next pair, else the new last one, −1 when none is
    /// left.
    int töröl(int i);
    void kiürít();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

  private:
    QVector<szópár> párok_;
};
