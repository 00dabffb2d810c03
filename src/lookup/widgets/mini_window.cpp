#include "lookup/widgets/mini_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <limits>

#include "lookup/corner_walk.h"
#include "lookup/screen_place.h"
#include "ui/controls/lookup_keys.h"
#include "ui/controls/named.h"
#include "ui/controls/search_box.h"
#include "ui/drawing/fonts.h"
#include "ui/drawing/twips.h"

using namespace Qt::StringLiterals;

namespace {

// The design, in twips.
constexpr double tervszélesség = 3600;
constexpr double szél = 120;
constexpr double fejlécmagasság = 330;
constexpr double vonal = 15;
constexpr double belső = tervszélesség - 2 * szél;
constexpr QRectF feliratshely(szél, 420, belső, 270);
/// Right of the caption, which is shorter than its place.
constexpr QRectF ajánlathely(szél + 1230, 420, belső - 1230, 270);
constexpr QRectF kereshely(szél, 700, 2340, 330);
constexpr QRectF keresgombhely(szél + 2400, 700, belső - 2400, 330);
constexpr QRectF találathely(szél, 1120, belső, 1560);
constexpr QRectF fordításhely(szél, 2760, belső, 1260);
constexpr QRectF szószedethely(szél, 4110, 2040, 360);
constexpr QRectF nagyhely(szél + 2100, 4110, belső - 2100, 360);

constexpr double képernyőrész = 0.42;
constexpr int vágólapidő = 300;
constexpr int hírideje = 2000;
/// No panel of a desktop is wider than this, in twips.
constexpr double panelméret = 1500;

const QString fejléc_súgója =
    u"Ha megfogja a fejlécet az egérrel, szabadon áthelyezheti az ablakot.  Az F2 megnyomására az ablak a "
    "képernyő sarkába ugrik."_s;
const QString lent_súgója = u"A szótár kisablakát a képernyő sarkába igazítja. (F2)"_s;
const QString x_súgója = u"Szótár bezárása"_s;

template <class Control>
Control *súgóval(Control *control, const QString &súgó) {
    control->setToolTip(súgó);
    return control;
}

QFrame *vonalka(size_t i) {
    auto *új = new QFrame;
    új->setObjectName(u"Line1(%1)"_s.arg(i));
    új->setFrameStyle(i < 2 ? QFrame::HLine | QFrame::Plain : QFrame::VLine | QFrame::Plain);
    return új;
}

void háttérszínez(QLabel &címke, const QColor &szín) {
    QPalette színek = címke.palette();
    színek.setColor(QPalette::Window, szín);
    címke.setPalette(színek);
    címke.setAutoFillBackground(true);
}

/// The close button bears a drawn cross and no letter.
QPixmap kereszt(const QSize &méret, double arány) {
    QPixmap kép(méret * arány);
    kép.setDevicePixelRatio(arány);
    kép.fill(Qt::transparent);
    QPainter festő(&kép);
    festő.setRenderHint(QPainter::Antialiasing);
    const double oldal = méret.height() * 0.36;
    const QPointF közép(méret.width() / 2.0, méret.height() / 2.0);
    festő.setPen(QPen(Qt::black, oldal / 4, Qt::SolidLine, Qt::RoundCap));
    festő.drawLine(közép - QPointF(oldal, oldal) / 2, közép + QPointF(oldal, oldal) / 2);
    festő.drawLine(közép - QPointF(oldal, -oldal) / 2, közép + QPointF(oldal, -oldal) / 2);
    return kép;
}

}  // namespace

frm_kisablak::frm_kisablak(const kisablakkörnyezet &környezet)
    : ablak(u"frm_kisablak"_s, menü::nincs, keret::nincs),
      k_(környezet),
      label_fejléc_(súgóval(named(new QLabel(u"Szótár"_s), u"label_fejléc"), fejléc_súgója)),
      cmd_lent_(súgóval(named(new QLabel, u"cmd_lent", u"Sarokba, F2"), lent_súgója)),
      cmd_x_(súgóval(named(new QLabel, u"cmd_x", u"Szótár bezárása"), x_súgója)),
      Label1_(named(new QLabel(u"Keresett szó:"_s), u"Label1")),
      lst_ajánlatok_(
          named(new LinkList(&k_.ajánlatok, {ajánlatlista::hivatkozás_kezdete, ajánlatlista::hivatkozás_hossza},
                             LinkList::Layout::single_line),
                u"lst_ajánlatok", u"Erre gondolt?")),
      txt_keres_(súgóval(named(new SearchBox, u"txt_keres", u"Keresett szó"),
                         u"Ide írja be a keresett szót. Ha valamely alkalmazásban a vágólapra helyez egy "
                         "szót, az rögtön megjelenik a keresőmezőben."_s)),
      cmd_keres_(súgóval(named(new QPushButton(u"Keres"_s), u"cmd_keres", u"Keres"), u"Keres"_s)),
      lst_találatlista_(
          súgóval(named(new ListBox(&k_.kereső.találatok(), találatlista::címszó_oszlop, &k_.kereső.kijelölt_találat()),
                        u"lst_találatlista", u"Találatok"),
                  u"A keresésnek megfelelő szavak listája"_s)),
      lst_translate_(súgóval(named(new ListBox(&k_.kereső.jelentések(), 0, &k_.kereső.kijelölt_jelentés()),
                                   u"lst_translate", u"Jelentések"),
                             u"Itt jelennek meg a keresett szó megfelelői."_s)),
      cmd_szószedethez_ad_(
          súgóval(named(new QPushButton(u"Szószedet"_s), u"cmd_szószedethez_ad", u"A szószedethez ad"),
                  u"A szószedethez adja a keresett szót és a kijelölt fordítását. A szószedet használata "
                  "segíti a tanulást, és a gyakorlást. A szószedet szavai csak a nagyablakban jelennek "
                  "meg."_s)),
      cmd_kilép_(súgóval(named(new QPushButton(u"Nagy"_s), u"cmd_kilép", u"Nagy ablak"),
                         u"A nagy ablakra vált, melyben több szolgáltatás áll rendelkezésére."_s)),
      Timer1_(new QTimer(this)),
      Timer_fejléc_(new QTimer(this)),
      vágólap_(k_.vágólap()) {
    setWindowFlag(Qt::WindowStaysOnTopHint);
    for (size_t i = 0; i < Line1_.size(); ++i)
        Line1_[i] = vonalka(i);
    elhelyezés();
    eseményeket_köt();
    Module_hasznos::betűméretez(*this, k_.közös.hasznos.ablakméretez(*this, képernyőrész));
    k_.közös.hasznos.ablakstílus(*this);
    label_fejléc_->setTextFormat(Qt::PlainText);
    címet_ír();
    if (const auto most = vágólap_->text())
        vágólapszöveg_.megjegyez(most->text);
    k_.legfelül.make(winId());
    Timer1_->start(vágólapidő);
}

frm_kisablak::~frm_kisablak() {
    if (!k_.nagy.vége())
        k_.közös.üzenetek.tell(u"Elveszett"_s);
}

void frm_kisablak::elhelyezés() {
    elhelyez(label_fejléc_, {0, vonal, belső, fejlécmagasság - 2 * vonal});
    elhelyez(cmd_lent_, {belső - 2 * fejlécmagasság, vonal, fejlécmagasság, fejlécmagasság - 2 * vonal});
    elhelyez(cmd_x_, {belső - fejlécmagasság, vonal, fejlécmagasság, fejlécmagasság - 2 * vonal});
    for (QFrame *egyik : Line1_)
        elhelyez(egyik, {0, 0, belső, vonal});
    elhelyez(Label1_, feliratshely);
    elhelyez(lst_ajánlatok_, ajánlathely);
    elhelyez(txt_keres_, kereshely);
    elhelyez(cmd_keres_, keresgombhely);
    elhelyez(lst_találatlista_, találathely);
    elhelyez(lst_translate_, fordításhely);
    elhelyez(cmd_szószedethez_ad_, szószedethely);
    elhelyez(cmd_kilép_, nagyhely);
    Label1_->setBuddy(txt_keres_);
    alapgombbeállít(cmd_keres_);
}

void frm_kisablak::eseményeket_köt() {
    connect(txt_keres_, &QLineEdit::textChanged, this, [this] { txt_keres_Change(); });
    connect(cmd_keres_, &QPushButton::clicked, this, [this] { cmd_keres_Click(); });
    connect(lst_találatlista_, &ListBox::itemSelected, this, [this] { lst_találatlista_Click(); });
    connect(lst_translate_, &ListBox::itemDoubleClicked, this, [this] { lst_translate_DblClick(); });
    connect(lst_ajánlatok_, &LinkList::chosen, this, [this](int i) { lst_ajánlatok_Click(i); });
    connect(cmd_szószedethez_ad_, &QPushButton::clicked, this, [this] { cmd_szószedethez_ad_Click(); });
    connect(cmd_kilép_, &QPushButton::clicked, this, [this] { cmd_kilép_Click(); });
    Timer1_->setObjectName(u"Timer1"_s);
    connect(Timer1_, &QTimer::timeout, this, [this] { Timer1_Timer(); });
    Timer_fejléc_->setObjectName(u"Timer_fejléc"_s);
    Timer_fejléc_->setSingleShot(true);
    connect(Timer_fejléc_, &QTimer::timeout, this, [this] { Timer_fejléc_Timer(); });
    new LookupKeys(*txt_keres_, *lst_találatlista_, *lst_translate_);
    // The window sees keys before its controls do.
    for (QWidget *vezérlő : vezérlők())
        vezérlő->installEventFilter(this);
}

void frm_kisablak::fejlécet_elrendez() {
    const double magasság = hely(cmd_x_).height() + 2 * hely(cmd_x_).top();
    // The header is scaled with the window; the lines round it are not.
    const double vastag = vonal;
    const double jobb = belsőszélesség() - vastag;
    const double gomb = magasság - 2 * vastag;
    elhelyez(Line1_[0], {0, 0, belsőszélesség(), vastag});
    elhelyez(Line1_[1], {0, magasság - vastag, belsőszélesség(), vastag});
    elhelyez(Line1_[2], {0, 0, vastag, magasság});
    elhelyez(Line1_[3], {jobb, 0, vastag, magasság});
    elhelyez(label_fejléc_, {vastag, vastag, jobb - vastag, gomb});
    elhelyez(cmd_x_, {jobb - gomb, vastag, gomb, gomb});
    elhelyez(cmd_lent_, {jobb - 2 * gomb, vastag, gomb, gomb});
    label_fejléc_->lower();
    label_fejléc_->setContentsMargins(twips::to_pixels(szél), 0, 2 * cmd_x_->width(), 0);
    cmd_lent_->setText(u">"_s);
    cmd_x_->setPixmap(kereszt(cmd_x_->size(), devicePixelRatioF()));
    QFont betű = cmd_x_->font();
    fonts::set_points(betű, fonts::points(cmd_lent_->font()) - 1);
    cmd_x_->setFont(betű);
    for (QLabel *gombja : {cmd_lent_, cmd_x_}) {
        gombja->setAlignment(Qt::AlignCenter);
        háttérszínez(*gombja, Qt::white);
    }
}

void frm_kisablak::Form_Activate() {
    txt_keres_->setFocus();
    fejlécet_elrendez();
    const QSizeF méret(szélesség(), magasság());
    const QPointF honnan = k_.nagy.helye().center() - QPointF(méret.width(), méret.height()) / 2;
    helyez(honnan);
    show();
    activateWindow();
    ablakcsúsztat(
        honnan, képernyőre({static_cast<double>(k_.állapot.kisablakbal), static_cast<double>(k_.állapot.kisablakfent)},
                           méret, k_.képernyők()));
}

void frm_kisablak::ablakcsúsztat(const QPointF &honnan, const QPointF &hová) {
    const Foglalt foglalt(*this);
    for (int i = 1; i <= siklás_lépései; ++i) {
        helyez(siklás(honnan, hová, i));
        repaint();
        k_.lépésköz();
        // The program may end meanwhile, or the main window be back.
        if (!isVisible())
            return;
    }
    helyez(hová);
}

void frm_kisablak::helyez(const QPointF &hová) {
    hol_ = hová;
    move(twips::to_pixels(hová.x()), twips::to_pixels(hová.y()));
}

void frm_kisablak::moveEvent(QMoveEvent *event) {
    ablak::moveEvent(event);
    const QPoint ott(twips::to_pixels(hol_.x()), twips::to_pixels(hol_.y()));
    // Somebody else has moved the window.
    if (pos() != ott)
        hol_ = QPointF(pos()) * twips::per_pixel;
}

void frm_kisablak::changeEvent(QEvent *event) {
    ablak::changeEvent(event);
    // Minimised along with a full-screen window that it stands above, it would be nowhere: it has no button for that.
    if (event->type() == QEvent::WindowStateChange && isMinimized())
        QTimer::singleShot(0, this, [this] {
            // As the dialog of that window it would bring that one back.
            k_.legfelül.make(winId());
            setAttribute(Qt::WA_ShowWithoutActivating);
            showNormal();
        });
}

void frm_kisablak::helyet_megjegyez() {
    k_.állapot.kisablakbal = qRound(hol_.x());
    k_.állapot.kisablakfent = qRound(hol_.y());
}

void frm_kisablak::txt_keres_Change() {
    const Foglalt foglalt(*this);
    k_.nagy.angolszóba_ír(txt_keres_->text());
    lst_találatlista_->show_selected_in_middle();
}

void frm_kisablak::cmd_keres_Click() {
    const Foglalt foglalt(*this);
    k_.nagy.Ok_Click();
    lst_találatlista_->show_selected_in_middle();
    txt_keres_->setFocus();
}

void frm_kisablak::keresőmezőbe() {
    txt_keres_->setFocus(Qt::ShortcutFocusReason);
    txt_keres_->selectAll();
}

void frm_kisablak::Timer1_Timer() {
    k_.legfelül.renew(winId());
    const auto most = vágólap_->text();
    if (!most)
        return;
    if (most->was_there) {
        vágólapszöveg_.megjegyez(most->text);
        return;
    }
    const auto szó = vágólapszöveg_.új_szó(most->text);
    if (!szó)
        return;
    const Foglalt foglalt(*this);
    const int ez_a_keresés = ++vágólapkeresés_;
    rövidítve_keres(*szó, [&](const QString &mit) -> std::optional<bool> {
        if (txt_keres_->text() == mit)
            txt_keres_Change();
        else
            txt_keres_->setText(mit);
        QCoreApplication::processEvents();
        // A newer word was copied or typed meanwhile, or the window left.
        if (ez_a_keresés != vágólapkeresés_ || txt_keres_->text() != mit || !isVisible())
            return std::nullopt;
        return lst_találatlista_->count() > 0;
    });
    // What was copied is a form of a word more often than not, also when a shorter one has been found.
    if (ez_a_keresés == vágólapkeresés_ && isVisible() && !szó->isEmpty())
        k_.ajánlatok.kérdez({.szöveg = *szó, .angolról = k_.kereső.angolról()});
}

void frm_kisablak::lst_találatlista_Click() {
    k_.kereső.jelentéseket_mutat();
    lst_találatlista_->setToolTip(lst_találatlista_->item(lst_találatlista_->selected()));
}

void frm_kisablak::lst_ajánlatok_Click(int i) {
    const Foglalt foglalt(*this);
    if (k_.ajánlatok.kifejezések_sora(i)) {
        k_.nagy.kifejezéseket_keres(k_.ajánlatok.szöveg());
        return;
    }
    const ajánlat mit = k_.ajánlatok.egyik(i);
    const QString kulcs = keresőkulcs(QStringView(mit.címszó)).toString();
    k_.nagy.irányt_vált(mit.angolról);
    címet_ír();
    if (txt_keres_->text() == kulcs)
        txt_keres_Change();
    else
        txt_keres_->setText(kulcs);
    k_.kereső.kijelöl(mit.címszó);
    lst_találatlista_->setFocus();
}

void frm_kisablak::cmd_szószedethez_ad_Click() {
    if (k_.nagy.hozzáad_Click())
        felvettet_mutat();
    txt_keres_->setFocus();
}

void frm_kisablak::lst_translate_DblClick() {
    if (k_.nagy.magyarlist_DblClick())
        felvettet_mutat();
}

void frm_kisablak::felvettet_mutat() {
    const auto mit = k_.kereső.választott();
    if (!mit)
        return;
    const QString hír = u"Szószedetben: %1 – %2"_s.arg(mit->címszó, mit->jelentés);
    const int szélesség = cmd_lent_->x() - label_fejléc_->x() - label_fejléc_->contentsMargins().left();
    label_fejléc_->setText(label_fejléc_->fontMetrics().elidedText(hír, Qt::ElideRight, szélesség));
    Timer_fejléc_->start(hírideje);
}

void frm_kisablak::címet_ír() {
    const QString cím = k_.kereső.angolról() ? u"Zimbora Angol-magyar szótár"_s : u"Zimbora Magyar-angol szótár"_s;
    label_fejléc_->setText(cím);
    setWindowTitle(cím);
}

void frm_kisablak::Timer_fejléc_Timer() {
    label_fejléc_->setText(windowTitle());
}

void frm_kisablak::cmd_kilép_Click() {
    Timer1_->stop();
    helyet_megjegyez();
    k_.nagy.visszatér(hol_ + QPointF(szélesség(), magasság()) / 2);
}

void frm_kisablak::cmd_x_Click() {
    k_.nagy.kilép_Click();
}

void frm_kisablak::cmd_lent_Click() {
    const QSizeF képernyő = k_.közös.hasznos.képernyő().size();
    // A desktop with a panel keeps the window a little off the corner that it was sent to.
    const bool ott_van = sarok_ && (*sarok_ - hol_).manhattanLength() < panelméret;
    sarok_ = következő_sarok(ott_van ? *sarok_ : hol_, {szélesség(), magasság()}, képernyő);
    ablakcsúsztat(hol_, *sarok_);
    helyet_megjegyez();
}

void frm_kisablak::closeEvent(QCloseEvent *event) {
    event->ignore();
    cmd_x_Click();
}

void frm_kisablak::label_fejléc_MouseDown(const QPointF &mutató) {
    const QPointF fogáspont = mutató * twips::per_pixel - hol_;
    fogáspontX_ = qRound(fogáspont.x());
    fogáspontY_ = qRound(fogáspont.y());
}

void frm_kisablak::label_fejléc_MouseMove(const QPointF &mutató) {
    sarok_.reset();
    helyez(mutató * twips::per_pixel - QPointF(fogáspontX_, fogáspontY_));
    helyet_megjegyez();
}

// The header, its caption and the surface of the window leave the mouse to the window; its buttons do not.

void frm_kisablak::mousePressEvent(QMouseEvent *event) {
    if (event->button() != Qt::LeftButton)
        return;
    activateWindow();
    label_fejléc_MouseDown(event->globalPosition());
}

void frm_kisablak::mouseMoveEvent(QMouseEvent *event) {
    if (event->buttons() & Qt::LeftButton)
        label_fejléc_MouseMove(event->globalPosition());
}

bool frm_kisablak::fogás_gombon(QPushButton &gomb, const QMouseEvent &esemény) {
    switch (esemény.type()) {
        case QEvent::MouseButtonPress:
            gombbal_húz_ = false;
            fogás_kezdete_ = esemény.globalPosition();
            if (esemény.button() == Qt::LeftButton)
                label_fejléc_MouseDown(esemény.globalPosition());
            return false;
        case QEvent::MouseMove:
            if (!(esemény.buttons() & Qt::LeftButton))
                return false;
            // A hand that trembles still presses the button.
            if ((esemény.globalPosition() - fogás_kezdete_).manhattanLength() >= QApplication::startDragDistance())
                gombbal_húz_ = true;
            if (gombbal_húz_)
                label_fejléc_MouseMove(esemény.globalPosition());
            return gombbal_húz_;
        case QEvent::MouseButtonRelease:
            if (!gombbal_húz_)
                return false;
            gombbal_húz_ = false;
            gomb.setDown(false);
            return true;
        default:
            return false;
    }
}

bool frm_kisablak::fejlécgomb(QLabel &gomb, const QMouseEvent &esemény) {
    // What the window sees drags it, and these two do not.
    if (esemény.button() != Qt::LeftButton)
        return true;
    if (esemény.type() == QEvent::MouseButtonPress || esemény.type() == QEvent::MouseButtonDblClick) {
        háttérszínez(gomb, QColor(255, 0, 0));
        return true;
    }
    if (esemény.type() != QEvent::MouseButtonRelease)
        return true;
    háttérszínez(gomb, QColor(255, 255, 255));
    if (!gomb.rect().contains(esemény.position().toPoint()))
        return true;
    if (&gomb == cmd_x_)
        cmd_x_Click();
    else
        cmd_lent_Click();
    return true;
}

bool frm_kisablak::billentyű(const QKeyEvent &esemény) {
    if (esemény.isAutoRepeat())
        return false;
    if (esemény.key() == Qt::Key_F2) {
        cmd_lent_Click();
        return true;
    }
    if (esemény.key() == Qt::Key_F6 || (esemény.key() == Qt::Key_L && esemény.modifiers() == Qt::ControlModifier)) {
        keresőmezőbe();
        return true;
    }
    if (esemény.key() == Qt::Key_F4 && esemény.modifiers() == Qt::AltModifier) {
        cmd_x_Click();
        return true;
    }
    return false;
}

void frm_kisablak::keyPressEvent(QKeyEvent *event) {
    if (!billentyű(*event))
        ablak::keyPressEvent(event);
}

bool frm_kisablak::eventFilter(QObject *watched, QEvent *event) {
    switch (event->type()) {
        case QEvent::KeyPress:
            if (billentyű(*static_cast<QKeyEvent *>(event)))
                return true;
            break;
        case QEvent::FocusIn:
            alapgombbeállít(watched == lst_translate_ ? cmd_szószedethez_ad_ : cmd_keres_);
            break;
        case QEvent::ToolTip:
            if (static_cast<QWidget *>(watched)->toolTip().isEmpty())
                break;
            // As rich text a long tip is broken into lines.
            QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                               u"<p style='white-space:pre-wrap'>%1</p>"_s.arg(
                                   static_cast<QWidget *>(watched)->toolTip().toHtmlEscaped()),
                               static_cast<QWidget *>(watched));
            return true;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease: {
            const auto &egér = *static_cast<QMouseEvent *>(event);
            if (watched == cmd_x_ || watched == cmd_lent_)
                return fejlécgomb(*static_cast<QLabel *>(watched), egér);
            for (QPushButton *gomb : {cmd_keres_, cmd_kilép_, cmd_szószedethez_ad_}) {
                if (watched == gomb && fogás_gombon(*gomb, egér))
                    return true;
            }
            break;
        }
        default:
            break;
    }
    return ablak::eventFilter(watched, event);
}
