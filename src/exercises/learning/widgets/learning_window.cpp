#include "exercises/learning/widgets/learning_window.h"

#include <QEvent>
#include <QTimer>

#include "exercises/common/question_pairs.h"
#include "state/number_text.h"
#include "ui/controls/named.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double margó = 120;
// The design, in twips; elrendez() moves what follows the window's size.
constexpr double tervezett_szélesség = 10000;
constexpr QRectF számlálóhely(3500, 120, 3000, 500);
constexpr double képek_teteje = 780;
constexpr double képmagasság = 2900;
constexpr double sáv_magassága = 60;
constexpr double gombmagasság = 560;
constexpr double gombok_teteje = 4300;

}  // namespace

tanulás::tanulás(const feladatkörnyezet &környezet)
    : ablak(u"tanulás"_s),
      tanlist1_(named(new ListBox, u"tanlist1", u"Angol szavak")),
      tanlist2_(named(new ListBox, u"tanlist2", u"Magyar szavak")),
      label1_(named(new PictureBox, u"label1", u"Angolul")),
      label3_(named(new PictureBox, u"label3", u"Magyarul")),
      Label_info_(named(new QLabel, u"Label_info")),
      Label4_(named(new QLabel, u"Label4")),
      Command1_(named(new QPushButton(u"Ok"_s), u"Command1", u"Ok, a következő pár")),
      Command2_(named(new QPushButton(u"Kilép"_s), u"Command2", u"Kilép")) {
    setWindowTitle(u"Tanulás"_s);
    tanlist1_->hide();
    tanlist2_->hide();
    const double félszélesség = tervezett_szélesség / 2 - margó;
    elhelyez(label1_, {margó, képek_teteje, félszélesség, képmagasság});
    elhelyez(label3_, {tervezett_szélesség / 2, képek_teteje, félszélesség, képmagasság});
    elhelyez(tanlist1_, {margó, képek_teteje, félszélesség, képmagasság});
    elhelyez(tanlist2_, {tervezett_szélesség / 2, képek_teteje, félszélesség, képmagasság});
    elhelyez(Label_info_, számlálóhely);
    elhelyez(Label4_, {margó, képek_teteje + képmagasság, tervezett_szélesség - 2 * margó, sáv_magassága});
    elhelyez(Command1_, {margó, gombok_teteje, félszélesség, gombmagasság});
    elhelyez(Command2_, {tervezett_szélesség / 2, gombok_teteje, félszélesség, gombmagasság});
    Label_info_->setAlignment(Qt::AlignCenter);
    connect(Command1_, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(Command2_, &QPushButton::clicked, this, [this] { Command2_Click(); });
    alapgombbeállít(Command1_);
    mégsegombbeállít(Command2_);

    környezet.közös.hasznos.öltöztet(*this, környezet.közös.főablak, 0.95, Module_hasznos::betűk::beigazítva);
    elrendez();
}

void tanulás::feltölt(const QVector<szópár> &szavak) {
    tanlist1_->clear();
    tanlist2_->clear();
    for (const szópár &szó : szavak) {
        tanlist1_->add(szó.angol);
        tanlist2_->add(szó.magyar);
    }
}

void tanulás::elrendez() {
    const double w = belsőszélesség();
    const double h = belsőmagasság();
    const QSizeF gomb(w / 3, h / 10);
    const double gombok = h - margó - gomb.height();
    elhelyez(Command1_, QRectF(QPointF(w / 4 - gomb.width() / 2, gombok), gomb));
    elhelyez(Command2_, QRectF(QPointF(3 * w / 4 - gomb.width() / 2, gombok), gomb));
    const QRectF régi = hely(label1_);
    const QSizeF kép(w / 2.1, régi.height());
    elhelyez(label1_, QRectF(QPointF(w / 4 - kép.width() / 2, régi.top()), kép));
    elhelyez(label3_, QRectF(QPointF(3 * w / 4 - kép.width() / 2, régi.top()), kép));
    elhelyez(Label4_, {hely(label1_).left(), régi.bottom(), hely(label3_).right() - hely(label1_).left(),
                       hely(Label4_).height()});
    Label4_->setAutoFillBackground(true);
    QPalette sáv = Label4_->palette();
    sáv.setColor(QPalette::Window, palette().color(QPalette::Highlight));
    Label4_->setPalette(sáv);
    for (QPushButton *egyik : {Command1_, Command2_})
        Module_hasznos::szövegbeigazít(*egyik, QString());
}

void tanulás::changeEvent(QEvent *event) {
    ablak::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        Form_Activate();
}

void tanulás::showEvent(QShowEvent *event) {
    ablak::showEvent(event);
    // The system may tell of the activation later, or never. An empty list hides the window, but not before it has been
    // shown: the system would show it all the same.
    if (tanlist1_->count() == 0)
        QTimer::singleShot(0, this, [this] { Form_Activate(); });
    else
        Form_Activate();
}

void tanulás::Form_Activate() {
    index_ = -1;
    következő();
}

void tanulás::következő() {
    ++index_;
    if (index_ >= tanlist1_->count())
        hide();
    const QString angol = tanlist1_->item(index_);
    const QString magyar = tanlist2_->item(index_);
    Module_hasznos::szövegbeigazít(*label1_, angol);
    Module_hasznos::szövegbeigazít(*label3_, magyar);
    label1_->setAccessibleDescription(angol);
    label3_->setAccessibleDescription(magyar);
    Module_hasznos::szövegbeigazít(*Label_info_, számszöveg(index_ + 1) + u'/' + számszöveg(tanlist1_->count()));
}

void tanulás::Command1_Click() {
    következő();
}

void tanulás::Command2_Click() {
    hide();
}
