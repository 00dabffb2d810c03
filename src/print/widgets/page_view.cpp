#include "print/widgets/page_view.h"

#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

#include "ui/drawing/twips.h"

namespace {

/// Round the paper, in pixels.
constexpr double margin = 12;
constexpr double smallest = 0.1;
constexpr double largest = 8;

constexpr QColor desk(0x80, 0x88, 0x90);
constexpr QColor edge(0x40, 0x48, 0x50);

}  // namespace

PageView::PageView(const PageRecorder &pages) : pages_(pages) {
    setFocusPolicy(Qt::StrongFocus);
    arrange();
}

void PageView::show_page(int page) {
    page_ = std::clamp(page, 0, pages_.page_count() - 1);
    verticalScrollBar()->setValue(0);
    viewport()->update();
}

void PageView::fit(Fit fit) {
    fit_ = fit;
    arrange();
}

void PageView::zoom(double factor) {
    const QPointF middle = QRectF(viewport()->rect()).center();
    const QPointF of_paper = (middle - paper().topLeft()) / scale_;
    fit_ = Fit::none;
    scale_ = std::clamp(scale_ * factor, smallest, largest);
    arrange();
    const QPointF away = paper().topLeft() + of_paper * scale_ - middle;
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() + qRound(away.x()));
    verticalScrollBar()->setValue(verticalScrollBar()->value() + qRound(away.y()));
}

QSizeF PageView::room() const {
    // As large as it is without scroll bars, so that they do not come and go by what they leave.
    return QSizeF(maximumViewportSize()) - QSizeF(2 * margin, 2 * margin);
}

void PageView::arrange() {
    const QSizeF full = pages_.paper_size() / twips::per_pixel;
    const double across = room().width() / full.width();
    if (fit_ == Fit::page_width)
        scale_ = (room().width() - verticalScrollBar()->sizeHint().width()) / full.width();
    else if (fit_ == Fit::whole_page)
        scale_ = std::min(across, room().height() / full.height());
    scale_ = std::clamp(scale_, smallest, largest);
    const QSize needed = (full * scale_ + QSizeF(2 * margin, 2 * margin)).toSize();
    const QSize seen = viewport()->size();
    horizontalScrollBar()->setPageStep(seen.width());
    horizontalScrollBar()->setSingleStep(seen.width() / 10);
    horizontalScrollBar()->setRange(0, std::max(0, needed.width() - seen.width()));
    verticalScrollBar()->setPageStep(seen.height());
    verticalScrollBar()->setSingleStep(seen.height() / 10);
    verticalScrollBar()->setRange(0, std::max(0, needed.height() - seen.height()));
    viewport()->update();
}

QRectF PageView::paper() const {
    const QSizeF size = pages_.paper_size() / twips::per_pixel * scale_;
    const double left = std::max(margin, (viewport()->width() - size.width()) / 2) - horizontalScrollBar()->value();
    const double top = std::max(margin, (viewport()->height() - size.height()) / 2) - verticalScrollBar()->value();
    return {QPointF(left, top), size};
}

void PageView::resizeEvent(QResizeEvent *event) {
    QAbstractScrollArea::resizeEvent(event);
    arrange();
}

void PageView::wheelEvent(QWheelEvent *event) {
    const int turn = event->angleDelta().y();
    const QScrollBar &bar = *verticalScrollBar();
    if (event->modifiers().testFlag(Qt::ControlModifier)) {
        zoom(turn > 0 ? zoom_step : 1 / zoom_step);
        event->accept();
    } else if ((turn < 0 && bar.value() == bar.maximum()) || (turn > 0 && bar.value() == bar.minimum())) {
        Q_EMIT turned(turn < 0);
        event->accept();
    } else {
        QAbstractScrollArea::wheelEvent(event);
    }
}

void PageView::paintEvent(QPaintEvent *) {
    QPainter painter(viewport());
    painter.fillRect(viewport()->rect(), desk);
    const QRectF sheet = paper();
    painter.fillRect(sheet, Qt::white);
    painter.setPen(edge);
    painter.drawRect(sheet);
    painter.setClipRect(sheet);
    painter.translate(sheet.topLeft());
    painter.scale(scale_ / twips::per_pixel, scale_ / twips::per_pixel);
    pages_.paint(painter, page_);
}
