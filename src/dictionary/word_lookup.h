#pragma once

#include <QAbstractTableModel>
#include <QItemSelectionModel>
#include <QString>
#include <QStringListModel>
#include <QVector>
#include <functional>
#include <optional>
#include <variant>

#include "dictionary/dictionary_search.h"
#include "platform/files.h"
#include "state/global.h"

/// The hits of a search in file order: the headwords and, parallel to them, the meanings fields as they stand there.
class találatlista final : public QAbstractTableModel {
  public:
    enum oszlop { címszó_oszlop, jelentések_oszlop, oszlopszám };

    void felvesz(const QString &címszó, const QString &jelentések);
    void kiürít();
    [[nodiscard]] int darab() const { return static_cast<int>(cikkek_.size()); }
    /// "" where there is no hit `i`.
    [[nodiscard]] QString címszó(int i) const { return cikkek_.value(i).címszó; }
    [[nodiscard]] QString jelentések(int i) const { return cikkek_.value(i).jelentések; }

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

  private:
    struct cikk {
        QString címszó;
        QString jelentések;
    };
    QVector<cikk> cikkek_;
};

/// The dictionary as it is being looked up: direction, number of the search, hits, the meanings of the selected hit,
/// and what is selected. Lists of windows are views of its models and share its selections, so they always show the
/// same.
class szókereső final {
  public:
    /// The dictionaries lie in the program folder of `állapot`, which must outlive this object.
    explicit szókereső(const global::programállapot &állapot);

    /// True from English to Hungarian, as at the beginning.
    [[nodiscard]] bool angolról() const { return angolról_; }
    /// Turns to the dictionary of a direction; empties the lists.
    void irányt_vált(bool angolról);
    /// Empties the lists. A search that runs ends at its next line.
    void ürít();

    /// Asked after each line of the file whether the search for this key, the text without its "to ", is to end.
    using megszakító = std::function<bool(const QString &kulcs)>;

    /// Searches for a text in the dictionary of the direction and lists its hits; selects none of them. Lets other
    /// events run now and then; a newer search that one of them starts runs to its end inside, and then this one ends.
    /// A failure when the dictionary cannot be read.
    [[nodiscard]] std::variant<keresésvége, Failure> keres(const QString &szöveg, const megszakító &megálljon);

    /// What is wrong with the dictionary of the direction; nothing when it is sound, and when it cannot be read at all.
    [[nodiscard]] std::optional<Failure> szótárhiba() const;

    /// Selects the hit with this headword, which may have further forms behind a comma; the first one when there are
    /// several, none when there is none.
    void kijelöl(const QString &címszó);
    /// Lists the meanings of the selected hit and selects the first of them.
    void jelentéseket_mutat();

    struct választás {
        QString címszó;
        QString jelentés;
    };
    /// The selected hit and meaning; nothing unless both are selected.
    [[nodiscard]] std::optional<választás> választott() const;

    [[nodiscard]] találatlista &találatok() { return találatok_; }
    [[nodiscard]] QStringListModel &jelentések() { return jelentések_; }
    [[nodiscard]] QItemSelectionModel &kijelölt_találat() { return kijelölt_találat_; }
    [[nodiscard]] QItemSelectionModel &kijelölt_jelentés() { return kijelölt_jelentés_; }

  private:
    [[nodiscard]] QString szótárfájl() const;

    const global::programállapot &állapot_;
    bool angolról_ = true;
    /// Number of the newest search: an older one that still runs has been taken over.
    int keresés_ = 0;
    találatlista találatok_;
    QStringListModel jelentések_;
    QItemSelectionModel kijelölt_találat_{&találatok_};
    QItemSelectionModel kijelölt_jelentés_{&jelentések_};
};
