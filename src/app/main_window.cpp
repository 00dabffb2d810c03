#include "app/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMenuBar>
#include <utility>

#include "state/program_folder.h"
#include "suggestions/dictionary_suggestions.h"
#include "ui/drawing/twips.h"
#include "wordlist/recent_files.h"

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
      kereső_(k_.állapot),
      ajánlatok_([this] { return std::make_shared<szótárajánló>(k_.állapot.programkönyvtár, ismeret()); }),
      v_(*this, kereső_, ajánlatok_, lista_),
      m_(*menüsor()),
      fájlok_(k_.állapot, lista_, *this, k_.üzenetek, k_.fájlablakok, k_.meghajtó.path(u"c:\\zbrmkfnh.ini"_s)),
      keresés_(v_.keresés, {.kereső = kereső_,
                            .ajánlatok = ajánlatok_,
                            .állapot = k_.állapot,
                            .üzenetek = k_.üzenetek,
                            .vége = [this] { return vége_; },
                            .hozzáad = [this] { return hozzáad_Click(); },
                            .kifejezések = [this](const QString &szöveg) { kifejezéseket_keres(szöveg); }}),
      szószedet_(v_.szószedet,
                 {.lista = lista_, .kereső = kereső_, .állapot = k_.állapot, .üzenetek = k_.üzenetek, .ablak = *this}),
      ablakok_(k_, {.főablak = *this,
                    .lista = lista_,
                    .ajánlatok = ajánlatok_,
                    .ismeret = [this] { return ismeret(); },
                    .felvesz = [this](const szópár &pár) { return szószedet_.felvesz(pár); },
                    .vége = [this] { return vége_; }}),
      kisablak_(k_, *this, *this, kereső_, ajánlatok_) {
    setWindowTitle(u"névtelen szószedet"_s);
    méretez(hely(v_.kilép).right() + 120 + keretszélesség(), üres_magasság);
    háttérszínbeállít(k_.referencia.háttérszín());
    eseményeket_köt();
    menüt_köt();
}

void szótár::eseményeket_köt() {
    connect(v_.keresés.hozzáad, &QPushButton::clicked, &események_, [this] { hozzáad_Click(); });
    connect(v_.kilép, &QPushButton::clicked, &események_, [this] { kilép_Click(); });
    connect(v_.cmd_kisablak, &QPushButton::clicked, &események_, [this] { kisablak_.cmd_kisablak_Click(); });
    connect(v_.Label4, &QLabel::linkActivated, &események_, [this] { ablakok_.mnu_cim_Click(); });
    connect(qApp, &QApplication::focusChanged, &események_,
            [this](const QWidget *honnan, const QWidget *hová) { fókusz_változott(honnan, hová); });
}

void szótár::menüt_köt() {
    const auto köt = [this](QAction *menüpont, auto &kié, auto mit) {
        connect(menüpont, &QAction::triggered, &események_, [&kié, mit] { (kié.*mit)(); });
    };
    köt(m_.mnufájlúj, fájlok_, &szószedetfájlok::mnufájlúj);
    köt(m_.mnufájlmegnyit, fájlok_, &szószedetfájlok::mnufájlmegnyit);
    köt(m_.mnufájlhozzáfűz, fájlok_, &szószedetfájlok::mnufájlhozzáfűz);
    köt(m_.mnufájlment, fájlok_, &szószedetfájlok::mnufájlment);
    köt(m_.mnufájlmentmásként, fájlok_, &szószedetfájlok::mnufájlmentmásként);
    köt(m_.mnufájlnyomtatás, ablakok_, &ablakok::mnufájlnyomtatás_Click);
    for (QAction *menüpont : m_.mnufájlfájl) {
        connect(menüpont, &QAction::triggered, &események_,
                [this, menüpont] { fájlok_.mnufájlfájl(legutóbbifájlok::útvonal(menüpont->text())); });
    }
    köt(m_.mnufeladattanul, ablakok_, &ablakok::mnufeladattanul_Click);
    köt(m_.mnufeladatkikérd, ablakok_, &ablakok::mnufeladatkikérd_Click);
    köt(m_.mnufeladatválaszt, ablakok_, &ablakok::mnufeladatválaszt_Click);
    köt(m_.mnu_fájl_kirakó, ablakok_, &ablakok::mnu_fájl_kirakó_Click);
    köt(m_.mnufeladatmemória, ablakok_, &ablakok::mnufeladatmemória_Click);
    köt(m_.mnu_súgó, ablakok_, &ablakok::mnu_súgó_Click);
    köt(m_.mnunévjegy, ablakok_, &ablakok::mnunévjegy_Click);
    köt(m_.mnu_cim, ablakok_, &ablakok::mnu_cim_Click);
    köt(m_.mnuszótárkifejezések, ablakok_, &ablakok::mnuszótárkifejezések_Click);
    köt(m_.mnubeállításhang, ablakok_, &ablakok::mnubeállításhang_Click);
    köt(m_.mnubeállítászene, ablakok_, &ablakok::mnubeállítászene_Click);
}

void szótár::Form_Load(const QString &parancssor) {
    k_.referencia.feliratbeállít(u"Zimbora Angol-Magyar Szótár"_s);
    k_.állapot.változott = 0;
    if (const auto hiba = program_folder_failure(k_.állapot.programkönyvtár)) {
        keresés_.szótárhiány_elmondva();
        k_.üzenetek.tell(hiba->sentence);
    }
    fájlok_.fájlistolvas();
    kisablak_.fájlolvas();
    mentbeállít();
    középre(k_.hasznos.képernyő());
    ablakigazít();
    k_.hasznos.öltöztet(*this, *this, 0.85);
    magasságbeállít(hely(v_.keresés.Ok).bottom() + 120 + keretmagasság());
    v_.keresés.angolszó->setFocus();
    if (k_.állapot.kisablakmód == 1)
        kisablak_.cmd_kisablak_Click();
    // From here on, when the program folder is known.
    ablakok_.zenét_indít();
    fájlok_.parancssorból(parancssor);
}

const std::shared_ptr<nyelvismeret> &szótár::ismeret() {
    if (!ismeret_)
        ismeret_ = std::make_shared<nyelvismeret>(k_.állapot.programkönyvtár);
    return ismeret_;
}

void szótár::kilép_Click() {
    if (kilép_)
        return;
    kilép_ = true;
    kilépésmégse_ = true;
    kisablak_.fájlír();
    kilépésmégse_ = !ablakok_.kiléphet() || !fájlok_.kilépéskérdés();
    kilép_ = false;
    if (kilépésmégse_)
        return;
    vége_ = true;
    hide();
    kisablak_.elrejt();
    ablakok_.elrejt();
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

void szótár::változást_mutat() {
    v_.szószedet.Label_mentetlen->setVisible(k_.állapot.változott == 1);
}

void szótár::listához_igazít() {
    mentbeállít();
    ablakigazít();
}

void szótár::fájllistmutat(const QStringList &fájlok) {
    for (size_t i = 0; i < m_.mnufájlfájl.size(); ++i) {
        const bool van = static_cast<qsizetype>(i) < fájlok.size();
        m_.mnufájlfájl[i]->setVisible(van);
        const int n = static_cast<int>(i) + 1;
        m_.mnufájlfájl[i]->setText(van ? legutóbbifájlok::felirat(n, fájlok[n - 1]) : QString());
    }
}

void szótár::fókusz_változott(const QWidget *honnan, const QWidget *hová) {
    // Nothing has the focus while another program is used; the controls stay as they are then.
    if (!hová || hová->window() != this)
        return;
    if (hová == v_.keresés.angolszó)
        alapgombbeállít(v_.keresés.Ok);
    else if (hová == v_.szószedet.szóangtext || hová == v_.szószedet.szómagytext)
        alapgombbeállít(v_.szószedet.módosít);
    else if (hová == v_.keresés.magyarlist)
        alapgombbeállít(v_.keresés.hozzáad);
    else
        alapgombbeállít(nullptr);
    szószedet_.fókusz_változott(honnan, hová);
}

QRectF szótár::helye() const {
    return {QPointF(pos()) * twips::per_pixel, QSizeF(szélesség(), magasság())};
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
        magasságbeállít(hely(v_.keresés.Ok).bottom() + alatta);
        return;
    }
    magasságbeállít(hely(v_.szószedet.módosít).bottom() + alatta);
    if (v_.szószedet.szószedet->selected() < 0)
        v_.szószedet.szószedet->select(0);
}
