#include "ui/window_fitting.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QFontMetricsF>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <utility>

#include "ui/fonts.h"
#include "ui/twips.h"

namespace {

constexpr double margó = 120;

/// Fits the window round its controls.
void körülvesz(ablak &mit) {
    double alja = 0;
    double jobbja = 0;
    for (const QWidget *vezérlő : mit.vezérlők()) {
        const QRectF hely = mit.hely(vezérlő);
        alja = std::max(alja, hely.bottom());
        jobbja = std::max(jobbja, hely.right());
    }
    mit.méretez(jobbja + margó + mit.keretszélesség(), alja + margó + mit.keretmagasság());
}

void betűtípus(QWidget &vezérlő, const QString &név) {
    QFont betű = vezérlő.font();
    betű.setFamilies({név});
    vezérlő.setFont(betű);
}

void háttér(QWidget &vezérlő, const QPalette &minta) {
    QPalette színek = vezérlő.palette();
    színek.setColor(QPalette::Window, minta.color(QPalette::Window));
    vezérlő.setPalette(színek);
}

void vezérlőstílus(QWidget &vezérlő, const ablak &mit) {
    if (qobject_cast<QGroupBox *>(&vezérlő) || qobject_cast<QCheckBox *>(&vezérlő)) {
        háttér(vezérlő, vezérlő.parentWidget()->palette());
        betűtípus(vezérlő, fonts::times_new_roman_ce);
    } else if (qobject_cast<QRadioButton *>(&vezérlő)) {
        háttér(vezérlő, vezérlő.parentWidget()->palette());
    } else if (qobject_cast<QLabel *>(&vezérlő)) {
        if (mit.objectName() == u"frm_rajz")
            return;
        if (vezérlő.palette().color(QPalette::Window) != Qt::white)
            vezérlő.setAutoFillBackground(false);
        betűtípus(vezérlő, fonts::times_new_roman_ce);
    } else if (qobject_cast<QPushButton *>(&vezérlő)) {
        betűtípus(vezérlő, fonts::times_new_roman_ce);
    }
}

QString felirat(const QWidget &vezérlő) {
    if (const auto *címke = qobject_cast<const QLabel *>(&vezérlő))
        return címke->text();
    if (const auto *gomb = qobject_cast<const QAbstractButton *>(&vezérlő))
        return gomb->text();
    return {};
}

void feliratbeállít(QWidget &vezérlő, const QString &szöveg) {
    if (auto *címke = qobject_cast<QLabel *>(&vezérlő))
        címke->setText(szöveg);
    else if (auto *gomb = qobject_cast<QAbstractButton *>(&vezérlő))
        gomb->setText(szöveg);
}

/// What is seen of a caption: "&" only marks the key of the letter behind it.
QString látható(const QString &felirat) {
    QString szöveg = felirat;
    return szöveg.replace(QStringLiteral("&&"), QStringLiteral("\u0001"))
        .remove(u'&')
        .replace(QStringLiteral("\u0001"), QStringLiteral("&"));
}

}  // namespace

Module_hasznos::Module_hasznos(const frm_referencia &referencia, std::function<QSizeF()> képernyő)
    : referencia_(referencia), képernyő_(std::move(képernyő)) {}

double Module_hasznos::ablakméretez(ablak &mit, double arány) const {
    körülvesz(mit);
    const QSizeF képernyő = képernyő_();
    double szorzó = (képernyő.height() - mit.keretmagasság()) * arány / mit.belsőmagasság();
    if (mit.szélesség() * szorzó > képernyő.width() * arány)
        szorzó = (képernyő.width() - mit.keretszélesség()) * arány / mit.belsőszélesség();
    for (QWidget *vezérlő : mit.vezérlők()) {
        const QRectF hely = mit.hely(vezérlő);
        mit.elhelyez(vezérlő, QRectF(hely.topLeft() * szorzó, hely.size() * szorzó));
    }
    körülvesz(mit);
    return szorzó;
}

void Module_hasznos::ablakstílus(ablak &mit) const {
    mit.középre(képernyő_());
    mit.setWindowIcon(referencia_.windowIcon());
    mit.háttérszínbeállít(referencia_.háttérszín());
    mit.setWindowTitle(referencia_.felirat() + QStringLiteral(" - ") + mit.windowTitle());
    for (QWidget *vezérlő : mit.vezérlők())
        vezérlőstílus(*vezérlő, mit);
}

void Module_hasznos::szövegbeigazít(PictureBox &hova, const QString &szöveg) {
    hova.clear();
    const QString kiírt = szöveg.isEmpty() ? QStringLiteral("Kéne írni ide valamit!") : szöveg;
    const QSizeF hely = hova.inner_size();
    QFont betű = hova.font();
    betű.setFamilies({fonts::times_new_roman});
    double pont = 8;
    const auto méret = [&](double mekkora) {
        fonts::set_points(betű, mekkora);
        hova.setFont(betű);
        return hova.text_size(kiírt);
    };
    for (QSizeF egyik = méret(pont); egyik.width() < hely.width() && egyik.height() < hely.height();)
        egyik = méret(++pont);
    const QSizeF végső = méret(pont - 1);
    const bool csupa_nagybetű = kiírt == kiírt.toUpper();
    const double közép = csupa_nagybetű ? hely.height() * 0.6 : hely.height() / 2;
    hova.print({hely.width() / 2 - végső.width() / 2, közép - végső.height() / 2}, kiírt);
    hova.setProperty("tag", kiírt);
}

void Module_hasznos::szövegbeigazít(PictureBox &hova, double szám) {
    szövegbeigazít(hova, QString::number(szám).trimmed());
}

void Module_hasznos::szövegbeigazít(QWidget &hova, const QString &szöveg) {
    const QString kiírt = szöveg.isEmpty() ? felirat(hova) : szöveg;
    const QString látszó = látható(kiírt);
    QFont betű = hova.font();
    betű.setFamilies({fonts::times_new_roman});
    double pont = 6;
    const auto elfér = [&](double mekkora) {
        fonts::set_points(betű, mekkora);
        const QFontMetricsF méret(betű);
        return méret.horizontalAdvance(látszó) < 0.9 * hova.width() && méret.height() < 0.9 * hova.height();
    };
    while (elfér(pont))
        ++pont;
    hova.setFont(betű);
    feliratbeállít(hova, kiírt);
}
