#include "app/windows.h"

#include <QCoreApplication>
#include <utility>

#include "suggestions/dictionary_suggestions.h"
#include "ui/messages/about_window.h"
#include "ui/messages/system_description.h"
#include "ui/messages/text_window.h"
#include "ui/messages/timed_text_window.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int választáshoz_kell = 2;
constexpr int rövid_üzenet_ideje = 5000;

/// Shows a window in front of the others, whether it was seen before or not.
void előhoz(QWidget &ablak) {
    ablak.show();
    ablak.raise();
    ablak.activateWindow();
}

}  // namespace

ablakok::ablakok(const szótárkörnyezet &k, ablakokkörnyezet környezet)
    : k_(k),
      mik_(std::move(környezet)),
      üzenet_([this] { return std::make_unique<üzenet>(k_.hasznos, mik_.főablak, k_.állapot.aktuálisfájl); }),
      tanulás_([this] { return std::make_unique<tanulás>(feladatnak()); }),
      kikérdező_([this] { return std::make_unique<kikérdező>(feladatnak()); }),
      választás_([this] { return std::make_unique<választás>(feladatnak()); }),
      kirakó_([this] { return std::make_unique<frm_kirakó>(feladatnak()); }),
      memória_([this] { return std::make_unique<frm_memory>(feladatnak()); }),
      nyomtatás_([this] { return std::make_unique<frm_nyomtatás>(nyomtatásnak()); }),
      súgó_([this] { return std::make_unique<frm_súgó>(súgónak()); }),
      kifejezések_([this] { return std::make_unique<frm_kifejezések>(kifejezéseknek()); }),
      játszó_(k_.multimédia, k_.állapot),
      hangbeáll_([this] { return std::make_unique<frm_hangbeáll>(hangoknak()); }),
      zenebeáll_([this] { return std::make_unique<frm_zenebeáll>(hangoknak()); }),
      zeneóra_(
          játszó_, [this]() -> lejátszólista & { return zenebeáll_.get(); },
          [this](const QString &név) { k_.referencia.feliratbeállít(név); }) {}

void ablakok::zenét_indít() {
    QObject::connect(&k_.referencia.Timer_zene(), &QTimer::timeout, &események_,
                     [this] { zeneóra_.Timer_zene_Timer(); });
}

bool ablakok::kiléphet() {
    return !hangbeáll_.loaded() || hangbeáll_.get().close();
}

void ablakok::elrejt() {
    if (súgó_.loaded())
        súgó_.get().hide();
    if (kifejezések_.loaded())
        kifejezések_.get().hide();
}

ablakkörnyezet ablakok::közös() const {
    return {.hasznos = k_.hasznos, .főablak = mik_.főablak, .üzenetek = k_.üzenetek};
}

// The exercises

feladatkörnyezet ablakok::feladatnak() {
    return {
        .közös = közös(),
        .szószedet = mik_.lista,
        .véletlen = k_.véletlen,
        .beállítások = k_.beállítások,
        .üzenetmutat = [this](qint16 ezredmásodperc, const QStringList &sorok) { üzenetmutat(ezredmásodperc, sorok); }};
}

template <class Feladat>
void ablakok::feladatot_mutat(WindowReference<Feladat> &feladat) {
    mik_.főablak.hide();
    feladat.get().mutatmodálisan();
    if (!mik_.vége())
        mik_.főablak.show();
    feladat.unload();
}

void ablakok::mnufeladattanul_Click() {
    tanulás_.get().feltölt(mik_.lista.párok());
    feladatot_mutat(tanulás_);
}

void ablakok::mnufeladatválaszt_Click() {
    if (mik_.lista.darab() >= választáshoz_kell) {
        feladatot_mutat(választás_);
        return;
    }
    üzenetmutat(3000, {u"Ehhez a játékhoz "_s, u"legalább két szót"_s, u"kell felvenni"_s, u"a szószedetbe!"_s});
}

void ablakok::mnufeladatkikérd_Click() {
    feladatot_mutat(kikérdező_);
}

void ablakok::mnu_fájl_kirakó_Click() {
    feladatot_mutat(kirakó_);
}

void ablakok::mnufeladatmemória_Click() {
    feladatot_mutat(memória_);
}

void ablakok::üzenetmutat(qint16 ezredmásodperc, const QStringList &sorok) {
    üzenet_.get().üzenetmutat(ezredmásodperc, sorok);
    üzenet_.unload();
}

// Printing, sounds and music

nyomtatáskörnyezet ablakok::nyomtatásnak() const {
    return {.közös = közös(),
            .szószedet = mik_.lista,
            .állapot = k_.állapot,
            .beállítások = k_.beállítások,
            .fájlablakok = k_.fájlablakok,
            .nyomtatók = k_.nyomtatók,
            .óra = k_.óra};
}

void ablakok::mnufájlnyomtatás_Click() {
    nyomtatás_.get().mutatmodálisan();
    nyomtatás_.unload();
}

hangkörnyezet ablakok::hangoknak() {
    return {
        .közös = közös(), .programkönyvtár = k_.állapot.programkönyvtár, .meghajtó = k_.meghajtó, .játszó = játszó_};
}

// Phrases

kifejezéskörnyezet ablakok::kifejezéseknek() {
    return {.közös = közös(),
            .keresés = kifejezéskeresés(k_.állapot.programkönyvtár, mik_.ismeret()),
            .hozzáad =
                [this](const QString &angol, const QString &magyar) {
                    return mik_.felvesz({angol, magyar});
                },
            .bezárva = [this] { kifejezések_.unload(); }};
}

void ablakok::kifejezéseket_keres(const QString &szöveg) {
    előhoz(kifejezések_.get());
    if (!szöveg.isEmpty())
        kifejezések_.get().keres(szöveg);
}

// Help and information

súgókörnyezet ablakok::súgónak() {
    return {.közös = közös(),
            .programkönyvtár = k_.állapot.programkönyvtár,
            .rövidüzenet = [this](const QString &szöveg) { rövid_üzenetet_mutat(szöveg); },
            .egyszer_szól = [this](const QString &szöveg) { egyszer_szól(szöveg); },
            .böngésző = k_.böngésző,
            .bezárva = [this] { súgó_.unload(); }};
}

void ablakok::mnu_súgó_Click() {
    // A window that is made now opens the help by itself.
    const bool nyitva_volt = súgó_.loaded();
    előhoz(súgó_.get());
    if (nyitva_volt)
        súgó_.get().súgóhoz();
}

void ablakok::mnu_cim_Click() {
    előhoz(súgó_.get());
    súgó_.get().megnyit(súgócímek(k_.állapot.programkönyvtár).készítőcím());
}

void ablakok::mnunévjegy_Click() {
    frmAbout névjegy(k_.hasznos, mik_.főablak, QCoreApplication::applicationName(),
                     QCoreApplication::applicationVersion(), [this] { rendszeradatokat_mutat(); });
    névjegy.mutatmodálisan();
}

void ablakok::rendszeradatokat_mutat() {
    const InformationTool indult = k_.rendszeradatok();
    if (indult == InformationTool::unavailable)
        k_.üzenetek.tell(u"System Information Is Unavailable At This Time"_s);
    if (indult != InformationTool::unknown)
        return;
    const QString program = QCoreApplication::applicationName() + u' ' + QCoreApplication::applicationVersion();
    const QString mappák =
        u"Programkönyvtár: %1\nA „c:\\” mappa: %2"_s.arg(k_.állapot.programkönyvtár, k_.meghajtó.path(u"c:\\"));
    const auto ablak = std::make_shared<frm_üzenet>(k_.hasznos, mik_.főablak);
    // What is missing is known when all has been read.
    mik_.ajánlatok.hiányokat_kérdez([hova = std::weak_ptr(ablak)](const QStringList &hiányok) {
        const auto nyitva = hova.lock();
        if (nyitva && !hiányok.isEmpty())
            nyitva->hozzáír(u"\nA keresés segítségéből hiányzik:\n"_s + hiányok.join(u'\n'));
    });
    ablak->mutat(u"Rendszeradatok"_s, rendszerleírás(program, mappák));
}

void ablakok::rövid_üzenetet_mutat(const QString &szöveg) {
    frm_szövegüzenet(k_.hasznos, mik_.főablak).mutat(szöveg, rövid_üzenet_ideje);
}

void ablakok::egyszer_szól(const QString &szöveg) {
    if (elmondott_.contains(szöveg))
        return;
    elmondott_.append(szöveg);
    k_.üzenetek.tell(szöveg);
}
