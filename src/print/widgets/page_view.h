#pragma once

#include <QAbstractScrollArea>

#include "print/page_recorder.h"

/// Shows one page of a document: the whole of it, its width, or a part of a larger picture. It draws only the page that
/// is looked at, so that the number of pages costs nothing.
class PageView final : public QAbstractScrollArea {
    Q_OBJECT

  public:
    enum class Fit { whole_page, page_width, none };

    /// What one step of zooming makes larger by.
    static constexpr double zoom_step = 1.25;

    /// `pages` must outlive the view.
    explicit PageView(const PageRecorder &pages);

    /// Shows page `page`, counted from 0, from its top.
    void show_page(int page);
    [[nodiscard]] int page() const { return page_; }

    void fit(Fit fit);
    [[nodiscard]] Fit fitted() const { return fit_; }
    /// Makes the page larger by `factor`, within bounds; what is in the middle stays there.
    void zoom(double factor);
    /// Pixels to a pixel of the page's own size.
    [[nodiscard]] double scale() const { return scale_; }
    /// Where the paper stands in the viewport, in pixels.
    [[nodiscard]] QRectF paper() const;

  Q_SIGNALS:
    /// The wheel has been turned beyond the page's end: forward, to the next page, or back to the one before.
    void turned(bool forward);

  protected:
    void resizeEvent(QResizeEvent *event) override;
    /// Zooms with Ctrl; turns the page where there is nothing further to scroll.
    void wheelEvent(QWheelEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    void arrange();
    [[nodiscard]] QSizeF room() const;

    const PageRecorder &pages_;
    int page_ = 0;
    Fit fit_ = Fit::whole_page;
    double scale_ = 1;
};
