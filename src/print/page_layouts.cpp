#include "print/page_layouts.h"

#include <QStringList>
#include <optional>

#include "wordlist/shown_text.h"

using namespace Qt::StringLiterals;

namespace {

const QString elválasztó = u"  -  "_s;

constexpr double címméret = 12;
// Rows stand between these shares of the page's height.
constexpr double felső_határ = 0.05;
constexpr double alsó_határ = 0.95;

/// Texts that stand alone grow from this size until one of them takes this share of the page.
constexpr double legkisebb_méret = 10;
constexpr double lapkitöltés = 0.9;

nyomtatásvége vége(PagePrinter &hova) {
    return hova.end_document() ? nyomtatásvége::kész : nyomtatásvége::hibás;
}

void címet_ír(PagePrinter &hova, const nyomtatandó &mit) {
    hova.set_x(hova.page_width() / 20);
    hova.set_y(hova.page_height() / 20);
    hova.set_font_size(mit.betűméret);
    hova.set_font_size(címméret);
    hova.print_line(mit.út + u" szószedet"_s);
    hova.set_font_size(mit.betűméret);
}

nyomtatásvége szószedetet_nyomtat(PagePrinter &hova, const nyomtatandó &mit, const nyomtatásfigyelő &figyelő) {
    címet_ír(hova, mit);
    const int c = mit.hasábok;
    const auto n = static_cast<int>(mit.párok.size());
    for (int i = 0; i < n; ++i) {
        if (!figyelő(i, n))
            return nyomtatásvége::megszakítva;
        const QString angol = mutatott(mit.párok[i].angol);
        const QString sor = szópársor(mit.párok[i]);
        const int k = i % c + 1;
        if (k == 1) {
            hova.print_empty_line();
            if (hova.y() + hova.text_height(sor) > alsó_határ * hova.page_height()) {
                if (!hova.new_page())
                    return nyomtatásvége::hibás;
                hova.set_y(felső_határ * hova.page_height());
            }
        }
        // The pairs of a column stand below each other at their hyphens.
        const double tengely = hova.page_width() * k / (c + 1);
        hova.set_x(tengely - hova.text_width(elválasztó) / 2 - hova.text_width(angol));
        hova.print(sor);
    }
    return vége(hova);
}

/// The first of the widest texts in the font that is set; nothing when cancelled.
std::optional<QString> legszélesebb(const PagePrinter &hova, const QStringList &szövegek,
                                    const nyomtatásfigyelő &figyelő) {
    QString eddig;
    double szélesség = hova.text_width(eddig);
    for (const QString &szöveg : szövegek) {
        if (!figyelő(0, static_cast<int>(szövegek.size())))
            return std::nullopt;
        const double ezé = hova.text_width(szöveg);
        if (ezé > szélesség) {
            eddig = szöveg;
            szélesség = ezé;
        }
    }
    return eddig;
}

/// Sets the largest size in which `szöveg` leaves a tenth of the page free in both directions; the smallest size
/// whatever the text.
void méretet_keres(PagePrinter &hova, const QString &szöveg) {
    double méret = legkisebb_méret;
    hova.set_font_size(méret);
    do
        hova.set_font_size(++méret);
    while (hova.text_height(szöveg) <= lapkitöltés * hova.page_height() &&
           lapkitöltés * hova.page_width() > hova.text_width(szöveg));
    hova.set_font_size(méret - 1);
}

nyomtatásvége laponként_nyomtat(PagePrinter &hova, const QStringList &szövegek, const nyomtatásfigyelő &figyelő) {
    hova.set_orientation(PagePrinter::Orientation::landscape);
    const auto leghosszabb = legszélesebb(hova, szövegek, figyelő);
    if (!leghosszabb)
        return nyomtatásvége::megszakítva;
    méretet_keres(hova, *leghosszabb);
    const auto n = static_cast<int>(szövegek.size());
    for (int i = 0; i < n; ++i) {
        if (!figyelő(i, n))
            return nyomtatásvége::megszakítva;
        if (i > 0 && !hova.new_page())
            return nyomtatásvége::hibás;
        hova.set_x(hova.page_width() / 2 - hova.text_width(szövegek[i]) / 2);
        hova.set_y(hova.page_height() / 2 - hova.text_height(szövegek[i]) / 2);
        hova.print_line(szövegek[i]);
    }
    return vége(hova);
}

QStringList sorok(const QVector<szópár> &párok) {
    QStringList lista;
    for (const szópár &pár : párok)
        lista.append(szópársor(pár));
    return lista;
}

/// Both sides of each pair; the empty one at the end gives the empty last page.
QStringList kártyák(const QVector<szópár> &párok) {
    QStringList lista;
    for (const szópár &pár : párok)
        lista << mutatott(pár.angol) << mutatott(pár.magyar);
    lista.append(QString());
    return lista;
}

}  // namespace

QString szópársor(const szópár &pár) {
    return mutatott(pár.angol) + elválasztó + mutatott(pár.magyar);
}

nyomtatásvége nyomtat(PagePrinter &hova, nyomtatástípus hogyan, const nyomtatandó &mit,
                      const nyomtatásfigyelő &figyelő) {
    switch (hogyan) {
        case nyomtatástípus::szószedet:
            break;
        case nyomtatástípus::szópárok:
            return mit.párok.isEmpty() ? nyomtatásvége::kész : laponként_nyomtat(hova, sorok(mit.párok), figyelő);
        case nyomtatástípus::szókártyák:
            return laponként_nyomtat(hova, kártyák(mit.párok), figyelő);
    }
    return szószedetet_nyomtat(hova, mit, figyelő);
}
