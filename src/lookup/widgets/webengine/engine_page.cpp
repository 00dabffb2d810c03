#include "lookup/widgets/webengine/engine_page.h"

#include <QTimer>
#include <QWebEngineSettings>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString archive_scheme = u"thismessage"_s;
/// Name of the document within the archive.
const QString archive_document = u"/index.html"_s;

void set_up(QWebEngineSettings &settings) {
    // Its pages of errors are in the language of the system, if they are at all.
    settings.setAttribute(QWebEngineSettings::ErrorPageEnabled, false);
    settings.setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
    settings.setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, false);
    settings.setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    settings.setAttribute(QWebEngineSettings::PdfViewerEnabled, false);
    // So that the page is asked about every address.
    settings.setUnknownUrlSchemePolicy(QWebEngineSettings::AllowAllUnknownUrlSchemes);
}

/// What frames within a page are made of besides addresses.
bool is_part_of_page(const QUrl &address) {
    return address.scheme() == u"about" || address.scheme() == u"data" || address.scheme() == u"blob";
}

}  // namespace

EnginePage::EnginePage(QWebEngineProfile *profile, WebBrowserRules rules)
    : QWebEnginePage(profile), rules_(std::move(rules)) {
    set_up(*settings());
    connect(this, &QWebEnginePage::newWindowRequested, this, [this](const QWebEngineNewWindowRequest &request) {
        // Not before the engine is done with the request.
        QTimer::singleShot(0, this, [this, address = request.requestedUrl()] { open(address); });
    });
}

void EnginePage::open(const QUrl &address) {
    const QUrl real = outside_archive(address);
    if (const auto obstacle = rules_.obstacle(real))
        Q_EMIT refused(obstacle->sentence);
    else
        load(real);
}

QUrl EnginePage::outside_archive(const QUrl &address) const {
    if (address.scheme() != archive_scheme)
        return address;
    QUrl real = url();
    if (address.path() != archive_document)
        real = real.resolved(QUrl(address.path().mid(1)));
    real.setFragment(address.hasFragment() ? address.fragment() : QString());
    return real;
}

bool EnginePage::acceptNavigationRequest(const QUrl &url, NavigationType type, bool is_main_frame) {
    // A page that may not read files may not lead to an archive either; the program may.
    const bool link_to_file = url.isLocalFile() && type == NavigationTypeLinkClicked && is_main_frame;
    if (url.scheme() == archive_scheme || link_to_file) {
        QTimer::singleShot(0, this, [this, url] { open(url); });
        return false;
    }
    if (!is_main_frame && is_part_of_page(url))
        return true;
    const auto obstacle = rules_.obstacle(url);
    if (obstacle && is_main_frame)
        Q_EMIT refused(obstacle->sentence);
    return !obstacle;
}

QStringList EnginePage::chooseFiles(FileSelectionMode, const QStringList &, const QStringList &) {
    return {};
}

void EnginePage::javaScriptAlert(const QUrl &, const QString &) {}

bool EnginePage::javaScriptConfirm(const QUrl &, const QString &) {
    return false;
}

bool EnginePage::javaScriptPrompt(const QUrl &, const QString &, const QString &, QString *) {
    return false;
}

void EnginePage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &message, int, const QString &) {
    // The engine itself lets no page of the web or of an archive lead to a file, and says so only here.
    static const QString blocked = u"Not allowed to load local resource: "_s;
    if (!message.startsWith(blocked))
        return;
    const QUrl address(message.mid(blocked.size()));
    const auto obstacle = rules_.obstacle(address);
    Q_EMIT refused(obstacle ? obstacle->sentence
                            : u"Erről a lapról nem nyitható meg fájl: „%1”."_s.arg(address.toDisplayString()));
}
