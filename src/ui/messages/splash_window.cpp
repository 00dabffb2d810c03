#include "ui/messages/splash_window.h"

#include <QFontMetrics>
#include <QIcon>

#include "ui/controls/named.h"
#include "ui/drawing/fonts.h"

using namespace Qt::StringLiterals;

namespace {

// The design, in twips.
constexpr QRectF kerethely(120, 120, 7000, 3400);
constexpr QRectF logóhely(420, 700, 1900, 1900);
constexpr double szövegek_bal_széle = 2620;
constexpr double szövegszélesség = 4300;

QRectF szöveghely(double fent, double magas) {
    return {szövegek_bal_széle, fent, szövegszélesség, magas};
}

constexpr double képernyőrész = 0.5;

/// Fitting ends with the first size that takes nine tenths of the label. The step to it is larger than the tenth that
/// is left when letters are small, as on a small screen: then a smaller one.
void egészben(QLabel &címke) {
    const auto elfér = [&címke](const QFont &betű) {
        const QFontMetrics méretek(betű);
        return méretek.horizontalAdvance(címke.text()) <= címke.width() && méretek.height() <= címke.height();
    };
    QFont betű = címke.font();
    for (double pont = fonts::points(betű) - 1; pont >= 1 && !elfér(betű); --pont)
        fonts::set_points(betű, pont);
    címke.setFont(betű);
}

}  // namespace

FrmFolyamat::FrmFolyamat(const Module_hasznos &hasznos, const QString &verzió, const QString &rendszer)
    : ablak(u"FrmFolyamat"_s, menü::nincs, keret::nincs),
      Frame1_(named(new QFrame, u"Frame1", u"Indulás")),
      lblCompany_(named(new QLabel(u"A Zimbora fejlesztői"_s), u"lblCompany")),
      lblCompanyProduct_(named(new QLabel(u"Angol-Magyar, Magyar-Angol Szótár"_s), u"lblCompanyProduct")),
      lblProductName_(named(new QLabel(u"Zimbora"_s), u"lblProductName")),
      lblPlatform_(named(new QLabel(rendszer), u"lblPlatform")),
      lblVersion_(named(new QLabel(verzió + u" verzió"_s), u"lblVersion")),
      lblMaker_(named(new QLabel(u"A programkönyvtár első indításkor készül el."_s), u"lblMaker")),
      imgLogo_(named(new PictureBox, u"imgLogo", u"A program ikonja")) {
    Frame1_->setFrameStyle(QFrame::Box | QFrame::Plain);
    elhelyez(Frame1_, kerethely);
    elhelyez(imgLogo_, logóhely);
    elhelyez(lblCompanyProduct_, szöveghely(420, 420));
    elhelyez(lblProductName_, szöveghely(900, 900));
    elhelyez(lblVersion_, szöveghely(1860, 360));
    elhelyez(lblPlatform_, szöveghely(2220, 360));
    elhelyez(lblCompany_, szöveghely(2580, 360));
    elhelyez(lblMaker_, szöveghely(3000, 360));
    hasznos.ablakméretez(*this, képernyőrész);
    hasznos.ablakstílus(*this);
    const auto címkék = {lblCompanyProduct_, lblProductName_, lblVersion_, lblPlatform_, lblCompany_, lblMaker_};
    for (QLabel *címke : címkék)
        Module_hasznos::szövegbeigazít(*címke, QString());
    QFont betű = lblMaker_->font();
    betű.setFamilies({fonts::times_new_roman_ce});
    lblMaker_->setFont(betű);
    for (QLabel *címke : címkék)
        egészben(*címke);
    // The part of the title that other windows begin with is not known yet.
    setWindowTitle(u"Zimbora"_s);
    imgLogo_->set_background(háttérszín());
    imgLogo_->set_picture(windowIcon().pixmap(imgLogo_->size(), devicePixelRatioF()));
}
