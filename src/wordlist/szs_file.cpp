#include "wordlist/szs_file.h"

#include <algorithm>
#include <utility>

#include "platform/code_page.h"
#include "platform/text_lines.h"

using namespace Qt::StringLiterals;

namespace szsfájl {
namespace {

/// Bytes of a line beside its words: ":", CR and LF.
constexpr qsizetype around_words = 3;

/// Letters of a word that a message quotes.
constexpr qsizetype longest_quoted = 60;

/// A message with the whole of a very long word would not fit on the screen.
QString idézet(const QString &szó) {
    return szó.size() <= longest_quoted ? szó : szó.left(longest_quoted) + u'…';
}

szópár sorból(QByteArrayView sor) {
    const qsizetype kettőspont = sor.indexOf(':');
    if (kettőspont < 0)
        return {QString(), code_page::decode(sor)};
    return {code_page::decode(sor.first(kettőspont)), code_page::decode(sor.sliced(kettőspont + 1))};
}

/// A lone CR is a character like any other: of several before the LF only the last belongs to the line end.
bool van_benne_sorvég(const szópár &pár) {
    return pár.angol.contains(u'\n') || pár.magyar.contains(u'\n');
}

Failure nincs_a_kódlapon(const QString &szó) {
    return {
        u"A(z) „%1” szóban a(z) „%2” jel nem menthető, mert a szószedetfájl közép-európai kódlapján "
        "nincs meg."_s.arg(idézet(szó), code_page::first_missing(szó))};
}

}  // namespace

QVector<szópár> olvas(QByteArrayView bytes) {
    // Growing step by step would take as much room again.
    QVector<szópár> párok;
    párok.reserve(std::count(bytes.begin(), bytes.end(), '\n') + 1);
    while (!bytes.isEmpty())
        párok.append(sorból(take_line(bytes)));
    return párok;
}

FileContent ír(const QVector<szópár> &párok) {
    qsizetype méret = 0;
    for (const szópár &pár : párok)
        méret += pár.angol.size() + pár.magyar.size() + around_words;
    QByteArray bytes;
    bytes.reserve(méret);
    for (const szópár &pár : párok) {
        const QString gond = akadály(pár);
        if (!gond.isEmpty())
            return Failure{gond};
        for (const auto &[szó, utána] : {std::pair(&pár.angol, ":"), std::pair(&pár.magyar, "\r\n")}) {
            const auto kódolt = code_page::encode(*szó);
            if (!kódolt)
                return nincs_a_kódlapon(*szó);
            bytes.append(*kódolt).append(utána);
        }
    }
    return bytes;
}

QString akadály(const szópár &pár) {
    if (pár.angol.contains(u':'))
        return u"A(z) „%1” angol szóban nem lehet kettőspont, mert a szószedetfájlban az választja el az "
               "angol szót a magyartól."_s.arg(idézet(pár.angol));
    if (van_benne_sorvég(pár))
        return u"A(z) „%1” szópárban nem lehet sortörés."_s.arg(idézet((pár.angol + u':' + pár.magyar).simplified()));
    return {};
}

}  // namespace szsfájl
