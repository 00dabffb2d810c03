#include "app/main_window.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int választáshoz_kell = 2;

}  // namespace

void szótár::feladat_eseményeket_köt() {
    const auto köt = [this](QAction *menüpont, void (szótár::*mit)()) {
        connect(menüpont, &QAction::triggered, &események_, [this, mit] { (this->*mit)(); });
    };
    köt(m_.mnufeladattanul, &szótár::mnufeladattanul_Click);
    köt(m_.mnufeladatkikérd, &szótár::mnufeladatkikérd_Click);
    köt(m_.mnufeladatválaszt, &szótár::mnufeladatválaszt_Click);
    köt(m_.mnu_fájl_kirakó, &szótár::mnu_fájl_kirakó_Click);
    köt(m_.mnufeladatmemória, &szótár::mnufeladatmemória_Click);
}

feladatkörnyezet szótár::feladatnak() {
    return {*this,
            k_.hasznos,
            *this,
            k_.véletlen,
            k_.beállítások,
            k_.üzenetek,
            [this](qint16 ezredmásodperc, const QStringList &sorok) { üzenetmutat(ezredmásodperc, sorok); }};
}

template <class Feladat>
void szótár::feladatot_mutat(WindowReference<Feladat> &feladat) {
    hide();
    feladat.get().mutatmodálisan();
    if (!vége_)
        show();
    feladat.unload();
}

void szótár::mnufeladattanul_Click() {
    tanulás_.get().feltölt(lista_.párok());
    feladatot_mutat(tanulás_);
}

void szótár::mnufeladatkikérd_Click() {
    feladatot_mutat(kikérdező_);
}

void szótár::mnufeladatválaszt_Click() {
    if (lista_.darab() >= választáshoz_kell) {
        feladatot_mutat(választás_);
        return;
    }
    üzenetmutat(3000, {u"Ehhez a játékhoz "_s, u"legalább két szót"_s, u"kell felvenni"_s, u"a szószedetbe!"_s});
}

void szótár::mnu_fájl_kirakó_Click() {
    feladatot_mutat(kirakó_);
}

void szótár::mnufeladatmemória_Click() {
    feladatot_mutat(memória_);
}

void szótár::üzenetmutat(qint16 ezredmásodperc, const QStringList &sorok) {
    üzenet_.get().üzenetmutat(ezredmásodperc, sorok);
    üzenet_.unload();
}
