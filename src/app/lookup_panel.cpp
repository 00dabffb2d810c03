#include "app/lookup_panel.h"

#include <QCoreApplication>
#include <QShortcut>
#include <utility>
#include <variant>

#include "dictionary/order_tool.h"
#include "ui/controls/lookup_keys.h"

using namespace Qt::StringLiterals;

keresőpanel::keresőpanel(keresővezérlők &vezérlők, keresőpanelkörnyezet környezet)
    : v_(vezérlők), k_(std::move(környezet)) {
    eseményeket_köt();
}

void keresőpanel::eseményeket_köt() {
    const auto köt = [this](auto *vezérlő, auto esemény, void (keresőpanel::*mit)()) {
        QObject::connect(vezérlő, esemény, &események_, [this, mit] { (this->*mit)(); });
    };
    köt(v_.angolszó, &QLineEdit::textChanged, &keresőpanel::angolszó_Change);
    köt(v_.Ok, &QPushButton::clicked, &keresőpanel::Ok_Click);
    köt(v_.szólist, &ListBox::itemSelected, &keresőpanel::szólist_Click);
    köt(v_.magyarlist, &ListBox::itemSelected, &keresőpanel::magyarlist_Click);
    QObject::connect(v_.magyarlist, &ListBox::itemDoubleClicked, &események_, [this] { magyarlist_DblClick(); });
    new LookupKeys(*v_.angolszó, *v_.szólist, *v_.magyarlist);
    for (const QKeySequence &billentyű : {QKeySequence(Qt::CTRL | Qt::Key_L), QKeySequence(Qt::Key_F6)})
        köt(new QShortcut(billentyű, v_.angolszó->window()), &QShortcut::activated, &keresőpanel::keresőmezőbe);
    QObject::connect(v_.lst_ajánlatok, &LinkList::chosen, &események_, [this](int i) { lst_ajánlatok_Click(i); });
    köt(v_.Command2, &QPushButton::clicked, &keresőpanel::Command2_Click);
    for (QRadioButton *irány : v_.nyelv) {
        QObject::connect(irány, &QRadioButton::toggled, &események_, [this](bool kijelölt) {
            if (kijelölt)
                nyelv_Click();
        });
    }
}

void keresőpanel::angolszó_Change() {
    v_.Ok->setEnabled(!v_.angolszó->text().isEmpty());
    Ok_Click();
}

void keresőpanel::Ok_Click() {
    v_.hozzáad->setEnabled(false);
    if (v_.angolszó->text().isEmpty()) {
        k_.kereső.ürít();
        k_.ajánlatok.kiürít();
        v_.Label3->clear();
        return;
    }
    // The text is compared with the key on purpose: one that begins with "to " ends after its first line.
    const auto eredmény = k_.kereső.keres(
        v_.angolszó->text(), [this](const QString &kulcs) { return k_.vége() || v_.angolszó->text() != kulcs; });
    if (const auto *hiba = std::get_if<Failure>(&eredmény)) {
        nincs_szótár(*hiba);
        return;
    }
    const auto &vég = std::get<keresésvége>(eredmény);
    if (vég.megszakadt)
        return;
    ajánlatot_kér(vég.kijelölendő);
    v_.Label3->setText(u"%1 találat"_s.arg(vég.darab));
    if (vég.kijelölendő >= 0)
        v_.szólist->select(vég.kijelölendő);
    v_.szólist->show_selected_in_middle();
    szótárat_vizsgál();
}

void keresőpanel::ajánlatot_kér(int kijelölendő) {
    const QString szöveg = v_.angolszó->text();
    const QString címszó = k_.kereső.találatok().címszó(kijelölendő).section(u',', 0, 0);
    const bool pontos = kijelölendő >= 0 && keresőkulcs(QStringView(címszó)) == keresőkulcs(QStringView(szöveg));
    k_.ajánlatok.kérdez({.szöveg = szöveg, .angolról = k_.kereső.angolról()},
                        pontos ? ajánlatlista::mennyit::csak_alakokat : ajánlatlista::mennyit::mindent);
}

void keresőpanel::lst_ajánlatok_Click(int i) {
    if (k_.ajánlatok.kifejezések_sora(i)) {
        k_.kifejezések(k_.ajánlatok.szöveg());
        return;
    }
    const ajánlat mit = k_.ajánlatok.egyik(i);
    irányt_vált(mit.angolról);
    v_.angolszó->setText(keresőkulcs(QStringView(mit.címszó)).toString());
    k_.kereső.kijelöl(mit.címszó);
    v_.szólist->show_selected_in_middle();
    v_.szólist->setFocus();
}

void keresőpanel::szótárat_vizsgál() {
    bool &vizsgált = vizsgált_[k_.kereső.angolról() ? 0 : 1];
    if (vizsgált)
        return;
    vizsgált = true;
    if (const auto hiba = k_.kereső.szótárhiba())
        k_.üzenetek.tell(hiba->sentence);
}

void keresőpanel::nincs_szótár(const Failure &hiba) {
    k_.ajánlatok.kiürít();
    v_.Label3->setText(u"nincs szótárfájl"_s);
    bool &szólt = hiány_szólt_[k_.kereső.angolról() ? 0 : 1];
    if (szólt)
        return;
    szólt = true;
    k_.üzenetek.tell(hiba.sentence);
}

void keresőpanel::keresőmezőbe() {
    v_.angolszó->setFocus(Qt::ShortcutFocusReason);
    v_.angolszó->selectAll();
}

void keresőpanel::szólist_Click() {
    v_.hozzáad->setEnabled(false);
    k_.kereső.jelentéseket_mutat();
}

void keresőpanel::magyarlist_Click() {
    v_.hozzáad->setEnabled(true);
}

void keresőpanel::nyelv_Click() {
    const bool angolról = v_.nyelv[0]->isChecked();
    k_.kereső.irányt_vált(angolról);
    v_.hozzáad->setEnabled(false);
    v_.Label1->setText(angolról ? u"&Angolul:"_s : u"&Magyarul:"_s);
    v_.Label2->setText(angolról ? u"Magyarul:"_s : u"Angolul:"_s);
    v_.angolszó->clear();
    v_.angolszó->setFocus();
}

void keresőpanel::Command2_Click() {
    const auto kiír = [this](const QString &felirat) {
        v_.Label3->setText(felirat);
        v_.Label3->repaint();
    };
    const auto megálljon = [this] {
        QCoreApplication::processEvents();
        return k_.vége();
    };
    const auto hiba = állományátalakító(k_.állapot.programkönyvtár, kiír, megálljon).átalakít();
    if (hiba)
        k_.üzenetek.tell(hiba->sentence);
}
