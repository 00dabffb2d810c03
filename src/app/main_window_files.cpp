#include "app/main_window.h"

void szótár::fájl_eseményeket_köt() {
    const auto köt = [this](QAction *menüpont, void (szószedetfájlok::*mit)()) {
        connect(menüpont, &QAction::triggered, &események_, [this, mit] { (fájlok_.*mit)(); });
    };
    köt(m_.mnufájlúj, &szószedetfájlok::mnufájlúj);
    köt(m_.mnufájlmegnyit, &szószedetfájlok::mnufájlmegnyit);
    köt(m_.mnufájlhozzáfűz, &szószedetfájlok::mnufájlhozzáfűz);
    köt(m_.mnufájlment, &szószedetfájlok::mnufájlment);
    köt(m_.mnufájlmentmásként, &szószedetfájlok::mnufájlmentmásként);
    for (QAction *menüpont : m_.mnufájlfájl) {
        connect(menüpont, &QAction::triggered, &események_,
                [this, menüpont] { fájlok_.mnufájlfájl(legutóbbifájlok::útvonal(menüpont->text())); });
    }
}

void szótár::fájllistmutat(const QStringList &fájlok) {
    for (size_t i = 0; i < m_.mnufájlfájl.size(); ++i) {
        const bool van = static_cast<qsizetype>(i) < fájlok.size();
        m_.mnufájlfájl[i]->setVisible(van);
        const int n = static_cast<int>(i) + 1;
        m_.mnufájlfájl[i]->setText(van ? legutóbbifájlok::felirat(n, fájlok[n - 1]) : QString());
    }
}

QStringList szótár::fájllist() const {
    QStringList fájlok;
    for (const QAction *menüpont : m_.mnufájlfájl) {
        if (menüpont->isVisible())
            fájlok.append(legutóbbifájlok::útvonal(menüpont->text()));
    }
    return fájlok;
}
