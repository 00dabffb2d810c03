#include "print/widgets/print_settings_window.h"

#include <QFontDatabase>

#include "print/font_choice.h"
#include "print/widgets/print_preview_window.h"
#include "ui/drawing/fonts.h"

using namespace Qt::StringLiterals;

namespace {

constexpr double képernyőrész = 0.85;
/// How much smaller the letters of the buttons are than those that would fit.
constexpr double gombkülönbség = 3;

/// No sample is so wide that more could be seen.
constexpr qsizetype leghosszabb_minta = 600;

const QString pdf_bejegyzés = u"PDF-fájl"_s;
const QString ékezetek = u"áéíóöőúüű ÁÉÍÓÖŐÚÜŰ"_s;

/// Stands in the store for a value that is absent.
const QString semmi = u"semmi"_s;
const QString nyomtató_kulcs = u"nyomtato"_s;
const QString betűtípus_kulcs = u"betutip"_s;
const QString dőlt_kulcs = u"dolt"_s;
const QString félkövér_kulcs = u"felkover"_s;
const QString betűméret_kulcs = u"betumeret"_s;
const QString hasábszám_kulcs = u"hasabszam"_s;
const QString tájolás_kulcs = u"tajolas"_s;

/// A stored number; `egyébként` when it is none.
int szám(const QVariant &tárolt, int egyébként) {
    bool jó = false;
    const int érték = tárolt.toInt(&jó);
    return jó ? érték : egyébként;
}

}  // namespace

frm_nyomtatás::frm_nyomtatás(const nyomtatáskörnyezet &környezet)
    : ablak(u"frm_nyomtatás"_s),
      k_(környezet),
      v_(*this),
      nevek_(dokumentum(k_.állapot.listafájl(), k_.állapot.programkönyvtár)) {
    setWindowTitle(u"Szószedet nyomtatása"_s);
    eseményeket_köt();
    Form_Load();
}

void frm_nyomtatás::eseményeket_köt() {
    connect(v_.list_nyomtatók, &QComboBox::activated, this, [this] { list_nyomtatók_Click(); });
    connect(v_.list_betűtípus, &QComboBox::activated, this, [this] { előkép(); });
    connect(v_.list_betűtípus, &QComboBox::currentTextChanged, this, [this] { előkép(); });
    connect(v_.Check_dőlt, &QCheckBox::toggled, this, [this] { előkép(); });
    connect(v_.Check_félkövér, &QCheckBox::toggled, this, [this] { előkép(); });
    connect(v_.UpDown_betűméret, &QSpinBox::valueChanged, this, [this] { UpDown_betűméret_Change(); });
    connect(v_.UpDown_hasábszám, &QSpinBox::valueChanged, this, [this] { UpDown_hasábszám_Change(); });
    for (size_t i = 0; i < v_.Picture1.size(); ++i)
        connect(v_.Picture1[i], &ChoosablePicture::chosen, this, [this, i] { v_.Option_tájolás[i]->setChecked(true); });
    connect(v_.cmd_nyomtatásikép, &QPushButton::clicked, this, [this] { cmd_nyomtatásikép_Click(); });
    connect(v_.cmd_nyomtat, &QPushButton::clicked, this, [this] { cmd_nyomtat_Click(); });
    connect(v_.cmd_mégsem, &QPushButton::clicked, this, [this] { cmd_mégsem_Click(); });
    alapgombbeállít(v_.cmd_nyomtat);
    mégsegombbeállít(v_.cmd_mégsem);
}

void frm_nyomtatás::Form_Load() {
    k_.közös.hasznos.öltöztet(*this, k_.közös.főablak, képernyőrész);
    v_.képeket_rajzol(devicePixelRatioF());
    UpDown_hasábszám_Change();
    nyomtatókat_felsorol();
    betűtípusokat_felsorol();
    gombokat_igazít();
    v_.Label_hasábszám->setAutoFillBackground(true);
    v_.Label_betűméret->setAutoFillBackground(true);
    beállbetölt();
    UpDown_betűméret_Change();
}

void frm_nyomtatás::gombokat_igazít() {
    for (QPushButton *gomb : {v_.cmd_mégsem, v_.cmd_nyomtat}) {
        Module_hasznos::szövegbeigazít(*gomb, QString());
        QFont betű = gomb->font();
        fonts::set_points(betű, fonts::points(betű) - gombkülönbség);
        gomb->setFont(betű);
    }
    v_.cmd_nyomtatásikép->setFont(v_.cmd_nyomtat->font());
}

void frm_nyomtatás::showEvent(QShowEvent *event) {
    ablak::showEvent(event);
    v_.cmd_nyomtat->setFocus();
}

void frm_nyomtatás::beállbetölt() {
    const auto tárolt = [this](const QString &kulcs, const QVariant &egyébként) {
        return k_.beállítások.beállításolvas(*this, kulcs, egyébként);
    };
    const QString nyomtató = tárolt(nyomtató_kulcs, semmi).toString();
    for (int i = 0; nyomtató != semmi && i < v_.list_nyomtatók->count(); ++i) {
        if (v_.list_nyomtatók->itemText(i) == nyomtató)
            nyomtatót_kijelöl(i);
    }
    const QString betűtípus = tárolt(betűtípus_kulcs, semmi).toString();
    const int hol = v_.list_betűtípus->findText(betűtípus, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (betűtípus != semmi && hol >= 0)
        v_.list_betűtípus->setCurrentIndex(hol);
    v_.Check_dőlt->setChecked(szám(tárolt(dőlt_kulcs, 0), 0) != 0);
    v_.Check_félkövér->setChecked(szám(tárolt(félkövér_kulcs, 0), 0) != 0);
    v_.UpDown_betűméret->setValue(szám(tárolt(betűméret_kulcs, 14), 14));
    v_.UpDown_hasábszám->setValue(szám(tárolt(hasábszám_kulcs, 1), 1));
    v_.Option_tájolás[tárolt(tájolás_kulcs, true).toBool() ? 0 : 1]->setChecked(true);
}

void frm_nyomtatás::beállment() {
    const auto tárol = [this](const QString &kulcs, const QVariant &érték) {
        k_.beállítások.beállításment(*this, kulcs, érték);
    };
    tárol(nyomtató_kulcs, v_.list_nyomtatók->currentText());
    tárol(betűtípus_kulcs, v_.list_betűtípus->currentText());
    tárol(dőlt_kulcs, v_.Check_dőlt->isChecked() ? 1 : 0);
    tárol(félkövér_kulcs, v_.Check_félkövér->isChecked() ? 1 : 0);
    tárol(betűméret_kulcs, v_.UpDown_betűméret->value());
    tárol(hasábszám_kulcs, v_.UpDown_hasábszám->value());
    tárol(tájolás_kulcs, v_.Option_tájolás[0]->isChecked());
}

void frm_nyomtatás::nyomtatókat_felsorol() {
    v_.list_nyomtatók->clear();
    v_.list_nyomtatók->addItem(pdf_bejegyzés);
    v_.list_nyomtatók->addItems(k_.nyomtatók.names());
    nyomtatót_kijelöl(v_.list_nyomtatók->count() - 1);
}

void frm_nyomtatás::nyomtatót_kijelöl(int index) {
    v_.list_nyomtatók->setCurrentIndex(index);
    list_nyomtatók_Click();
}

void frm_nyomtatás::list_nyomtatók_Click() {
    nyomtatót_választ();
    betűtípusokat_felsorol();
}

void frm_nyomtatás::nyomtatót_választ() {
    // One that has gone meanwhile is told when it is to print: never does another one print in its place.
    nyomtató_ = v_.list_nyomtatók->currentIndex() <= 0 ? QString() : v_.list_nyomtatók->currentText();
}

void frm_nyomtatás::betűtípusokat_felsorol() {
    const QStringList betűk = k_.nyomtatók.fonts(nyomtató_);
    QStringList egyszer = betűk;
    egyszer.removeDuplicates();
    v_.list_betűtípus->clear();
    v_.list_betűtípus->addItems(egyszer);
    const QString helyettes = QFont::substitute(fonts::times_new_roman_ce);
    v_.list_betűtípus->setCurrentIndex(választott_betűtípus(egyszer, helyettes, talpas_betűtípus));
}

void frm_nyomtatás::előkép() {
    const QVector<szópár> &párok = k_.szószedet.párok();
    const QString sorok[] = {szópársor(párok.isEmpty() ? szópár() : párok.first()).left(leghosszabb_minta), ékezetek};
    const QString név = v_.list_betűtípus->currentText();
    const bool van = QFontDatabase::families().contains(név);
    for (size_t i = 0; i < v_.pic_minta.size(); ++i) {
        PictureBox &kép = *v_.pic_minta[i];
        kép.clear();
        QFont betű = kép.font();
        // A face that there is not leaves the sample in the one that it had.
        if (van)
            betű.setFamilies({név});
        fonts::set_points(betű, v_.UpDown_betűméret->value());
        betű.setBold(v_.Check_félkövér->isChecked());
        betű.setItalic(v_.Check_dőlt->isChecked());
        kép.setFont(betű);
        kép.print_centred(sorok[i]);
    }
}

void frm_nyomtatás::UpDown_betűméret_Change() {
    Module_hasznos::szövegbeigazít(*v_.Label_betűméret, v_.UpDown_betűméret->value());
    előkép();
}

void frm_nyomtatás::UpDown_hasábszám_Change() {
    Module_hasznos::szövegbeigazít(*v_.Label_hasábszám, v_.UpDown_hasábszám->value());
}

void frm_nyomtatás::cmd_mégsem_Click() {
    hide();
}
