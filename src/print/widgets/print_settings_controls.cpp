#include "print/widgets/print_settings_controls.h"

#include <QButtonGroup>
#include <initializer_list>

#include "ui/controls/named.h"
#include "ui/controls/up_down.h"
#include "ui/drawing/svg_picture.h"

using namespace Qt::StringLiterals;

namespace {

// The design, in twips.
constexpr double margó = 120;
constexpr double köz = 180;
constexpr double sor = 420;
constexpr double keret_teteje = 380;
constexpr double keret_alja = 110;
constexpr double belül = 240;
constexpr double bal_szélesség = 5700;
constexpr double jobb_szélesség = 4200;
constexpr double jobb = margó + bal_szélesség + köz;
constexpr double teljes = bal_szélesség + köz + jobb_szélesség;

constexpr double keretek_teteje = margó + sor + 120;
constexpr double típusok = keret_teteje + 3 * sor + keret_alja;
constexpr double tájolások_teteje = keretek_teteje + típusok + 120;
constexpr double tájolások = keret_teteje + 760 + keret_alja;
constexpr double keretek_alja = tájolások_teteje + tájolások;

constexpr double cím = 300;
constexpr double minta = 1080;
constexpr double minták_teteje = keretek_alja + 150;
constexpr double mintaköz = cím + minta + 60;
constexpr double minták_alja = minták_teteje + 60 + 2 * mintaköz + 60;

constexpr double gombok_teteje = minták_alja + 150;
constexpr double gomb = 1200;
constexpr double gombmagasság = 340;

QString tömbelem(const char16_t *név, size_t i) {
    return u"%1(%2)"_s.arg(QString::fromUtf16(név)).arg(i);
}

template <class Vezérlő>
Vezérlő *elem(Vezérlő *vezérlő, const char16_t *név, size_t i, const QString &felolvasott) {
    vezérlő->setObjectName(tömbelem(név, i));
    vezérlő->setAccessibleName(felolvasott);
    return vezérlő;
}

template <class Vezérlő>
Vezérlő *hely(ablak &mire, Vezérlő *vezérlő, const QRectF &hol) {
    mire.elhelyez(vezérlő, hol);
    return vezérlő;
}

QRectF szószedetsor(int hányadik) {
    return {margó + belül, keretek_teteje + keret_teteje + 130 + hányadik * (sor + 230), bal_szélesség - 2 * belül,
            sor};
}

QRectF része(const QRectF &sora, double honnan, double szélesség) {
    return {sora.left() + honnan, sora.top(), szélesség, sora.height()};
}

QLabel *értékcímke(ablak &mire, const char16_t *név, const QRectF &sora) {
    auto *címke = hely(mire, named(new QLabel, név), {sora.left() + 2100, sora.top() + 40, 640, sora.height() - 80});
    címke->setAlignment(Qt::AlignCenter);
    return címke;
}

QSpinBox *számláló(ablak &mire, const char16_t *név, const char16_t *felolvasott, const QRectF &sora) {
    return hely(mire, named(static_cast<QSpinBox *>(new UpDown), név, felolvasott), része(sora, 2800, 360));
}

QComboBox *lista(const char16_t *név, const char16_t *felolvasott) {
    auto *doboz = named(new QComboBox, név, felolvasott);
    doboz->setMaxVisibleItems(20);
    // The names decide nothing about the window's width.
    doboz->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    return doboz;
}

template <size_t Darab>
void csoport(ablak &mire, const std::array<QRadioButton *, Darab> &gombok) {
    auto *egy = new QButtonGroup(&mire);
    for (size_t i = 0; i < Darab; ++i)
        egy->addButton(gombok[i], static_cast<int>(i));
    gombok[0]->setChecked(true);
}

void bejárás(const nyomtatásvezérlők &v) {
    QWidget *előző = v.list_nyomtatók;
    for (QWidget *következő : std::initializer_list<QWidget *>{
             v.list_betűtípus, v.Check_dőlt, v.Check_félkövér, v.UpDown_betűméret, v.UpDown_hasábszám,
             v.Option_nyomtatástípus[0], v.Option_nyomtatástípus[1], v.Option_nyomtatástípus[2], v.Option_tájolás[0],
             v.Option_tájolás[1], v.cmd_nyomtatásikép, v.cmd_nyomtat, v.cmd_mégsem}) {
        QWidget::setTabOrder(előző, következő);
        előző = következő;
    }
}

std::array<QRadioButton *, 3> típusgombok(ablak &mire) {
    constexpr std::array feliratok{u"Szószedet", u"Szópárok (egy lap egy szópár)", u"Szókártyák"};
    std::array<QRadioButton *, 3> gombok{};
    for (size_t i = 0; i < feliratok.size(); ++i) {
        const QString felirat = QString::fromUtf16(feliratok[i]);
        gombok[i] = hely(mire, elem(new QRadioButton(felirat), u"Option_nyomtatástípus", i, felirat),
                         {jobb + belül, keretek_teteje + keret_teteje + static_cast<double>(i) * sor,
                          jobb_szélesség - 2 * belül, sor});
    }
    csoport(mire, gombok);
    return gombok;
}

/// Half of the frame each: the picture, and the option to the right of it.
QRectF tájoláshely(size_t i) {
    const double fél = (jobb_szélesség - 2 * belül) / 2;
    return {jobb + belül + static_cast<double>(i) * fél, tájolások_teteje + keret_teteje, fél, 760};
}

std::array<QRadioButton *, 2> tájolásgombok(ablak &mire) {
    constexpr std::array feliratok{u"Álló", u"Fekvő"};
    std::array<QRadioButton *, 2> gombok{};
    for (size_t i = 0; i < feliratok.size(); ++i) {
        const QString felirat = QString::fromUtf16(feliratok[i]);
        const QRectF hol = tájoláshely(i);
        gombok[i] = hely(mire, elem(new QRadioButton(felirat), u"Option_tájolás", i, felirat),
                         {hol.left() + 820, hol.top() + (hol.height() - sor) / 2, hol.width() - 820, sor});
    }
    csoport(mire, gombok);
    return gombok;
}

std::array<ChoosablePicture *, 2> tájolásképek(ablak &mire) {
    constexpr std::array nevek{u"Álló lap képe", u"Fekvő lap képe"};
    std::array<ChoosablePicture *, 2> képek{};
    for (size_t i = 0; i < nevek.size(); ++i) {
        képek[i] = elem(new ChoosablePicture, u"Picture1", i, QString::fromUtf16(nevek[i]));
        // The option beside it takes the keyboard for both.
        képek[i]->setFocusPolicy(Qt::NoFocus);
        képek[i]->set_drag_mode(ChoosablePicture::DragMode::manual);
        hely(mire, képek[i], {tájoláshely(i).topLeft(), QSizeF(760, 760)});
    }
    return képek;
}

QFrame *mintakeret(ablak &mire) {
    auto *keret = named(new QFrame, u"Picture_container", u"Minták");
    keret->setFrameStyle(static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Sunken));
    return hely(mire, keret, {margó, minták_teteje, teljes, minták_alja - minták_teteje});
}

std::array<QLabel *, 2> mintacímek(ablak &mire) {
    constexpr std::array szövegek{u"Így néz ki majd az első szópár a nyomtatásban:",
                                  u"Így néznek majd ki az ékezetes betűk a nyomtatásban:"};
    std::array<QLabel *, 2> címek{};
    for (size_t i = 0; i < szövegek.size(); ++i) {
        címek[i] = new QLabel(QString::fromUtf16(szövegek[i]));
        címek[i]->setObjectName(tömbelem(u"Label5", i));
        hely(mire, címek[i], {margó + 120, minták_teteje + 60 + static_cast<double>(i) * mintaköz, teljes - 240, cím});
    }
    return címek;
}

std::array<PictureBox *, 2> mintaképek(ablak &mire) {
    constexpr std::array nevek{u"Az első szópár mintája", u"Az ékezetes betűk mintája"};
    std::array<PictureBox *, 2> képek{};
    for (size_t i = 0; i < nevek.size(); ++i)
        képek[i] =
            hely(mire, elem(new PictureBox, u"pic_minta", i, QString::fromUtf16(nevek[i])),
                 {margó + 120, minták_teteje + 60 + static_cast<double>(i) * mintaköz + cím, teljes - 240, minta});
    return képek;
}

QRectF gombhely(double honnan, double szélesség) {
    return {honnan, gombok_teteje, szélesség, gombmagasság};
}

}  // namespace

nyomtatásvezérlők::nyomtatásvezérlők(ablak &mire)
    : Label1(hely(mire, named(new QLabel(u"Nyomtató:"_s), u"Label1"), {margó, margó, 1300, sor})),
      list_nyomtatók(hely(mire, lista(u"list_nyomtatók", u"Nyomtató"), {margó + 1300, margó, teljes - 1300, sor})),
      Frame_szószedetbeállítás(hely(mire,
                                    named(new QGroupBox(u"A szószedet nyomtatásának beállításai"_s),
                                          u"Frame_szószedetbeállítás", u"A szószedet nyomtatásának beállításai"),
                                    {margó, keretek_teteje, bal_szélesség, keretek_alja - keretek_teteje})),
      Label2(hely(mire, named(new QLabel(u"Betűtípus:"_s), u"Label2"), része(szószedetsor(0), 0, 1300))),
      list_betűtípus(hely(mire, lista(u"list_betűtípus", u"Betűtípus"),
                          része(szószedetsor(0), 1300, szószedetsor(0).width() - 1300))),
      Check_dőlt(hely(mire, named(new QCheckBox(u"Dőlt"_s), u"Check_dőlt", u"Dőlt"), része(szószedetsor(1), 0, 1900))),
      Check_félkövér(hely(mire, named(new QCheckBox(u"Félkövér"_s), u"Check_félkövér", u"Félkövér"),
                          része(szószedetsor(1), 2100, 2400))),
      Label3(hely(mire, named(new QLabel(u"Betűméret:"_s), u"Label3"), része(szószedetsor(2), 0, 2000))),
      Label_betűméret(értékcímke(mire, u"Label_betűméret", szószedetsor(2))),
      UpDown_betűméret(számláló(mire, u"UpDown_betűméret", u"Betűméret", szószedetsor(2))),
      Label4(hely(mire, named(new QLabel(u"Hasábok száma:"_s), u"Label4"), része(szószedetsor(3), 0, 2000))),
      Label_hasábszám(értékcímke(mire, u"Label_hasábszám", szószedetsor(3))),
      UpDown_hasábszám(számláló(mire, u"UpDown_hasábszám", u"Hasábok száma", szószedetsor(3))),
      Frame1(hely(mire, named(new QGroupBox(u"A nyomtatás típusa"_s), u"Frame1", u"A nyomtatás típusa"),
                  {jobb, keretek_teteje, jobb_szélesség, típusok})),
      Option_nyomtatástípus(típusgombok(mire)),
      Frame2(hely(mire, named(new QGroupBox(u"Tájolás"_s), u"Frame2", u"Tájolás"),
                  {jobb, tájolások_teteje, jobb_szélesség, tájolások})),
      Option_tájolás(tájolásgombok(mire)),
      Picture1(tájolásképek(mire)),
      Picture_container(mintakeret(mire)),
      Label5(mintacímek(mire)),
      pic_minta(mintaképek(mire)),
      cmd_nyomtatásikép(hely(mire,
                             named(new QPushButton(u"Nyomtatási &kép..."_s), u"cmd_nyomtatásikép", u"Nyomtatási kép"),
                             gombhely(margó, 2400))),
      cmd_nyomtat(hely(mire, named(new QPushButton(u"&Nyomtat"_s), u"cmd_nyomtat", u"Nyomtat"),
                       gombhely(margó + teljes - 2 * gomb - köz, gomb))),
      cmd_mégsem(hely(mire, named(new QPushButton(u"Mégsem"_s), u"cmd_mégsem", u"Mégsem"),
                      gombhely(margó + teljes - gomb, gomb))) {
    UpDown_betűméret->setRange(8, 50);
    UpDown_betűméret->setSingleStep(2);
    UpDown_betűméret->setValue(14);
    UpDown_hasábszám->setRange(1, 3);
    bejárás(*this);
}

void nyomtatásvezérlők::képeket_rajzol(double képpontok) {
    constexpr std::array fájlok{":/print/portrait.svg", ":/print/landscape.svg"};
    for (size_t i = 0; i < fájlok.size(); ++i)
        Picture1[i]->set_picture(svg_picture(QString::fromLatin1(fájlok[i]), Picture1[i]->size(), képpontok));
}
