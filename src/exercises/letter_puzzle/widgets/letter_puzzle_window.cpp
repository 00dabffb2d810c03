#include "exercises/letter_puzzle/widgets/letter_puzzle_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <utility>

#include "exercises/common/widgets/game_menu.h"
#include "ui/controls/arrow_walk.h"
#include "ui/controls/named.h"
#include "ui/drawing/fonts.h"
#include "ui/drawing/twips.h"

using namespace Qt::StringLiterals;

namespace {

// The design, in twips.
constexpr QRectF főcímhely(120, 120, 9760, 560);
constexpr QRectF feladványhely(120, 800, 9760, 900);
constexpr QRectF nyelvhely(120, 1820, 4000, 420);
constexpr QRectF kerethely(120, 2300, 9760, 3600);
constexpr QRectF infóhely(120, 6020, 2600, 640);
constexpr QRectF okhely(6900, 6020, 2980, 640);

constexpr qint16 üzenetidő = 2000;

/// Letters in the size that is tried first have this part of the frame's height.
constexpr double betűmagasság = 0.14;
constexpr int legkisebb_pont = 7;
/// Smaller letters in one row are hard to read; larger ones in several rows are not.
constexpr int egy_sor_pontja = 14;
/// Ctrl and an arrow key move a tile by its own size, with Shift by this part of its height.
constexpr double lépés = 0.25;

}  // namespace

frm_kirakó::frm_kirakó(const feladatkörnyezet &környezet)
    : ablak(u"frm_kirakó"_s, menü::van),
      k_(környezet),
      játék_(k_.szószedet.párok(), k_.véletlen),
      Label_főcím_(named(new QLabel(u"Rakd ki a szót az összekevert betűkből!"_s), u"Label_főcím")),
      pic_feladvány_(named(new PictureBox, u"pic_feladvány", u"Kérdés")),
      Label1_(named(new QLabel, u"Label1")),
      pic_keret_(named(new ChoosablePicture, u"pic_keret", u"A betűk kerete")),
      cmd_ok_(named(new QPushButton(u"Ok"_s), u"cmd_ok", u"Ok, ellenőrzés")),
      Label_info_(named(new QLabel, u"Label_info")),
      beállító_([this] { return std::make_unique<frm_kirakó_beáll>(k_); }) {
    setWindowTitle(u"Kirakó"_s);
    játékmenüt_rak(*this, {{u"mnu_fájl_újrakezd", u"&Újrakezd"_s, [this] { újrakezd(); }},
                           {u"mnu_fájl_beáll", u"&Beállítások"_s, [this] { mnu_fájl_beáll_Click(); }},
                           {u"mnu_fájl_elválaszt", {}, {}},
                           {u"mnu_fájl_kilép", u"&Kilép"_s, [this] { close(); }}});
    connect(cmd_ok_, &QPushButton::clicked, this, [this] { cmd_ok_Click(); });
    connect(pic_keret_, &ChoosablePicture::chosen, this, [this] { pic_keret_Click(); });
    alapgombbeállít(cmd_ok_);
    escapezár();
    elhelyezés();
    elrendez();
    újrakezd();
}

void frm_kirakó::elhelyezés() {
    elhelyez(Label_főcím_, főcímhely);
    elhelyez(pic_feladvány_, feladványhely);
    elhelyez(Label1_, nyelvhely);
    elhelyez(pic_keret_, kerethely);
    elhelyez(cmd_ok_, okhely);
    elhelyez(Label_info_, infóhely);
    Label_főcím_->setAlignment(Qt::AlignCenter);
    Label_info_->setAlignment(Qt::AlignCenter);
    // A tile leaves the space key to the frame, which closes the tiles up.
    pic_keret_->setFocusPolicy(Qt::NoFocus);
}

void frm_kirakó::elrendez() {
    k_.közös.hasznos.öltöztet(*this, k_.közös.főablak, 0.9);
    Module_hasznos::szövegbeigazít(*Label_főcím_, QString());
    Module_hasznos::szövegbeigazít(*cmd_ok_, QString());
    lapok_ = betűlapok(pic_keret_->inner_size());
}

void frm_kirakó::újrakezd() {
    játék_.újrakezd();
    következő();
}

void frm_kirakó::következő() {
    vége_ = !játék_.következő(beállító_.get().merre());
    if (!vége_)
        kérdez();
    kihagyottakat_mond();
    if (vége_)
        close();
}

void frm_kirakó::kihagyottakat_mond() {
    const int hosszúak = játék_.hosszúak();
    if (hosszúak > 0)
        k_.üzenetmutat(üzenetidő, {hosszúak == 1 ? u"Egy szó kimaradt,"_s : u"%1 szó kimaradt,"_s.arg(hosszúak),
                                   u"mert %1 betűnél hosszabb."_s.arg(kirakójáték::legtöbb_betű)});
    else if (játék_.semmi_kérdezhető())
        k_.üzenetmutat(üzenetidő,
                       {u"Sajnos ehhez a játékhoz"_s, u"olyan szópár kell,"_s, u"amelynek mindkét oldala megvan!"_s});
}

void frm_kirakó::kérdez() {
    Module_hasznos::szövegbeigazít(*pic_feladvány_, játék_.kérdés());
    pic_feladvány_->setAccessibleDescription(játék_.kérdés());
    const bool magyarul = játék_.kérdésnyelve() == kérdésnyelv::angol;
    Module_hasznos::szövegbeigazít(*Label1_, magyarul ? u"Magyarul:"_s : u"Angolul:"_s);
    Module_hasznos::szövegbeigazít(*Label_info_, játék_.számláló());
    betűket_rak();
}

void frm_kirakó::betűket_rak() {
    qDeleteAll(Label_betű_);
    Label_betű_.clear();
    QFont betűtípus(QStringList{fonts::times_new_roman});
    const auto mér = [&](const QString &betű, int pont) {
        fonts::set_points(betűtípus, pont);
        return LetterTile::size_of(betű, betűtípus);
    };
    const int nagy = static_cast<int>(pic_keret_->inner_size().height() * betűmagasság / twips::per_point);
    fonts::set_points(betűtípus, lapok_.kirak(játék_.betűk(), mér, nagy, legkisebb_pont, k_.véletlen, egy_sor_pontja));
    for (int i = 0; i < lapok_.lapok().size(); ++i) {
        auto *lap = new LetterTile(lapok_.lapok()[i].betű, pic_keret_);
        lap->setObjectName(u"Label_betű(%1)"_s.arg(i));
        lap->setAccessibleName(lap->text() == u"_" ? u"szóköz"_s : lap->text() + u" betű"_s);
        lap->setFont(betűtípus);
        connect(lap, &LetterTile::mouse_pressed, this, [this](const QPointF &hol) { Label_betű_MouseDown(hol); });
        connect(lap, &LetterTile::mouse_moved, this,
                [this, i](Qt::MouseButtons gombok, const QPointF &hol) { Label_betű_MouseMove(i, gombok, hol); });
        Label_betű_.append(lap);
        lap->show();
    }
    lapokat_igazít()->setFocus();
}

QWidget *frm_kirakó::lapokat_igazít() {
    QVector<LetterTile *> balról;
    for (int i = 0; i < Label_betű_.size(); ++i) {
        Label_betű_[i]->setGeometry(twips::to_pixels(lapok_.lapok()[i].hely));
        balról.append(Label_betű_[i]);
    }
    // In the order of the letters, Tab and assistive programs would give the answer away.
    std::stable_sort(balról.begin(), balról.end(), [](const auto *a, const auto *b) { return a->x() < b->x(); });
    for (qsizetype i = 0; i < balról.size(); ++i) {
        balról[i]->raise();
        setTabOrder(balról[i], i + 1 < balról.size() ? static_cast<QWidget *>(balról[i + 1]) : cmd_ok_);
    }
    return balról.isEmpty() ? static_cast<QWidget *>(cmd_ok_) : balról.front();
}

QString frm_kirakó::kirakott_szó() {
    const QString szó = lapok_.kirakott_szó();
    lapokat_igazít();
    return szó;
}

void frm_kirakó::mozgat(int i, const QPointF &hová) {
    lapok_.mozgat(i, hová);
    Label_betű_[i]->setGeometry(twips::to_pixels(lapok_.lapok()[i].hely));
    Label_betű_[i]->raise();
}

void frm_kirakó::Label_betű_MouseMove(int i, Qt::MouseButtons gombok, const QPointF &hol) {
    if (gombok == Qt::LeftButton)
        mozgat(i, lapok_.lapok()[i].hely.topLeft() + hol - fogás_);
}

void frm_kirakó::cmd_ok_Click() {
    if (vége_)
        return;
    if (játék_.ellenőriz(kirakott_szó())) {
        k_.üzenetmutat(üzenetidő, {játék_.pár().angol + u" - "_s + játék_.pár().magyar});
        // The program may have ended meanwhile.
        if (isVisible())
            következő();
        return;
    }
    k_.üzenetmutat(üzenetidő, {u"Ez sajnos nem jó!"_s, u" "_s, u"Kérlek, próbáld újra!"_s});
}

void frm_kirakó::mnu_fájl_beáll_Click() {
    beállító_.get().mutatmodálisan();
}

void frm_kirakó::keyPressEvent(QKeyEvent *event) {
    const auto i = static_cast<int>(Label_betű_.indexOf(focusWidget()));
    if ((i < 0 || !nyíl(*event, i)) && !gépelés(*event))
        ablak::keyPressEvent(event);
}

bool frm_kirakó::gépelés(const QKeyEvent &billentyű) {
    if (billentyű.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier) || billentyű.isAutoRepeat())
        return false;
    const bool vissza = billentyű.key() == Qt::Key_Backspace;
    const QString jel = billentyű.text();
    if (!vissza && (jel.isEmpty() || !jel.front().isPrint() || jel.front().isSpace()))
        return false;
    const int i = vissza ? lapok_.visszavesz() : lapok_.gépel(jel);
    if (i < 0)
        return false;
    lapokat_igazít();
    Label_betű_[i]->raise();
    Label_betű_[i]->setFocus();
    return true;
}

bool frm_kirakó::nyíl(const QKeyEvent &billentyű, int i) {
    const auto gomb = static_cast<Qt::Key>(billentyű.key());
    const QPointF merre = arrow_direction(gomb);
    if (merre.isNull())
        return false;
    if (billentyű.modifiers() & Qt::ControlModifier) {
        const QRectF hely = lapok_.lapok()[i].hely;
        const double finom = std::round(lépés * hely.height());
        const QSizeF mennyit = billentyű.modifiers() & Qt::ShiftModifier ? QSizeF(finom, finom) : hely.size();
        mozgat(i, hely.topLeft() + QPointF(merre.x() * mennyit.width(), merre.y() * mennyit.height()));
        return true;
    }
    QVector<QRect> helyek;
    for (const LetterTile *lap : std::as_const(Label_betű_))
        helyek.append(lap->geometry());
    const int hová = arrow_leads_to(gomb, helyek, i);
    if (hová >= 0)
        Label_betű_[hová]->setFocus();
    return true;
}

void frm_kirakó::showEvent(QShowEvent *event) {
    ablak::showEvent(event);
    // Not before the window has been shown: the system would show it all the same.
    if (vége_)
        QTimer::singleShot(0, this, [this] { close(); });
}

void frm_kirakó::closeEvent(QCloseEvent *event) {
    beállító_.unload();
    event->accept();
}
