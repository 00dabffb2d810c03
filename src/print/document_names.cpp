#include "print/document_names.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

const QString kiterjesztés = u".pdf"_s;

}  // namespace

dokumentumnevek dokumentum(const QString &listafájl, const QString &programkönyvtár) {
    const QFileInfo fájl(listafájl);
    const QString cím = listafájl.isEmpty() ? u"névtelen szószedet"_s : fájl.completeBaseName();
    const QString mappa = listafájl.isEmpty() ? programkönyvtár : fájl.path();
    return {listafájl, cím, mappa + u'/' + cím + kiterjesztés};
}

QString pdfnév(const QString &név) {
    return név.endsWith(kiterjesztés, Qt::CaseInsensitive) ? név : név + kiterjesztés;
}
