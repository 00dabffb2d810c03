#pragma once

#include <QPrinter>
#include <memory>

#include "print/page_recorder.h"
#include "print/print_job.h"

/// Draws on the toolkit's printer when the document is whole: once the first page has been begun, what a printer of
/// Windows has got cannot be taken back, because the toolkit's abort() does nothing there.
class DrawnJob final : public PrintJob {
  public:
    explicit DrawnJob(std::unique_ptr<QPrinter> printer);

    [[nodiscard]] PagePrinter &printer() override { return pages_; }
    [[nodiscard]] std::optional<Failure> hand_over() override;
    [[nodiscard]] Failure failure() const override;

  private:
    std::unique_ptr<QPrinter> device_;
    PageRecorder pages_;
};
