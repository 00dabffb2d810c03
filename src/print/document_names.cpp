#include "print/document_names.h"

#include <QFileInfo>

#include "platform/files.h"

using namespace Qt::StringLiterals;

namespace {

const QString kiterjesztés = u".pdf"_s;

/// The path that stands behind the "*" is only a proposal when the list was never saved.
QString mentett_út(const QString &aktuálisfájl) {
    if (!aktuálisfájl.startsWith(u'*'))
        return aktuálisfájl;
    QString út = aktuálisfájl;
    while (út.startsWith(u'*'))
        út.remove(0, 1);
    return files::exists(út) ? út : QString();
}

}  // namespace

dokumentumnevek dokumentum(const QString &aktuálisfájl, const QString &programkönyvtár) {
    const QString út = mentett_út(aktuálisfájl);
    const QFileInfo fájl(út);
    const QString cím = út.isEmpty() ? u"névtelen szószedet"_s : fájl.completeBaseName();
    const QString mappa = út.isEmpty() ? programkönyvtár : fájl.path();
    return {út, cím, mappa + u'/' + cím + kiterjesztés};
}

QString pdfnév(const QString &név) {
    return név.endsWith(kiterjesztés, Qt::CaseInsensitive) ? név : név + kiterjesztés;
}
