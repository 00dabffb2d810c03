#include "exercises/memory/widgets/memory_window.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "exercises/common/widgets/game_menu.h"
#include "ui/controls/arrow_walk.h"
#include "ui/controls/named.h"
#include "ui/drawing/fonts.h"
#include "ui/drawing/svg_picture.h"
#include "ui/drawing/twips.h"

using namespace Qt::StringLiterals;

namespace {

const QString kártyahát = u":/memory/card-back.svg"_s;

constexpr QColor papírszín(0xff, 0xfd, 0xf5);

constexpr qint16 üzenetidő = 3000;
constexpr int animáció_köze = 5;
constexpr int tizedmásodperc = 100;
/// Above every size of letters.
constexpr double nincs_betű = 999;

QTimer *időzítő(ablak &mire, const char16_t *név, int köz) {
    auto *új = new QTimer(&mire);
    új->setObjectName(QString::fromUtf16(név));
    új->setSingleShot(true);
    új->setTimerType(Qt::PreciseTimer);
    új->setInterval(köz);
    return új;
}

}  // namespace

frm_memory::frm_memory(const feladatkörnyezet &környezet)
    : ablak(u"frm_memory"_s, menü::van),
      k_(környezet),
      játék_(k_.szószedet.párok(), k_.véletlen),
      Label_feladat_(named(new QLabel, u"Label_feladat")),
      Label_info_(named(new QLabel, u"Label_info")),
      Picture_minta_(named(new PictureBox, u"Picture_minta", u"A letakart kártya képe")),
      Timer_lefed_(időzítő(*this, u"Timer_lefed", 1500)),
      Timer_várj_(időzítő(*this, u"Timer_várj", 30)),
      Timer_kiléptető_(időzítő(*this, u"Timer_kiléptető", 1)),
      beállító_(
          [this] { return std::make_unique<frm_memory_beáll>(k_, játék_.szópárfelső(), [this] { újjáték(); }); }) {
    játékmenüt_rak(*this, {{u"mnu_fájl_újjáték", u"&Új játék"_s, [this] { újjáték(); }},
                           {u"mnu_fájl_beáll", u"&Beállítások"_s, [this] { mnu_fájl_beáll_Click(); }},
                           {u"mnu_fájl_elv", {}, {}},
                           {u"mnu_fájl_kilép", u"&Kilép"_s, [this] { kilépés(); }}});
    connect(Timer_lefed_, &QTimer::timeout, this, [this] { Timer_lefed_Timer(); });
    connect(Timer_várj_, &QTimer::timeout, this, [this] { Timer_várj_Timer(); });
    connect(Timer_kiléptető_, &QTimer::timeout, this, [this] { kilépés(); });
    Label_feladat_->setAlignment(Qt::AlignCenter);
    Label_info_->setAlignment(Qt::AlignCenter);
    Picture_minta_->hide();
    escapezár();
    if (játék_.elég()) {
        újjáték();
        return;
    }
    játéktérépít();
    k_.üzenetmutat(üzenetidő, {u"Sajnos ehhez a játékhoz"_s, u"legalább hat szópárra"_s, u"van szükség!"_s});
}

ChoosablePicture *frm_memory::új_kártya(int i) {
    auto *kártya = new ChoosablePicture;
    kártya->setObjectName(u"pic_kártya(%1)"_s.arg(i));
    kártya->set_drag_mode(ChoosablePicture::DragMode::manual);
    connect(kártya, &ChoosablePicture::chosen, this, [this, i] { pic_kártya_Click(i); });
    return kártya;
}

void frm_memory::játéktérépít() {
    const játéktér &tér = beállító_.get().méret();
    if (pic_kártya_.size() == tér.kártyák())
        return;
    while (pic_kártya_.size() > 1)
        levesz(pic_kártya_.takeLast());
    const kártyahelyek helyek = kártyákat_elhelyez(tér);
    elhelyez(Label_feladat_, helyek.Label_feladat);
    elhelyez(Picture_minta_, helyek.kártyák.front());
    for (int i = 0; i < tér.kártyák(); ++i) {
        if (i == pic_kártya_.size())
            pic_kártya_.append(új_kártya(i));
        elhelyez(pic_kártya_[i], helyek.kártyák[i]);
    }
    elhelyez(Label_info_, helyek.Label_info);
    setWindowTitle(u"Memória"_s);
    k_.közös.hasznos.öltöztet(*this, k_.közös.főablak, 0.9);
    Module_hasznos::szövegbeigazít(*Label_feladat_, u"Keresd meg az összetartozó párokat!"_s);
    for (ChoosablePicture *kártya : std::as_const(pic_kártya_))
        kártya->set_background(papírszín);
    Picture_minta_->set_picture(svg_picture(kártyahát, pic_kártya_.front()->size(), devicePixelRatioF()));
}

void frm_memory::újjáték() {
    ++játszma_;
    játéktérépít();
    játék_.kioszt(static_cast<int>(pic_kártya_.size()));
    legkisebbbetű_ = nincs_betű;
    for (int i = 0; i < pic_kártya_.size(); ++i) {
        ChoosablePicture *kártya = pic_kártya_[i];
        // One that was shrinking has its size back.
        elhelyez(kártya, hely(kártya));
        Module_hasznos::szövegbeigazít(*kártya, játék_.szöveg(i));
        legkisebbbetű_ = std::min(legkisebbbetű_, fonts::points(kártya->font()));
    }
    infokiír();
    for (int i = 0; i < pic_kártya_.size(); ++i)
        lefed(i);
    Timer_lefed_->stop();
    pic_kártya_.front()->setFocus();
}

void frm_memory::infokiír() {
    Module_hasznos::szövegbeigazít(*Label_info_, játék_.állás());
}

void frm_memory::lefed(int i) {
    ChoosablePicture *kártya = pic_kártya_[i];
    kártya->clear();
    kártya->set_picture(Picture_minta_->picture());
    kártya->setAccessibleName(u"%1. kártya, letakarva"_s.arg(i + 1));
    kártya->setVisible(true);
}

void frm_memory::felfed(int i) {
    ChoosablePicture *kártya = pic_kártya_[i];
    kártya->set_picture({});
    QFont betű = kártya->font();
    fonts::set_points(betű, legkisebbbetű_);
    kártya->setFont(betű);
    const QString szöveg = kártya->property("tag").toString();
    kártya->print_centred(Module_hasznos::sorokra(*kártya, szöveg, legkisebbbetű_));
    kártya->setAccessibleName(u"%1. kártya: %2"_s.arg(i + 1).arg(szöveg));
    kártya->setVisible(true);
}

void frm_memory::pic_kártya_Click(int i) {
    if (játék_.felfordított() == 2)
        Timer_lefed_Timer();
    const memóriajáték::fordulat mi_lett = játék_.felfordít(i);
    if (mi_lett == memóriajáték::fordulat::semmi)
        return;
    felfed(i);
    if (mi_lett == memóriajáték::fordulat::pár)
        páreltüntet();
    else if (mi_lett == memóriajáték::fordulat::tévedés)
        Timer_lefed_->start(beállító_.get().felfedésiidő() * tizedmásodperc);
}

void frm_memory::Timer_lefed_Timer() {
    for (int i = 0; i < pic_kártya_.size(); ++i) {
        if (játék_.felfedett(i) && játék_.játékban(i))
            lefed(i);
    }
    Timer_lefed_->stop();
    játék_.lefed();
}

void frm_memory::páreltüntet() {
    const int játszma = játszma_;
    // A copy: the next pair may be found while this one shrinks.
    const std::array<int, 2> pár = játék_.pár();
    for (const int i : pár) {
        if (!zsugorít(i, játszma))
            return;
    }
    játék_.megtalál();
    infokiír();
    if (!játék_.vége())
        return;
    k_.üzenetmutat(üzenetidő, {u"Gratulálok!"_s, u"Kitűnő megoldás"_s});
    if (játszma == játszma_)
        újjáték();
}

bool frm_memory::zsugorít(int i, int játszma) {
    ChoosablePicture *kártya = pic_kártya_[i];
    const QRectF nyugalomban = hely(kártya);
    const QPointF közép(std::round(nyugalomban.center().x()), std::round(nyugalomban.center().y()));
    const auto kicsinyítve = [&](double arány) {
        const QSizeF méret = nyugalomban.size() * arány;
        return QRectF({közép.x() - méret.width() / 2, közép.y() - méret.height() / 2}, méret);
    };
    // The face shrinks with its card.
    kártya->set_picture(kártya->grab());
    kártya->clear();
    Timer_várj_->setInterval(animáció_köze);
    // Subtracted step by step: the rounding leaves a little more than nothing, so there is an eleventh step.
    for (double arány = 1; arány >= 0; arány -= 0.1) {
        kártya->setGeometry(twips::to_pixels(kicsinyítve(arány)));
        kártya->repaint();
        vár();
        if (játszma != játszma_)
            return false;
    }
    kártya->hide();
    elhelyez(kártya, kicsinyítve(1));
    return true;
}

/// Lets other events run until the animation's timer ticks.
void frm_memory::vár() {
    várakozásvége_ = false;
    Timer_várj_->start();
    QEventLoop események;
    while (!várakozásvége_)
        események.processEvents(QEventLoop::WaitForMoreEvents);
}

void frm_memory::Timer_várj_Timer() {
    várakozásvége_ = true;
}

void frm_memory::mnu_fájl_beáll_Click() {
    beállító_.get().mutatmodálisan();
}

void frm_memory::keyPressEvent(QKeyEvent *event) {
    QVector<QRect> helyek;
    int innen = -1;
    for (const ChoosablePicture *kártya : std::as_const(pic_kártya_)) {
        if (kártya->hasFocus())
            innen = static_cast<int>(helyek.size());
        helyek.append(kártya->isVisible() ? kártya->geometry() : QRect());
    }
    const int hová = innen < 0 ? -1 : arrow_leads_to(static_cast<Qt::Key>(event->key()), helyek, innen);
    if (hová >= 0)
        pic_kártya_[hová]->setFocus();
    else
        ablak::keyPressEvent(event);
}

void frm_memory::showEvent(QShowEvent *event) {
    ablak::showEvent(event);
    // Not before the window has been shown: the system would show it all the same.
    if (!játék_.elég())
        Timer_kiléptető_->start();
}

void frm_memory::kilépés() {
    close();
}

void frm_memory::closeEvent(QCloseEvent *event) {
    ++játszma_;
    Timer_lefed_->stop();
    Timer_várj_->stop();
    várakozásvége_ = true;
    beállító_.unload();
    event->accept();
}
