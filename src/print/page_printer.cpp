#include "print/page_printer.h"

double PagePrinter::draw_here(const QString &text) {
    draw({x_, y_}, text);
    const double end = x_ + text_width(text);
    if (!line_is_cut_ && !text.isEmpty() && (x_ < 0 || end > page_width())) {
        line_is_cut_ = true;
        ++cut_lines_;
    }
    return end;
}

void PagePrinter::print(const QString &text) {
    x_ = draw_here(text);
    line_is_open_ = true;
}

void PagePrinter::print_line(const QString &text) {
    draw_here(text);
    end_line(text_height(text));
}

void PagePrinter::print_empty_line() {
    const double height = text_height(QString());
    if (line_is_open_)
        end_line(height);
    end_line(height);
}

void PagePrinter::end_line(double height) {
    x_ = 0;
    y_ += height;
    line_is_open_ = false;
    line_is_cut_ = false;
}

bool PagePrinter::new_page() {
    x_ = 0;
    y_ = 0;
    line_is_open_ = false;
    line_is_cut_ = false;
    return begin_next_page();
}

bool PagePrinter::end_document() {
    return finish();
}
