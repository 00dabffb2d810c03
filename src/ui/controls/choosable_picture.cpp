#include "ui/controls/choosable_picture.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QtMath>
#include <algorithm>
#include <chrono>

#include "ui/drawing/fonts.h"

namespace {

constexpr int frame_width = 1;
constexpr int focused_frame_width = 4;
constexpr int room_for_frame = focused_frame_width + frame_width;
/// Of the picture's height.
constexpr double hint_height = 0.5;
constexpr std::chrono::milliseconds warning_time(600);
constexpr QColor warning_colour(0xd0, 0x20, 0x20);
constexpr QColor hint_colour(0x60, 0x60, 0x60);

}  // namespace

ChoosablePicture::ChoosablePicture(QWidget *parent) : PictureBox(parent) {
    setFocusPolicy(Qt::StrongFocus);
    // A move without the button tells that it was let go unseen.
    setMouseTracking(true);
    warning_.setSingleShot(true);
    connect(&warning_, &QTimer::timeout, this, [this] { update(); });
}

void ChoosablePicture::reserve_frame(const QString &hint) {
    hint_ = hint;
    const int room = hint.isEmpty() ? 0 : qCeil(QFontMetricsF(hint_font()).horizontalAdvance(hint) * 2);
    // Above and below, lines have some room of their own.
    setContentsMargins(room_for_frame + room, focused_frame_width, room_for_frame, focused_frame_width);
    update();
}

void ChoosablePicture::warn() {
    warning_.start(warning_time);
    update();
}

void ChoosablePicture::end_warning() {
    warning_.stop();
    update();
}

void ChoosablePicture::set_drag_mode(DragMode mode) {
    drag_mode_ = mode;
    setCursor(mode == DragMode::automatic ? Qt::OpenHandCursor : Qt::PointingHandCursor);
}

ChoosablePicture::~ChoosablePicture() {
    end_drag();
}

bool ChoosablePicture::event(QEvent *event) {
    if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::WindowDeactivate)
        end_drag();
    return PictureBox::event(event);
}

void ChoosablePicture::mousePressEvent(QMouseEvent *event) {
    // Another button that goes down during a drag is not the drag's business.
    if (event->button() != Qt::LeftButton)
        return;
    pressed_ = true;
    grip_ = event->position().toPoint();
}

void ChoosablePicture::mouseMoveEvent(QMouseEvent *event) {
    if (!event->buttons().testFlag(Qt::LeftButton))
        end_drag();
    if (!pressed_ || drag_mode_ != DragMode::automatic)
        return;
    const QPoint at = event->position().toPoint();
    if (!ghost_) {
        if ((at - grip_).manhattanLength() < QApplication::startDragDistance())
            return;
        ghost_ = new QLabel(window());
        ghost_->setAttribute(Qt::WA_TransparentForMouseEvents);
        ghost_->setPixmap(grab());
        ghost_->resize(size());
        ghost_->show();
    }
    ghost_->move(mapTo(window(), at - grip_));
}

void ChoosablePicture::mouseReleaseEvent(QMouseEvent *event) {
    if (!pressed_ || event->button() != Qt::LeftButton)
        return;
    const bool was_dragged = ghost_ != nullptr;
    end_drag();
    if (was_dragged)
        Q_EMIT dropped(event->globalPosition().toPoint());
    else if (drag_mode_ == DragMode::manual && rect().contains(event->position().toPoint()))
        Q_EMIT chosen();
}

void ChoosablePicture::hideEvent(QHideEvent *event) {
    // The mouse button is let go over what lies behind, which tells this picture nothing.
    end_drag();
    PictureBox::hideEvent(event);
}

void ChoosablePicture::end_drag() {
    pressed_ = false;
    if (!ghost_)
        return;
    // Not at once: the window may be in the midst of telling its children something.
    ghost_->hide();
    ghost_->deleteLater();
    ghost_ = nullptr;
}

void ChoosablePicture::keyPressEvent(QKeyEvent *event) {
    if (event->key() == Qt::Key_Escape && ghost_) {
        end_drag();
        return;
    }
    if (event->key() != Qt::Key_Space) {
        PictureBox::keyPressEvent(event);
        return;
    }
    // The repeats of a key that is held down would choose the next picture, which has the focus by then.
    if (!event->isAutoRepeat())
        Q_EMIT chosen();
}

void ChoosablePicture::focusInEvent(QFocusEvent *event) {
    PictureBox::focusInEvent(event);
    update();
}

void ChoosablePicture::focusOutEvent(QFocusEvent *event) {
    // A menu that opens takes the mouse, too.
    end_drag();
    PictureBox::focusOutEvent(event);
    update();
}

void ChoosablePicture::paintEvent(QPaintEvent *event) {
    PictureBox::paintEvent(event);
    QPainter painter(this);
    draw_hint(painter);
    const auto draw_frame = [&](const QColor &colour, double inset, double width) {
        const double middle = inset + width / 2;
        painter.setPen(QPen(colour, width));
        painter.drawRect(QRectF(rect()).adjusted(middle, middle, -middle, -middle));
    };
    if (warning_.isActive()) {
        draw_frame(warning_colour, 0, focused_frame_width);
        return;
    }
    if (!hasFocus()) {
        draw_frame(palette().color(QPalette::Mid), 0, frame_width);
        return;
    }
    // Two colours, so that one of them stands out from any picture.
    draw_frame(palette().color(QPalette::Highlight), 0, focused_frame_width);
    draw_frame(Qt::white, focused_frame_width, frame_width);
}

QFont ChoosablePicture::hint_font() const {
    QFont font(QStringList{fonts::times_new_roman});
    font.setPixelSize(std::max(1, qRound(height() * hint_height)));
    return font;
}

void ChoosablePicture::draw_hint(QPainter &painter) const {
    if (hint_.isEmpty())
        return;
    painter.setFont(hint_font());
    painter.setPen(hint_colour);
    const QRect place(room_for_frame, 0, contentsRect().left() - room_for_frame, height());
    painter.drawText(place, static_cast<int>(Qt::AlignCenter), hint_);
}
