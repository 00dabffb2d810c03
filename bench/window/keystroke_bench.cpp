#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <QTemporaryDir>
#include <algorithm>
#include <map>
#include <string>

#include "app/program.h"
#include "platform/code_page.h"
#include "state/program_folder.h"
#include "support/bench_dictionary.h"
#include "support/table.h"
#include "ui/controls/list_box.h"
#include "window/turn_watch.h"

using namespace Qt::StringLiterals;

// Keystrokes with very many hits, the one with the most among them, in the main window of the whole program.

namespace {

constexpr int repetitions = 15;
/// So many turns after the keystroke everything that it causes is done, the painting too.
constexpr int turns_until_quiet = 50;

/// Notes when a widget was painted last.
class PaintWatch final : public QObject {
  public:
    PaintWatch(QWidget &widget, const QElapsedTimer &clock) : clock_(clock) { widget.installEventFilter(this); }

    bool eventFilter(QObject *, QEvent *event) override {
        if (event->type() == QEvent::Paint)
            last_ = clock_.nsecsElapsed();
        return false;
    }

    [[nodiscard]] qint64 last() const { return last_; }

  private:
    const QElapsedTimer &clock_;
    qint64 last_ = 0;
};

template <class Control>
Control &control(const QWidget &window, const QString &name) {
    auto *found = window.findChild<Control *>(name);
    if (!found)
        qFatal("no control %s", qPrintable(name));
    return *found;
}

double milliseconds(qint64 nanoseconds) {
    return static_cast<double>(nanoseconds) / 1e6;
}

/// Types the letter into an empty window.
void type(benchmark::State &state, const QWidget &window, const QString &direction, const QString &letter) {
    auto &text = control<QLineEdit>(window, u"angolszó"_s);
    const auto &hits = control<ListBox>(window, u"szólist"_s);
    // Empties the text and the lists.
    control<QRadioButton>(window, direction).click();
    TurnWatch watch;
    watch.run_turns(turns_until_quiet);
    QElapsedTimer clock;
    const PaintWatch paint(*hits.viewport(), clock);
    for ([[maybe_unused]] auto one : state) {
        watch.restart();
        clock.start();
        text.setText(letter);
        state.SetIterationTime(static_cast<double>(clock.nsecsElapsed()) / 1e9);
        watch.run_turns(turns_until_quiet);
    }
    state.counters["last painted ms"] = milliseconds(paint.last());
    state.counters["longest without an answer ms"] = milliseconds(watch.longest());
    state.counters["hits"] = hits.count();
}

/// The letter that most headwords of the dictionary `file` begin with, and `letter`.
QStringList letters_to_type(const QString &file, const QString &letter) {
    std::map<char, int> headwords;
    each_entry(bytes_of(staged_program() + u'/' + file), [&](const szócikk &entry) {
        const QByteArrayView bare = keresőkulcs(entry.címszó);
        if (!bare.isEmpty())
            ++headwords[bare.front()];
    });
    const auto most = std::max_element(headwords.begin(), headwords.end(),
                                       [](const auto &left, const auto &right) { return left.second < right.second; });
    return {code_page::decode(QByteArray(1, most->first)), letter};
}

void register_keystrokes(const QWidget &window, const QString &direction, const QStringList &letters) {
    for (const QString &letter : letters) {
        const std::string name = "keystroke " + letter.toStdString() + " on " +
                                 QGuiApplication::platformName().toStdString() + " until the lists stand";
        benchmark::RegisterBenchmark(
            name.c_str(),
            [&window, direction, letter](benchmark::State &state) { type(state, window, direction, letter); })
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond)
            ->Iterations(1)
            ->Repetitions(repetitions);
    }
}

}  // namespace

int main(int argc, char *argv[]) {
    const QTemporaryDir drive_c;
    qputenv("ZIMBORA_C", drive_c.path().toUtf8());
    QApplication application(argc, argv);
    set_up_toolkit();
    Program program({staged_program(), {}, {}, {}, {}, {}});
    program.start({});
    register_keystrokes(program.main_window(), u"nyelv(0)"_s, letters_to_type(english_hungarian_file, u"a"_s));
    register_keystrokes(program.main_window(), u"nyelv(1)"_s, letters_to_type(hungarian_english_file, u"m"_s));
    return run_benchmarks(argc, argv);
}
