#pragma once

#include <QAbstractTableModel>
#include <QList>
#include <QPoint>
#include <QString>
#include <QVector>
#include <functional>

#include "suggestions/phrase_search.h"
#include "suggestions/worker_thread.h"

/// The phrases that a search has found so far, English beside Hungarian. A search runs on a thread of its own and fills
/// the list page by page; a newer one drops it. Every function is called on the window's thread and returns at once.
class kifejezéslista final : public QAbstractTableModel {
  public:
    enum oszlop { angol_oszlop, magyar_oszlop, oszlopszám };
    /// Beside the text: what was looked for in it, QList<QPoint> of beginning (x) and length (y) in characters.
    enum szerep { találatok_szerepe = Qt::UserRole };

    /// As kifejezéskereső::keres() does.
    using keresés = std::function<int(const QString &szöveg, const kifejezésfigyelő &figyelő)>;
    /// `hogyan` is called on the thread of the searches only.
    explicit kifejezéslista(keresés hogyan);

    /// Empties the list and fills it with what has the words of a text. `vége` is called when all has come, unless a
    /// newer search has begun. A text without a letter finds nothing.
    void keres(const QString &szöveg, std::function<void()> vége);

    [[nodiscard]] int darab() const { return static_cast<int>(sorok_.size()); }
    [[nodiscard]] const kifejezés &egyik(int i) const { return sorok_.at(i); }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    void felvesz(const QVector<kifejezés> &lap);

    QVector<kifejezés> sorok_;
    const keresés keresés_;
    /// The last member: its end awaits the work that runs.
    munkaszál szál_;
};
