#pragma once

#include <QAbstractScrollArea>

#include "print/page_recorder.h"

/// Shows one page of a document: the whole of it, its width, or a part of a larger picture. It draws only the page that
/// is looked at, so that the number of pages costs nothing.
class PageView final : public QAbstractScrollArea {
  public:
    enum class Fit { whole_page, page_width, none };

    /// `pages` must outlive the view.
    explicit PageView(const PageRecorder &pages);

    /// Shows page `page`, counted from 0, from its top.
    void show_page(int page);
    [[nodiscard]] int page() const { return page_; }

    void fit(Fit fit);
    [[nodiscard]] Fit fitted() const { return fit_; }
    /// Makes the page larger by `factor`, within bounds.
    void zoom(double factor);
    /// Pixels to a pixel of the page's own size.
    [[nodiscard]] double scale() const { return scale_; }
    /// Where the paper stands in the viewport, in pixels.
    [[nodiscard]] QRectF paper() const;

  protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

  private:
    void arrange();
    [[nodiscard]] QSizeF room() const;

    const PageRecorder &pages_;
    int page_ = 0;
    Fit fit_ = Fit::whole_page;
    double scale_ = 1;
};
