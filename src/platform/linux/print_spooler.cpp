#include "platform/print_spooler.h"

#include <cups/cups.h>

#include <QByteArray>

namespace {

/// The answer of the last request to CUPS, in the words of the program where it is a usual one.
QString reason() {
    switch (cupsLastError()) {
        case IPP_STATUS_ERROR_NOT_FOUND:
            return QStringLiteral("a nyomtató nem található.");
        case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
            return QStringLiteral("a nyomtató jelenleg nem fogad feladatot.");
        case IPP_STATUS_ERROR_FORBIDDEN:
        case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
        case IPP_STATUS_ERROR_NOT_AUTHORIZED:
            return QStringLiteral("nincs jogosultság a használatához.");
        case IPP_STATUS_ERROR_SERVICE_UNAVAILABLE:
            return QStringLiteral("a nyomtatókiszolgáló nem érhető el.");
        case IPP_STATUS_ERROR_DOCUMENT_FORMAT_NOT_SUPPORTED:
            return QStringLiteral("a nyomtató nem ismeri a dokumentum formátumát.");
        default:
            return QStringLiteral("a nyomtatókiszolgáló válasza: %1.").arg(QString::fromUtf8(cupsLastErrorString()));
    }
}

/// A queue with the options that its user has chosen for it.
class Destination final {
  public:
    explicit Destination(const QString &printer) {
        // A printer of the toolkit may be an instance of a queue: "queue/instance".
        const QByteArray name = printer.section(u'/', 0, 0).toUtf8();
        const QByteArray instance = printer.section(u'/', 1).toUtf8();
        queue_ =
            cupsGetNamedDest(CUPS_HTTP_DEFAULT, name.constData(), instance.isEmpty() ? nullptr : instance.constData());
    }
    ~Destination() { cupsFreeDests(queue_ ? 1 : 0, queue_); }
    Destination(const Destination &) = delete;
    Destination &operator=(const Destination &) = delete;

    explicit operator bool() const { return queue_ != nullptr; }
    const cups_dest_t *operator->() const { return queue_; }

  private:
    cups_dest_t *queue_;
};

class CupsSpooler final : public PrintSpooler {
  public:
    std::optional<QString> print(const QString &printer, const QString &title, const QByteArray &pdf) override {
        const Destination queue(printer);
        if (!queue)
            return reason();
        const QByteArray name = title.toUtf8();
        const int job =
            cupsCreateJob(CUPS_HTTP_DEFAULT, queue->name, name.constData(), queue->num_options, queue->options);
        if (job == 0)
            return reason();
        if (send(queue->name, job, name, pdf))
            return std::nullopt;
        const QString why = reason();
        cupsCancelJob2(CUPS_HTTP_DEFAULT, queue->name, job, 1);
        return why;
    }

  private:
    static bool send(const char *queue, int job, const QByteArray &title, const QByteArray &pdf) {
        if (cupsStartDocument(CUPS_HTTP_DEFAULT, queue, job, title.constData(), CUPS_FORMAT_PDF, 1) !=
            HTTP_STATUS_CONTINUE)
            return false;
        const bool sent = cupsWriteRequestData(CUPS_HTTP_DEFAULT, pdf.constData(), static_cast<size_t>(pdf.size())) ==
                          HTTP_STATUS_CONTINUE;
        // To be called whether or not all has gone: it ends the request.
        const bool taken = cupsFinishDocument(CUPS_HTTP_DEFAULT, queue) <= IPP_STATUS_OK_CONFLICTING;
        return sent && taken;
    }
};

}  // namespace

std::unique_ptr<PrintSpooler> make_print_spooler() {
    return std::make_unique<CupsSpooler>();
}
