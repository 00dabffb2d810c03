#include "ui/window/window.h"

#include <QEvent>
#include <QEventLoop>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QPalette>
#include <QPushButton>
#include <QWindow>
#include <functional>
#include <utility>

#include "ui/drawing/contrast.h"
#include "ui/drawing/fonts.h"
#include "ui/drawing/twips.h"

namespace {

constexpr double title_and_borders = 405;
constexpr double menu_bar = 325;
constexpr double side_borders = 120;

/// Calls back when the watched window is hidden, by whatever way.
class HideWatch final : public QObject {
  public:
    HideWatch(QWidget &window, std::function<void()> hidden) : window_(window), hidden_(std::move(hidden)) {
        window_.installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::Hide && !event->spontaneous())
            hidden_();
        return false;
    }

  private:
    QWidget &window_;
    std::function<void()> hidden_;
};

bool is_enter(const QKeyEvent &key) {
    return key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
}

/// Lets a button press once for Enter that is held down. A default button that has the focus takes the key itself, and
/// each repeat of it anew. Calls back when the focus comes to the button or leaves it.
class ButtonWatch final : public QObject {
  public:
    ButtonWatch(QPushButton *button, std::function<void()> focus_moved, QObject &owner)
        : QObject(&owner), focus_moved_(std::move(focus_moved)) {
        button->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
            focus_moved_();
        if (event->type() != QEvent::KeyPress)
            return false;
        const auto &key = *static_cast<QKeyEvent *>(event);
        return key.isAutoRepeat() && is_enter(key);
    }

  private:
    std::function<void()> focus_moved_;
};

/// Selected rows are seen as well in a list without the focus, where some desktops have them almost white, and can be
/// read everywhere.
void show_selection(QPalette &colours) {
    const QPalette desktop = QGuiApplication::palette();
    const QColor letters = desktop.color(QPalette::Active, QPalette::HighlightedText);
    const QColor selection = readable_behind(letters, desktop.color(QPalette::Active, QPalette::Highlight));
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        colours.setColor(group, QPalette::Highlight, selection);
        colours.setColor(group, QPalette::HighlightedText, letters);
    }
}

}  // namespace

ablak::ablak(const QString &név, menü van_menü, keret milyen)
    : QWidget(nullptr, milyen == keret::nincs ? Qt::Window | Qt::FramelessWindowHint : Qt::Window),
      keret_(milyen),
      felület_(new QWidget(this)) {
    setObjectName(név);
    setFont(QFont(QStringList{fonts::times_new_roman}));
    if (van_menü == menü::van)
        menüsor_ = new QMenuBar(this);
}

double ablak::keretmagasság() const {
    if (keret_ == keret::nincs)
        return 0;
    return menüsor_ ? title_and_borders + menu_bar : title_and_borders;
}

double ablak::keretszélesség() const {
    return keret_ == keret::nincs ? 0 : side_borders;
}

void ablak::méretez(double szélesség, double magasság) {
    szélesség_ = szélesség;
    magasság_ = magasság;
    igazít();
}

void ablak::igazít() {
    const int width = twips::to_pixels(belsőszélesség());
    const int height = twips::to_pixels(belsőmagasság());
    const int menu = menümagasság();
    if (menüsor_)
        menüsor_->setGeometry(0, 0, width, menu);
    felület_->setGeometry(0, menu, width, height);
    if (keret_ == keret::átméretezhető)
        resize(width, menu + height);
    else
        setFixedSize(width, menu + height);
}

int ablak::menümagasság() const {
    return menüsor_ ? menüsor_->sizeHint().height() : 0;
}

void ablak::resizeEvent(QResizeEvent *event) {
    QWidget::resizeEvent(event);
    // The size in twips that asked for these pixels stays as exact as it is.
    const QSize kért(twips::to_pixels(belsőszélesség()), twips::to_pixels(belsőmagasság()) + menümagasság());
    if (keret_ != keret::átméretezhető || size() == kért)
        return;
    szélesség_ = twips::from_pixels(width()) + keretszélesség();
    magasság_ = twips::from_pixels(height() - menümagasság()) + keretmagasság();
    igazít();
    Form_Resize();
}

void ablak::áttesz(const QPointF &hová) {
    const QPoint pixel(twips::to_pixels(hová.x()), twips::to_pixels(hová.y()));
    move(pixel);
    // A window that was seen and is hidden has no frame for the moment: move() takes the place for that of what stands
    // inside it.
    if (windowHandle() && isHidden())
        windowHandle()->setFramePosition(pixel);
}

void ablak::középre(const QRectF &képernyő) {
    áttesz(képernyő.topLeft() + QPointF(képernyő.width() - szélesség_, képernyő.height() - magasság_) / 2);
}

void ablak::elhelyez(QWidget *vezérlő, const QRectF &hely) {
    if (!helyek_.contains(vezérlő)) {
        const bool látszik = !vezérlő->testAttribute(Qt::WA_WState_ExplicitShowHide) || !vezérlő->isHidden();
        vezérlő->setParent(felület_);
        vezérlő->setVisible(látszik);
        vezérlők_.append(vezérlő);
        if (auto *gomb = qobject_cast<QPushButton *>(vezérlő))
            new ButtonWatch(
                gomb, [this] { alapgombot_jelez(); }, gombfigyelők_);
    }
    helyek_.insert(vezérlő, hely);
    vezérlő->setGeometry(twips::to_pixels(hely));
}

void ablak::háttérszínbeállít(const QColor &szín) {
    háttérszín_ = szín;
    // The colours follow from the background, so that a dark desktop's white text never stands on a light window.
    QPalette színek(szín, szín);
    show_selection(színek);
    setPalette(színek);
}

void ablak::alapgombbeállít(QPushButton *gomb) {
    if (alapgomb_)
        alapgomb_->setDefault(false);
    alapgomb_ = gomb;
    alapgombot_jelez();
}

void ablak::alapgombot_jelez() {
    if (!alapgomb_)
        return;
    // Enter presses a button that has the focus; two would look like the one that it presses.
    const auto *fókuszban = qobject_cast<QPushButton *>(focusWidget());
    alapgomb_->setDefault(!fókuszban || fókuszban == alapgomb_);
}

void ablak::levesz(QWidget *vezérlő) {
    vezérlők_.removeOne(vezérlő);
    helyek_.remove(vezérlő);
    delete vezérlő;
}

void ablak::keyPressEvent(QKeyEvent *event) {
    const bool enter = is_enter(*event);
    const bool escape = event->key() == Qt::Key_Escape && (mégsegomb_ || escape_zár_);
    // A key that is held down presses a button once: its repeats would answer the next question, too.
    if (event->isAutoRepeat() && (enter || escape))
        return;
    if (escape) {
        if (mégsegomb_)
            mégsegomb_->click();
        else
            close();
        return;
    }
    if (!enter) {
        QWidget::keyPressEvent(event);
        return;
    }
    auto *focused = qobject_cast<QPushButton *>(focusWidget());
    QPushButton *pressed = focused ? focused : alapgomb_;
    if (pressed)
        pressed->click();
}

void ablak::mutatmodálisan() {
    QEventLoop loop;
    const HideWatch watch(*this, [&loop] { loop.quit(); });
    setWindowModality(Qt::ApplicationModal);
    show();
    // A window that has nothing to show hides while it is being shown.
    if (isVisible())
        loop.exec();
}
