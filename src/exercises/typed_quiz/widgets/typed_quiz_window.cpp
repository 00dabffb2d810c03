#include "exercises/typed_quiz/widgets/typed_quiz_window.h"

#include <QCloseEvent>
#include <QTimer>
#include <limits>

#include "state/number_text.h"
#include "ui/controls/named.h"
#include "ui/controls/unlimited_line_edit.h"
#include "ui/drawing/fonts.h"

using namespace Qt::StringLiterals;

namespace {

// The design, in twips.
constexpr double bal = 120;
constexpr double sorszélesség = 9760;
constexpr QRectF felirathely(bal, 120, sorszélesség, 620);
constexpr QRectF kérdéshely(bal, 900, sorszélesség, 1100);
// The text box takes the letters of the question, and room for its frame.
constexpr QRectF megoldáshely(bal, 2120, sorszélesség, 1400);
constexpr double alsó_sor = 3700;
constexpr double irányszélesség = 4400;
constexpr double irányköz = 460;
constexpr QRectF infóhely(4700, alsó_sor, 1900, 1380);
constexpr QRectF okhely(6900, alsó_sor, 2980, 640);
constexpr QRectF kiléphely(6900, alsó_sor + 740, 2980, 640);

const QString nyelv_kulcs = u"nyelv"_s;
constexpr qint16 üzenetidő = 3000;

}  // namespace

kikérdező::kikérdező(const feladatkörnyezet &környezet)
    : ablak(u"kikérdező"_s),
      k_(környezet),
      quiz_(k_.szószedet.párok(), k_.véletlen),
      Pic_kérdés_(named(new PictureBox, u"Pic_kérdés", u"Kérdés")),
      txt_megoldás_(named(unlimited_line_edit(), u"txt_megoldás", u"Megoldás")),
      cmd_ok_(named(new QPushButton(u"Ok"_s), u"cmd_ok", u"Ok, ellenőrzés")),
      cmd_kilép_(named(new QPushButton(u"Kilép"_s), u"cmd_kilép", u"Kilép")),
      label_info_(named(new QLabel, u"label_info")),
      Label_felirat_(named(new QLabel, u"Label_felirat")) {
    setWindowTitle(u"Kikérdezés"_s);
    elhelyezés();
    irány_.kijelöl(k_.beállítások.beállításolvas(*this, nyelv_kulcs, iránygombok::alap));
    for (QRadioButton *gomb : irány_.nyelvoptb) {
        connect(gomb, &QRadioButton::toggled, this, [this](bool kijelölt) {
            if (kijelölt)
                nyelvoptb_Click();
        });
        // Whether the quiz begins anew or not. Afterwards, because an arrow key that chooses a button gives it the
        // focus after its click.
        connect(
            gomb, &QRadioButton::clicked, txt_megoldás_, [this] { txt_megoldás_->setFocus(); }, Qt::QueuedConnection);
    }
    connect(cmd_ok_, &QPushButton::clicked, this, [this] { cmd_ok_Click(); });
    connect(cmd_kilép_, &QPushButton::clicked, this, [this] { cmd_kilép_Click(); });
    alapgombbeállít(cmd_ok_);
    mégsegombbeállít(cmd_kilép_);
    beállít();
    quiz_.iránybeállít(irány_.kijelölt());
    if (!quiz_.üres())
        kérdez();
}

void kikérdező::elhelyezés() {
    elhelyez(Label_felirat_, felirathely);
    elhelyez(Pic_kérdés_, kérdéshely);
    elhelyez(txt_megoldás_, megoldáshely);
    elhelyez(cmd_ok_, okhely);
    irány_.elhelyez(*this, [](int i) { return QRectF(bal, alsó_sor + i * irányköz, irányszélesség, irányköz); });
    elhelyez(label_info_, infóhely);
    elhelyez(cmd_kilép_, kiléphely);
    label_info_->setAlignment(Qt::AlignCenter);
    Label_felirat_->setAlignment(Qt::AlignCenter);
    txt_megoldás_->setAlignment(Qt::AlignHCenter);
}

void kikérdező::beállít() {
    k_.közös.hasznos.öltöztet(*this, k_.közös.főablak, 0.9, Module_hasznos::betűk::beigazítva);
    Module_hasznos::szövegbeigazít(*Label_felirat_, u"Mi a párja? Gépeld be a megoldást!"_s);
    QFont betű(QStringList{fonts::times_new_roman_ce});
    fonts::set_points(betű, fonts::points(Label_felirat_->font()) / 2);
    for (QRadioButton *gomb : irány_.nyelvoptb)
        gomb->setFont(betű);
    for (QPushButton *gomb : {cmd_ok_, cmd_kilép_})
        Module_hasznos::szövegbeigazít(*gomb, QString());
}

void kikérdező::showEvent(QShowEvent *event) {
    ablak::showEvent(event);
    // Not before the window has been shown: the system would show it all the same.
    if (quiz_.üres())
        QTimer::singleShot(0, this, [this] { close(); });
    txt_megoldás_->setFocus();
}

void kikérdező::kérdez() {
    quiz_.kérdez();
    kiírás();
}

void kikérdező::kiírás() {
    Module_hasznos::szövegbeigazít(*label_info_, quiz_.számláló());
    Module_hasznos::szövegbeigazít(*Pic_kérdés_, quiz_.kérdés());
    Pic_kérdés_->setAccessibleDescription(quiz_.kérdés());
    QFont betű = txt_megoldás_->font();
    fonts::set_points(betű, fonts::points(Pic_kérdés_->font()));
    txt_megoldás_->setFont(betű);
    txt_megoldás_->setProperty("tag", quiz_.megoldás());
    txt_megoldás_->clear();
}

void kikérdező::cmd_ok_Click() {
    switch (quiz_.ellenőriz(txt_megoldás_->text())) {
        case kikérdezés::eredmény::helyes:
            kérdez();
            break;
        case kikérdezés::eredmény::vége:
            eredmény();
            bezár();
            return;
        case kikérdezés::eredmény::hibás:
            k_.közös.üzenetek.beep();
            k_.üzenetmutat(üzenetidő, {Pic_kérdés_->property("tag").toString() + u" - "_s +
                                       txt_megoldás_->property("tag").toString()});
            txt_megoldás_->clear();
            kérdez();
            break;
    }
    txt_megoldás_->setFocus();
}

void kikérdező::eredmény() {
    k_.üzenetmutat(üzenetidő,
                   {u"Gratulálok! Sikerült!"_s, u" "_s, u"Hibaarány: %1%"_s.arg(számszöveg(quiz_.hibaarány()))});
}

void kikérdező::nyelvoptb_Click() {
    if (quiz_.irányváltás(irány_.kijelölt()))
        kiírás();
}

void kikérdező::cmd_kilép_Click() {
    bezár();
}

void kikérdező::bezár() {
    close();
}

void kikérdező::closeEvent(QCloseEvent *event) {
    k_.beállítások.beállításment(*this, nyelv_kulcs, static_cast<int>(irány_.kijelölt()));
    event->accept();
}
