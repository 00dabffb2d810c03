#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <optional>

/// The system's print queues, as far as they take finished documents. It is this port, and not the toolkit's printer,
/// that hands a document over, because that one neither tells why a queue refuses it nor can take a cancelled one back.
class PrintSpooler {
  public:
    virtual ~PrintSpooler() = default;

    /// Puts the PDF document `pdf` into the queue of `printer`. Returns nothing when it is there, else why it is not:
    /// the end of a sentence in Hungarian.
    [[nodiscard]] virtual std::optional<QString> print(const QString &printer, const QString &title,
                                                       const QByteArray &pdf) = 0;
};

/// Null on a system whose printers take no finished documents.
[[nodiscard]] std::unique_ptr<PrintSpooler> make_print_spooler();
