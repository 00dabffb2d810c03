#include "ui/window/window_fitting.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QGroupBox>
#include <QIcon>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QStringList>
#include <algorithm>

#include "ui/drawing/fonts.h"
#include "ui/drawing/twips.h"
#include "ui/window/colour_copy.h"
#include "ui/window/text_lines.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double margó = 120;

constexpr double tervezett_pont = 9;
/// The menus grow with the screen too, but less: they are read one word at a time.
constexpr double menü_aránya = 0.8;

/// The screen on which dialogs of the toolkit have letters of the design, in twips.
constexpr QSizeF tervezett_képernyő(1024 * twips::per_pixel, 768 * twips::per_pixel);

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
    return szöveg.replace(u"&&"_s, u"\u0001"_s).remove(u'&').replace(u"\u0001"_s, u"&"_s);
}

constexpr int legkisebb_pont = 8;
constexpr int felirat_legkisebb_pontja = 6;
/// In a smaller size a line is hard to read from where one sits; a text of several words is broken into lines then.
constexpr int olvasható_pont = 14;
/// So is a line that leaves most of a high box empty: one that is lower than this part of it.
constexpr double olvasható_rész = 1.0 / 5;
/// No picture box holds more letters that could be read.
constexpr int leghosszabb = 600;

QString rövidített(const QString &szöveg) {
    return szöveg.size() > leghosszabb ? szöveg.left(leghosszabb) + u'…' : szöveg;
}

void képbe(PictureBox &hova, const QString &szöveg) {
    hova.clear();
    const QString kiírt = szöveg.isEmpty() ? u"Kéne írni ide valamit!"_s : szöveg;
    const QString látszó = rövidített(kiírt);
    const QSizeF hely = hova.inner_size();
    const Betűpróba próba(hova.font());
    const int egy_sorban = próba.legnagyobb(látszó, hely, legkisebb_pont);
    Betördelt kész{látszó, static_cast<double>(egy_sorban)};
    const double olvasható = std::max<double>(olvasható_pont, hely.height() / twips::per_point * olvasható_rész);
    if (egy_sorban < olvasható && (látszó.contains(u' ') || egy_sorban < legkisebb_pont))
        kész = sorokban(látszó, hely, std::max(egy_sorban, legkisebb_pont), olvasható_pont, próba);
    hova.setFont(próba.betű(kész.pont));
    const QSizeF végső = PictureBox::text_size(kész.sorok, hova.font());
    // A line of letters without descenders looks centred then; one of several would lose its feet.
    const bool csupa_nagybetű = kész.sorok == kész.sorok.toUpper() && !kész.sorok.contains(u'\n');
    const double közép = csupa_nagybetű ? hely.height() * 0.6 : hely.height() / 2;
    hova.print({hely.width() / 2 - végső.width() / 2, közép - végső.height() / 2}, kész.sorok);
    hova.setProperty("tag", kiírt);
}

void feliratba(QWidget &hova, const QString &szöveg) {
    const QString kiírt = szöveg.isEmpty() ? felirat(hova) : szöveg;
    const QSizeF hely(twips::from_pixels(0.9 * hova.width()), twips::from_pixels(0.9 * hova.height()));
    const Betűpróba próba(hova.font());
    hova.setFont(próba.betű(próba.legnagyobb(látható(kiírt), hely, felirat_legkisebb_pontja) + 1));
    feliratbeállít(hova, kiírt);
}

}  // namespace

Module_hasznos::Module_hasznos(const frm_referencia &referencia, std::function<QRectF()> képernyő)
    : referencia_(referencia), képernyő_(std::move(képernyő)) {}

double Module_hasznos::öltöztet(ablak &mit, const ablak &főablak, double arány, betűk milyen) const {
    global::színmásol(mit, főablak);
    const double szorzó = ablakméretez(mit, arány);
    if (milyen == betűk::méretezve)
        betűméretez(mit, szorzó);
    ablakstílus(mit);
    return szorzó;
}

double Module_hasznos::ablakméretez(ablak &mit, double arány) const {
    körülvesz(mit);
    const QSizeF képernyő = képernyő_().size();
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

void Module_hasznos::betűméretez(ablak &mit, double szorzó) {
    for (QWidget *vezérlő : mit.vezérlők()) {
        QFont betű = vezérlő->font();
        fonts::set_points(betű, tervezett_pont * szorzó);
        vezérlő->setFont(betű);
    }
    if (!mit.menüsor())
        return;
    QFont menübetű = mit.menüsor()->font();
    fonts::set_points(menübetű, tervezett_pont * std::max(1.0, szorzó * menü_aránya));
    mit.menüsor()->setFont(menübetű);
    for (QMenu *menü : mit.menüsor()->findChildren<QMenu *>())
        menü->setFont(menübetű);
    // The menu bar has another height now.
    mit.méretez(mit.szélesség(), mit.magasság());
}

double Module_hasznos::párbeszédpont() const {
    const QSizeF képernyő = képernyő_().size();
    return tervezett_pont * std::max(1.0, std::min(képernyő.width() / tervezett_képernyő.width(),
                                                   képernyő.height() / tervezett_képernyő.height()));
}

void Module_hasznos::ablakstílus(ablak &mit) const {
    mit.középre(képernyő_());
    mit.setWindowIcon(referencia_.windowIcon());
    mit.háttérszínbeállít(referencia_.háttérszín());
    mit.setWindowTitle(referencia_.felirat() + u" - "_s + mit.windowTitle());
    for (QWidget *vezérlő : mit.vezérlők())
        vezérlőstílus(*vezérlő, mit);
}

void Module_hasznos::szövegbeigazít(QWidget &hova, const QString &szöveg) {
    if (auto *kép = dynamic_cast<PictureBox *>(&hova))
        képbe(*kép, szöveg);
    else
        feliratba(hova, szöveg);
}

QString Module_hasznos::sorokra(const PictureBox &hova, const QString &szöveg, double pont) {
    const Betűpróba próba(hova.font());
    const QSizeF hely = hova.inner_size();
    QStringList sorok = tördelt(rövidített(szöveg), hely.width(), pont, próba);
    const auto elférő =
        std::max<qsizetype>(1, static_cast<qsizetype>(hely.height() / próba.méret(pont, szöveg).height()));
    if (sorok.size() > elférő) {
        sorok.resize(elférő);
        while (!sorok.back().isEmpty() && próba.méret(pont, sorok.back() + u'…').width() >= hely.width())
            sorok.back().chop(1);
        sorok.back() += u'…';
    }
    return sorok.join(u'\n');
}

void Module_hasznos::szövegbeigazít(QWidget &hova, double szám) {
    szövegbeigazít(hova, QString::number(szám, 'g', 15).trimmed());
}
