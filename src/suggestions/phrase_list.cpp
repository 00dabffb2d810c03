#include "suggestions/phrase_list.h"

#include <utility>

using namespace Qt::StringLiterals;

kifejezéslista::kifejezéslista(keresés hogyan) : keresés_(std::move(hogyan)) {}

void kifejezéslista::keres(const QString &szöveg, std::function<void()> vége) {
    if (!sorok_.isEmpty()) {
        beginResetModel();
        sorok_.clear();
        endResetModel();
    }
    szál_.végez([this, szöveg, vége = std::move(vége)](const munkaszál::elavult &elavult) {
        keresés_(szöveg,
                 {.lap = [&](const QVector<kifejezés> &lap) { szál_.közöl(elavult, [this, lap] { felvesz(lap); }); },
                  .megálljon = elavult});
        szál_.közöl(elavult, vége);
    });
}

void kifejezéslista::felvesz(const QVector<kifejezés> &lap) {
    beginInsertRows({}, darab(), darab() + static_cast<int>(lap.size()) - 1);
    sorok_ += lap;
    endInsertRows();
}

int kifejezéslista::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : darab();
}

int kifejezéslista::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : oszlopszám;
}

QVariant kifejezéslista::data(const QModelIndex &index, int role) const {
    if (!index.isValid())
        return {};
    const kifejezés &sor = egyik(index.row());
    const bool angol = index.column() == angol_oszlop;
    if (role == Qt::DisplayRole)
        return angol ? sor.angol : sor.magyar;
    if (role != találatok_szerepe)
        return {};
    QList<QPoint> helyek;
    for (const szövegrész &rész : angol ? sor.angol_találatok : sor.magyar_találatok)
        helyek.append({static_cast<int>(rész.kezdet), static_cast<int>(rész.hossz)});
    return QVariant::fromValue(helyek);
}

QVariant kifejezéslista::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    return section == angol_oszlop ? u"Angolul"_s : u"Magyarul"_s;
}
