#include "exercises/common/widgets/settings_window.h"

#include <QCloseEvent>
#include <QRadioButton>

#include "ui/controls/named.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double képernyőrész = 0.6;
constexpr double sorköz = 470;
constexpr double keret_teteje = 380;
constexpr double keret_alja = 110;
constexpr double gombköz = 180;

}  // namespace

feladatbeállító::feladatbeállító(const feladatkörnyezet &környezet, const QString &név, const QString &felirat)
    : ablak(név),
      k_(környezet),
      cmd_ok_(named(new QPushButton(u"Ok"_s), u"cmd_ok", u"Ok, mentés")),
      cmd_mégsem_(named(new QPushButton(u"Mégsem"_s), u"cmd_mégsem", u"Mégsem")) {
    setWindowTitle(felirat);
    connect(cmd_ok_, &QPushButton::clicked, this, [this] { cmd_ok_Click(); });
    connect(cmd_mégsem_, &QPushButton::clicked, this, [this] { cmd_mégsem_Click(); });
}

QRectF feladatbeállító::keret(double fent, int sorok) {
    return {keretszéle, fent, keretszélessége, keret_teteje + sorok * sorköz + keret_alja};
}

QRectF feladatbeállító::sor(const QRectF &keret, int hányadik) {
    return {keret.left() + 240, keret.top() + keret_teteje + hányadik * sorköz, keret.width() - 480, sormagasság};
}

void feladatbeállító::elkészül(double fent) {
    const QSizeF méret((keretszélessége - gombköz) / 2, sormagasság);
    elhelyez(cmd_ok_, {{keretszéle, fent}, méret});
    elhelyez(cmd_mégsem_, {{keretszéle + méret.width() + gombköz, fent}, méret});
    alapgombbeállít(cmd_ok_);
    mégsegombbeállít(cmd_mégsem_);
    k_.közös.hasznos.öltöztet(*this, k_.közös.főablak, képernyőrész);
    betölt();
}

void feladatbeállító::showEvent(QShowEvent *event) {
    ablak::showEvent(event);
    // The arrow keys go on from what is chosen.
    for (QWidget *vezérlő : vezérlők()) {
        const auto *gomb = qobject_cast<QRadioButton *>(vezérlő);
        if (gomb && gomb->isChecked()) {
            vezérlő->setFocus();
            return;
        }
    }
}

void feladatbeállító::cmd_ok_Click() {
    ment();
    elfogad();
}

void feladatbeállító::cmd_mégsem_Click() {
    betölt();
    hide();
}

void feladatbeállító::closeEvent(QCloseEvent *event) {
    cmd_mégsem_Click();
    event->accept();
}
