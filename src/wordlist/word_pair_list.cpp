#include "wordlist/word_pair_list.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

const QString jelentésválasztó = u", "_s;

/// The separators on both sides make "ház" another meaning than "házi".
bool van_már(const QString &jelentések, const QString &jelentés) {
    return (jelentésválasztó + jelentések + u',').contains(jelentésválasztó + jelentés + u',');
}

}  // namespace

int szópárlista::felvesz(const QString &angol, const QString &magyar) {
    const auto megvan =
        std::find_if(párok_.cbegin(), párok_.cend(), [&](const szópár &egyik) { return egyik.angol == angol; });
    if (megvan == párok_.cend()) {
        hozzáfűz({{angol, magyar}});
        return darab() - 1;
    }
    const int i = static_cast<int>(megvan - párok_.cbegin());
    if (!van_már(megvan->magyar, magyar))
        módosít(i, {angol, megvan->magyar + jelentésválasztó + magyar});
    return i;
}

void szópárlista::hozzáfűz(const QVector<szópár> &újak) {
    if (újak.isEmpty())
        return;
    beginInsertRows({}, darab(), darab() + static_cast<int>(újak.size()) - 1);
    párok_ += újak;
    endInsertRows();
}

void szópárlista::módosít(int i, const szópár &új) {
    párok_[i] = új;
    Q_EMIT dataChanged(index(i, angol_oszlop), index(i, magyar_oszlop));
}

int szópárlista::töröl(int i) {
    beginRemoveRows({}, i, i);
    párok_.removeAt(i);
    endRemoveRows();
    return std::min(i, darab() - 1);
}

void szópárlista::kiürít() {
    beginResetModel();
    párok_.clear();
    endResetModel();
}

int szópárlista::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : darab();
}

int szópárlista::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : oszlopszám;
}

QVariant szópárlista::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || role != Qt::DisplayRole)
        return {};
    const szópár &egyik = pár(index.row());
    return index.column() == angol_oszlop ? egyik.angol : egyik.magyar;
}
