#include "lookup/widgets/control_browser.h"

#include <QCoreApplication>
#include <QDir>
#include <QPointer>
#include <QResizeEvent>
#include <QTimer>

#include "lookup/control_address.h"
#include "lookup/widgets/system_browser.h"

using namespace Qt::StringLiterals;

ControlSurface::ControlSurface() {
    // The control lives in a window of the system.
    setAttribute(Qt::WA_NativeWindow);
    setFocusPolicy(Qt::StrongFocus);
}

void ControlSurface::hold(WebControl *control) {
    control_ = control;
}

void ControlSurface::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    const QSize pixels = event->size() * devicePixelRatioF();
    if (control_)
        control_->resize(pixels.width(), pixels.height());
}

void ControlSurface::focusInEvent(QFocusEvent *event) {
    QWidget::focusInEvent(event);
    if (control_)
        control_->take_focus();
}

ControlBrowser::ControlBrowser(const WebBrowserRules &rules)
    : rules_(rules),
      surface_(std::make_unique<ControlSurface>()),
      control_(make_web_control(surface_->winId(), events())) {
    surface_->hold(control_.get());
    QCoreApplication::instance()->installNativeEventFilter(this);
}

ControlBrowser::~ControlBrowser() {
    QCoreApplication::instance()->removeNativeEventFilter(this);
    surface_->hold(nullptr);
    // It leaves its window before that goes.
    control_.reset();
}

WebControl::Events ControlBrowser::events() {
    return {[this](const QString &address, bool whole_window) { return may_open(address, whole_window); },
            [this] {
                // The control forgets it with each document.
                control_->set_zoom(zoom_);
                notifications_.download_finished();
            },
            [this] { notifications_.navigation_finished(); },
            [this](const QString &address) {
                // Not before the control is done with the request.
                QTimer::singleShot(0, this, [this, address] { navigate(address_of_control(address)); });
            },
            [this] { refuse(u"Innen nem tölthető le fájl."_s); },
            [this](const QString &address, int code) {
                refuse(u"A(z) „%1” lap nem tölthető be: hiba történt (%2)."_s.arg(
                    address, QString::number(static_cast<quint32>(code), 16)));
            }};
}

bool ControlBrowser::may_open(const QString &address, bool whole_window) {
    const QUrl real = address_of_control(address);
    if (is_part_of_page(real, whole_window))
        return true;
    const auto obstacle = rules_.obstacle(real);
    if (obstacle && whole_window)
        refuse(obstacle->sentence);
    return !obstacle;
}

void ControlBrowser::refuse(const QString &sentence) {
    // A page may try again and again while its reader is being told.
    if (telling_)
        return;
    telling_ = true;
    // The control waits for an answer, and who is told may wait for the user, who may have closed the window.
    QTimer::singleShot(0, this, [self = QPointer<ControlBrowser>(this), tell = notifications_.refused, sentence] {
        tell(sentence);
        if (self)
            self->telling_ = false;
    });
}

void ControlBrowser::set_zoom(double factor) {
    zoom_ = qRound(factor * 100);
    control_->set_zoom(zoom_);
}

void ControlBrowser::navigate(const QUrl &address) {
    QString text = address.toString(QUrl::FullyEncoded);
    if (address.isLocalFile()) {
        // A path, in which a letter with an accent is the same for every version of the control.
        text = QDir::toNativeSeparators(address.toLocalFile());
        if (address.hasFragment())
            text += u'#' + address.fragment();
    }
    control_->navigate(text);
}

QString ControlBrowser::location_address() const {
    return address_of_control(control_->location_address()).toString(QUrl::PrettyDecoded);
}

bool ControlBrowser::nativeEventFilter(const QByteArray &kind, void *message, qintptr *) {
    return control_ && kind == QByteArrayLiteral("windows_dispatcher_MSG") && control_->take_key(message);
}

WebBrowserResult make_system_browser(const WebBrowserRules &rules) {
    auto browser = std::make_unique<ControlBrowser>(rules);
    if (!browser->works())
        return Failure{
            u"A súgó nem mutatható meg, mert a Windows böngészővezérlője hiányzik vagy nem "
            "indítható."_s};
    return browser;
}
