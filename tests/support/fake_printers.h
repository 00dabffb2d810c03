#pragma once

#include <QHash>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>

#include "print/pdf_document.h"
#include "print/printers.h"
#include "support/recording_printer.h"

using namespace Qt::StringLiterals;

/// What became of the documents of the fake printers.
struct FakePrintJobs {
    /// Printer and title of each document that was begun.
    QStringList begun;
    /// Of each that was handed over whole.
    QStringList handed_over;
    /// Of each that was given up.
    QStringList dropped;
    /// The last one that was handed over: its face, pages and orders.
    PagePrinter::Face face;
    QList<PrintedText> texts;
    QStringList orders;
    int pages = 0;
};

class FakePrintJob final : public PrintJob {
  public:
    FakePrintJob(FakePrintJobs &jobs, QString name, int failing_page, std::optional<Failure> refusal)
        : jobs_(jobs), name_(std::move(name)), refusal_(std::move(refusal)) {
        jobs_.begun.append(name_);
        paper_.failing_page = failing_page;
    }
    ~FakePrintJob() override {
        if (!whole_)
            jobs_.dropped.append(name_);
    }
    FakePrintJob(const FakePrintJob &) = delete;
    FakePrintJob &operator=(const FakePrintJob &) = delete;

    PagePrinter &printer() override { return paper_; }
    std::optional<Failure> hand_over() override {
        if (refusal_)
            return refusal_;
        whole_ = paper_.ended;
        jobs_.handed_over.append(name_);
        jobs_.face = paper_.face;
        jobs_.texts = paper_.texts;
        jobs_.orders = paper_.orders;
        jobs_.pages = paper_.pages;
        return std::nullopt;
    }
    Failure failure() const override { return {name_ + u" failed"_s}; }

  private:
    FakePrintJobs &jobs_;
    QString name_;
    std::optional<Failure> refusal_;
    RecordingPrinter paper_;
    bool whole_ = false;
};

class FakePreview final : public PagePreview {
  public:
    PageRecorder &pages() override { return pages_; }

  private:
    PdfDocument document_{QString()};
    PageRecorder pages_{document_.device()};
};

/// Printers that a test installs and takes away, and that note what they print.
class FakePrinters final : public Printers {
  public:
    QStringList installed;
    /// Fonts of a printer; of one that is not named here, those of the empty name.
    QHash<QString, QStringList> fonts_of{{QString(), {u"DejaVu Sans"_s, u"Liberation Serif"_s}}};
    FakePrintJobs jobs;
    /// The page at which printers fail, counted from 1; 0 for the end of the document, −1 for never.
    int failing_page = -1;
    /// Why a whole document is refused.
    std::optional<Failure> refusal;
    /// Which printers were looked at.
    QStringList previewed;

    QStringList names() const override { return installed; }
    QStringList fonts(const QString &printer) const override {
        return fonts_of.value(printer, fonts_of.value(QString()));
    }
    PrintJobResult print(const QString &printer, const QString &title) override {
        if (!installed.contains(printer))
            return Failure{printer + u" has vanished"_s};
        return std::make_unique<FakePrintJob>(jobs, printer + u' ' + title, failing_page, refusal);
    }
    std::unique_ptr<PagePreview> preview(const QString &printer) override {
        previewed.append(printer);
        return std::make_unique<FakePreview>();
    }
};
