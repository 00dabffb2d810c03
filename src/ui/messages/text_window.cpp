#include "ui/messages/text_window.h"

#include "ui/controls/named.h"

using namespace Qt::StringLiterals;

namespace {

// The design, in twips.
constexpr QRectF szöveghely(120, 120, 8000, 4600);
constexpr QRectF gombhely(3270, 4840, 1700, 560);

constexpr double képernyőrész = 0.9;

}  // namespace

frm_üzenet::frm_üzenet(const Module_hasznos &hasznos, const ablak &főablak)
    : ablak(u"frm_üzenet"_s),
      hasznos_(hasznos),
      főablak_(főablak),
      txt_üzenet_(named(new QPlainTextEdit, u"txt_üzenet", u"Üzenet")),
      cmd_ok_(named(new QPushButton(u"Ok"_s), u"cmd_ok", u"Ok")) {
    elhelyez(txt_üzenet_, szöveghely);
    elhelyez(cmd_ok_, gombhely);
    txt_üzenet_->setReadOnly(true);
    txt_üzenet_->setTabChangesFocus(true);
    connect(cmd_ok_, &QPushButton::clicked, this, [this] { close(); });
    alapgombbeállít(cmd_ok_);
    mégsegombbeállít(cmd_ok_);
}

void frm_üzenet::mutat(const QString &felirat, const QString &szöveg) {
    setWindowTitle(felirat);
    hasznos_.öltöztet(*this, főablak_, képernyőrész);
    Module_hasznos::szövegbeigazít(*cmd_ok_, QString());
    txt_üzenet_->setPlainText(szöveg);
    cmd_ok_->setFocus();
    mutatmodálisan();
}
