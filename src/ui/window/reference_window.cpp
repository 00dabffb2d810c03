#include "ui/window/reference_window.h"

#include <QIcon>

using namespace Qt::StringLiterals;

namespace {

constexpr QColor papírszín(0xe9, 0xef, 0xf4);
constexpr int zeneköz = 1000;  // milliseconds

}  // namespace

frm_referencia::frm_referencia() : ablak(u"frm_referencia"_s), Timer_zene_(new QTimer(this)) {
    QIcon ikon;
    for (const int size : {16, 32, 48, 256})
        ikon.addFile(u":/icon/zimbora-%1.png"_s.arg(size), QSize(size, size));
    setWindowIcon(ikon);
    háttérszínbeállít(papírszín);
    Timer_zene_->setObjectName(u"Timer_zene"_s);
    Timer_zene_->start(zeneköz);
}
