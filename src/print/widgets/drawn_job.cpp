#include "print/widgets/drawn_job.h"

#include <utility>

using namespace Qt::StringLiterals;

DrawnJob::DrawnJob(std::unique_ptr<QPrinter> printer) : device_(std::move(printer)), pages_(*device_) {}

std::optional<Failure> DrawnJob::hand_over() {
    if (!pages_.print_all() || device_->printerState() == QPrinter::Error)
        return failure();
    return std::nullopt;
}

Failure DrawnJob::failure() const {
    return not_printed(device_->printerName(), u"a nyomtató hibát jelzett."_s);
}
