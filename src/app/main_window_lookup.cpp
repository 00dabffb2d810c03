#include <QCoreApplication>
#include <QElapsedTimer>

#include "app/main_window.h"
#include "dictionary/byte_source.h"
#include "dictionary/dictionary_search.h"
#include "dictionary/meanings.h"
#include "dictionary/order_tool.h"
#include "platform/code_page.h"
#include "platform/files.h"
#include "state/program_folder.h"

using namespace Qt::StringLiterals;

namespace {

/// How long a search may go on before other events get their turn, in milliseconds. A key that is held down repeats
/// every 30 ms or so; a shorter time only makes long searches longer.
constexpr qint64 events_after = 10;

}  // namespace

void szótár::lookup_eseményeket_köt() {
    connect(v_.angolszó, &QLineEdit::textChanged, &események_, [this] { angolszó_Change(); });
    connect(v_.Ok, &QPushButton::clicked, &események_, [this] { Ok_Click(); });
    connect(v_.szólist, &ListBox::itemSelected, &események_, [this] { szólist_Click(); });
    connect(v_.magyarlist, &ListBox::itemSelected, &események_, [this] { magyarlist_Click(); });
    connect(v_.magyarlist, &ListBox::itemDoubleClicked, &események_, [this] { magyarlist_DblClick(); });
    for (QRadioButton *irány : v_.nyelv)
        connect(irány, &QRadioButton::toggled, &események_, [this](bool kijelölt) {
            if (kijelölt)
                nyelv_Click();
        });
    connect(v_.Command2, &QPushButton::clicked, &események_, [this] { Command2_Click(); });
}

void szótár::angolszó_Change() {
    const bool van_szöveg = !v_.angolszó->text().isEmpty();
    v_.Ok->setEnabled(van_szöveg);
    if (van_szöveg)
        Ok_Click();
}

void szótár::keresőlisták_ürít() {
    v_.megoldlist->clear();
    v_.szólist->clear();
    v_.magyarlist->clear();
    v_.hozzáad->setEnabled(false);
}

void szótár::Ok_Click() {
    const QString szöveg = v_.angolszó->text();
    if (szöveg.isEmpty())
        return;
    const int ez_a_keresés = ++keresés_;
    keresőlisták_ürít();
    const QString fájl =
        k_.állapot.programkönyvtár + u'/' + (angolról() ? english_hungarian_file : hungarian_english_file);
    FileSource forrás(fájl);
    if (!forrás.is_open()) {
        nincs_szótár(fájl);
        return;
    }
    const QString kulcs = keresőkulcs(QStringView(szöveg)).toString();
    QElapsedTimer óra;
    óra.start();
    const keresésfigyelő figyelő{[this](const szócikk &cikk) {
                                     v_.szólist->add(code_page::decode(cikk.címszó));
                                     v_.megoldlist->add(code_page::decode(cikk.jelentések));
                                 },
                                 [&] {
                                     if (óra.elapsed() >= events_after) {
                                         QCoreApplication::processEvents();
                                         óra.restart();
                                     }
                                     // Compared with the key on purpose: a text that begins with "to " ends after its
                                     // first line.
                                     return vége_ || ez_a_keresés != keresés_ || v_.angolszó->text() != kulcs;
                                 }};
    // A text that the code page cannot hold stands in no dictionary.
    const auto bytes = code_page::encode(szöveg);
    const keresésvége vég = bytes ? szótárkereső(forrás).keres(*bytes, figyelő) : keresésvége{};
    if (vég.megszakadt)
        return;
    v_.Label3->setText(u"%1 találat"_s.arg(vég.darab));
    if (vég.kijelölendő >= 0)
        v_.szólist->select(vég.kijelölendő);
}

void szótár::nincs_szótár(const QString &fájl) {
    v_.Label3->setText(u"nincs szótárfájl"_s);
    bool &szólt = hiány_szólt_[angolról() ? 0 : 1];
    if (szólt)
        return;
    szólt = true;
    k_.üzenetek.tell(files::cannot_read(fájl, files::reason_not_readable(fájl)).sentence);
}

void szótár::szólist_Click() {
    v_.magyarlist->clear();
    v_.hozzáad->setEnabled(false);
    for (const QString &jelentés : jelentések(v_.megoldlist->item(v_.szólist->selected())))
        v_.magyarlist->add(jelentés);
    v_.magyarlist->select(0);
}

void szótár::magyarlist_Click() {
    v_.hozzáad->setEnabled(true);
}

void szótár::magyarlist_DblClick() {
    hozzáad_Click();
}

void szótár::nyelv_Click() {
    // A search in the other dictionary must not go on filling the lists.
    ++keresés_;
    keresőlisták_ürít();
    v_.Label1->setText(angolról() ? u"&Angolul:"_s : u"&Magyarul:"_s);
    v_.Label2->setText(angolról() ? u"Magyarul:"_s : u"Angolul:"_s);
    v_.angolszó->clear();
    v_.angolszó->setFocus();
}

void szótár::Command2_Click() {
    const auto kiír = [this](const QString &felirat) {
        v_.Label3->setText(felirat);
        v_.Label3->repaint();
    };
    const auto megálljon = [this] {
        QCoreApplication::processEvents();
        return vége_;
    };
    const auto hiba = állományátalakító(k_.állapot.programkönyvtár, kiír, megálljon).átalakít();
    if (hiba)
        k_.üzenetek.tell(hiba->sentence);
}
