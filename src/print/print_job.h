#pragma once

#include <QString>
#include <memory>
#include <optional>
#include <variant>

#include "platform/files.h"
#include "print/page_printer.h"

/// A document on its way to a printer or into a file. One that is destroyed without having been handed over leaves
/// nothing behind.
class PrintJob {
  public:
    virtual ~PrintJob() = default;

    /// Takes the document; to be ended before it is handed over.
    [[nodiscard]] virtual PagePrinter &printer() = 0;
    /// Sends the ended document where it is to go. Returns the failure, nothing on success.
    [[nodiscard]] virtual std::optional<Failure> hand_over() = 0;
    /// The failure of a document whose printer has failed on the way.
    [[nodiscard]] virtual Failure failure() const = 0;
};

/// The failure of printing on `printer`, for a reason that is the end of a sentence.
[[nodiscard]] inline Failure not_printed(const QString &printer, const QString &reason) {
    using namespace Qt::StringLiterals;
    return {u"A(z) „%1” nyomtatóval nem sikerült nyomtatni: %2"_s.arg(printer, reason)};
}

/// A job, or why there can be none.
using PrintJobResult = std::variant<std::unique_ptr<PrintJob>, Failure>;
