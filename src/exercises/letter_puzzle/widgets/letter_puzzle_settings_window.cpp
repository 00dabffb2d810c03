#include "exercises/letter_puzzle/widgets/letter_puzzle_settings_window.h"

#include "ui/controls/named.h"

using namespace Qt::StringLiterals;

namespace {

const QString nyelv_kulcs = u"nyelv"_s;

}  // namespace

frm_kirakó_beáll::frm_kirakó_beáll(const feladatkörnyezet &környezet)
    : feladatbeállító(környezet, u"frm_kirakó_beáll"_s, u"Kirakó - Beállítások"_s),
      keret_nyelv_(named(new QGroupBox(u"A kikérdezés nyelve"_s), u"keret_nyelv", u"A kikérdezés nyelve")) {
    const QRectF nyelvkeret = keret(keretszéle, static_cast<int>(irány_.nyelvoptb.size()));
    elhelyez(keret_nyelv_, nyelvkeret);
    irány_.elhelyez(*this, [&](int i) { return sor(nyelvkeret, i); });
    elkészül(nyelvkeret.bottom() + keretszéle);
}

void frm_kirakó_beáll::betölt() {
    irány_.kijelöl(k_.beállítások.beállításolvas(*this, nyelv_kulcs, iránygombok::alap));
}

void frm_kirakó_beáll::ment() {
    k_.beállítások.beállításment(*this, nyelv_kulcs, static_cast<int>(merre()));
}
