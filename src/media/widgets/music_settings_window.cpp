#include "media/widgets/music_settings_window.h"

#include <QCloseEvent>
#include <QFontMetricsF>

#include "media/widgets/list_buttons.h"
#include "ui/controls/named.h"
#include "ui/drawing/fonts.h"
#include "ui/drawing/twips.h"

using namespace Qt::StringLiterals;

namespace {

// The design, in twips.
constexpr double szél = 150;
constexpr double sorköz = 90;
constexpr double cím_magas = 330;
/// Captions are fitted to the buttons, and should come out not much larger than the other letters.
constexpr double gomb_magas = 360;
constexpr double lista_széles = 4200;
constexpr double lista_magas = 3900;
constexpr double nyíl = 560;
constexpr double jobb = szél + lista_széles + 2 * szél;
constexpr double nyilak = jobb + lista_széles + sorköz;
constexpr double jobb_széle = nyilak + nyíl;

constexpr double képernyőrész = 0.7;
/// The two buttons bear the distance of their move plus one.
constexpr int fel_index = 0;
constexpr int le_index = 2;

constexpr double türelem_pont = 24;
constexpr double legkisebb_pont = 6;
constexpr double kitölt = 0.9;

QPushButton *gomb(const char16_t *név, const char16_t *felirat) {
    return named(new QPushButton(QString::fromUtf16(felirat)), név, felirat);
}

QPushButton *nyílgomb(int index, const char16_t *mit) {
    auto *nyilas = named(new QPushButton, u"", mit);
    nyilas->setObjectName(u"cmd_áthelyez(%1)"_s.arg(index));
    nyilas->setToolTip(QString::fromUtf16(mit));
    return nyilas;
}

}  // namespace

frm_zenebeáll::frm_zenebeáll(const hangkörnyezet &környezet)
    : ablak(u"frm_zenebeáll"_s),
      k_(környezet),
      beállítások_(k_.meghajtó, k_.programkönyvtár),
      Label2_(named(new QLabel(u"A rendelkezésre álló zenei fájlok:"_s), u"Label2", nullptr)),
      filelist_zene_(named(new FileListBox(u"*.mid"_s), u"filelist_zene", u"A rendelkezésre álló zenei fájlok")),
      cmd_add_(gomb(u"cmd_add", u"Zene hozzáadása a listához")),
      Label1_(named(new QLabel(u"A lejátszásra kerülő zenei fájlok:"_s), u"Label1", nullptr)),
      list_playlist_(named(new ListBox, u"list_playlist", u"A lejátszásra kerülő zenei fájlok")),
      cmd_törl_(gomb(u"cmd_törl", u"Zene törlése a listából")),
      fel_(nyílgomb(fel_index, u"A kijelölt zene feljebb")),
      le_(nyílgomb(le_index, u"A kijelölt zene lejjebb")),
      chk_zene_enged_(named(new QCheckBox(u"Zene engedélyezése"_s), u"chk_zene_enged", u"Zene engedélyezése")),
      cmd_ok_(named(new QPushButton(u"Ok"_s), u"cmd_ok", u"Ok, mentés")),
      cmd_mégsem_(named(new QPushButton(u"Mégsem"_s), u"cmd_mégsem", u"Mégsem")),
      lab_türelem_(named(new QLabel(u"Fájl.mid lejátszása"_s), u"lab_türelem", nullptr)) {
    setWindowTitle(u"Zenei beállítások"_s);
    elhelyezés();
    eseményeket_köt();
    Form_Load();
}

void frm_zenebeáll::elhelyezés() {
    double fent = szél;
    elhelyez(Label2_, {szél, fent, lista_széles, cím_magas});
    elhelyez(Label1_, {jobb, fent, lista_széles, cím_magas});
    fent += cím_magas;
    elhelyez(filelist_zene_, {szél, fent, lista_széles, lista_magas});
    elhelyez(list_playlist_, {jobb, fent, lista_széles, lista_magas});
    elhelyez(fel_, {nyilak, fent + lista_magas / 2 - nyíl - sorköz, nyíl, nyíl});
    elhelyez(le_, {nyilak, fent + lista_magas / 2 + sorköz, nyíl, nyíl});
    const double középen = fent + lista_magas / 3;
    fent += lista_magas + sorköz;
    elhelyez(cmd_add_, {szél, fent, lista_széles, gomb_magas});
    elhelyez(cmd_törl_, {jobb, fent, lista_széles, gomb_magas});
    fent += gomb_magas + 2 * sorköz;
    elhelyez(chk_zene_enged_, {szél, fent, lista_széles, gomb_magas});
    constexpr double zárógomb = (lista_széles - szél) / 2;
    elhelyez(cmd_ok_, {jobb, fent, zárógomb, gomb_magas});
    elhelyez(cmd_mégsem_, {jobb + zárógomb + szél, fent, zárógomb, gomb_magas});
    // Over everything else, while a file is being opened.
    lab_türelem_->hide();
    elhelyez(lab_türelem_, {szél, középen, jobb_széle - szél, gomb_magas});
    lab_türelem_->setAlignment(Qt::AlignCenter);
    lab_türelem_->setFrameShape(QFrame::Box);
    alapgombbeállít(cmd_ok_);
    mégsegombbeállít(cmd_mégsem_);
}

void frm_zenebeáll::eseményeket_köt() {
    const auto gombra = [this](QPushButton *melyik, auto mit) { connect(melyik, &QPushButton::clicked, this, mit); };
    connect(filelist_zene_, &ListBox::itemSelected, this, [this] { filelist_zene_Click(); });
    connect(list_playlist_, &ListBox::itemSelected, this, [this] { list_playlist_Click(); });
    gombra(cmd_add_, [this] { cmd_add_Click(); });
    gombra(cmd_törl_, [this] { cmd_törl_Click(); });
    gombra(fel_, [this] { cmd_áthelyez_Click(fel_index); });
    gombra(le_, [this] { cmd_áthelyez_Click(le_index); });
    gombra(cmd_ok_, [this] { cmd_ok_Click(); });
    gombra(cmd_mégsem_, [this] { cmd_mégsem_Click(); });
}

void frm_zenebeáll::Form_Load() {
    betölt();
    filelist_zene_->set_folder(beállítások_.zenemappa());
    k_.közös.hasznos.öltöztet(*this, k_.közös.főablak, képernyőrész);
    lab_türelem_->setAutoFillBackground(true);
    engedélyezés();
    for (QPushButton *gomb : {cmd_add_, cmd_törl_, cmd_ok_, cmd_mégsem_})
        Module_hasznos::szövegbeigazít(*gomb, gomb->text());
    rajzol({fel_}, u"up");
    rajzol({le_}, u"down");
}

void frm_zenebeáll::mutat() {
    // Pieces may have come or gone while the window was hidden.
    filelist_zene_->refresh_keeping_selection();
    engedélyezés();
    if (betöltés_baja_)
        k_.közös.üzenetek.tell(betöltés_baja_->sentence);
    betöltés_baja_.reset();
    filelist_zene_->setFocus();
    mutatmodálisan();
}

void frm_zenebeáll::betölt() {
    betöltés_baja_ = beállítások_.betölt();
    chk_zene_enged_->setChecked(beállítások_.engedélyezve);
    listát_mutat();
}

void frm_zenebeáll::listát_mutat() {
    list_playlist_->set_items(beállítások_.lista.nevek());
    list_playlist_->select(beállítások_.lista.kijelölt());
    engedélyezés();
}

void frm_zenebeáll::list_playlist_Click() {
    beállítások_.lista.kijelöl(list_playlist_->selected());
    indít(kijelölt_neve());
}

void frm_zenebeáll::filelist_zene_Click() {
    indít(filelist_zene_->file_name());
}

/// Starts a piece of the folder, unless it is the one that was started last.
void frm_zenebeáll::indít(const QString &név) {
    türelmet_kér(név);
    const QString út = filelist_zene_->path_of(név);
    if (út != utolsó_)
        k_.játszó.midilejátszás(út);
    utolsó_ = út;
    engedélyezés();
    lab_türelem_->hide();
}

/// Says what is being opened, in the largest letters in which it takes nine tenths of the width.
void frm_zenebeáll::türelmet_kér(const QString &név) {
    const QString szöveg = név + u" fájl lejátszása"_s;
    QRectF helye = hely(lab_türelem_);
    QFont betű = lab_türelem_->font();
    double pont = türelem_pont;
    const auto széles = [&] { return twips::from_pixels(QFontMetricsF(betű).horizontalAdvance(szöveg)); };
    for (fonts::set_points(betű, pont); pont > legkisebb_pont && széles() > kitölt * helye.width(); --pont)
        fonts::set_points(betű, pont - 1);
    lab_türelem_->setFont(betű);
    lab_türelem_->setText(szöveg);
    const double magas = 2 * twips::from_pixels(QFontMetricsF(betű).height());
    helye.moveTop(hely(list_playlist_).center().y() - magas / 2);
    helye.setHeight(magas);
    elhelyez(lab_türelem_, helye);
    lab_türelem_->show();
    lab_türelem_->raise();
    // Opening may take a moment, and nothing is drawn meanwhile.
    lab_türelem_->repaint();
}

void frm_zenebeáll::engedélyezés() {
    const int melyik = list_playlist_->selected();
    engedélyez(*cmd_add_, filelist_zene_->selected() >= 0, *filelist_zene_);
    engedélyez(*cmd_törl_, melyik >= 0, *list_playlist_);
    engedélyez(*fel_, melyik > 0, *list_playlist_);
    engedélyez(*le_, melyik >= 0 && melyik < list_playlist_->count() - 1, *list_playlist_);
}

void frm_zenebeáll::cmd_add_Click() {
    beállítások_.lista.hozzáad(filelist_zene_->file_name());
    listát_mutat();
}

void frm_zenebeáll::cmd_törl_Click() {
    beállítások_.lista.töröl();
    listát_mutat();
}

void frm_zenebeáll::cmd_áthelyez_Click(int index) {
    beállítások_.lista.áthelyez(index - 1);
    listát_mutat();
}

void frm_zenebeáll::cmd_ok_Click() {
    beállítások_.engedélyezve = chk_zene_enged_->isChecked();
    if (const auto baj = beállítások_.ment())
        k_.közös.üzenetek.tell(baj->sentence);
    else
        leállít_és_elrejt();
}

void frm_zenebeáll::cmd_mégsem_Click() {
    betölt();
    leállít_és_elrejt();
}

void frm_zenebeáll::leállít_és_elrejt() {
    k_.játszó.midilejátszás(QString());
    hide();
}

void frm_zenebeáll::closeEvent(QCloseEvent *event) {
    cmd_mégsem_Click();
    event->accept();
}
