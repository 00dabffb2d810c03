#include "wordlist/recent_files.h"

#include "platform/code_page.h"
#include "platform/names_in_files.h"
#include "platform/text_lines.h"

using namespace Qt::StringLiterals;

namespace legutóbbifájlok {

QStringList olvas(QByteArrayView bytes, const std::function<bool(const QString &)> &létezik) {
    QStringList fájlok;
    while (!bytes.isEmpty() && fájlok.size() < legfeljebb) {
        const QByteArrayView sor = take_line(bytes);
        if (sor.size() > names_in_files::longest_line)
            continue;
        const QString út = code_page::decode(sor);
        if (!út.isEmpty() && létezik(út))
            fájlok.append(út);
    }
    return fájlok;
}

írott ír(const QString &aktuális, const QStringList &menü) {
    QStringList utak{aktuális};
    for (const QString &út : menü) {
        if (út != aktuális)
            utak.append(út);
    }
    írott fájl;
    for (const QString &út : utak) {
        const auto sor = names_in_files::line_of(út);
        if (const auto *akadály = std::get_if<names_in_files::Obstacle>(&sor)) {
            fájl.kimaradtak.append(
                {u"A(z) „%1” fájl használható, de nem kerülhet a legutóbbi fájlok közé, mert %2. "
                 "Ha más nevet kap, a menüben is ott lesz."_s.arg(út.simplified(), akadály->reason)});
            continue;
        }
        fájl.bytes += std::get<QByteArray>(sor) + "\r\n";
    }
    return fájl;
}

QString felirat(int n, const QString &út) {
    return u'&' + QString::number(n) + u": "_s + QString(út).replace(u'&', u"&&"_s);
}

QString útvonal(const QString &felirat) {
    return felirat.mid(4).replace(u"&&"_s, u"&"_s);
}

}  // namespace legutóbbifájlok
