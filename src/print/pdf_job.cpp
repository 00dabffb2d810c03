#include "print/pdf_job.h"

#include <QDir>
#include <utility>

PdfJob::PdfJob(QString path, const QString &title) : path_(std::move(path)), document_(title) {}

std::optional<Failure> PdfJob::hand_over() {
    return files::replace_whole(path_, document_.bytes());
}

Failure PdfJob::failure() const {
    return {QStringLiteral("A(z) „%1” fájl nem készíthető el.").arg(QDir::toNativeSeparators(path_))};
}
