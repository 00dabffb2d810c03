#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QLineEdit>
#include <algorithm>
#include <string>

#include "app/lookup_panel.h"
#include "app/program.h"
#include "suggestions/dictionary_suggestions.h"
#include "support/bench_dictionary.h"
#include "support/table.h"
#include "window/turn_watch.h"

using namespace Qt::StringLiterals;

// Words typed letter by letter into the main window's search box, with the help beside it and without.

namespace {

constexpr int repetitions = 15;
/// About the milliseconds between two keys of a fast typist.
constexpr int turns_between_keys = 60;

/// Help that knows nothing.
class NoHelp final : public ajánlóadatok {
  public:
    [[nodiscard]] ajánlás ajánl(const ajánlókérdés &, const std::function<bool()> &) override { return {}; }
    [[nodiscard]] QStringList hiányok() override { return {}; }
};

global::programállapot state_of_the_program() {
    global::programállapot state;
    state.programkönyvtár = staged_program();
    return state;
}

/// The upper half of the main window.
class LookupHalf final {
  public:
    explicit LookupHalf(bool with_help)
        : offers_([this, with_help]() -> std::shared_ptr<ajánlóadatok> {
              if (!with_help)
                  return std::make_shared<NoHelp>();
              return std::make_shared<szótárajánló>(state_.programkönyvtár,
                                                    std::make_shared<nyelvismeret>(state_.programkönyvtár));
          }) {
        window_.show();
    }

    void look_up_from(bool english) { controls_.nyelv[english ? 0 : 1]->setChecked(true); }
    [[nodiscard]] QLineEdit &text() { return *controls_.angolszó; }

  private:
    frm_referencia reference_;
    Module_hasznos fitting_{reference_, [] { return QRectF(0, 0, 1280, 1024); }};
    QtMessageBoxes messages_{fitting_};
    global::programállapot state_ = state_of_the_program();
    szókereső search_{state_};
    ajánlatlista offers_;
    ablak window_{u"szótár"_s};
    keresővezérlők controls_{window_, search_, offers_};
    keresőpanel panel_{controls_,
                       {.kereső = search_,
                        .ajánlatok = offers_,
                        .állapot = state_,
                        .üzenetek = messages_,
                        .vége = [] { return false; },
                        .hozzáad = [] { return false; },
                        .kifejezések = [](const QString &) {}}};
};

/// The mean of the keys of a word is the time of the iteration.
void type(benchmark::State &state, LookupHalf &half, const QString &word, bool english) {
    half.look_up_from(english);
    TurnWatch watch;
    QElapsedTimer clock;
    qint64 longest_key = 0;
    for ([[maybe_unused]] auto one : state) {
        half.text().clear();
        watch.run_turns(turns_between_keys);
        watch.restart();
        qint64 keys = 0;
        for (qsizetype letters = 1; letters <= word.size(); ++letters) {
            clock.start();
            half.text().setText(word.first(letters));
            const qint64 key = clock.nsecsElapsed();
            keys += key;
            longest_key = std::max(longest_key, key);
            watch.run_turns(turns_between_keys);
        }
        state.SetIterationTime(static_cast<double>(keys) / static_cast<double>(word.size()) / 1e9);
    }
    state.counters["longest key ms"] = static_cast<double>(longest_key) / 1e6;
    state.counters["longest without an answer ms"] = static_cast<double>(watch.longest()) / 1e6;
}

void register_word(LookupHalf &half, const std::string &help, const QString &word, bool english) {
    benchmark::RegisterBenchmark(("typing " + word.toStdString() + ", " + help + ", a key").c_str(),
                                 [&half, word, english](benchmark::State &state) { type(state, half, word, english); })
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1)
        ->Repetitions(repetitions);
}

}  // namespace

int main(int argc, char *argv[]) {
    const QApplication application(argc, argv);
    set_up_toolkit();
    LookupHalf with(true);
    LookupHalf without(false);
    for (const auto &[word, english] : {std::pair{u"recieved"_s, true}, std::pair{u"házaimban"_s, false}}) {
        register_word(without, "without help", word, english);
        register_word(with, "with help", word, english);
    }
    return run_benchmarks(argc, argv);
}
