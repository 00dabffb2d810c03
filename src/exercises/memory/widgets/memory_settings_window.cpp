#include "exercises/memory/widgets/memory_settings_window.h"

#include <QButtonGroup>
#include <QLocale>
#include <algorithm>
#include <utility>

#include "ui/controls/named.h"
#include "ui/controls/up_down.h"

using namespace Qt::StringLiterals;

namespace {

const QString méret_kulcs = u"méret"_s;
const QString idő_kulcs = u"felfedésiidő"_s;
constexpr int alapméret = 2;

// Tenths of a second.
constexpr int legrövidebb = 10;
constexpr int leghosszabb = 40;
constexpr int alapidő = 20;

QRadioButton *méretgomb(size_t i) {
    const játéktér &tér = játékterek[i];
    auto *gomb = new QRadioButton(u"%1 pár (%2*%3)"_s.arg(tér.párok()).arg(tér.oszlopok).arg(tér.oszlopban));
    gomb->setObjectName(u"Option_méret(%1)"_s.arg(i));
    gomb->setAccessibleName(u"%1 pár, %2 oszlopban %3 kártya"_s.arg(tér.párok()).arg(tér.oszlopok).arg(tér.oszlopban));
    return gomb;
}

}  // namespace

frm_memory_beáll::frm_memory_beáll(const feladatkörnyezet &környezet, int szópárfelső, std::function<void()> újjáték)
    : feladatbeállító(környezet, u"frm_memory_beáll"_s, u"Memória - Beállítások"_s),
      párok_(szópárfelső + 1),
      újjáték_(std::move(újjáték)),
      Frame1_(named(new QGroupBox(u"A játéktér mérete"_s), u"Frame1", u"A játéktér mérete")),
      Frame2_(named(new QGroupBox(u"Egyéb beállítások"_s), u"Frame2", u"Egyéb beállítások")),
      Label1_(named(new QLabel(u"A kártyák felfedési ideje"_s), u"Label1")),
      UpDown_idő_(named(new UpDown, u"UpDown_idő", u"A kártyák felfedési ideje tizedmásodpercben")),
      label_idő_(named(new QLabel, u"label_idő")) {
    for (size_t i = 0; i < Option_méret_.size(); ++i)
        Option_méret_[i] = méretgomb(i);
    UpDown_idő_->setRange(legrövidebb, leghosszabb);
    connect(UpDown_idő_, &QSpinBox::valueChanged, this, [this] { UpDown_idő_Change(); });
    elhelyezés();
}

void frm_memory_beáll::elhelyezés() {
    const QRectF méretkeret = keret(keretszéle, static_cast<int>(Option_méret_.size()));
    elhelyez(Frame1_, méretkeret);
    auto *méretek = new QButtonGroup(this);
    for (int i = 0; i < static_cast<int>(Option_méret_.size()); ++i) {
        QRadioButton *gomb = Option_méret_[static_cast<size_t>(i)];
        elhelyez(gomb, sor(méretkeret, i));
        méretek->addButton(gomb, i);
    }
    const QRectF egyébkeret = keret(méretkeret.bottom() + keretszéle, 1);
    elhelyez(Frame2_, egyébkeret);
    const QRectF idősor = sor(egyébkeret, 0);
    elhelyez(Label1_, {idősor.left(), idősor.top(), 2900, idősor.height()});
    elhelyez(UpDown_idő_, {idősor.left() + 3000, idősor.top(), 360, idősor.height()});
    elhelyez(label_idő_, {idősor.left() + 3480, idősor.top(), 1500, idősor.height()});
    label_idő_->setAlignment(Qt::AlignCenter);
    elkészül(egyébkeret.bottom() + keretszéle);
}

void frm_memory_beáll::beállbetölt() {
    bool szám = false;
    const int tárolt = k_.beállítások.beállításolvas(*this, méret_kulcs, alapméret).toInt(&szám);
    const bool van = szám && tárolt >= 0 && tárolt < static_cast<int>(Option_méret_.size());
    const int index = legnagyobb_játéktér(van ? tárolt : alapméret, párok_);
    for (size_t i = 0; i < Option_méret_.size(); ++i)
        Option_méret_[i]->setEnabled(játékterek[i].párok() <= párok_);
    Option_méret_[static_cast<size_t>(index)]->setChecked(true);
    const int idő = k_.beállítások.beállításolvas(*this, idő_kulcs, alapidő).toInt(&szám);
    UpDown_idő_->setValue(szám ? idő : alapidő);
    UpDown_idő_Change();
    label_idő_->setAutoFillBackground(true);
}

void frm_memory_beáll::beállment() {
    k_.beállítások.beállításment(*this, méret_kulcs, kijelölt_méret());
    k_.beállítások.beállításment(*this, idő_kulcs, felfedésiidő());
}

/// Index of the first selected option; 0 when none is.
int frm_memory_beáll::kijelölt_méret() const {
    const auto melyik =
        std::find_if(Option_méret_.begin(), Option_méret_.end(), [](auto *gomb) { return gomb->isChecked(); });
    return melyik == Option_méret_.end() ? 0 : static_cast<int>(melyik - Option_méret_.begin());
}

void frm_memory_beáll::UpDown_idő_Change() {
    label_idő_->setText(QLocale::system().toString(felfedésiidő() / 10.0) + u" mp"_s);
}

void frm_memory_beáll::elfogad() {
    hide();
    újjáték_();
}
