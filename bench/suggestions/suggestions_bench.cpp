#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <functional>
#include <string>

#include "forms/english_forms.h"
#include "forms/hungarian_forms.h"
#include "print/peak_memory.h"
#include "state/program_folder.h"
#include "suggestions/fts_phrases.h"
#include "suggestions/spelling_search.h"
#include "suggestions/suggester.h"
#include "support/bench_dictionary.h"
#include "support/table.h"

using namespace Qt::StringLiterals;

// What was meant: the first question, slips, whole questions, and phrases beside SQLite's full-text search.

namespace {

constexpr int repetitions = 9;

bool never() {
    return false;
}

/// All that suggestions are made of.
struct All {
    címszólista english{staged_program(), címszólista::nyelv::angol};
    címszólista hungarian{staged_program(), címszólista::nyelv::magyar};
    angol_alakelemző english_forms{staged_program() + u'/' + form_data_folder, english.kérdések()};
    magyar_alakelemző hungarian_forms{staged_program() + u'/' + form_data_folder, hungarian.kérdések()};
    kifejezéskereső phrases{staged_program(), {.angol = &english_forms, .magyar = &hungarian_forms}};
    ajánló suggester{{.angol_címszavak = english,
                      .magyar_címszavak = hungarian,
                      .angol_alakok = &english_forms,
                      .magyar_alakok = &hungarian_forms,
                      .kifejezések = &phrases}};
};

/// The mistyped words of a table.
QStringList typed_words(const QString &table) {
    QStringList words;
    for (const QByteArray &line : bytes_of(u"" ZIMBORA_SUGGESTION_DATA "/"_s + table).split('\n')) {
        if (!line.isEmpty() && !line.startsWith('#'))
            words.append(QString::fromUtf8(line).section(u" | "_s, 0, 0));
    }
    return words;
}

void timed(const std::string &name, benchmark::TimeUnit unit, int iterations,
           const std::function<void(benchmark::State &)> &what) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [what](benchmark::State &state) {
                                     for ([[maybe_unused]] auto one : state)
                                         what(state);
                                 })
        ->UseRealTime()
        ->Unit(unit)
        ->Iterations(iterations)
        ->Repetitions(repetitions);
}

void register_loading() {
    timed("first load/headwords of both dictionaries", benchmark::kMillisecond, 1, [](benchmark::State &state) {
        forget_peak();
        const double before = memory_now();
        All all;
        benchmark::DoNotOptimize(all.english.van(u"apple"));
        benchmark::DoNotOptimize(all.hungarian.van(u"alma"));
        state.counters["MiB more"] = memory_now() - before;
    });
    timed("first load/word index", benchmark::kMillisecond, 1, [](benchmark::State &state) {
        const double before = memory_now();
        kifejezéskereső phrases(staged_program(), {});
        benchmark::DoNotOptimize(phrases.egész_szavak_száma(u"alma"_s));
        state.counters["MiB more"] = memory_now() - before;
    });
    timed("first question/házaimban, all data", benchmark::kMillisecond, 1, [](benchmark::State &state) {
        const double before = memory_now();
        All all;
        benchmark::DoNotOptimize(all.suggester.ajánl({u"házaimban"_s, false}, never).kifejezések);
        state.counters["MiB more"] = memory_now() - before;
    });
}

/// One pass over a table, and the longest of its words.
void pass(benchmark::State &state, const QStringList &words, const std::function<void(const QString &)> &what) {
    qint64 longest = 0;
    QElapsedTimer clock;
    for (const QString &word : words) {
        clock.start();
        what(word);
        longest = std::max(longest, clock.nsecsElapsed());
    }
    state.counters["longest, µs"] = static_cast<double>(longest) / 1000;
}

void register_words(All &all, const std::string &language, const QString &table, bool english) {
    const QStringList words = typed_words(table);
    címszólista &headwords = english ? all.english : all.hungarian;
    const auto which = english ? címszólista::nyelv::angol : címszólista::nyelv::magyar;
    const auto count = std::to_string(words.size());
    timed("slips/" + language + ", " + count + " words", benchmark::kMillisecond, 1,
          [words, which, &headwords](benchmark::State &state) {
              pass(state, words, [&](const QString &word) {
                  const QByteArray bytes = betűk::kódolva(word).value();
                  benchmark::DoNotOptimize(íráskereső::elírások(headwords, which, bytes, 5, never).size());
              });
          });
    timed("whole questions/" + language + ", " + count + " words", benchmark::kMillisecond, 1,
          [words, english, &all](benchmark::State &state) {
              pass(state, words, [&](const QString &word) {
                  benchmark::DoNotOptimize(all.suggester.ajánl({word, english}, never).kifejezések);
              });
          });
}

void register_phrases(All &all, FtsPhrases &fts) {
    for (const char *word : {"a", "to", "sg", "vmi", "ház", "off"}) {
        const std::string name = std::string("phrases/") + word;
        timed(name + ", first rows", benchmark::kMicrosecond, 20, [word, &all](benchmark::State &) {
            int rows = 0;
            all.phrases.keres(QString::fromUtf8(word),
                              {.lap = [&](const auto &page) { rows += static_cast<int>(page.size()); },
                               .megálljon = [&] { return rows > 0; }});
            benchmark::DoNotOptimize(rows);
        });
        timed(name + ", all rows", benchmark::kMillisecond, 1, [word, &all](benchmark::State &state) {
            state.counters["rows"] = all.phrases.keres(
                QString::fromUtf8(word), {.lap = [](const auto &) {}, .megálljon = never, .legfeljebb = 1'000'000});
        });
        timed(name + ", count", benchmark::kMicrosecond, 20, [word, &all](benchmark::State &state) {
            state.counters["rows"] = all.phrases.egész_szavak_száma(QString::fromUtf8(word));
        });
        timed(name + ", first rows, FTS5", benchmark::kMicrosecond, 20,
              [word, &fts](benchmark::State &) { benchmark::DoNotOptimize(fts.first_rows(word, 40)); });
        timed(name + ", count, FTS5", benchmark::kMicrosecond, 20,
              [word, &fts](benchmark::State &state) { state.counters["rows"] = fts.count(word); });
    }
}

}  // namespace

int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    const QString database = folder.filePath(u"phrases.db"_s);
    timed("making/FTS5", benchmark::kMillisecond, 1, [&](benchmark::State &state) {
        QFile::remove(database);
        FtsPhrases::make(staged_program(), database);
        state.counters["bytes"] = static_cast<double>(QFileInfo(database).size());
    });
    FtsPhrases::make(staged_program(), database);
    FtsPhrases fts(database);
    All all;
    register_loading();
    register_words(all, "English", u"english_slips.txt"_s, true);
    register_words(all, "Hungarian", u"hungarian_slips.txt"_s, false);
    register_phrases(all, fts);
    return run_benchmarks(argc, argv);
}
