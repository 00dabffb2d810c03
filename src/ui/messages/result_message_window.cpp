#include "ui/messages/result_message_window.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double margó = 120;
constexpr QSizeF sorméret(6000, 900);
constexpr QSizeF gombméret(1500, 600);

}  // namespace

üzenet::üzenet(const Module_hasznos &hasznos, const ablak &főablak, const QString &szószedet)
    : ablak(u"üzenet"_s),
      hasznos_(hasznos),
      főablak_(főablak),
      cmd_ok_(new QPushButton(u"Ok"_s)),
      Timer1_(new QTimer(this)) {
    setWindowTitle(szószedet + u" szószedet"_s);
    cmd_ok_->setObjectName(u"cmd_ok"_s);
    cmd_ok_->setAccessibleName(u"Ok"_s);
    connect(cmd_ok_, &QPushButton::clicked, this, [this] { cmd_ok_Click(); });
    Timer1_->setObjectName(u"Timer1"_s);
    Timer1_->setSingleShot(true);
    Timer1_->setTimerType(Qt::PreciseTimer);
    connect(Timer1_, &QTimer::timeout, this, [this] { Timer1_Timer(); });
    alapgombbeállít(cmd_ok_);
    mégsegombbeállít(cmd_ok_);
}

void üzenet::sorokat_rak(int darab) {
    double fent = margó;
    for (int i = 0; i < darab; ++i) {
        auto *sor = new PictureBox;
        sor->setObjectName(u"Pic_szöveg(%1)"_s.arg(i));
        Pic_szöveg_.append(sor);
        elhelyez(sor, QRectF(QPointF(margó, fent), sorméret));
        fent += sorméret.height();
    }
    elhelyez(cmd_ok_, QRectF(QPointF(margó + (sorméret.width() - gombméret.width()) / 2, fent + margó), gombméret));
}

void üzenet::üzenetmutat(qint16 ezredmásodperc, const QStringList &sorok) {
    Q_ASSERT(!sorok.isEmpty() && sorok.size() <= 255);
    sorokat_rak(static_cast<int>(sorok.size()));
    hasznos_.öltöztet(*this, főablak_, 0.7, Module_hasznos::betűk::beigazítva);
    Module_hasznos::szövegbeigazít(*cmd_ok_, QString());
    for (qsizetype i = 0; i < sorok.size(); ++i) {
        Pic_szöveg_[i]->set_background(háttérszín());
        Module_hasznos::szövegbeigazít(*Pic_szöveg_[i], sorok[i]);
        Pic_szöveg_[i]->setAccessibleName(sorok[i]);
    }
    Timer1_->start(ezredmásodperc);
    cmd_ok_->setFocus();
    mutatmodálisan();
    Timer1_->stop();
}

void üzenet::cmd_ok_Click() {
    close();
}

void üzenet::Timer1_Timer() {
    close();
}
