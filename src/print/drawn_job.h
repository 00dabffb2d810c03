#pragma once

#include <QPrinter>
#include <memory>

#include "print/device_printer.h"
#include "print/print_job.h"

/// Draws on the toolkit's printer, which hands each page to the system. For systems whose printers can give up a
/// document that has begun.
class DrawnJob final : public PrintJob {
  public:
    explicit DrawnJob(std::unique_ptr<QPrinter> printer);
    ~DrawnJob() override;
    DrawnJob(const DrawnJob &) = delete;
    DrawnJob &operator=(const DrawnJob &) = delete;

    [[nodiscard]] PagePrinter &printer() override { return printer_; }
    [[nodiscard]] std::optional<Failure> hand_over() override;
    [[nodiscard]] Failure failure() const override;

  private:
    std::unique_ptr<QPrinter> device_;
    DevicePrinter printer_;
    bool handed_over_ = false;
};
