#include "ui/messages/timed_text_window.h"

#include "ui/controls/named.h"

using namespace Qt::StringLiterals;

namespace {

// The design, in twips.
constexpr QRectF szöveghely(120, 120, 6000, 1800);
constexpr QRectF gombhely(2370, 2040, 1500, 560);

constexpr double képernyőrész = 0.6;

}  // namespace

frm_szövegüzenet::frm_szövegüzenet(const Module_hasznos &hasznos, const ablak &főablak)
    : ablak(u"frm_szövegüzenet"_s),
      pic_üzenet_(named(new PictureBox, u"pic_üzenet", u"Üzenet")),
      cmd_ok_(named(new QPushButton, u"cmd_ok", u"Ok")),
      timer_bezár_(new QTimer(this)) {
    setWindowTitle(u"Üzenet"_s);
    timer_bezár_->setObjectName(u"timer_bezár"_s);
    timer_bezár_->setSingleShot(true);
    connect(timer_bezár_, &QTimer::timeout, this, [this] { timer_bezár_Timer(); });
    connect(cmd_ok_, &QPushButton::clicked, this, [this] { cmd_ok_Click(); });
    alapgombbeállít(cmd_ok_);
    mégsegombbeállít(cmd_ok_);
    elhelyez(pic_üzenet_, szöveghely);
    elhelyez(cmd_ok_, gombhely);
    hasznos.öltöztet(*this, főablak, képernyőrész, Module_hasznos::betűk::beigazítva);
    pic_üzenet_->set_background(háttérszín());
    Module_hasznos::szövegbeigazít(*cmd_ok_, u"Ok"_s);
}

void frm_szövegüzenet::mutat(const QString &szöveg, int ezredmásodperc) {
    Module_hasznos::szövegbeigazít(*pic_üzenet_, szöveg);
    pic_üzenet_->setAccessibleDescription(szöveg);
    timer_bezár_->start(ezredmásodperc);
    cmd_ok_->setFocus();
    mutatmodálisan();
    timer_bezár_->stop();
}
