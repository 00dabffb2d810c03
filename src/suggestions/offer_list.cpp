#include "suggestions/offer_list.h"

#include <utility>

#include "dictionary/dictionary_search.h"

using namespace Qt::StringLiterals;

namespace {

/// What an answer says of a headword beside the headword.
ajánlás csak_alakok(const ajánlókérdés &kérdés, const ajánlás &válasz) {
    ajánlás alakok;
    for (const ajánlat &egyik : válasz.ajánlatok) {
        const bool maga = keresőkulcs(QStringView(egyik.címszó)) == keresőkulcs(QStringView(kérdés.szöveg));
        if (egyik.fajta == ajánlatfajta::alak && egyik.angolról == kérdés.angolról && !maga)
            alakok.ajánlatok.append(egyik);
    }
    return alakok;
}

}  // namespace

ajánlatlista::ajánlatlista(std::function<std::shared_ptr<ajánlóadatok>()> készít) : készít_(std::move(készít)) {}

const std::shared_ptr<ajánlóadatok> &ajánlatlista::adatok() {
    if (!adatok_)
        adatok_ = készít_();
    return adatok_;
}

void ajánlatlista::kérdez(const ajánlókérdés &kérdés, mennyit mit) {
    szál_.végez([this, adatok = adatok(), kérdés, mit](const munkaszál::elavult &elavult) {
        ajánlás válasz = adatok->ajánl(kérdés, elavult);
        if (mit == mennyit::csak_alakokat)
            válasz = csak_alakok(kérdés, válasz);
        szál_.közöl(elavult, [this, kérdés, válasz = std::move(válasz)] { mutat(kérdés, válasz); });
    });
}

void ajánlatlista::kiürít() {
    szál_.elvet();
    mutat({}, {});
}

void ajánlatlista::hiányokat_kérdez(std::function<void(const QStringList &hiányok)> kinek) {
    szál_.végez([this, adatok = adatok(), kinek = std::move(kinek)](const munkaszál::elavult &elavult) {
        szál_.közöl(elavult, [kinek, hiányok = adatok->hiányok()] { kinek(hiányok); });
    });
}

void ajánlatlista::mutat(const ajánlókérdés &kérdés, const ajánlás &válasz) {
    kérdés_ = kérdés;
    if (darab() == 0 && válasz.ajánlatok.isEmpty() && válasz.kifejezések == 0)
        return;
    beginResetModel();
    ajánlás_ = válasz;
    endResetModel();
}

int ajánlatlista::darab() const {
    return static_cast<int>(ajánlás_.ajánlatok.size()) + (ajánlás_.kifejezések > 0 ? 1 : 0);
}

bool ajánlatlista::kifejezések_sora(int i) const {
    return i == ajánlás_.ajánlatok.size() && i < darab();
}

int ajánlatlista::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : darab();
}

QVariant ajánlatlista::data(const QModelIndex &index, int role) const {
    if (!index.isValid())
        return {};
    const bool kifejezések = kifejezések_sora(index.row());
    const QString szöveg = kifejezések ? u"%1 kifejezésben"_s.arg(ajánlás_.kifejezések) : egyik(index.row()).szöveg;
    const szövegrész hivatkozás = kifejezések ? szövegrész{0, szöveg.size()} : egyik(index.row()).hivatkozás;
    switch (role) {
        case Qt::DisplayRole:
            return szöveg;
        case hivatkozás_kezdete:
            return static_cast<int>(hivatkozás.kezdet);
        case hivatkozás_hossza:
            return static_cast<int>(hivatkozás.hossz);
        default:
            return {};
    }
}
