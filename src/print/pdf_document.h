#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QPageLayout>
#include <QPdfWriter>
#include <QString>

#include "print/device_printer.h"

/// A PDF document that is made in memory, with its fonts in it, so that a file of it comes into being whole or not at
/// all.
class PdfDocument final {
  public:
    /// Of A4 pages with the margins that the toolkit gives a printer without any of its own.
    explicit PdfDocument(const QString &title);
    PdfDocument(const QString &title, const QPageLayout &pages);

    [[nodiscard]] PagePrinter &printer() { return printer_; }
    /// The device that measures and takes the pages.
    [[nodiscard]] QPdfWriter &device() { return writer_; }
    /// Whole once the document has been ended.
    [[nodiscard]] const QByteArray &bytes() const { return buffer_.data(); }

  private:
    QBuffer buffer_;
    QPdfWriter writer_;
    DevicePrinter printer_;
};
