#include "print/widgets/print_preview_window.h"

#include <QLabel>
#include <QShortcut>

#include "ui/controls/named.h"
#include "ui/drawing/twips.h"

using namespace Qt::StringLiterals;

namespace {

// The design, in twips.
constexpr double margó = 120;
constexpr double köz = 60;
constexpr double csoportköz = 240;
constexpr double sor = 420;
constexpr double kép_teteje = margó + sor + margó;
constexpr double kép_magassága = 8400;
constexpr double figyelmeztetés = 360;

constexpr double képernyőrész = 0.85;

}  // namespace

frm_nyomtatásikép::frm_nyomtatásikép(const Module_hasznos &hasznos, const ablak &főablak, const PageRecorder &lapok)
    : ablak(u"frm_nyomtatásikép"_s, menü::nincs, keret::átméretezhető),
      lapok_(lapok),
      idáig_(margó),
      cmd_első_(gomb(u"cmd_első", u"&Első"_s, 900, {Qt::Key_Home, Qt::CTRL | Qt::Key_Home},
                     &frm_nyomtatásikép::cmd_első_Click)),
      cmd_előző_(gomb(u"cmd_előző", u"E&lőző"_s, 900, {Qt::Key_PageUp}, &frm_nyomtatásikép::cmd_előző_Click)),
      UpDown_oldal_(named(new QSpinBox, u"UpDown_oldal", u"Oldal")),
      cmd_következő_(nullptr),
      cmd_utolsó_(nullptr),
      kép_(named(new PageView(lapok), u"kép", u"Az oldal képe")) {
    setWindowTitle(u"Nyomtatási kép"_s);
    elhelyezés();
    hasznos.öltöztet(*this, főablak, képernyőrész);
    connect(UpDown_oldal_, &QSpinBox::valueChanged, this, [this](int oldal) { lapra(oldal - 1); });
    lapra(0);
}

QPushButton *frm_nyomtatásikép::gomb(const char16_t *név, const QString &felirat, double szélesség,
                                     const QList<QKeySequence> &kulcsok, void (frm_nyomtatásikép::*mit)()) {
    auto *új = named(new QPushButton(felirat), név);
    új->setAccessibleName(QString(felirat).remove(u'&'));
    elhelyez(új, {idáig_, margó, szélesség, sor});
    idáig_ += szélesség + köz;
    connect(új, &QPushButton::clicked, this, [this, mit] { (this->*mit)(); });
    for (const QKeySequence &kulcs : kulcsok)
        connect(new QShortcut(kulcs, this), &QShortcut::activated, this, [this, mit] { (this->*mit)(); });
    return új;
}

void frm_nyomtatásikép::elhelyezés() {
    UpDown_oldal_->setRange(1, lapok_.page_count());
    UpDown_oldal_->setSuffix(u" / %1"_s.arg(lapok_.page_count()));
    UpDown_oldal_->setAlignment(Qt::AlignCenter);
    UpDown_oldal_->setKeyboardTracking(false);
    elhelyez(UpDown_oldal_, {idáig_, margó, 1700, sor});
    idáig_ += 1700 + köz;
    cmd_következő_ =
        gomb(u"cmd_következő", u"&Következő"_s, 1150, {Qt::Key_PageDown}, &frm_nyomtatásikép::cmd_következő_Click);
    cmd_utolsó_ = gomb(u"cmd_utolsó", u"&Utolsó"_s, 900, {Qt::Key_End, Qt::CTRL | Qt::Key_End},
                       &frm_nyomtatásikép::cmd_utolsó_Click);
    idáig_ += csoportköz;
    gomb(u"cmd_kicsinyít", u"Kic&sinyít"_s, 1050, {Qt::Key_Minus, Qt::CTRL | Qt::Key_Minus},
         &frm_nyomtatásikép::cmd_kicsinyít_Click);
    gomb(u"cmd_nagyít", u"Na&gyít"_s, 900, {Qt::Key_Plus, Qt::CTRL | Qt::Key_Plus},
         &frm_nyomtatásikép::cmd_nagyít_Click);
    gomb(u"cmd_egészoldal", u"Egész &oldal"_s, 1250, {}, &frm_nyomtatásikép::cmd_egészoldal_Click);
    gomb(u"cmd_oldalszélesség", u"Ol&dalszélesség"_s, 1500, {}, &frm_nyomtatásikép::cmd_oldalszélesség_Click);
    idáig_ += csoportköz;
    QPushButton *bezár = gomb(u"cmd_bezár", u"&Bezár"_s, 900, {}, &frm_nyomtatásikép::cmd_bezár_Click);
    mégsegombbeállít(bezár);
    connect(kép_, &PageView::turned, this, [this](bool előre) { lapra(kép_->page() + (előre ? 1 : -1)); });
    const double lemaradók = lemaradókat_mutat();
    elhelyez(kép_, {margó, kép_teteje + lemaradók, idáig_ - köz - margó, kép_magassága - lemaradók});
}

double frm_nyomtatásikép::lemaradókat_mutat() {
    const int sorok = lapok_.cut_lines();
    if (sorok == 0)
        return 0;
    auto *felirat = named(new QLabel(u"%1 sor széle nem fér rá a papírra."_s.arg(sorok)), u"Label_lemaradók");
    elhelyez(felirat, {margó, kép_teteje - köz, idáig_ - köz - margó, figyelmeztetés});
    return figyelmeztetés;
}

void frm_nyomtatásikép::showEvent(QShowEvent *event) {
    ablak::showEvent(event);
    kép_->setFocus();
}

void frm_nyomtatásikép::Form_Resize() {
    const QRectF eddig = hely(kép_);
    elhelyez(kép_, {eddig.left(), eddig.top(), belsőszélesség() - eddig.left() - margó,
                    belsőmagasság() - eddig.top() - margó});
}

void frm_nyomtatásikép::cmd_kicsinyít_Click() {
    kép_->zoom(1 / PageView::zoom_step);
}

void frm_nyomtatásikép::cmd_nagyít_Click() {
    kép_->zoom(PageView::zoom_step);
}

void frm_nyomtatásikép::lapra(int lap) {
    kép_->show_page(lap);
    UpDown_oldal_->setValue(kép_->page() + 1);
    gombokat_beállít();
}

void frm_nyomtatásikép::gombokat_beállít() {
    const bool első = kép_->page() == 0;
    const bool utolsó = kép_->page() == lapok_.page_count() - 1;
    cmd_első_->setDisabled(első);
    cmd_előző_->setDisabled(első);
    cmd_következő_->setDisabled(utolsó);
    cmd_utolsó_->setDisabled(utolsó);
}
