#include "exercises/multiple_choice_settings_window.h"

#include <QButtonGroup>
#include <QCloseEvent>
#include <algorithm>
#include <utility>

#include "exercises/multiple_choice.h"
#include "ui/colour_copy.h"
#include "ui/named.h"

namespace {

// The design, in twips.
constexpr double sorszélesség = 6000;
constexpr double sor = 420;
constexpr QRectF nyelvkeret(120, 120, sorszélesség, 1900);
constexpr QRectF egyébkeret(120, 2140, sorszélesség, 1900);
constexpr double gombok_teteje = 4160;

const QString nyelv_kulcs = QStringLiteral("nyelv");
const QString választék_kulcs = QStringLiteral("valasztekszam");
const QString húzás_kulcs = QStringLiteral("katt");

QRectF sor_keretben(const QRectF &keret, int hányadik) {
    return {keret.left() + 240, keret.top() + 380 + hányadik * 470, keret.width() - 480, sor};
}

}  // namespace

választás_beáll::választás_beáll(const feladatkörnyezet &környezet, std::function<int()> párok_száma,
                                 std::function<void()> újrakezd)
    : ablak(QStringLiteral("választás_beáll")),
      k_(környezet),
      párok_száma_(std::move(párok_száma)),
      újrakezd_(std::move(újrakezd)),
      keret_nyelv_(named(new QGroupBox(QStringLiteral("A kikérdezés nyelve")), u"keret_nyelv", u"A kikérdezés nyelve")),
      keret_egyéb_(named(new QGroupBox(QStringLiteral("Egyéb beállítások")), u"keret_egyéb", u"Egyéb beállítások")),
      Label_választék_(named(new QLabel(QStringLiteral("A kiválasztható szavak száma:")), u"Label_választék")),
      Slider_választékszám_(
          named(new QSlider(Qt::Horizontal), u"Slider_választékszám", u"A kiválasztható szavak száma")),
      Label_választék_száma_(named(new QLabel, u"Label_választék_száma")),
      Opt_megoldástípus_{named(new QRadioButton(QStringLiteral("Megoldás a szóra való kattintással")),
                               u"Opt_megoldástípus(0)", u"Megoldás a szóra való kattintással"),
                         named(new QRadioButton(QStringLiteral("Megoldás a szó keretbe helyezésével")),
                               u"Opt_megoldástípus(1)", u"Megoldás a szó keretbe helyezésével")},
      cmd_ok_(named(new QPushButton(QStringLiteral("Ok")), u"cmd_ok", u"Ok, mentés és újrakezdés")),
      cmd_mégsem_(named(new QPushButton(QStringLiteral("Mégsem")), u"cmd_mégsem", u"Mégsem")) {
    setWindowTitle(QStringLiteral("Választás Beállítások"));
    elhelyezés();
    Slider_választékszám_->setRange(választójáték::legkevesebb, választójáték::legtöbb);
    Slider_választékszám_->setTickPosition(QSlider::TicksBelow);
    Slider_választékszám_->setPageStep(1);
    connect(Slider_választékszám_, &QSlider::valueChanged, this,
            [this](int szám) { Label_választék_száma_->setText(QString::number(szám)); });
    connect(cmd_ok_, &QPushButton::clicked, this, [this] { cmd_ok_Click(); });
    connect(cmd_mégsem_, &QPushButton::clicked, this, [this] { cmd_mégsem_Click(); });
    alapgombbeállít(cmd_ok_);
    mégsegombbeállít(cmd_mégsem_);
    global::színmásol(*this, k_.főablak);
    Module_hasznos::betűméretez(*this, k_.hasznos.ablakméretez(*this, 0.6));
    k_.hasznos.ablakstílus(*this);
    betölt();
}

void választás_beáll::elhelyezés() {
    elhelyez(keret_nyelv_, nyelvkeret);
    elhelyez(keret_egyéb_, egyébkeret);
    // The buttons lie on the window, not in the frames, so they are told which belong together.
    auto *nyelvek = new QButtonGroup(this);
    for (int i = 0; i < 3; ++i) {
        QRadioButton *gomb = irány_.nyelvoptb[static_cast<size_t>(i)];
        elhelyez(gomb, sor_keretben(nyelvkeret, i));
        nyelvek->addButton(gomb, i);
    }
    QRectF csúszka = sor_keretben(egyébkeret, 0);
    elhelyez(Label_választék_, {csúszka.left(), csúszka.top(), 2700, sor});
    elhelyez(Slider_választékszám_, {csúszka.left() + 2760, csúszka.top(), 2200, sor});
    elhelyez(Label_választék_száma_, {csúszka.left() + 5080, csúszka.top(), 400, sor});
    auto *típusok = new QButtonGroup(this);
    for (int i = 0; i < 2; ++i) {
        QRadioButton *gomb = Opt_megoldástípus_[static_cast<size_t>(i)];
        elhelyez(gomb, sor_keretben(egyébkeret, i + 1));
        típusok->addButton(gomb, i);
    }
    elhelyez(cmd_ok_, {120, gombok_teteje, sorszélesség / 2 - 90, sor});
    elhelyez(cmd_mégsem_, {120 + sorszélesség / 2 + 90, gombok_teteje, sorszélesség / 2 - 90, sor});
}

void választás_beáll::betölt() {
    irány_.kijelöl(k_.beállítások.beállításolvas(*this, nyelv_kulcs, iránygombok::alap).toInt());
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

void választás_beáll::cmd_ok_Click() {
    ment();
    újrakezd_();
    hide();
}

void választás_beáll::cmd_mégsem_Click() {
    betölt();
    hide();
}

void választás_beáll::closeEvent(QCloseEvent *event) {
    cmd_mégsem_Click();
    event->accept();
}
