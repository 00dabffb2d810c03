#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <chrono>
#include <cstdio>

#include "print/page_layouts.h"
#include "print/pdf_job.h"
#include "support/bench_pairs.h"

// print_to_pdf <layout> <way> <file>: prints 5,000 pairs once, tells how many seconds it took, and waits for the end of
// its input, so that its memory can be looked at. The layouts: list, pairs, cards. The ways: "program"; "plain", the
// same texts drawn without any layout, the least that it can take; "nothing", to see what a process takes that prints
// nothing.

namespace {

constexpr int pair_count = 5000;
const QString face = QStringLiteral("Liberation Serif");

nyomtatástípus layout_of(const QString &name) {
    if (name == QStringLiteral("list"))
        return nyomtatástípus::szószedet;
    return name == QStringLiteral("pairs") ? nyomtatástípus::szópárok : nyomtatástípus::szókártyák;
}

void must(bool good, const char *what) {
    if (!good)
        qFatal("%s failed", what);
}

void print_with_program(const QVector<szópár> &pairs, nyomtatástípus layout, const QString &file) {
    PdfJob job(file, QStringLiteral("bench"));
    job.printer().set_face({face, false, false});
    const nyomtatandó what{pairs, QStringLiteral("bench"), 14, 1};
    must(nyomtat(job.printer(), layout, what, [](int, int) { return true; }) == nyomtatásvége::kész, "the layout");
    must(!job.hand_over(), "writing the file");
}

QStringList lines_of(const QVector<szópár> &pairs, nyomtatástípus layout) {
    QStringList lines;
    for (const szópár &pair : pairs) {
        if (layout == nyomtatástípus::szókártyák)
            lines << pair.angol << pair.magyar;
        else
            lines << szópársor(pair);
    }
    return lines;
}

/// Without measuring anything: lines below each other, or each in the middle of a page of its own, in a size that is
/// given.
void print_plainly(const QStringList &lines, nyomtatástípus layout, const QString &file) {
    QPdfWriter writer(file);
    QPainter painter(&writer);
    painter.setFont(QFont(QStringList{face}, 14));
    const QRect page(0, 0, writer.width(), writer.height());
    const int step = 2 * painter.fontMetrics().height();
    const bool one_a_page = layout != nyomtatástípus::szószedet;
    QRect place = one_a_page ? page : QRect(0, 0, page.width(), step);
    for (const QString &line : lines) {
        painter.drawText(place, Qt::AlignCenter, line);
        if (!one_a_page)
            place.translate(0, step);
        if (!page.contains(place) || one_a_page) {
            must(writer.newPage(), "a new page");
            place.moveTop(0);
        }
    }
}

}  // namespace

int main(int argc, char *argv[]) {
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    must(arguments.size() == 4, "reading the arguments");
    const QVector<szópár> pairs = real_pairs(pair_count);
    const nyomtatástípus layout = layout_of(arguments[1]);

    const auto begin = std::chrono::steady_clock::now();
    if (arguments[2] == QStringLiteral("program"))
        print_with_program(pairs, layout, arguments[3]);
    else if (arguments[2] == QStringLiteral("plain"))
        print_plainly(lines_of(pairs, layout), layout, arguments[3]);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;

    std::printf("%f\n", taken.count());
    std::fflush(stdout);
    while (std::getchar() != EOF) {
    }
    return 0;
}
