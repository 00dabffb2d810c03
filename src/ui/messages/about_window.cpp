#include "ui/messages/about_window.h"

#include <QIcon>
#include <utility>

#include "ui/controls/named.h"
#include "ui/drawing/fonts.h"

using namespace Qt::StringLiterals;

namespace {

// The design, in twips.
constexpr double szél = 120;
constexpr double tervszélesség = 6400;
constexpr double ikonméret = 900;
constexpr QRectF ikonhely(szél, szél, ikonméret, ikonméret);
constexpr QRectF címhely(1200, szél, tervszélesség - 1080, 480);
constexpr QRectF verzióhely(1200, 640, tervszélesség - 1080, 340);
constexpr double leírások_teteje = 1140;
constexpr double leírásmagasság = 520;
constexpr QSizeF gombméret(1900, 420);
constexpr double képernyőrész = 0.5;
/// Of the letters of the other controls.
constexpr double cím_aránya = 1.4;

QStringList leírások() {
    return {u"Szótárprogram szószedetkészítési lehetőséggel, szótanuló feladatokkal. "_s,
            u"Készítették a Zimbora fejlesztői, angolul tanuló magyaroknak."_s,
            u"Szabad szoftver: a GNU GPL 3.0 vagy későbbi változata szerint bárki használhatja, "
            "továbbadhatja és átalakíthatja."_s,
            u"A két szótár a FreeDict angol–magyar és magyar–angol szótárából készült."_s};
}

}  // namespace

frmAbout::frmAbout(const Module_hasznos &hasznos, const ablak &főablak, const QString &program, const QString &verzió,
                   std::function<void()> rendszeradatok)
    : ablak(u"frmAbout"_s),
      picIcon_(named(new PictureBox, u"picIcon", u"A program ikonja")),
      lblTitle_(named(new QLabel(u"Angol-Magyar, Magyar-Angol Szótár"_s), u"lblTitle")),
      lblVersion_(named(new QLabel(u"Version: "_s + verzió), u"lblVersion")),
      cmdOK_(named(new QPushButton(u"Ok"_s), u"cmdOK", u"Ok")),
      cmdSysInfo_(named(new QPushButton(u"&System Info..."_s), u"cmdSysInfo", u"Rendszeradatok")) {
    setWindowTitle(u"Névjegy"_s);
    elhelyezés();
    connect(cmdOK_, &QPushButton::clicked, this, [this] { close(); });
    connect(cmdSysInfo_, &QPushButton::clicked, this, std::move(rendszeradatok));
    alapgombbeállít(cmdOK_);
    mégsegombbeállít(cmdOK_);
    hasznos.öltöztet(*this, főablak, képernyőrész);
    QFont nagy = lblTitle_->font();
    fonts::set_points(nagy, fonts::points(nagy) * cím_aránya);
    lblTitle_->setFont(nagy);
    picIcon_->set_picture(windowIcon().pixmap(picIcon_->size(), devicePixelRatioF()));
    setWindowTitle(u"About "_s + program);
}

void frmAbout::elhelyezés() {
    elhelyez(picIcon_, ikonhely);
    elhelyez(lblTitle_, címhely);
    elhelyez(lblVersion_, verzióhely);
    double fent = leírások_teteje;
    for (const QString &leírás : leírások()) {
        auto *címke = new QLabel(leírás);
        címke->setObjectName(u"lblDescription(%1)"_s.arg(lblDescription_.size()));
        címke->setWordWrap(true);
        lblDescription_.append(címke);
        elhelyez(címke, {szél, fent, tervszélesség, leírásmagasság});
        fent += leírásmagasság;
    }
    fent += szél;
    elhelyez(cmdSysInfo_, {{szél, fent}, gombméret});
    elhelyez(cmdOK_, {{szél + tervszélesség - gombméret.width(), fent}, gombméret});
    // The button for leaving comes first.
    cmdOK_->setFocus();
}
