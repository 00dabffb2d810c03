#include "ui/controls/choosable_picture.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

namespace {

constexpr int frame_width = 1;
constexpr int focused_frame_width = 4;

}  // namespace

ChoosablePicture::ChoosablePicture(QWidget *parent) : PictureBox(parent) {
    setFocusPolicy(Qt::StrongFocus);
    // A move without the button tells that it was let go unseen.
    setMouseTracking(true);
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
    const auto draw_frame = [&](const QColor &colour, double inset, double width) {
        const double middle = inset + width / 2;
        painter.setPen(QPen(colour, width));
        painter.drawRect(QRectF(rect()).adjusted(middle, middle, -middle, -middle));
    };
    if (!hasFocus()) {
        draw_frame(palette().color(QPalette::Mid), 0, frame_width);
        return;
    }
    // Two colours, so that one of them stands out from any picture.
    draw_frame(palette().color(QPalette::Highlight), 0, focused_frame_width);
    draw_frame(Qt::white, focused_frame_width, frame_width);
}
