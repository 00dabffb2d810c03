#include "ui/window/reference_window.h"

#include <QIcon>

namespace {

constexpr QColor papírszín(0xe9, 0xef, 0xf4);
constexpr int zeneköz = 1000;  // milliseconds

}  // namespace

frm_referencia::frm_referencia() : ablak(QStringLiteral("frm_referencia")), Timer_zene_(new QTimer(this)) {
    QIcon ikon;
    for (const int size : {16, 32, 48, 256})
        ikon.addFile(QStringLiteral(":/icon/zimbora-%1.png").arg(size), QSize(size, size));
    setWindowIcon(ikon);
    háttérszínbeállít(papírszín);
    Timer_zene_->setObjectName(QStringLiteral("Timer_zene"));
    Timer_zene_->start(zeneköz);
}
