#pragma once

#include <QRectF>
#include <QSizeF>
#include <QVector>

#include "print/device_printer.h"

/// Keeps the pages that a device would print, to be shown on a screen or printed when they are whole. A page takes no
/// more memory than its texts.
class PageRecorder final : public MeasuringPrinter {
  public:
    using MeasuringPrinter::MeasuringPrinter;

    [[nodiscard]] int page_count() const { return static_cast<int>(pages_.size()); }
    /// The whole sheet of paper, in twips.
    [[nodiscard]] QSizeF paper_size() const;
    /// Draws page `page`, counted from 0, with a painter whose unit is a twip and whose origin is the paper's corner.
    void paint(QPainter &painter, int page) const;
    /// Prints all pages on the device; false when it has failed.
    [[nodiscard]] bool print_all();

  protected:
    void draw(const QPointF &place, const QString &text) override;
    bool begin_next_page() override;
    bool finish() override;

  private:
    struct Printed {
        QPointF place;
        QString text;
        QFont font;
    };
    using Page = QVector<Printed>;

    Page &page();

    QVector<Page> pages_;
};
