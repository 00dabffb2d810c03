#include "suggestions/widgets/phrases_window.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPointer>
#include <QShortcut>
#include <QTimer>
#include <algorithm>

#include "ui/controls/marked_text.h"
#include "ui/controls/named.h"
#include "ui/controls/search_box.h"

using namespace Qt::StringLiterals;

namespace {

// The design, in twips.
constexpr double szél = 120;
constexpr double sormagasság = 420;
constexpr double tervszélesség = 10360;
constexpr double felirattető = 100;
constexpr double keresőtető = 400;
constexpr double listatető = 920;
constexpr double listaalja = 6200;
constexpr double gombszélesség = 2300;
constexpr double képernyőrész = 0.85;

}  // namespace

frm_kifejezések::frm_kifejezések(const kifejezéskörnyezet &környezet)
    : ablak(u"frm_kifejezések"_s, menü::nincs, keret::átméretezhető),
      k_(környezet),
      lista_(k_.keresés),
      Label_kifejezés_(
          named(new QLabel(u"&Keresett szó vagy szavak, angolul vagy magyarul:"_s), u"Label_kifejezés", nullptr)),
      txt_kifejezés_(named(new SearchBox, u"txt_kifejezés", u"Keresett szó vagy szavak")),
      Label_kifejezések_(named(new QLabel, u"Label_kifejezések", nullptr)),
      lst_kifejezések_(named(new QTreeView, u"lst_kifejezések", u"Kifejezések")),
      cmd_kifejezést_ad_(named(new QPushButton(u"&Szószedethez ad"_s), u"cmd_kifejezést_ad", u"Szószedethez ad")),
      cmd_bezár_(named(new QPushButton(u"Bezár"_s), u"cmd_bezár", u"Bezár")) {
    Label_kifejezés_->setBuddy(txt_kifejezés_);
    lst_kifejezések_->setModel(&lista_);
    lst_kifejezések_->setItemDelegate(new MarkedText(kifejezéslista::találatok_szerepe, lst_kifejezések_));
    lst_kifejezések_->setRootIsDecorated(false);
    lst_kifejezések_->setUniformRowHeights(true);
    lst_kifejezések_->setAllColumnsShowFocus(true);
    lst_kifejezések_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    lst_kifejezések_->header()->setSectionsMovable(false);
    méretez(tervszélesség + keretszélesség(), listaalja + 3 * szél + sormagasság + keretmagasság());
    elhelyezés();
    eseményeket_köt();
    k_.közös.hasznos.öltöztet(*this, k_.közös.főablak, képernyőrész);
    setWindowTitle(u"Kifejezések"_s);
    alapgombbeállít(cmd_kifejezést_ad_);
    mégsegombbeállít(cmd_bezár_);
    txt_kifejezés_Change();
    txt_kifejezés_->setFocus();
}

void frm_kifejezések::elhelyezés() {
    const double jobb = tervszélesség - szél;
    elhelyez(Label_kifejezés_, {szél, felirattető, jobb - szél, 300});
    elhelyez(txt_kifejezés_, {szél, keresőtető, 6000, sormagasság});
    elhelyez(Label_kifejezések_, {6300, keresőtető, jobb - 6300, sormagasság});
    elhelyez(lst_kifejezések_, {szél, listatető, jobb - szél, listaalja - listatető});
    const double gombtető = listaalja + szél;
    elhelyez(cmd_kifejezést_ad_, {jobb - 2 * gombszélesség - szél, gombtető, gombszélesség, sormagasság});
    elhelyez(cmd_bezár_, {jobb - gombszélesség, gombtető, gombszélesség, sormagasság});
}

void frm_kifejezések::eseményeket_köt() {
    connect(txt_kifejezés_, &QLineEdit::textChanged, this, [this] { txt_kifejezés_Change(); });
    connect(lst_kifejezések_, &QTreeView::doubleClicked, this, [this] { cmd_kifejezést_ad_Click(); });
    connect(lst_kifejezések_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { lst_kifejezések_Change(); });
    connect(&lista_, &QAbstractItemModel::modelReset, this, [this] { lst_kifejezések_Change(); });
    connect(&lista_, &QAbstractItemModel::rowsInserted, this, [this] {
        if (!lst_kifejezések_->currentIndex().isValid())
            lst_kifejezések_->setCurrentIndex(lista_.index(0, 0));
        const bool több = lista_.darab() >= kifejezésfigyelő().legfeljebb;
        Label_kifejezések_->setText((több ? u"az első %1 kifejezés"_s : u"%1 kifejezés"_s).arg(lista_.darab()));
    });
    connect(cmd_kifejezést_ad_, &QPushButton::clicked, this, [this] { cmd_kifejezést_ad_Click(); });
    connect(cmd_bezár_, &QPushButton::clicked, this, [this] { close(); });
    // Before the list itself copies what stands in one of its columns.
    const auto *másolás = new QShortcut(QKeySequence::Copy, lst_kifejezések_, nullptr, nullptr, Qt::WidgetShortcut);
    connect(másolás, &QShortcut::activated, this, [this] { másol(); });
}

void frm_kifejezések::keres(const QString &szöveg) {
    txt_kifejezés_->setText(szöveg);
    txt_kifejezés_->setFocus();
    txt_kifejezés_->selectAll();
}

void frm_kifejezések::txt_kifejezés_Change() {
    const QString szöveg = txt_kifejezés_->text().trimmed();
    Label_kifejezések_->clear();
    lista_.keres(szöveg, [this, volt_mit = !szöveg.isEmpty()] { keresés_vége(volt_mit); });
    lst_kifejezések_Change();
}

void frm_kifejezések::keresés_vége(bool volt_mit) {
    if (lista_.darab() == 0 && volt_mit)
        Label_kifejezések_->setText(u"nincs találat"_s);
}

void frm_kifejezések::lst_kifejezések_Change() {
    cmd_kifejezést_ad_->setEnabled(lst_kifejezések_->currentIndex().isValid());
}

void frm_kifejezések::cmd_kifejezést_ad_Click() {
    const QModelIndex melyik = lst_kifejezések_->currentIndex();
    if (!melyik.isValid())
        return;
    const kifejezés &egyik = lista_.egyik(melyik.row());
    if (k_.hozzáad(egyik.angol, egyik.magyar))
        Label_kifejezések_->setText(u"Szószedetben: %1 – %2"_s.arg(egyik.angol, egyik.magyar));
}

void frm_kifejezések::másol() {
    const QModelIndex melyik = lst_kifejezések_->currentIndex();
    if (!melyik.isValid())
        return;
    const kifejezés &egyik = lista_.egyik(melyik.row());
    QGuiApplication::clipboard()->setText(egyik.angol + u'\t' + egyik.magyar);
}

void frm_kifejezések::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Down && txt_kifejezés_->hasFocus())
        lst_kifejezések_->setFocus();
    else
        ablak::keyPressEvent(event);
}

void frm_kifejezések::Form_Resize() {
    // The lists take what there is; what stands below and at the right of them keeps its distance from the edges.
    const double jobb = belsőszélesség() - szél;
    const QRectF bezár = hely(cmd_bezár_);
    const QRectF ad = hely(cmd_kifejezést_ad_);
    const QRectF lista = hely(lst_kifejezések_);
    const double gombtető = belsőmagasság() - szél - bezár.height();
    elhelyez(cmd_bezár_, {jobb - bezár.width(), gombtető, bezár.width(), bezár.height()});
    elhelyez(cmd_kifejezést_ad_, {jobb - bezár.width() - szél - ad.width(), gombtető, ad.width(), ad.height()});
    elhelyez(lst_kifejezések_,
             {lista.left(), lista.top(), jobb - lista.left(), std::max(gombtető - szél - lista.top(), 0.0)});
    lst_kifejezések_->setColumnWidth(0, lst_kifejezések_->viewport()->width() / 2);
}

void frm_kifejezések::showEvent(QShowEvent *event) {
    ablak::showEvent(event);
    Form_Resize();
}

void frm_kifejezések::closeEvent(QCloseEvent *event) {
    event->accept();
    QTimer::singleShot(0, qApp, [én = QPointer<QWidget>(this), bezárva = k_.bezárva] {
        if (én && !én->isVisible())
            bezárva();
    });
}
