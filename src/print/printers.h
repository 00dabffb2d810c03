#pragma once

#include <QString>
#include <QStringList>
#include <memory>

#include "print/page_recorder.h"
#include "print/print_job.h"

/// The pages that a printer would print, and the device that measures them.
class PagePreview {
  public:
    virtual ~PagePreview() = default;

    [[nodiscard]] virtual PageRecorder &pages() = 0;
};

/// The system's printers. The real ones are in print/widgets/qt_printers.h.
class Printers {
  public:
    virtual ~Printers() = default;

    /// Names of the installed printers, in the system's order.
    [[nodiscard]] virtual QStringList names() const = 0;
    /// Names of the fonts that `printer` prints, in its order; a font may be named more than once. An empty name stands
    /// for the PDF file here and below.
    [[nodiscard]] virtual QStringList fonts(const QString &printer) const = 0;
    /// A document called `title` for an installed printer.
    [[nodiscard]] virtual PrintJobResult print(const QString &printer, const QString &title) = 0;
    /// Looks at pages as `printer` would print them; as a PDF file has them when it has gone.
    [[nodiscard]] virtual std::unique_ptr<PagePreview> preview(const QString &printer) = 0;
};
