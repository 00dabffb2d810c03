#include "app/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "ui/drawing/fonts.h"
#include "ui/window/colour_copy.h"

using namespace Qt::StringLiterals;

namespace {

// Resting heights, in twips, and the steps of the way between them.
constexpr double üres_magasság = 4710;
constexpr double teli_magasság = 8220;
constexpr int lépések = 25;
/// From the bottom of the lowest control that is seen to the window's outer bottom.
constexpr double alatta = 850;

}  // namespace

szótár::szótár(szótárkörnyezet környezet)
    : ablak(u"szótár"_s, menü::van),
      k_(std::move(környezet)),
      v_(*this, lista_),
      m_(*menüsor()),
      fájlok_(k_.állapot, lista_, *this, k_.üzenetek, k_.fájlablakok, k_.meghajtó.path(u"c:\\zbrmkfnh.ini"_s)),
      üzenet_([this] { return std::make_unique<üzenet>(k_.hasznos, *this, k_.állapot.aktuálisfájl); }),
      tanulás_([this] { return std::make_unique<tanulás>(feladatnak()); }),
      kikérdező_([this] { return std::make_unique<kikérdező>(feladatnak()); }),
      választás_([this] { return std::make_unique<választás>(feladatnak()); }),
      kirakó_([this] { return std::make_unique<frm_kirakó>(feladatnak()); }),
      memória_([this] { return std::make_unique<frm_memory>(feladatnak()); }),
      nyomtatás_([this] { return std::make_unique<frm_nyomtatás>(nyomtatásnak()); }),
      kisablak_([this] {
          return std::make_unique<frm_kisablak>(kisablakkörnyezet{*this, k_.állapot, k_.hasznos, k_.üzenetek,
                                                                  k_.legfelül, k_.vágólap, k_.képernyők, k_.siklásköz});
      }),
      súgó_([this] { return új_súgó(); }),
      játszó_(k_.multimédia, k_.állapot),
      hangbeáll_([this] { return std::make_unique<frm_hangbeáll>(hangoknak()); }),
      zenebeáll_([this] { return std::make_unique<frm_zenebeáll>(hangoknak()); }),
      zeneóra_(
          játszó_, [this]() -> lejátszólista & { return zenebeáll_.get(); },
          [this](const QString &név) { k_.referencia.feliratbeállít(név); }) {
    setWindowTitle(u"névtelen szószedet"_s);
    méretez(hely(v_.kilép).right() + 120 + keretszélesség(), üres_magasság);
    háttérszínbeállít(k_.referencia.háttérszín());
    eseményeket_köt();
}

void szótár::eseményeket_köt() {
    lookup_eseményeket_köt();
    lista_eseményeket_köt();
    fájl_eseményeket_köt();
    feladat_eseményeket_köt();
    nyomtatás_eseményeket_köt();
    info_eseményeket_köt();
    hang_eseményeket_köt();
    connect(v_.kilép, &QPushButton::clicked, &események_, [this] { kilép_Click(); });
    connect(v_.cmd_kisablak, &QPushButton::clicked, &események_, [this] { cmd_kisablak_Click(); });
}

void szótár::Form_Load(const QString &parancssor) {
    k_.referencia.feliratbeállít(u"Zimbora Angol-Magyar Szótár"_s);
    global::színmásol(*this, *this);
    k_.állapot.változott = 0;
    fájlok_.fájlistolvas();
    kisablakfájlolvas();
    mentbeállít();
    középre(k_.hasznos.képernyő());
    ablakigazít();
    Module_hasznos::betűméretez(*this, k_.hasznos.ablakméretez(*this, 0.85));
    k_.hasznos.ablakstílus(*this);
    magasságbeállít(hely(v_.Ok).bottom() + 120 + keretmagasság());
    v_.angolszó->setFocus();
    if (k_.állapot.kisablakmód == 1)
        cmd_kisablak_Click();
    // From here on, when the program folder is known.
    connect(&k_.referencia.Timer_zene(), &QTimer::timeout, &események_, [this] { zeneóra_.Timer_zene_Timer(); });
    fájlok_.parancssorból(parancssor);
}

void szótár::kilép_Click() {
    if (kilép_)
        return;
    kilép_ = true;
    kilépésmégse_ = true;
    kisablakfájlír();
    // Its window saves when it closes, and stays open when it cannot.
    const bool hangok_mentve = !hangbeáll_.loaded() || hangbeáll_.get().close();
    kilépésmégse_ = !hangok_mentve || !fájlok_.kilépéskérdés();
    kilép_ = false;
    if (kilépésmégse_)
        return;
    vége_ = true;
    hide();
    if (kisablak_.loaded())
        kisablak_.get().hide();
    if (súgó_.loaded())
        súgó_.get().hide();
    k_.vége();
}

void szótár::Form_QueryUnload(bool &mégse) {
    kilép_Click();
    mégse = kilépésmégse_;
}

void szótár::closeEvent(QCloseEvent *event) {
    bool mégse = false;
    Form_QueryUnload(mégse);
    event->setAccepted(!mégse);
}

void szótár::címbeállít(const QString &cím) {
    setWindowTitle(cím);
}

void szótár::mentbeállít() {
    const bool van = !lista_.üres();
    m_.mnufájlment->setEnabled(van);
    m_.mnufájlmentmásként->setEnabled(van);
    m_.mnufájlnyomtatás->setEnabled(van);
    m_.mnufeladat->setEnabled(van);
    // Exact on purpose: a window that was scaled to another height is not animated.
    if (!van && magasság() == teli_magasság)
        magasságot_csúsztat(teli_magasság, üres_magasság);
    else if (van && magasság() == üres_magasság)
        magasságot_csúsztat(üres_magasság, teli_magasság);
}

void szótár::magasságot_csúsztat(double honnan, double hová) {
    for (int i = 1; i < lépések; ++i) {
        magasságbeállít(honnan + i * (hová - honnan) / lépések);
        k_.lépésköz();
    }
    magasságbeállít(hová);
}

void szótár::ablakigazít() {
    m_.mnufájl->menuAction()->setVisible(true);
    m_.mnufeladat->menuAction()->setVisible(true);
    if (lista_.üres()) {
        magasságbeállít(hely(v_.Ok).bottom() + alatta);
        return;
    }
    magasságbeállít(hely(v_.módosít).bottom() + alatta);
    if (v_.szószedet->selected() < 0)
        v_.szószedet->select(0);
}
