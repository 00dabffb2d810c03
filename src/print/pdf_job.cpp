#include "print/pdf_job.h"

#include <QDir>
#include <utility>

using namespace Qt::StringLiterals;

PdfJob::PdfJob(QString path, const QString &title) : path_(std::move(path)), document_(title) {}

std::optional<Failure> PdfJob::hand_over() {
    return files::replace_whole(path_, document_.bytes());
}

Failure PdfJob::failure() const {
    return {u"A(z) „%1” fájl nem készíthető el."_s.arg(QDir::toNativeSeparators(path_))};
}
