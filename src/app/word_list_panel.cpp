#include "app/word_list_panel.h"

#include <QScrollBar>

#include "wordlist/shown_text.h"
#include "wordlist/szs_file.h"

using namespace Qt::StringLiterals;

szószedetpanel::szószedetpanel(szószedetvezérlők &vezérlők, const szószedetpanelkörnyezet &környezet)
    : v_(vezérlők), k_(környezet) {
    eseményeket_köt();
}

void szószedetpanel::eseményeket_köt() {
    const auto köt = [this](auto *vezérlő, auto esemény, void (szószedetpanel::*mit)()) {
        QObject::connect(vezérlő, esemény, &események_, [this, mit] { (this->*mit)(); });
    };
    köt(v_.szószedet, &ListBox::itemSelected, &szószedetpanel::szószedet_Click);
    köt(v_.szóangtext, &QLineEdit::textChanged, &szószedetpanel::szövegmező_Change);
    köt(v_.szómagytext, &QLineEdit::textChanged, &szószedetpanel::szövegmező_Change);
    köt(v_.módosít, &QPushButton::clicked, &szószedetpanel::módosít_Click);
    köt(v_.sztöröl, &QPushButton::clicked, &szószedetpanel::sztöröl_Click);
    köt(v_.szószedet, &ListBox::deletePressed, &szószedetpanel::sztöröl_Click);
    QObject::connect(v_.szómagylist, &ListBox::itemSelected, &események_, [this] {
        if (v_.szómagylist->selected() != v_.szószedet->selected())
            v_.szószedet->select(v_.szómagylist->selected());
    });
    // A pair is chosen there as in the English list, and may be deleted like there.
    QObject::connect(v_.szómagylist, &ListBox::pressed, &események_, [this] { v_.szószedet->setFocus(); });
    QObject::connect(v_.szószedet->verticalScrollBar(), &QScrollBar::valueChanged, v_.szómagylist->verticalScrollBar(),
                     &QScrollBar::setValue);
    QObject::connect(v_.szómagylist->verticalScrollBar(), &QScrollBar::valueChanged, v_.szószedet->verticalScrollBar(),
                     &QScrollBar::setValue);
}

bool szószedetpanel::hozzáad_Click() {
    const auto mit = k_.kereső.választott();
    if (!mit) {
        k_.üzenetek.beep();
        return false;
    }
    return felvesz(k_.kereső.angolról() ? szópár{mit->címszó, mit->jelentés} : szópár{mit->jelentés, mit->címszó});
}

bool szószedetpanel::felvesz(const szópár &pár) {
    k_.üzenetek.beep();
    if (!felvehető(pár))
        return false;
    v_.szószedet->select(-1);
    v_.szószedet->select(k_.lista.felvesz(pár.angol, pár.magyar));
    k_.állapot.változott = 1;
    k_.ablak.változást_mutat();
    k_.ablak.listához_igazít();
    return true;
}

bool szószedetpanel::felvehető(const szópár &pár) {
    const QString akadály = szsfájl::akadály(pár);
    if (!akadály.isEmpty())
        k_.üzenetek.tell(akadály);
    return akadály.isEmpty();
}

void szószedetpanel::szószedet_Click() {
    const int i = v_.szószedet->selected();
    v_.szómagylist->select(i);
    beír(*v_.szóangtext, k_.lista.pár(i).angol);
    beír(*v_.szómagytext, k_.lista.pár(i).magyar);
    // The texts may be those of the pair before.
    szövegmező_Change();
}

void szószedetpanel::szövegmező_Change() {
    const int i = v_.szószedet->selected();
    const szópár beírt = beírt_pár();
    v_.módosít->setEnabled(i >= 0 && !beírt.angol.isEmpty() && !beírt.magyar.isEmpty() && beírt != k_.lista.pár(i));
}

void szószedetpanel::beír(QLineEdit &mező, const QString &szöveg) {
    mező.setText(mutatott(szöveg));
    // A long text shows its beginning.
    mező.home(false);
    // What is not shown would be lost.
    mező.setReadOnly(!egészben_mutatott(szöveg));
}

szópár szószedetpanel::beírt_pár() const {
    const szópár mutatott{v_.szóangtext->text(), v_.szómagytext->text()};
    const int i = v_.szószedet->selected();
    if (i < 0)
        return mutatott;
    const szópár &egész = k_.lista.pár(i);
    return {v_.szóangtext->isReadOnly() ? egész.angol : mutatott.angol,
            v_.szómagytext->isReadOnly() ? egész.magyar : mutatott.magyar};
}

void szószedetpanel::módosít_Click() {
    const szópár beírt = beírt_pár();
    if (!felvehető(beírt))
        return;
    k_.lista.módosít(v_.szószedet->selected(), beírt);
    k_.állapot.változott = 1;
    k_.ablak.változást_mutat();
    if (v_.módosít->hasFocus())
        v_.szószedet->setFocus();
    szövegmező_Change();
}

void szószedetpanel::sztöröl_Click() {
    const int k = v_.szószedet->selected();
    if (k < 0)
        return;
    v_.szószedet->select(-1);
    v_.szómagylist->select(-1);
    szövegmezőketürít();
    v_.szószedet->select(k_.lista.töröl(k));
    v_.szószedet->setFocus();
    k_.állapot.változott = k_.lista.üres() && k_.állapot.aktuálisfájl.isEmpty() ? 0 : 1;
    k_.ablak.változást_mutat();
    k_.ablak.listához_igazít();
}

void szószedetpanel::szövegmezőketürít() {
    beír(*v_.szóangtext, QString());
    beír(*v_.szómagytext, QString());
}

void szószedetpanel::fókusz_változott(const QWidget *honnan, const QWidget *hová) {
    if (hová == v_.szószedet)
        v_.sztöröl->setEnabled(!k_.lista.üres());
    else if (honnan == v_.szószedet && hová->property("tag") != u"*"_s)
        v_.sztöröl->setEnabled(false);
}
