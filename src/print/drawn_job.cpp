#include "print/drawn_job.h"

#include <utility>

DrawnJob::DrawnJob(std::unique_ptr<QPrinter> printer) : device_(std::move(printer)), printer_(*device_) {}

DrawnJob::~DrawnJob() {
    if (!handed_over_)
        device_->abort();
}

std::optional<Failure> DrawnJob::hand_over() {
    handed_over_ = true;
    if (device_->printerState() == QPrinter::Error)
        return failure();
    return std::nullopt;
}

Failure DrawnJob::failure() const {
    return not_printed(device_->printerName(), QStringLiteral("a nyomtató hibát jelzett."));
}
