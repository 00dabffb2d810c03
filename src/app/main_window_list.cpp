#include <QApplication>
#include <QScrollBar>

#include "app/main_window.h"
#include "wordlist/szs_file.h"

using namespace Qt::StringLiterals;

void szótár::lista_eseményeket_köt() {
    connect(v_.hozzáad, &QPushButton::clicked, &események_, [this] { hozzáad_Click(); });
    connect(v_.szószedet, &ListBox::itemSelected, &események_, [this] { szószedet_Click(); });
    connect(v_.szómagylist, &ListBox::itemSelected, &események_, [this] {
        if (v_.szómagylist->selected() != v_.szószedet->selected())
            v_.szószedet->select(v_.szómagylist->selected());
    });
    // A pair is chosen there as in the English list, and may be deleted like there.
    connect(v_.szómagylist, &ListBox::pressed, &események_, [this] { v_.szószedet->setFocus(); });
    connect(v_.szószedet->verticalScrollBar(), &QScrollBar::valueChanged, v_.szómagylist->verticalScrollBar(),
            &QScrollBar::setValue);
    connect(v_.szómagylist->verticalScrollBar(), &QScrollBar::valueChanged, v_.szószedet->verticalScrollBar(),
            &QScrollBar::setValue);
    for (QLineEdit *mező : {v_.szóangtext, v_.szómagytext})
        connect(mező, &QLineEdit::textChanged, &események_, [this] { szövegmező_Change(); });
    connect(v_.módosít, &QPushButton::clicked, &események_, [this] { módosít_Click(); });
    connect(v_.sztöröl, &QPushButton::clicked, &események_, [this] { sztöröl_Click(); });
    connect(qApp, &QApplication::focusChanged, &események_,
            [this](const QWidget *honnan, const QWidget *hová) { fókusz_változott(honnan, hová); });
}

void szótár::hozzáad_Click() {
    k_.üzenetek.beep();
    if (v_.szólist->selected() < 0 || v_.magyarlist->selected() < 0)
        return;
    const QString címszó = v_.szólist->item(v_.szólist->selected());
    const QString jelentés = v_.magyarlist->item(v_.magyarlist->selected());
    const szópár pár = angolról() ? szópár{címszó, jelentés} : szópár{jelentés, címszó};
    if (!felvehető(pár))
        return;
    v_.szószedet->select(-1);
    v_.szószedet->select(lista_.felvesz(pár.angol, pár.magyar));
    k_.állapot.változott = 1;
    mentbeállít();
    ablakigazít();
}

bool szótár::felvehető(const szópár &pár) {
    const QString akadály = szsfájl::akadály(pár);
    if (!akadály.isEmpty())
        k_.üzenetek.tell(akadály);
    return akadály.isEmpty();
}

void szótár::szószedet_Click() {
    const int i = v_.szószedet->selected();
    v_.szómagylist->select(i);
    v_.szóangtext->setText(lista_.pár(i).angol);
    v_.szómagytext->setText(lista_.pár(i).magyar);
    // The texts may be those of the pair before.
    szövegmező_Change();
}

void szótár::szövegmező_Change() {
    const int i = v_.szószedet->selected();
    const szópár beírt{v_.szóangtext->text(), v_.szómagytext->text()};
    v_.módosít->setEnabled(i >= 0 && !beírt.angol.isEmpty() && !beírt.magyar.isEmpty() && beírt != lista_.pár(i));
}

void szótár::módosít_Click() {
    const szópár beírt{v_.szóangtext->text(), v_.szómagytext->text()};
    if (!felvehető(beírt))
        return;
    lista_.módosít(v_.szószedet->selected(), beírt);
    k_.állapot.változott = 1;
    if (v_.módosít->hasFocus())
        v_.szószedet->setFocus();
    szövegmező_Change();
}

void szótár::sztöröl_Click() {
    const int k = v_.szószedet->selected();
    if (k < 0)
        return;
    v_.szószedet->select(-1);
    v_.szómagylist->select(-1);
    szövegmezőketürít();
    v_.szószedet->select(lista_.töröl(k));
    v_.szószedet->setFocus();
    k_.állapot.változott = lista_.üres() && k_.állapot.aktuálisfájl.isEmpty() ? 0 : 1;
    mentbeállít();
    ablakigazít();
}

void szótár::szövegmezőketürít() {
    v_.szóangtext->clear();
    v_.szómagytext->clear();
}

void szótár::fókusz_változott(const QWidget *honnan, const QWidget *hová) {
    // Nothing has the focus while another program is used; the controls stay as they are then.
    if (!hová || hová->window() != this)
        return;
    if (hová == v_.angolszó)
        alapgombbeállít(v_.Ok);
    else if (hová == v_.szóangtext || hová == v_.szómagytext)
        alapgombbeállít(v_.módosít);
    else if (hová == v_.magyarlist)
        alapgombbeállít(v_.hozzáad);
    else
        alapgombbeállít(nullptr);

    if (hová == v_.szószedet)
        v_.sztöröl->setEnabled(!lista_.üres());
    else if (honnan == v_.szószedet && hová->property("tag") != u"*"_s)
        v_.sztöröl->setEnabled(false);
}
