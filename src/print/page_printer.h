#pragma once

#include <QPointF>
#include <QString>

/// A printer as the page layouts see it: text at places of pages, in twips from the top left corner of what can be
/// printed on. It keeps the place where the next text goes; what a device does with a text is told by what derives from
/// it. One object is one document, begun by the first text or page.
class PagePrinter {
  public:
    enum class Orientation { portrait = 1, landscape = 2 };

    struct Face {
        QString name;
        bool bold = false;
        bool italic = false;

        friend bool operator==(const Face &, const Face &) = default;
    };

    PagePrinter() = default;
    virtual ~PagePrinter() = default;
    PagePrinter(const PagePrinter &) = delete;
    PagePrinter &operator=(const PagePrinter &) = delete;

    virtual void set_face(const Face &face) = 0;
    /// In points.
    virtual void set_font_size(double points) = 0;
    [[nodiscard]] virtual double font_size() const = 0;
    /// Of the whole document; to be set before its first text.
    virtual void set_orientation(Orientation orientation) = 0;

    /// Of what can be printed on; the orientation turns them.
    [[nodiscard]] virtual double page_width() const = 0;
    [[nodiscard]] virtual double page_height() const = 0;
    /// In the font that is set.
    [[nodiscard]] virtual double text_width(const QString &text) const = 0;
    [[nodiscard]] virtual double text_height(const QString &text) const = 0;

    [[nodiscard]] double x() const { return x_; }
    [[nodiscard]] double y() const { return y_; }
    void set_x(double x) { x_ = x; }
    void set_y(double y) { y_ = y; }

    /// Prints at the place; the next text goes to the right of it.
    void print(const QString &text);
    /// Prints at the place and ends the line; the next text goes to the left edge below it.
    void print_line(const QString &text);
    /// Ends the line that print() has left open, if it has, and leaves one line empty.
    void print_empty_line();

    /// How many lines have been printed that lose letters at the left or right edge of the page.
    [[nodiscard]] int cut_lines() const { return cut_lines_; }

    /// Goes to the top left corner of another page. False when the device has failed: nothing will come of the document
    /// then, and what is printed is lost.
    [[nodiscard]] bool new_page();
    /// The document is whole; a document without any text has one empty page. False when the device has failed.
    [[nodiscard]] bool end_document();

  protected:
    /// Draws `text` in the font that is set, its top left corner at `place`.
    virtual void draw(const QPointF &place, const QString &text) = 0;
    virtual bool begin_next_page() = 0;
    virtual bool finish() = 0;

  private:
    /// Draws at the place and returns where the text ends.
    double draw_here(const QString &text);
    void end_line(double height);

    double x_ = 0;
    double y_ = 0;
    bool line_is_open_ = false;
    bool line_is_cut_ = false;
    int cut_lines_ = 0;
};
