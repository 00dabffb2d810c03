#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEvent>
#include <QObject>
#include <QPushButton>
#include <QTemporaryDir>
#include <algorithm>
#include <ctime>
#include <string>

#include "exercises/learning/widgets/learning_window.h"
#include "platform/code_page.h"
#include "platform/system_random.h"
#include "state/program_folder.h"
#include "support/bench_dictionary.h"
#include "support/table.h"
#include "ui/drawing/fonts.h"
#include "ui/drawing/twips.h"
#include "ui/messages/qt_dialogs.h"
#include "wordlist/szs_file.h"

using namespace Qt::StringLiterals;

// Turning the pages of the learning window, painting included, in processor time, on screens of several sizes.

namespace {

constexpr int page_count = 40;
constexpr int repetitions = 5;
constexpr QSize screen_sizes[] = {{1024, 768}, {1366, 768}, {2560, 1440}};

/// Every pair of the English–Hungarian dictionary: each headword with all of its meanings.
QVector<szópár> all_pairs() {
    QVector<szópár> all;
    each_entry(bytes_of(staged_program() + u'/' + english_hungarian_file), [&](const szócikk &entry) {
        const QString meanings = code_page::decode(entry.jelentések).replace(u'÷', u", "_s);
        const szópár pair{code_page::decode(entry.címszó), meanings};
        if (szsfájl::akadály(pair).isEmpty())
            all.append(pair);
    });
    return all;
}

/// Some of `pairs`, evenly out of the whole of them.
QVector<szópár> evenly(const QVector<szópár> &pairs) {
    QVector<szópár> chosen;
    for (qsizetype i = 0; i < page_count; ++i)
        chosen.append(pairs.at(i * pairs.size() / page_count));
    return chosen;
}

/// Those of `pairs` with the longest meanings.
QVector<szópár> longest(QVector<szópár> pairs) {
    std::partial_sort(pairs.begin(), pairs.begin() + page_count, pairs.end(),
                      [](const szópár &one, const szópár &other) { return one.magyar.size() > other.magyar.size(); });
    return pairs.first(page_count);
}

/// What a learning window is given, on a screen of this size.
class Surroundings final {
  public:
    explicit Surroundings(const QSize &screen)
        : fitting_(reference_, [screen] { return QRectF(QPointF(0, 0), QSizeF(screen) * twips::per_pixel); }) {}

    [[nodiscard]] feladatkörnyezet all() {
        return {.közös = {.hasznos = fitting_, .főablak = main_window_, .üzenetek = boxes_},
                .szószedet = list_,
                .véletlen = random_,
                .beállítások = settings_,
                .üzenetmutat = [](qint16, const QStringList &) {}};
    }

  private:
    QTemporaryDir folder_;
    frm_referencia reference_;
    ablak main_window_{u"szótár"_s};
    Module_hasznos fitting_;
    QtMessageBoxes boxes_{fitting_};
    szópárlista list_;
    SystemRandom random_;
    global::beállítástár settings_{folder_.filePath(u"settings.ini"_s)};
};

/// Lets the event loop run until a widget has been painted.
class PaintWatch final : public QObject {
  public:
    explicit PaintWatch(QWidget &widget) { widget.installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override {
        painted_ = painted_ || event->type() == QEvent::Paint;
        return false;
    }

    void wait() {
        painted_ = false;
        while (!painted_)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

  private:
    bool painted_ = false;
};

double processor_seconds() {
    return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

void turn_pages(benchmark::State &state, const QSize &screen, const QVector<szópár> &pairs) {
    Surroundings surroundings(screen);
    tanulás window(surroundings.all());
    window.feltölt(pairs);
    window.show();
    auto *next = window.findChild<QPushButton *>(u"Command1"_s);
    PaintWatch painted(*window.findChild<PictureBox *>(u"label3"_s));
    painted.wait();
    double total = 0;
    double longest = 0;
    for ([[maybe_unused]] auto one : state) {
        for (int page = 1; page < page_count; ++page) {
            const double before = processor_seconds();
            next->click();
            painted.wait();
            const double took = processor_seconds() - before;
            total += took;
            longest = std::max(longest, took);
        }
        state.SetIterationTime(total / (page_count - 1));
    }
    state.counters["longest ms"] = longest * 1000;
}

void register_pages(const std::string &what, const QVector<szópár> &pairs) {
    for (const QSize &screen : screen_sizes) {
        const std::string name = what + " at " + std::to_string(screen.width()) + 'x' + std::to_string(screen.height());
        benchmark::RegisterBenchmark(name.c_str(),
                                     [pairs, screen](benchmark::State &state) { turn_pages(state, screen, pairs); })
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1)
            ->Repetitions(repetitions);
    }
}

}  // namespace

int main(int argc, char *argv[]) {
    const QApplication application(argc, argv);
    fonts::substitute_missing_faces();
    const QVector<szópár> pairs = all_pairs();
    register_pages("a page", evenly(pairs));
    register_pages("one of the longest", longest(pairs));
    return run_benchmarks(argc, argv);
}
