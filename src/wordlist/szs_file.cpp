#include "wordlist/szs_file.h"

#include "platform/code_page.h"
#include "platform/text_lines.h"

using namespace Qt::StringLiterals;

namespace szsfájl {
namespace {

/// Bytes of a line, roughly.
constexpr qsizetype usual_line = 32;

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
    QVector<szópár> párok;
    while (!bytes.isEmpty())
        párok.append(sorból(take_line(bytes)));
    return párok;
}

FileContent ír(const QVector<szópár> &párok) {
    QByteArray bytes;
    bytes.reserve(párok.size() * usual_line);
    for (const szópár &pár : párok) {
        const QString gond = akadály(pár);
        if (!gond.isEmpty())
            return Failure{gond};
        const auto angol = code_page::encode(pár.angol);
        const auto magyar = code_page::encode(pár.magyar);
        if (!angol || !magyar)
            return nincs_a_kódlapon(angol ? pár.magyar : pár.angol);
        bytes.append(*angol).append(':').append(*magyar).append("\r\n");
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
