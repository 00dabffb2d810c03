#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

#include "print/page_printer.h"

/// Measures pages and texts as a device of the toolkit does: a printer's or a PDF file's, at its resolution. What can
/// be printed on lies within the margins of its page layout.
class MeasuringPrinter : public PagePrinter {
  public:
    /// `device` must outlive this object; it gets the orientation that is set.
    explicit MeasuringPrinter(QPagedPaintDevice &device);

    void set_face(const Face &face) override;
    void set_font_size(double points) override;
    [[nodiscard]] double font_size() const override;
    void set_orientation(Orientation orientation) override;
    [[nodiscard]] double page_width() const override;
    [[nodiscard]] double page_height() const override;
    [[nodiscard]] double text_width(const QString &text) const override;
    [[nodiscard]] double text_height(const QString &text) const override;

  protected:
    [[nodiscard]] QPagedPaintDevice &device() { return device_; }
    [[nodiscard]] const QPagedPaintDevice &device() const { return device_; }
    [[nodiscard]] const QFont &font() const { return font_; }
    /// Draws `text` with a painter of the device, its top left corner at `place`, in twips.
    void draw_text(QPainter &painter, const QFont &font, const QPointF &place, const QString &text) const;

  private:
    /// Of the device, a twip.
    [[nodiscard]] double dots() const;
    void use_font(const QFont &font);

    QPagedPaintDevice &device_;
    QFont font_;
    QFontMetricsF metrics_;
};

/// Prints on a device of the toolkit.
class DevicePrinter final : public MeasuringPrinter {
  public:
    using MeasuringPrinter::MeasuringPrinter;

  protected:
    void draw(const QPointF &place, const QString &text) override;
    bool begin_next_page() override;
    bool finish() override;

  private:
    /// False when the device cannot be, or can no longer be, printed on.
    bool ready();

    QPainter painter_;
    bool failed_ = false;
};
