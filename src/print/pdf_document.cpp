#include "print/pdf_document.h"

#include <QMarginsF>
#include <QPageSize>

using namespace Qt::StringLiterals;

namespace {

/// A dot is a twip then.
constexpr int dots_per_inch = 1440;

/// In points.
constexpr double margin = 10;

QPageLayout plain_pages() {
    return {QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(margin, margin, margin, margin)};
}

}  // namespace

PdfDocument::PdfDocument(const QString &title) : PdfDocument(title, plain_pages()) {}

PdfDocument::PdfDocument(const QString &title, const QPageLayout &pages) : writer_(&buffer_), printer_(writer_) {
    buffer_.open(QIODevice::WriteOnly);
    writer_.setResolution(dots_per_inch);
    writer_.setPageLayout(pages);
    writer_.setTitle(title);
    writer_.setCreator(u"Zimbora"_s);
}
