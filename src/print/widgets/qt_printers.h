#pragma once

#include <memory>

#include "platform/print_spooler.h"
#include "print/printers.h"

/// The printers that the toolkit knows. They are asked anew each time, for printers come and go.
class QtPrinters final : public Printers {
  public:
    /// `spooler` takes the documents; without one the toolkit's printers do.
    explicit QtPrinters(std::unique_ptr<PrintSpooler> spooler) : spooler_(std::move(spooler)) {}

    [[nodiscard]] QStringList names() const override;
    [[nodiscard]] QStringList fonts(const QString &printer) const override;
    [[nodiscard]] PrintJobResult print(const QString &printer, const QString &title) override;
    [[nodiscard]] std::unique_ptr<PagePreview> preview(const QString &printer) override;

  private:
    std::unique_ptr<PrintSpooler> spooler_;
};
