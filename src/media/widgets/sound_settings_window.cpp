#include "media/widgets/sound_settings_window.h"

#include <QCloseEvent>
#include <QSignalBlocker>
#include <algorithm>

#include "media/widgets/list_buttons.h"
#include "state/number_text.h"
#include "ui/controls/named.h"

using namespace Qt::StringLiterals;

namespace {

// The design, in twips.
constexpr double szél = 150;
constexpr double sorköz = 90;
constexpr double cím_magas = 330;
constexpr double gomb_magas = 480;

constexpr double bal_széles = 5300;
constexpr double jobb = szél + bal_széles + 2 * szél;
constexpr double lista_széles = 3300;
constexpr double gombok = jobb + lista_széles + szél;
constexpr double gomb_széles = 4500;
constexpr double jobb_széle = gombok + gomb_széles;

constexpr double hangsor_magas = 2160;
constexpr double lista_magas = hangsor_magas - cím_magas - sorköz;
/// The buttons below the files end with the last list.
constexpr double fájlok_magas = 2 * hangsor_magas + lista_magas - sorköz - gomb_magas;
constexpr double kapcsoló_magas = 390;
constexpr double keret_teteje = 400;

/// It holds more than other windows.
constexpr double képernyőrész = 0.95;

QCheckBox *jelölő(const char16_t *név, const char16_t *felirat) {
    return named(new QCheckBox(QString::fromUtf16(felirat)), név, felirat);
}

QPushButton *gomb(const char16_t *név, const char16_t *felirat) {
    return named(new QPushButton(QString::fromUtf16(felirat)), név, felirat);
}

QLabel *címke(const char16_t *név, const char16_t *felirat = u"") {
    return named(new QLabel(QString::fromUtf16(felirat)), név, nullptr);
}

}  // namespace

frm_hangbeáll::frm_hangbeáll(const hangkörnyezet &környezet)
    : ablak(u"frm_hangbeáll"_s),
      k_(környezet),
      beállítások_(k_.programkönyvtár),
      Label_hangszám_(címke(u"Label_hangszám")),
      Filelist_(named(new FileListBox(u"*.wav"_s), u"Filelist", u"Hangok")),
      cmd_play_(gomb(u"cmd_play", u"Hang lejátszása")),
      cmd_hangtörlése_(gomb(u"cmd_hangtörlése", u"Hang törlése")),
      frame_hangjelzések_(named(new QGroupBox(u"Hangjelzések"_s), u"frame_hangjelzések", u"Hangjelzések")),
      chk_{jelölő(u"chk_hang_a_gratulálópanelen", u"Hangjelzések használata a gratuláló panelen"),
           jelölő(u"chk_hang_a_feladatokban_helyes", u"Hangjelzések használata a feladatokban helyes megoldás esetén"),
           jelölő(u"chk_hang_a_feladatokban_hiba", u"Hangjelzések használata a feladatokban hibás megoldás esetén"),
           jelölő(u"chk_hangjelzés_segítségkérés", u"Hangjelzés segítségkérés esetén"),
           jelölő(u"chk_hang_a_főablakban", u"Hangok a grafikus főablakban")},
      sorok_{{{beállítások_.gratula, címke(u"Label1", u"A gratuláló panelen megszólaló hangok:"),
               named(new ListBox, u"lst_gratulahang", u"A gratuláló panelen megszólaló hangok"),
               címke(u"Label_gartula"), gomb(u"cmd_gartula", u"Hozzáadás a gratuláló  hangok listájához"),
               gomb(u"cmd_hangtörl_gratulahangból", u"Törlés a gratuláló hangok listájából")},
              {beállítások_.helyes, címke(u"Label2", u"Helyes megoldás esetén megszólaló hangok:"),
               named(new ListBox, u"lst_helyeshang", u"Helyes megoldás esetén megszólaló hangok"),
               címke(u"Label_helyeshang"), gomb(u"cmd_helyeshang_add", u"Hozzáadás a sikerhangok listájához"),
               gomb(u"cmd_hangtörl_helyeshangból", u"Törlés a sikerhangok listájából")},
              {beállítások_.hiba, címke(u"Label3", u"Hibás megoldás esetén megszólaló hangok:"),
               named(new ListBox, u"Lst_hibahang", u"Hibás megoldás esetén megszólaló hangok"),
               címke(u"Label_hibahang"), gomb(u"cmd_hibahang_add", u"Hozzáadás a hibahangok listájához"),
               gomb(u"cmd_hangtörl_hibahangból", u"Törlés a hibahangok listájából")}}},
      cmd_ok_(named(new QPushButton(u"Ok"_s), u"cmd_ok", u"Ok, mentés")),
      cmd_mégsem_(named(new QPushButton(u"Mégsem"_s), u"cmd_mégsem", u"Mégsem")) {
    setWindowTitle(u"Kavaro Hangbeállítások"_s);
    elhelyezés();
    eseményeket_köt();
    Form_Load();
}

void frm_hangbeáll::elhelyezés() {
    double fent = szél;
    elhelyez(Label_hangszám_, {szél, fent, bal_széles, cím_magas});
    fent += cím_magas;
    elhelyez(Filelist_, {szél, fent, bal_széles, fájlok_magas});
    fent += fájlok_magas + sorköz;
    constexpr double fél = (bal_széles - szél) / 2;
    elhelyez(cmd_play_, {szél, fent, fél, gomb_magas});
    elhelyez(cmd_hangtörlése_, {szél + fél + szél, fent, fél, gomb_magas});
    for (size_t i = 0; i < sorok_.size(); ++i)
        hangsort_elhelyez(sorok_[i], szél + static_cast<double>(i) * hangsor_magas);

    const double keret_fent = fent + gomb_magas + 2 * sorköz;
    constexpr double keret_magas = keret_teteje + 3 * kapcsoló_magas + sorköz;
    elhelyez(frame_hangjelzések_, {szél, keret_fent, jobb_széle - szél, keret_magas});
    // Two columns: the sounds of the exercises on the left, the others on the right. Tab goes down them; in the file
    // the switches stand in the order of their numbers.
    struct Kapcsolóhely {
        hangbeállítások::kapcsoló melyik;
        int oszlop;
        int sor;
    };
    using enum hangbeállítások::kapcsoló;
    constexpr std::array<Kapcsolóhely, 5> helyek{
        {{helyesnél, 0, 0}, {hibásnál, 0, 1}, {segítségkérésnél, 0, 2}, {gratulálópanelen, 1, 0}, {főablakban, 1, 1}}};
    QWidget *előző = frame_hangjelzések_;
    for (const auto &[melyik, oszlop, sor] : helyek) {
        elhelyez(chk_[melyik], {szél * 2 + oszlop * (gombok - szél), keret_fent + keret_teteje + sor * kapcsoló_magas,
                                oszlop == 0 ? gombok - 2 * szél : gomb_széles - 2 * szél, kapcsoló_magas});
        setTabOrder(előző, chk_[melyik]);
        előző = chk_[melyik];
    }
    const double alul = keret_fent + keret_magas + 2 * sorköz;
    constexpr double zárógomb = 2200;
    elhelyez(cmd_ok_, {jobb_széle - 2 * zárógomb - szél, alul, zárógomb, gomb_magas});
    elhelyez(cmd_mégsem_, {jobb_széle - zárógomb, alul, zárógomb, gomb_magas});
    alapgombbeállít(cmd_ok_);
    mégsegombbeállít(cmd_mégsem_);
}

void frm_hangbeáll::hangsort_elhelyez(const Hangsor &sor, double fent) {
    elhelyez(sor.cím, {jobb, fent, lista_széles + szél + gomb_széles, cím_magas});
    fent += cím_magas;
    elhelyez(sor.lista, {jobb, fent, lista_széles, lista_magas});
    elhelyez(sor.hozzáad, {gombok, fent, gomb_széles, gomb_magas});
    elhelyez(sor.töröl, {gombok, fent + gomb_magas + sorköz, gomb_széles, gomb_magas});
    elhelyez(sor.szám, {gombok, fent + 2 * (gomb_magas + sorköz), gomb_széles, cím_magas});
}

void frm_hangbeáll::eseményeket_köt() {
    const auto gombra = [this](QPushButton *melyik, auto mit) { connect(melyik, &QPushButton::clicked, this, mit); };
    connect(Filelist_, &ListBox::itemSelected, this, [this] { Filelist_Click(); });
    connect(Filelist_, &FileListBox::deletePressed, this, [this] { cmd_hangtörlése_Click(); });
    gombra(cmd_play_, [this] { cmd_play_Click(); });
    gombra(cmd_hangtörlése_, [this] { cmd_hangtörlése_Click(); });
    for (const Hangsor &sor : sorok_) {
        connect(sor.lista, &ListBox::itemSelected, this, [this, &sor] { lista_Click(sor); });
        gombra(sor.hozzáad, [this, &sor] { hozzáadás(sor); });
        gombra(sor.töröl, [this, &sor] { törlés(sor); });
    }
    gombra(cmd_ok_, [this] { cmd_ok_Click(); });
    gombra(cmd_mégsem_, [this] { cmd_mégsem_Click(); });
}

void frm_hangbeáll::Form_Load() {
    k_.közös.hasznos.öltöztet(*this, k_.közös.főablak, képernyőrész);
    Filelist_->set_folder(beállítások_.hangmappa());
    betölt();
    rajzol({sorok_[0].hozzáad, sorok_[1].hozzáad, sorok_[2].hozzáad}, u"add");
    rajzol({sorok_[0].töröl, sorok_[1].töröl, sorok_[2].töröl}, u"remove");
}

void frm_hangbeáll::mutat() {
    // Sounds may have come or gone while the window was hidden.
    Filelist_->refresh_keeping_selection();
    feliratok();
    engedélyezés();
    if (betöltés_baja_)
        k_.közös.üzenetek.tell(betöltés_baja_->sentence);
    betöltés_baja_.reset();
    Filelist_->setFocus();
    mutatmodálisan();
}

void frm_hangbeáll::betölt() {
    betöltés_baja_ = beállítások_.betölt();
    kapcsolókat_mutat();
    listákat_mutat();
}

void frm_hangbeáll::kapcsolókat_mutat() {
    for (size_t i = 0; i < chk_.size(); ++i)
        chk_[i]->setChecked(beállítások_.kapcsolók[i]);
}

/// Shows what a list holds. What is selected by that is not heard.
void frm_hangbeáll::listát_mutat(const Hangsor &sor) {
    const QSignalBlocker csend(sor.lista);
    sor.lista->set_items(sor.nevek.nevek());
    sor.lista->select(sor.nevek.kijelölt());
}

void frm_hangbeáll::listákat_mutat() {
    for (const Hangsor &sor : sorok_)
        listát_mutat(sor);
    feliratok();
    engedélyezés();
}

void frm_hangbeáll::feliratok() {
    const int darab = Filelist_->count();
    const int hányadik = Filelist_->selected() + 1;
    Label_hangszám_->setText(hányadik == 0 ? számszöveg(darab) + u" hang áll rendelkezésemre"_s
                                           : számszöveg(hányadik) + u'\\' + számszöveg(darab));
    for (const Hangsor &sor : sorok_)
        sor.szám->setText(számszöveg(sor.nevek.darab()) + u" hang"_s);
}

void frm_hangbeáll::engedélyezés() {
    const bool van_fájl = Filelist_->selected() >= 0;
    engedélyez(*cmd_play_, van_fájl, *Filelist_);
    engedélyez(*cmd_hangtörlése_, van_fájl, *Filelist_);
    for (const Hangsor &sor : sorok_) {
        engedélyez(*sor.hozzáad, van_fájl, *Filelist_);
        engedélyez(*sor.töröl, sor.nevek.kijelölt() >= 0, *sor.lista);
    }
}

void frm_hangbeáll::Filelist_Click() {
    engedélyezés();
    cmd_play_Click();
    feliratok();
}

void frm_hangbeáll::cmd_play_Click() {
    k_.játszó.hanglejátszás(Filelist_->path_of(Filelist_->file_name()));
}

void frm_hangbeáll::lista_Click(const Hangsor &sor) {
    sor.nevek.kijelöl(sor.lista->selected());
    k_.játszó.hanglejátszás(beállítások_.hangmappa() + u'/' + sor.lista->item(sor.lista->selected()));
    engedélyezés();
}

void frm_hangbeáll::hozzáadás(const Hangsor &sor) {
    sor.nevek.hozzáad(Filelist_->file_name());
    listát_mutat(sor);
    if (Filelist_->selected() < Filelist_->count() - 1) {
        const QSignalBlocker csend(Filelist_);
        Filelist_->select(Filelist_->selected() + 1);
    }
    feliratok();
    engedélyezés();
}

void frm_hangbeáll::törlés(const Hangsor &sor) {
    sor.nevek.töröl();
    listát_mutat(sor);
    engedélyezés();
    feliratok();
}

void frm_hangbeáll::cmd_hangtörlése_Click() {
    if (Filelist_->selected() < 0)
        return;
    k_.játszó.hangot_leállít();
    const QString név = Filelist_->file_name();
    const int hol = Filelist_->selected();
    if (const auto baj = files::remove(Filelist_->path_of(név))) {
        k_.közös.üzenetek.tell(baj->sentence);
        return;
    }
    Filelist_->refresh();
    {
        const QSignalBlocker csend(Filelist_);
        Filelist_->select(std::min(hol, Filelist_->count() - 1));
    }
    beállítások_.elfelejt(név);
    listákat_mutat();
}

bool frm_hangbeáll::ment() {
    k_.játszó.hangot_leállít();
    for (size_t i = 0; i < chk_.size(); ++i)
        beállítások_.kapcsolók[i] = chk_[i]->isChecked();
    const auto baj = beállítások_.ment();
    if (baj)
        k_.közös.üzenetek.tell(baj->sentence);
    return !baj;
}

void frm_hangbeáll::cmd_ok_Click() {
    if (ment())
        hide();
}

void frm_hangbeáll::cmd_mégsem_Click() {
    k_.játszó.hangot_leállít();
    betölt();
    hide();
}

void frm_hangbeáll::closeEvent(QCloseEvent *event) {
    // A hidden window has saved or discarded what there was.
    event->setAccepted(!isVisible() || ment());
}
