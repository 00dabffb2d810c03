#include "platform/print_spooler.h"

#include <cups/cups.h>

#include <QByteArray>
#include <QLibrary>

using namespace Qt::StringLiterals;

namespace {

/// What is used of the client library of CUPS. It is loaded at its first use: linked, it and the libraries that it
/// needs would be loaded at each start of the program. Its functions are null on a system that lacks it.
class Cups final {
    // The functions below come out of it.
    QLibrary library_{u"cups"_s, 2};

    template <class Function>
    Function function(const char *name) {
        return reinterpret_cast<Function>(library_.resolve(name));
    }

  public:
    decltype(&cupsCancelJob2) cancel_job = function<decltype(&cupsCancelJob2)>("cupsCancelJob2");
    decltype(&cupsCreateJob) create_job = function<decltype(&cupsCreateJob)>("cupsCreateJob");
    decltype(&cupsFinishDocument) finish_document = function<decltype(&cupsFinishDocument)>("cupsFinishDocument");
    decltype(&cupsFreeDests) free_queues = function<decltype(&cupsFreeDests)>("cupsFreeDests");
    decltype(&cupsGetNamedDest) queue = function<decltype(&cupsGetNamedDest)>("cupsGetNamedDest");
    decltype(&cupsLastError) last_error = function<decltype(&cupsLastError)>("cupsLastError");
    decltype(&cupsLastErrorString) last_error_text = function<decltype(&cupsLastErrorString)>("cupsLastErrorString");
    decltype(&cupsStartDocument) start_document = function<decltype(&cupsStartDocument)>("cupsStartDocument");
    decltype(&cupsWriteRequestData) write = function<decltype(&cupsWriteRequestData)>("cupsWriteRequestData");

    [[nodiscard]] bool whole() const {
        return cancel_job && create_job && finish_document && free_queues && queue && last_error && last_error_text &&
               start_document && write;
    }
};

const QString interrupted = u"a kapcsolat a nyomtatókiszolgálóval megszakadt."_s;
const QString no_server = u"a nyomtatókiszolgáló nem érhető el."_s;

/// The answer of the last request to CUPS, in the words of the program where it is a usual one.
QString reason(const Cups &cups) {
    switch (cups.last_error()) {
        case IPP_STATUS_ERROR_NOT_FOUND:
            return u"a nyomtató nem található, vagy a nyomtatókiszolgáló nem fut."_s;
        case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
            return u"a nyomtató jelenleg nem fogad feladatot."_s;
        case IPP_STATUS_ERROR_FORBIDDEN:
        case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
        case IPP_STATUS_ERROR_NOT_AUTHORIZED:
            return u"nincs jogosultság a használatához."_s;
        case IPP_STATUS_ERROR_SERVICE_UNAVAILABLE:
            return no_server;
        case IPP_STATUS_ERROR_DOCUMENT_FORMAT_NOT_SUPPORTED:
            return u"a nyomtató nem ismeri a dokumentum formátumát."_s;
        default:
            return u"a nyomtatókiszolgáló hibát jelzett (%1: %2)."_s.arg(static_cast<int>(cups.last_error()))
                .arg(QString::fromUtf8(cups.last_error_text()));
    }
}

/// A queue with the options that its user has chosen for it.
class Destination final {
  public:
    Destination(const Cups &cups, const QString &printer) : cups_(cups) {
        // A printer of the toolkit may be an instance of a queue: "queue/instance".
        const QByteArray name = printer.section(u'/', 0, 0).toUtf8();
        const QByteArray instance = printer.section(u'/', 1).toUtf8();
        queue_ = cups_.queue(CUPS_HTTP_DEFAULT, name.constData(), instance.isEmpty() ? nullptr : instance.constData());
    }
    ~Destination() { cups_.free_queues(queue_ ? 1 : 0, queue_); }
    Destination(const Destination &) = delete;
    Destination &operator=(const Destination &) = delete;

    explicit operator bool() const { return queue_ != nullptr; }
    const cups_dest_t *operator->() const { return queue_; }

  private:
    const Cups &cups_;
    cups_dest_t *queue_;
};

class CupsSpooler final : public PrintSpooler {
  public:
    std::optional<QString> print(const QString &printer, const QString &title, const QByteArray &pdf) override {
        const Cups cups;
        if (!cups.whole())
            return no_server;
        const Destination queue(cups, printer);
        if (!queue)
            return reason(cups);
        const QByteArray name = title.toUtf8();
        const int job =
            cups.create_job(CUPS_HTTP_DEFAULT, queue->name, name.constData(), queue->num_options, queue->options);
        if (job == 0)
            return reason(cups);
        const auto why = send(cups, queue->name, job, name, pdf);
        if (why)
            cups.cancel_job(CUPS_HTTP_DEFAULT, queue->name, job, 1);
        return why;
    }

  private:
    /// Returns why the document has not gone, nothing when it has.
    [[nodiscard]] static std::optional<QString> send(const Cups &cups, const char *queue, int job,
                                                     const QByteArray &title, const QByteArray &pdf) {
        if (cups.start_document(CUPS_HTTP_DEFAULT, queue, job, title.constData(), CUPS_FORMAT_PDF, 1) !=
            HTTP_STATUS_CONTINUE)
            return reason(cups);
        std::optional<QString> why;
        if (cups.write(CUPS_HTTP_DEFAULT, pdf.constData(), static_cast<size_t>(pdf.size())) != HTTP_STATUS_CONTINUE)
            why = interrupted;
        // To be called whether or not all has gone: it ends the request.
        if (cups.finish_document(CUPS_HTTP_DEFAULT, queue) > IPP_STATUS_OK_CONFLICTING && !why)
            why = reason(cups);
        return why;
    }
};

}  // namespace

std::unique_ptr<PrintSpooler> make_print_spooler() {
    return std::make_unique<CupsSpooler>();
}
