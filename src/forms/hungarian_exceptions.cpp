#include "forms/hungarian_exceptions.h"

#include <QHash>
#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

struct kivétel {
    QString alapalak;
    QString címke;
};

const QString hová = u"-ra/-re (hová?)"_s;
const QString honnan = u"-tól/-től (honnan? kitől?)"_s;
const QString miről = u"-ról/-ről (honnan? miről?)"_s;
const QString meddig = u"-ig (meddig?)"_s;
const QString miért = u"-ért (miért?)"_s;
const QString mikor = u"-kor (mikor?)"_s;
const QString kinél = u"-nál/-nél (hol? kinél?)"_s;

const QHash<QString, kivétel> &kivételek() {
    static const QHash<QString, kivétel> tábla{
        {u"arra"_s, {u"az"_s, hová}},
        {u"erre"_s, {u"ez"_s, hová}},
        {u"attól"_s, {u"az"_s, honnan}},
        {u"ettől"_s, {u"ez"_s, honnan}},
        {u"arról"_s, {u"az"_s, miről}},
        {u"erről"_s, {u"ez"_s, miről}},
        {u"addig"_s, {u"az"_s, meddig}},
        {u"eddig"_s, {u"ez"_s, meddig}},
        {u"azért"_s, {u"az"_s, miért}},
        {u"ezért"_s, {u"ez"_s, miért}},
        {u"akkor"_s, {u"az"_s, mikor}},
        {u"ekkor"_s, {u"ez"_s, mikor}},
        {u"annál"_s, {u"az"_s, kinél}},
        {u"ennél"_s, {u"ez"_s, kinél}},
        {u"amarra"_s, {u"amaz"_s, hová}},
        {u"emerre"_s, {u"emez"_s, hová}},
        {u"ugyanarra"_s, {u"ugyanaz"_s, hová}},
        {u"ugyanerre"_s, {u"ugyanez"_s, hová}},
        {u"ugyanattól"_s, {u"ugyanaz"_s, honnan}},
        {u"ugyanarról"_s, {u"ugyanaz"_s, miről}},
        {u"ugyanerről"_s, {u"ugyanez"_s, miről}},
        {u"ugyanannál"_s, {u"ugyanaz"_s, kinél}},
        {u"estig"_s, {u"este"_s, meddig}},
        {u"nincsenek"_s, {u"nincs"_s, u"jelen idő, ők, alanyi ragozás"_s}},
        {u"sincsenek"_s, {u"sincs"_s, u"jelen idő, ők, alanyi ragozás"_s}},
        {u"fia"_s, {u"fiú"_s, u"birtokos: ő"_s}},
        {u"légy"_s, {u"van"_s, u"felszólító mód, te, alanyi ragozás"_s}},
    };
    return tábla;
}

}  // namespace

std::optional<olvasat> kivételes_olvasat(const QString &alak) {
    const auto sor = kivételek().constFind(alak.toLower());
    if (sor == kivételek().constEnd())
        return std::nullopt;
    return olvasat{.alapalak = sor->alapalak, .magyarázat = sor->címke};
}

elemzés szótári_tővel(elemzés egy, const QString &alak) {
    const auto birtokos = [](const QString &címke) { return címke.startsWith(u"is:POSS_"); };
    if (egy.tő == u"fia" && std::ranges::any_of(egy.címkék, birtokos))
        egy.tő = u"fiú"_s;
    if (egy.tő == u"emlékezik" && alak.contains(u"emléksz", Qt::CaseInsensitive))
        egy.tő = u"emlékszik"_s;
    if (egy.tő == u"van" && egy.címkék.removeOne(u"is:hAt_MODAL_vrb"_s))
        egy.tő = u"lehet"_s;
    return egy;
}
