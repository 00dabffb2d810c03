#include "print/widgets/print_settings_window.h"

#include <QDir>

#include "print/pdf_job.h"
#include "print/widgets/print_preview_window.h"

using namespace Qt::StringLiterals;

// What the print settings do when something is to be printed or looked at.

nyomtatástípus frm_nyomtatás::típus() const {
    if (v_.Option_nyomtatástípus[1]->isChecked())
        return nyomtatástípus::szópárok;
    return v_.Option_nyomtatástípus[2]->isChecked() ? nyomtatástípus::szókártyák : nyomtatástípus::szószedet;
}

nyomtatandó frm_nyomtatás::mit() const {
    return {k_.szószedet.párok(), nevek_.út, v_.UpDown_betűméret->value(), v_.UpDown_hasábszám->value()};
}

void frm_nyomtatás::beállít(PagePrinter &nyomtató) const {
    nyomtató.set_face({v_.list_betűtípus->currentText(), v_.Check_félkövér->isChecked(), v_.Check_dőlt->isChecked()});
    nyomtató.set_font_size(v_.UpDown_betűméret->value());
    nyomtató.set_orientation(v_.Option_tájolás[0]->isChecked() ? PagePrinter::Orientation::portrait
                                                               : PagePrinter::Orientation::landscape);
}

nyomtatásvége frm_nyomtatás::lerak(PagePrinter &hova, const QString &felirat) {
    beállít(hova);
    PrintProgress haladás(*this, v_.Label1->font(), felirat, k_.óra);
    return nyomtat(hova, típus(), mit(), [&haladás](int kész, int összes) { return haladás.step(kész, összes); });
}

std::optional<QString> frm_nyomtatás::pdf_neve() {
    while (true) {
        const auto választott = k_.fájlablakok.save_pdf(pdf_javaslat_);
        if (!választott || választott->isEmpty())
            return std::nullopt;
        pdf_javaslat_ = pdfnév(*választott);
        const QString kérdés = u"A(z) „%1” fájl már létezik. Felülírja?"_s;
        if (!files::exists(pdf_javaslat_) ||
            k_.közös.üzenetek.ask_yes_no(u"Fájl felülírása"_s, kérdés.arg(QDir::toNativeSeparators(pdf_javaslat_))) ==
                Answer::yes)
            return pdf_javaslat_;
    }
}

std::unique_ptr<PrintJob> frm_nyomtatás::pdf_feladat() {
    const auto út = pdf_neve();
    return út ? std::make_unique<PdfJob>(*út, nevek_.cím) : nullptr;
}

std::unique_ptr<PrintJob> frm_nyomtatás::feladat() {
    if (pdfbe())
        return pdf_feladat();
    PrintJobResult készült = k_.nyomtatók.print(nyomtató_, nevek_.cím);
    if (const auto *gond = std::get_if<Failure>(&készült)) {
        k_.közös.üzenetek.tell(gond->sentence);
        return nullptr;
    }
    return std::get<std::unique_ptr<PrintJob>>(std::move(készült));
}

bool frm_nyomtatás::kinyomtat(PrintJob &feladat) {
    switch (lerak(feladat.printer(), u"A nyomtatás készül…"_s)) {
        case nyomtatásvége::kész:
            break;
        case nyomtatásvége::megszakítva:
            return false;
        case nyomtatásvége::hibás:
            k_.közös.üzenetek.tell(feladat.failure().sentence);
            return false;
    }
    if (const auto gond = feladat.hand_over()) {
        k_.közös.üzenetek.tell(gond->sentence);
        return false;
    }
    return true;
}

bool frm_nyomtatás::nincs_mit() {
    if (típus() != nyomtatástípus::szópárok || !k_.szószedet.párok().isEmpty())
        return false;
    k_.közös.üzenetek.tell(u"Nincs mit nyomtatni: a szószedet üres."_s);
    return true;
}

void frm_nyomtatás::cmd_nyomtat_Click() {
    nyomtatót_választ();
    if (!nincs_mit()) {
        const auto ez = feladat();
        if (!ez || !kinyomtat(*ez))
            return;
    }
    beállment();
    hide();
}

void frm_nyomtatás::cmd_nyomtatásikép_Click() {
    nyomtatót_választ();
    if (nincs_mit())
        return;
    const auto kép = k_.nyomtatók.preview(nyomtató_);
    if (lerak(kép->pages(), u"A nyomtatási kép készül…"_s) != nyomtatásvége::kész)
        return;
    frm_nyomtatásikép(k_.közös.hasznos, k_.közös.főablak, kép->pages()).mutatmodálisan();
}
