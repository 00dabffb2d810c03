#include "lookup/widgets/help_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QLineEdit>
#include <QPointer>
#include <QToolButton>
#include <algorithm>
#include <array>
#include <utility>

#include "lookup/help_archive.h"
#include "lookup/widgets/missing_browser.h"
#include "ui/controls/named.h"
#include "ui/drawing/svg_picture.h"
#include "ui/drawing/twips.h"
#include "ui/window/colour_copy.h"

using namespace Qt::StringLiterals;

namespace {

// The design, in twips.
constexpr QSizeF tervezett(12000, 9000);
constexpr QRectF eszköztárhely(0, 0, tervezett.width(), 760);
constexpr QRectF címsorhely(0, 760, tervezett.width(), 720);
constexpr QRectF feliratsor(50, 800, 2400, 240);
constexpr double címmagasság = 380;
constexpr double képméret = 480;

constexpr double képernyőrész = 0.85;
// These lengths stay as they are on every screen.
constexpr double bal = 50;
constexpr double címköz = 15;
constexpr double szél = 100;

constexpr int időköz = 100;  // milliseconds

const QString keresőlap = u"https://duckduckgo.com/"_s;

struct Gomb {
    const char16_t *kulcs;
    const char16_t *név;
    const char *kép;
    QKeySequence::StandardKey billentyű;
    void (WebBrowser::*teendő)();
};

/// The toolbar's image list and its buttons.
constexpr std::array<Gomb, 6> imlIcons{{
    {u"Back", u"Vissza", "back", QKeySequence::Back, &WebBrowser::go_back},
    {u"Forward", u"Előre", "forward", QKeySequence::Forward, &WebBrowser::go_forward},
    {u"Refresh", u"Frissítés", "refresh", QKeySequence::Refresh, &WebBrowser::refresh},
    {u"Home", u"Kezdőlap", "home", QKeySequence::UnknownKey, &WebBrowser::go_home},
    {u"Search", u"Keresés a weben", "search", QKeySequence::UnknownKey, &WebBrowser::go_search},
    {u"Stop", u"Leállítás", "stop", QKeySequence::Cancel, &WebBrowser::stop},
}};

}  // namespace

frm_súgó::frm_súgó(const súgókörnyezet &környezet)
    : ablak(u"frm_súgó"_s, menü::nincs, keret::átméretezhető),
      k_(környezet),
      címek_(k_.programkönyvtár),
      kezdőcím_(címek_.kezdőcím()),
      tbToolBar_(named(new QToolBar, u"tbToolBar", u"Eszköztár")),
      picAddress_(named(new PictureBox, u"picAddress", u"Címsor")),
      lblAddress_(named(new QLabel(u"&Address:"_s), u"lblAddress", nullptr)),
      cboAddress_(named(new QComboBox, u"cboAddress", u"Cím")),
      timTimer_(new QTimer(this)) {
    setWindowTitle(u"Kavaro - Súgó"_s);
    timTimer_->setObjectName(u"timTimer"_s);
    timTimer_->setInterval(időköz);
    connect(timTimer_, &QTimer::timeout, this, [this] { timTimer_Timer(); });
    eszköztár();
    címsor();
    böngészőt_készít();
    elhelyezés();
    Form_Load();
}

void frm_súgó::eszköztár() {
    for (const Gomb &gomb : imlIcons) {
        auto *button = named(new QToolButton, gomb.kulcs, gomb.név);
        const QKeySequence billentyű(gomb.billentyű);
        const QString név = QString::fromUtf16(gomb.név);
        button->setShortcut(billentyű);
        button->setToolTip(billentyű.isEmpty() ? név
                                               : név + u" (%1)"_s.arg(billentyű.toString(QKeySequence::NativeText)));
        button->setAutoRaise(true);
        tbToolBar_->addWidget(button);
        connect(button, &QToolButton::clicked, this, [this, mi = gomb.teendő] { tbToolBar_ButtonClick(mi); });
    }
}

void frm_súgó::címsor() {
    lblAddress_->setBuddy(cboAddress_);
    cboAddress_->setEditable(true);
    cboAddress_->setInsertPolicy(QComboBox::NoInsert);
    cboAddress_->setCompleter(nullptr);
    // The list would take a text that is like one of its entries for a choice as soon as the focus leaves the box.
    disconnect(cboAddress_->lineEdit(), &QLineEdit::editingFinished, cboAddress_, nullptr);
    connect(cboAddress_, &QComboBox::activated, this, [this] { cboAddress_Click(); });
    connect(cboAddress_->lineEdit(), &QLineEdit::returnPressed, this, [this] { cboAddress_KeyPress(); });
}

void frm_súgó::böngészőt_készít() {
    auto készült = k_.böngésző(
        {súgócímek::url(kezdőcím_), QUrl(keresőlap), [címek = címek_](const QUrl &cím) { return címek.akadály(cím); }});
    if (const auto *gond = std::get_if<Failure>(&készült)) {
        k_.közös.üzenetek.tell(gond->sentence);
        brwWebBrowser_ = std::make_unique<MissingBrowser>(gond->sentence);
    } else {
        brwWebBrowser_ = std::get<std::unique_ptr<WebBrowser>>(std::move(készült));
    }
    named(brwWebBrowser_->widget(), u"brwWebBrowser", u"A súgó lapja");
    brwWebBrowser_->notify(
        {[this] { brwWebBrowser_DownloadComplete(); }, [this] { brwWebBrowser_NavigateComplete(); }, k_.rövidüzenet});
}

void frm_súgó::elhelyezés() {
    const double teteje = címsorhely.bottom();
    elhelyez(tbToolBar_, eszköztárhely);
    // The address row stands on the picture box.
    elhelyez(picAddress_, címsorhely);
    elhelyez(lblAddress_, feliratsor);
    elhelyez(cboAddress_, {bal, feliratsor.bottom() + címköz, tervezett.width() - szél, címmagasság});
    elhelyez(brwWebBrowser_->widget(), {bal, teteje, tervezett.width() - szél, tervezett.height() - teteje - szél});
    global::színmásol(*this, k_.közös.főablak);
    setWindowIcon(k_.közös.főablak.windowIcon());
    const double szorzó = k_.közös.hasznos.ablakméretez(*this, képernyőrész);
    Module_hasznos::betűméretez(*this, szorzó);
    középre(k_.közös.hasznos.képernyő());
    brwWebBrowser_->set_zoom(szorzó);
    const int oldal = twips::to_pixels(képméret * szorzó);
    tbToolBar_->setIconSize({oldal, oldal});
    for (const Gomb &gomb : imlIcons) {
        const QString fájl = u":/help-toolbar/%1.svg"_s.arg(QString::fromLatin1(gomb.kép));
        findChild<QToolButton *>(QString::fromUtf16(gomb.kulcs))
            ->setIcon(svg_picture(fájl, {oldal, oldal}, devicePixelRatioF()));
    }
}

void frm_súgó::Form_Load() {
    tbToolBar_->show();
    Form_Resize();
    const QRectF felirat = hely(lblAddress_);
    elhelyez(cboAddress_, {{bal, felirat.bottom() + címköz}, hely(cboAddress_).size()});
    if (kezdőcím_.isEmpty())
        return;
    cboAddress_->addItem(kezdőcím_);
    cboAddress_->setEditText(kezdőcím_);
    timTimer_->start();
    sérülést_elmond();
    navigál();
}

void frm_súgó::sérülést_elmond() {
    const QString út = súgócímek::url(kezdőcím_).toLocalFile();
    const FileContent tartalom = files::read_whole(út);
    const auto *bytes = std::get_if<QByteArray>(&tartalom);
    const auto mi = bytes ? archívumhiba(*bytes) : std::nullopt;
    if (mi)
        k_.egyszer_szól(u"A(z) „%1” súgófájl sérült: %2 Segíthet a program újratelepítése."_s.arg(
            QDir::toNativeSeparators(út), *mi));
}

void frm_súgó::Form_Resize() {
    const double belső = belsőszélesség();
    const double teteje = hely(picAddress_).bottom();
    const double széles = std::max(belső - szél, 0.0);
    elhelyez(tbToolBar_, {{0, 0}, QSizeF(belső, hely(tbToolBar_).height())});
    elhelyez(picAddress_, {hely(picAddress_).topLeft(), QSizeF(belső, hely(picAddress_).height())});
    elhelyez(cboAddress_, {hely(cboAddress_).topLeft(), QSizeF(széles, hely(cboAddress_).height())});
    elhelyez(brwWebBrowser_->widget(), {bal, teteje, széles, std::max(belsőmagasság() - teteje - szél, 0.0)});
}

void frm_súgó::showEvent(QShowEvent *event) {
    ablak::showEvent(event);
    brwWebBrowser_->widget()->setFocus();
}

void frm_súgó::closeEvent(QCloseEvent *event) {
    timTimer_->stop();
    brwWebBrowser_->stop();
    event->accept();
    QTimer::singleShot(0, qApp, [én = QPointer<QWidget>(this), bezárva = k_.bezárva] {
        if (én && !én->isVisible())
            bezárva();
    });
}

void frm_súgó::megnyit(const QString &cím) {
    cboAddress_->setEditText(cím);
    cboAddress_Click();
}

void frm_súgó::súgóhoz() {
    const auto lap = [](const QString &cím) { return súgócímek::url(cím).adjusted(QUrl::RemoveFragment); };
    if (lap(brwWebBrowser_->location_address()) != lap(kezdőcím_))
        megnyit(kezdőcím_);
}

void frm_súgó::navigál() {
    const QString szöveg = cboAddress_->currentText();
    if (szöveg.trimmed().isEmpty())
        return;
    const auto cím = címek_.nyitható(szöveg);
    if (const auto *gond = std::get_if<Failure>(&cím))
        k_.rövidüzenet(gond->sentence);
    else
        brwWebBrowser_->navigate(std::get<QUrl>(cím));
}

void frm_súgó::lapnév() {
    setWindowTitle(brwWebBrowser_->location_name());
}

void frm_súgó::timTimer_Timer() {
    if (brwWebBrowser_->busy()) {
        setWindowTitle(u"Working..."_s);
        return;
    }
    timTimer_->stop();
    lapnév();
}

void frm_súgó::brwWebBrowser_DownloadComplete() {
    lapnév();
}

void frm_súgó::brwWebBrowser_NavigateComplete() {
    const QString cím = brwWebBrowser_->location_address();
    for (int i = cboAddress_->count() - 1; i >= 0; --i) {
        if (cboAddress_->itemText(i) == cím)
            cboAddress_->removeItem(i);
    }
    cboAddress_->insertItem(0, cím);
    cboAddress_->setCurrentIndex(0);
}

void frm_súgó::cboAddress_Click() {
    timTimer_->start();
    navigál();
}

void frm_súgó::cboAddress_KeyPress() {
    cboAddress_Click();
}

void frm_súgó::tbToolBar_ButtonClick(teendő mi) {
    timTimer_->start();
    if (mi == &WebBrowser::stop)
        timTimer_->stop();
    (brwWebBrowser_.get()->*mi)();
    if (mi == &WebBrowser::stop)
        lapnév();
}
