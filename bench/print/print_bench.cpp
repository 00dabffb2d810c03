#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <functional>
#include <string>

#include "platform/code_page.h"
#include "print/page_layouts.h"
#include "print/page_recorder.h"
#include "print/pdf_document.h"
#include "print/peak_memory.h"
#include "state/program_folder.h"
#include "support/bench_dictionary.h"
#include "support/table.h"
#include "wordlist/szs_file.h"

using namespace Qt::StringLiterals;

// Printing 5,000 pairs in each layout, and looking at the pages.

namespace {

constexpr int pair_count = 5'000;
constexpr int repetitions = 9;

/// Pairs of the English–Hungarian dictionary, evenly out of the whole of it: each headword with the first of its
/// meanings.
QVector<szópár> real_pairs() {
    QVector<szópár> all;
    each_entry(bytes_of(staged_program() + u'/' + english_hungarian_file), [&](const szócikk &entry) {
        const szópár pair{code_page::decode(entry.címszó), code_page::decode(entry.jelentések).section(u'÷', 0, 0)};
        if (szsfájl::akadály(pair).isEmpty())
            all.append(pair);
    });
    QVector<szópár> pairs;
    for (qsizetype i = 0; i < pair_count; ++i)
        pairs.append(all.at(i * all.size() / pair_count));
    return pairs;
}

void print(PagePrinter &printer, nyomtatástípus kind, const QVector<szópár> &pairs) {
    printer.set_face({u"Liberation Serif"_s, false, false});
    printer.set_font_size(14);
    const nyomtatandó what{pairs, u"/lists/real pairs.szs"_s, 14, 2};
    if (nyomtat(printer, kind, what, [](int, int) { return true; }) != nyomtatásvége::kész)
        qFatal("not printed");
}

/// Times `what`, which returns a number of pages, and counts the memory that it takes at its most.
void timed(const std::string &name, const std::function<int(benchmark::State &)> &what) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [what](benchmark::State &state) {
                                     forget_peak();
                                     const double before = memory_now();
                                     for ([[maybe_unused]] auto one : state)
                                         state.counters["pages"] = what(state);
                                     state.counters["peak MiB more"] = memory_peak() - before;
                                 })
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1)
        ->Repetitions(repetitions);
}

void register_layout(const std::string &name, nyomtatástípus kind, const QVector<szópár> &pairs) {
    timed(name + "/into a PDF document", [&pairs, kind](benchmark::State &state) {
        PdfDocument document(u"real pairs"_s);
        print(document.printer(), kind, pairs);
        state.counters["MiB of the document"] = static_cast<double>(document.bytes().size()) / (1024.0 * 1024);
        return static_cast<int>(document.bytes().count("/Type /Page\n"));
    });
    timed(name + "/pages to look at", [&pairs, kind](benchmark::State &) {
        PdfDocument document{QString()};
        PageRecorder pages(document.device());
        print(pages, kind, pairs);
        return pages.page_count();
    });
}

/// The whole of a page on a screen.
int show_page(const PageRecorder &pages) {
    QImage screen(1200, 850, QImage::Format_RGB32);
    screen.fill(Qt::white);
    QPainter painter(&screen);
    const double scale = screen.height() / pages.paper_size().height();
    painter.scale(scale, scale);
    pages.paint(painter, pages.page_count() / 2);
    return 1;
}

/// The cards in the preview of the toolkit, until the first page stands.
int show_in_toolkits_preview(const QVector<szópár> &pairs) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    QPrintPreviewWidget preview(&printer);
    QObject::connect(&preview, &QPrintPreviewWidget::paintRequested, &preview, [&pairs](QPrinter *on) {
        DevicePrinter pages(*on);
        print(pages, nyomtatástípus::szókártyák, pairs);
    });
    preview.resize(1200, 850);
    preview.show();
    preview.updatePreview();
    QCoreApplication::processEvents();
    preview.grab();
    return preview.pageCount();
}

}  // namespace

int main(int argc, char *argv[]) {
    const QApplication application(argc, argv);
    const QVector<szópár> pairs = real_pairs();
    register_layout("word list of 5,000 pairs", nyomtatástípus::szószedet, pairs);
    register_layout("5,000 pairs, one a page", nyomtatástípus::szópárok, pairs);
    register_layout("cards of 5,000 pairs", nyomtatástípus::szókártyák, pairs);

    PdfDocument document{QString()};
    PageRecorder cards(document.device());
    print(cards, nyomtatástípus::szókártyák, pairs);
    timed("cards of 5,000 pairs/one page on the screen", [&](benchmark::State &) { return show_page(cards); });
    timed("cards of 5,000 pairs/in the toolkit's preview",
          [&](benchmark::State &) { return show_in_toolkits_preview(pairs); });
    return run_benchmarks(argc, argv);
}
