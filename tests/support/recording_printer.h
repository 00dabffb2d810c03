#pragma once

#include <QList>
#include <QSizeF>
#include <QStringList>
#include <algorithm>
#include <functional>
#include <ostream>

#include "print/page_printer.h"

using namespace Qt::StringLiterals;

/// A text on a page, its top left corner in twips.
struct PrintedText {
    int page;
    double x;
    double y;
    double points;
    QString text;

    friend bool operator==(const PrintedText &, const PrintedText &) = default;
};

inline void PrintTo(const PrintedText &one, std::ostream *to) {
    *to << "page " << one.page << " (" << one.x << ", " << one.y << ") " << one.points << " points \""
        << one.text.toStdString() << '"';
}

/// A printer that notes what is printed. Its paper measures 12000 × 16000 twips, and its letters are simple to reckon
/// with: each is 10 twips wide and 20 twips high in a size of 1 point, 140 × 280 in a size of 14.
class RecordingPrinter : public PagePrinter {
  public:
    QList<PrintedText> texts;
    /// Everything else that was asked for: "size 14", "landscape", "page", "end".
    QStringList orders;
    Face face;
    int pages = 1;
    bool ended = false;
    /// The page at which the printer fails, counted from 1; 0 for the end of the document, −1 for never.
    int failing_page = -1;

    void set_face(const Face &value) override { face = value; }
    void set_font_size(double points) override {
        points_ = points;
        orders.append(u"size %1"_s.arg(points));
    }
    double font_size() const override { return points_; }
    void set_orientation(Orientation orientation) override {
        portrait_ = orientation == Orientation::portrait;
        orders.append(portrait_ ? u"portrait"_s : u"landscape"_s);
    }
    double page_width() const override { return portrait_ ? 12000 : 16000; }
    double page_height() const override { return portrait_ ? 16000 : 12000; }
    double text_width(const QString &text) const override { return 10 * points_ * static_cast<double>(text.size()); }
    double text_height(const QString &) const override { return 20 * points_; }

    [[nodiscard]] bool portrait() const { return portrait_; }
    [[nodiscard]] QList<PrintedText> texts_of_page(int page) const {
        QList<PrintedText> found;
        std::copy_if(texts.begin(), texts.end(), std::back_inserter(found),
                     [page](const PrintedText &one) { return one.page == page; });
        return found;
    }

  protected:
    void draw(const QPointF &place, const QString &text) override {
        texts.append({pages, place.x(), place.y(), points_, text});
    }
    bool begin_next_page() override {
        orders.append(u"page"_s);
        ++pages;
        return pages != failing_page;
    }
    bool finish() override {
        orders.append(u"end"_s);
        ended = failing_page != 0;
        return ended;
    }

  private:
    double points_ = 9;
    bool portrait_ = true;
};
