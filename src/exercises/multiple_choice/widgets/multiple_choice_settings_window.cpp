#include "exercises/multiple_choice/widgets/multiple_choice_settings_window.h"

#include <QButtonGroup>
#include <algorithm>
#include <utility>

#include "exercises/multiple_choice/multiple_choice.h"
#include "ui/controls/named.h"

using namespace Qt::StringLiterals;

namespace {

const QString nyelv_kulcs = u"nyelv"_s;
const QString választék_kulcs = u"valasztekszam"_s;
const QString húzás_kulcs = u"katt"_s;

}  // namespace

választás_beáll::választás_beáll(const feladatkörnyezet &környezet, std::function<int()> párok_száma,
                                 std::function<void()> újrakezd)
    : feladatbeállító(környezet, u"választás_beáll"_s, u"Választás Beállítások"_s),
      párok_száma_(std::move(párok_száma)),
      újrakezd_(std::move(újrakezd)),
      keret_nyelv_(named(new QGroupBox(u"A kikérdezés nyelve"_s), u"keret_nyelv", u"A kikérdezés nyelve")),
      keret_egyéb_(named(new QGroupBox(u"Egyéb beállítások"_s), u"keret_egyéb", u"Egyéb beállítások")),
      Label_választék_(named(new QLabel(u"A kiválasztható szavak száma:"_s), u"Label_választék")),
      Slider_választékszám_(
          named(new QSlider(Qt::Horizontal), u"Slider_választékszám", u"A kiválasztható szavak száma")),
      Label_választék_száma_(named(new QLabel, u"Label_választék_száma")),
      Opt_megoldástípus_{named(new QRadioButton(u"Megoldás a szóra való kattintással"_s), u"Opt_megoldástípus(0)",
                               u"Megoldás a szóra való kattintással"),
                         named(new QRadioButton(u"Megoldás a szó keretbe helyezésével"_s), u"Opt_megoldástípus(1)",
                               u"Megoldás a szó keretbe helyezésével")} {
    Slider_választékszám_->setRange(választójáték::legkevesebb, választójáték::legtöbb);
    Slider_választékszám_->setTickPosition(QSlider::TicksBelow);
    Slider_választékszám_->setPageStep(1);
    connect(Slider_választékszám_, &QSlider::valueChanged, this,
            [this](int szám) { Label_választék_száma_->setText(QString::number(szám)); });
    elhelyezés();
}

void választás_beáll::elhelyezés() {
    const QRectF nyelvkeret = keret(keretszéle, static_cast<int>(irány_.nyelvoptb.size()));
    const QRectF egyébkeret = keret(nyelvkeret.bottom() + keretszéle, 3);
    elhelyez(keret_nyelv_, nyelvkeret);
    elhelyez(keret_egyéb_, egyébkeret);
    irány_.elhelyez(*this, [&](int i) { return sor(nyelvkeret, i); });
    const QRectF csúszka = sor(egyébkeret, 0);
    elhelyez(Label_választék_, {csúszka.left(), csúszka.top(), 2700, csúszka.height()});
    elhelyez(Slider_választékszám_, {csúszka.left() + 2760, csúszka.top(), 2200, csúszka.height()});
    elhelyez(Label_választék_száma_, {csúszka.left() + 5080, csúszka.top(), 400, csúszka.height()});
    auto *típusok = new QButtonGroup(this);
    for (int i = 0; i < 2; ++i) {
        QRadioButton *gomb = Opt_megoldástípus_[static_cast<size_t>(i)];
        elhelyez(gomb, sor(egyébkeret, i + 1));
        típusok->addButton(gomb, i);
    }
    elkészül(egyébkeret.bottom() + keretszéle);
}

void választás_beáll::betölt() {
    irány_.kijelöl(k_.beállítások.beállításolvas(*this, nyelv_kulcs, iránygombok::alap));
    const int szám = k_.beállítások.beállításolvas(*this, választék_kulcs, választójáték::legtöbb).toInt();
    Slider_választékszám_->setValue(std::min(szám, párok_száma_()));
    Label_választék_száma_->setText(QString::number(Slider_választékszám_->value()));
    const bool húzás = k_.beállítások.beállításolvas(*this, húzás_kulcs, false).toBool();
    Opt_megoldástípus_[1]->setChecked(húzás);
    Opt_megoldástípus_[0]->setChecked(!húzás);
}

void választás_beáll::ment() {
    k_.beállítások.beállításment(*this, nyelv_kulcs, static_cast<int>(merre()));
    k_.beállítások.beállításment(*this, választék_kulcs, választék());
    k_.beállítások.beállításment(*this, húzás_kulcs, húzással());
}

void választás_beáll::elfogad() {
    újrakezd_();
    hide();
}
