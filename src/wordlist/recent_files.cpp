#include "wordlist/recent_files.h"

#include "platform/code_page.h"
#include "platform/text_lines.h"

using namespace Qt::StringLiterals;

namespace legutóbbifájlok {

QStringList olvas(QByteArrayView bytes, const std::function<bool(const QString &)> &létezik) {
    QStringList fájlok;
    while (!bytes.isEmpty() && fájlok.size() < legfeljebb) {
        const QString út = code_page::decode(take_line(bytes));
        if (!út.isEmpty() && létezik(út))
            fájlok.append(út);
    }
    return fájlok;
}

FileContent ír(const QString &aktuális, const QStringList &menü) {
    QStringList utak{aktuális};
    for (const QString &út : menü) {
        if (út != aktuális)
            utak.append(út);
    }
    QByteArray bytes;
    for (const QString &út : utak) {
        const auto sor = code_page::encode(út);
        if (!sor)
            return Failure{
                u"A(z) „%1” fájl nem kerülhet a legutóbbi fájlok közé, mert a nevében szereplő „%2” "
                "jel nincs meg a közép-európai kódlapon."_s.arg(út, code_page::first_missing(út))};
        bytes += *sor + "\r\n";
    }
    return bytes;
}

QString felirat(int n, const QString &út) {
    return u'&' + QString::number(n) + u": "_s + QString(út).replace(u'&', u"&&"_s);
}

QString útvonal(const QString &felirat) {
    return felirat.mid(4).replace(u"&&"_s, u"&"_s);
}

}  // namespace legutóbbifájlok
