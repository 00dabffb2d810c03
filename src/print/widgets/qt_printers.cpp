#include "print/widgets/qt_printers.h"

#include <QFontDatabase>
#include <QPrinter>
#include <QPrinterInfo>
#include <utility>

#include "print/pdf_document.h"
#include "print/widgets/drawn_job.h"

using namespace Qt::StringLiterals;

namespace {

/// Made as a PDF document with the pages of a printer, which its queue takes when it is whole.
class QueuedJob final : public PrintJob {
  public:
    QueuedJob(PrintSpooler &spooler, QString printer, QString title, const QPageLayout &pages)
        : spooler_(spooler), name_(std::move(printer)), title_(std::move(title)), document_(title_, pages) {}

    PagePrinter &printer() override { return document_.printer(); }

    std::optional<Failure> hand_over() override {
        if (const auto reason = spooler_.print(name_, title_, document_.bytes()))
            return not_printed(name_, *reason);
        return std::nullopt;
    }

    Failure failure() const override { return not_printed(name_, u"a dokumentum nem készíthető el."_s); }

  private:
    PrintSpooler &spooler_;
    QString name_;
    QString title_;
    PdfDocument document_;
};

class DocumentPreview final : public PagePreview {
  public:
    DocumentPreview() : document_(QString()), pages_(document_.device()) {}
    explicit DocumentPreview(const QPageLayout &pages) : document_(QString(), pages), pages_(document_.device()) {}

    PageRecorder &pages() override { return pages_; }

  private:
    PdfDocument document_;
    PageRecorder pages_;
};

}  // namespace

QStringList QtPrinters::names() const {
    return QPrinterInfo::availablePrinterNames();
}

QStringList QtPrinters::fonts(const QString &) const {
    // All printers print what the system has; a font without outlines has no size of a page.
    QStringList fonts;
    for (const QString &name : QFontDatabase::families()) {
        if (QFontDatabase::isScalable(name) && !QFontDatabase::isPrivateFamily(name))
            fonts.append(name);
    }
    return fonts;
}

PrintJobResult QtPrinters::print(const QString &printer, const QString &title) {
    const QPrinterInfo info = QPrinterInfo::printerInfo(printer);
    if (info.isNull())
        return not_printed(printer, u"a nyomtató nem található, vagy a nyomtatókiszolgáló nem fut."_s);
    auto device = std::make_unique<QPrinter>(info, QPrinter::HighResolution);
    if (spooler_)
        return std::make_unique<QueuedJob>(*spooler_, printer, title, device->pageLayout());
    device->setDocName(title);
    return std::make_unique<DrawnJob>(std::move(device));
}

std::unique_ptr<PagePreview> QtPrinters::preview(const QString &printer) {
    const QPrinterInfo info = QPrinterInfo::printerInfo(printer);
    if (info.isNull())
        return std::make_unique<DocumentPreview>();
    return std::make_unique<DocumentPreview>(QPrinter(info, QPrinter::HighResolution).pageLayout());
}
