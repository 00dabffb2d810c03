#include "media/music_timer.h"

#include <utility>

using namespace Qt::StringLiterals;

zeneóra::zeneóra(lejátszó &játszó, std::function<lejátszólista &()> lista, std::function<void(const QString &)> felirat)
    : játszó_(játszó), lista_(std::move(lista)), felirat_(std::move(felirat)) {}

void zeneóra::Timer_zene_Timer() {
    lejátszólista &lista = lista_();
    if (!lista.zene_enged())
        return;
    const QString állapot = játszó_.midiállapot();
    if (állapot.startsWith(u"playing"_s) || állapot.startsWith(u"paused"_s))
        return;
    if (lista.darab() == 0)
        return;
    lista.kijelöl(lista.kijelölt() < lista.darab() - 1 ? lista.kijelölt() + 1 : 0);
    felirat_(lista.kijelölt_neve());
}
