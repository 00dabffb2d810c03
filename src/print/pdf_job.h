#pragma once

#include <QString>

#include "print/pdf_document.h"
#include "print/print_job.h"

/// Prints into a PDF file, which comes into being, or is replaced, whole or not at all.
class PdfJob final : public PrintJob {
  public:
    PdfJob(QString path, const QString &title);

    [[nodiscard]] PagePrinter &printer() override { return document_.printer(); }
    [[nodiscard]] std::optional<Failure> hand_over() override;
    [[nodiscard]] Failure failure() const override;

  private:
    QString path_;
    PdfDocument document_;
};
