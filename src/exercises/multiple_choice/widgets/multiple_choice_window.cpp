#include "exercises/multiple_choice/widgets/multiple_choice_window.h"

#include <QCloseEvent>
#include <QKeyEvent>

#include "exercises/common/widgets/game_menu.h"
#include "state/number_text.h"
#include "ui/controls/named.h"

using namespace Qt::StringLiterals;

namespace {

// The design, in twips. Five candidates end where the buttons beside them end.
constexpr double köz = 120;
constexpr QRectF felirathely(120, 120, 9760, 560);
constexpr QRectF feladathely(120, 860, 4500, 1000);
constexpr QRectF kötőjelhely(4700, 860, 600, 1000);
constexpr QRectF megoldáshely(5380, 860, 4500, 1000);
constexpr QRectF kínálathely(120, 2100, 6200, 640);
constexpr QRectF infóhely(6600, 2100, 3280, 900);
constexpr QRectF okhely(6600, 4380, 3280, 640);
constexpr QRectF kiléphely(6600, 5140, 3280, 640);

constexpr int válaszidő = 1400;
constexpr qint16 üzenetidő = 3000;

ChoosablePicture *kínálatkép(int k) {
    auto *kép = new ChoosablePicture;
    kép->setObjectName(u"pic_kínálat(%1)"_s.arg(k));
    kép->setAccessibleName(u"%1. választható szó"_s.arg(k + 1));
    return kép;
}

}  // namespace

választás::választás(const feladatkörnyezet &környezet)
    : ablak(u"választás"_s, menü::van),
      k_(környezet),
      játék_(k_.szószedet.párok(), k_.véletlen),
      label_felirat_(named(new QLabel(u"Válaszd ki a megoldást, és helyezd a keretbe!"_s), u"label_felirat")),
      pic_feladat_(named(new PictureBox, u"pic_feladat", u"Kérdés")),
      pic_kötőjel_(named(new PictureBox, u"pic_kötőjel", u"Kötőjel")),
      pic_megoldás_(named(new ChoosablePicture, u"pic_megoldás", u"A kiválasztott megoldás kerete")),
      Label_info_(named(new QLabel, u"Label_info")),
      cmd_ok_(named(new QPushButton(u"Ok"_s), u"cmd_ok", u"Ok, ellenőrzés")),
      cmd_kilép_(named(new QPushButton(u"Kilép"_s), u"cmd_kilép", u"Kilép")),
      Timer1_(new QTimer(this)),
      beállító_([this] {
          return std::make_unique<választás_beáll>(
              k_, [this] { return játék_.párok_száma(); }, [this] { újrakezd(); });
      }) {
    setWindowTitle(u"Választás"_s);
    játékmenüt_rak(*this, {{u"mnu_fájl_újrakezd", u"&Újrakezd"_s, [this] { újrakezd(); }},
                           {u"mnu_fájl_beáll", u"&Beállítások"_s, [this] { mnu_fájl_beáll_Click(); }},
                           {u"mnu_fájl_elválaszt", {}, {}},
                           {u"mnu_fájl_kilép", u"&Kilép"_s, [this] { cmd_kilép_Click(); }}});
    elhelyezés();
    Timer1_->setObjectName(u"Timer1"_s);
    Timer1_->setSingleShot(true);
    Timer1_->setTimerType(Qt::PreciseTimer);
    Timer1_->setInterval(válaszidő);
    connect(Timer1_, &QTimer::timeout, this, [this] { Timer1_Timer(); });
    connect(cmd_ok_, &QPushButton::clicked, this, [this] { cmd_ok_Click(); });
    connect(cmd_kilép_, &QPushButton::clicked, this, [this] { cmd_kilép_Click(); });
    connect(pic_megoldás_, &ChoosablePicture::chosen, this, [this] { pic_megoldás_Click(); });
    alapgombbeállít(cmd_ok_);
    mégsegombbeállít(cmd_kilép_);
    elrendez();
    if (!játék_.üres())
        újrakezd();
}

void választás::elhelyezés() {
    elhelyez(label_felirat_, felirathely);
    elhelyez(pic_feladat_, feladathely);
    elhelyez(pic_kötőjel_, kötőjelhely);
    elhelyez(pic_megoldás_, megoldáshely);
    pic_kínálat_.append(kínálatkép(0));
    elhelyez(pic_kínálat_.front(), kínálathely);
    elhelyez(Label_info_, infóhely);
    elhelyez(cmd_ok_, okhely);
    elhelyez(cmd_kilép_, kiléphely);
    label_felirat_->setAlignment(Qt::AlignCenter);
    Label_info_->setAlignment(Qt::AlignCenter);
    // An answer is taken back by choosing another one; the frame takes the mouse only.
    pic_megoldás_->setFocusPolicy(Qt::NoFocus);
}

void választás::elrendez() {
    k_.közös.hasznos.öltöztet(*this, k_.közös.főablak, 0.9);
    pic_kötőjel_->set_background(k_.közös.főablak.háttérszín());
    pic_megoldás_->reserve_frame();
    Module_hasznos::szövegbeigazít(*pic_kötőjel_, u"-"_s);
    Module_hasznos::szövegbeigazít(*label_felirat_, QString());
    for (QPushButton *gomb : {cmd_ok_, cmd_kilép_})
        Module_hasznos::szövegbeigazít(*gomb, QString());
    Timer1_->stop();
}

void választás::újrakezd() {
    Timer1_->stop();
    játék_.újrakezd(beállító_.get().merre(), beállító_.get().választék());
    kínálatot_rak(static_cast<int>(játék_.kínálat().size()));
    következő();
}

void választás::kínálatot_rak(int darab) {
    while (pic_kínálat_.size() > 1)
        levesz(pic_kínálat_.takeLast());
    const auto húzás =
        beállító_.get().húzással() ? ChoosablePicture::DragMode::automatic : ChoosablePicture::DragMode::manual;
    for (int k = 0; k < darab; ++k) {
        if (k > 0) {
            const QRectF előző = hely(pic_kínálat_.back());
            pic_kínálat_.append(kínálatkép(k));
            elhelyez(pic_kínálat_.back(), előző.translated(0, előző.height() + köz));
            pic_kínálat_.back()->set_background(k_.közös.főablak.háttérszín());
            QWidget::setTabOrder(pic_kínálat_[k - 1], pic_kínálat_[k]);
        }
        ChoosablePicture *kép = pic_kínálat_[k];
        kép->reserve_frame(QString::number(k + 1));
        kép->disconnect(this);
        kép->set_drag_mode(húzás);
        connect(kép, &ChoosablePicture::chosen, this, [this, k] { pic_kínálat_Click(k); });
        connect(kép, &ChoosablePicture::dropped, this,
                [this, k](const QPoint &hová) { pic_megoldás_DragDrop(k, hová); });
    }
}

void választás::következő() {
    for (int k = 0; k < pic_kínálat_.size(); ++k) {
        // What was pressed or dragged is the word of the question before.
        pic_kínálat_[k]->end_drag();
        pic_kínálat_[k]->setVisible(true);
        Module_hasznos::szövegbeigazít(*pic_kínálat_[k], játék_.kínálat()[k]);
        pic_kínálat_[k]->setAccessibleDescription(játék_.kínálat()[k]);
    }
    Module_hasznos::szövegbeigazít(*pic_feladat_, játék_.kérdés());
    pic_feladat_->setAccessibleDescription(játék_.kérdés());
    keretet_ürít();
    pic_megoldás_->end_warning();
    Module_hasznos::szövegbeigazít(*Label_info_, játék_.számláló());
    // Where hiding the picked candidate has moved the focus is nobody's choice.
    pic_kínálat_.front()->setFocus();
}

void választás::választ(int k) {
    if (játék_.vége() || pic_kínálat_[k]->isHidden())
        return;
    pic_megoldás_Click();
    pic_megoldás_->end_warning();
    választott_ = k;
    pic_kínálat_[k]->hide();
    Module_hasznos::szövegbeigazít(*pic_megoldás_, játék_.kínálat()[k]);
    pic_megoldás_->setAccessibleDescription(játék_.kínálat()[k]);
    Timer1_->start();
}

void választás::pic_kínálat_Click(int k) {
    választ(k);
}

void választás::pic_megoldás_DragDrop(int k, const QPoint &hová) {
    if (pic_megoldás_->rect().contains(pic_megoldás_->mapFromGlobal(hová)))
        választ(k);
}

void választás::pic_megoldás_Click() {
    Timer1_->stop();
    if (játék_.vége() || választott_ < 0)
        return;
    pic_kínálat_[választott_]->setVisible(true);
    keretet_ürít();
}

void választás::keretet_ürít() {
    választott_ = -1;
    pic_megoldás_->clear();
    pic_megoldás_->setProperty("tag", QString());
    pic_megoldás_->setAccessibleDescription(QString());
}

void választás::Timer1_Timer() {
    cmd_ok_Click();
}

void választás::cmd_ok_Click() {
    Timer1_->stop();
    if (játék_.vége())
        return;
    const QString válasz = választott_ < 0 ? QString() : játék_.kínálat()[választott_];
    switch (játék_.ellenőriz(válasz)) {
        case választójáték::eredmény::helyes:
            játék_.következő();
            következő();
            break;
        case választójáték::eredmény::hibás:
            pic_megoldás_->warn();
            if (választott_ >= 0) {
                ChoosablePicture *visszatérő = pic_kínálat_[választott_];
                pic_megoldás_Click();
                visszatérő->setFocus();
            }
            break;
        case választójáték::eredmény::vége:
            eredmény();
            break;
    }
}

void választás::eredmény() {
    k_.üzenetmutat(üzenetidő, {u"Gratulálok!"_s, u" "_s, u"Hibaarány: %1%"_s.arg(számszöveg(játék_.hibaarány()))});
}

void választás::mnu_fájl_beáll_Click() {
    beállító_.get().mutatmodálisan();
}

void választás::keyPressEvent(QKeyEvent *event) {
    const int k = event->key() - Qt::Key_1;
    if (k < 0 || k >= pic_kínálat_.size())
        ablak::keyPressEvent(event);
    // The repeats of a key that is held down would answer the next question, too.
    else if (!event->isAutoRepeat())
        választ(k);
}

void választás::showEvent(QShowEvent *event) {
    ablak::showEvent(event);
    // Not before the window has been shown: the system would show it all the same.
    if (játék_.üres())
        QTimer::singleShot(0, this, [this] { close(); });
    pic_kínálat_.front()->setFocus();
}

void választás::cmd_kilép_Click() {
    close();
}

void választás::closeEvent(QCloseEvent *event) {
    Timer1_->stop();
    beállító_.unload();
    event->accept();
}
