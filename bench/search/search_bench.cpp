#include <benchmark/benchmark.h>

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "dictionary/dictionary_search.h"
#include "search/hits.h"
#include "search/mapped_search.h"
#include "search/numbers.h"
#include "search/program_search.h"
#include "search/sqlite_search.h"
#include "state/program_folder.h"
#include "support/bench_dictionary.h"
#include "support/table.h"

using namespace Qt::StringLiterals;

// Times are of files that the system holds in its cache, per search. The row's own time is the mean over the texts.

namespace {

using Search = std::function<void(const QByteArray &, Hits &)>;

constexpr int passes = 3;
constexpr int repetitions = 11;
/// A search with at most so many hits is one with few.
constexpr size_t few = 10;

/// A dictionary and everything that is known of it before the clock runs.
struct Prepared {
    BenchDictionary dictionary;
    Counts counts;
};

/// Those of `numbers`, one for each text, that belong to a text with few hits.
Numbers with_few_hits(const Numbers &numbers, const Counts &counts) {
    Numbers chosen;
    for (size_t i = 0; i < numbers.size(); ++i) {
        if (counts.hits[i] <= few)
            chosen.push_back(numbers[i]);
    }
    return chosen;
}

/// Ends the program unless `search` finds the same as the program. The program finds besides, for the texts "t" and
/// "to", the verbs that lie just before the first hit.
void check_same_hits(const Prepared &prepared, const Search &search) {
    for (const QByteArray &text : prepared.dictionary.texts) {
        Hits expected;
        Hits found;
        search_file(prepared.dictionary.path, text, expected);
        search(text, found);
        std::erase_if(expected.all(),
                      [&](const auto &hit) { return !keresőkulcs(QByteArrayView(hit.first)).startsWith(text); });
        std::sort(expected.all().begin(), expected.all().end());
        std::sort(found.all().begin(), found.all().end());
        if (expected.all() != found.all())
            qFatal("another search finds other hits of \"%s\"", text.constData());
    }
}

void time_search(benchmark::State &state, const Prepared &prepared, const Search &search) {
    const std::vector<QByteArray> &texts = prepared.dictionary.texts;
    Numbers microseconds(texts.size(), 0);
    while (state.KeepRunningBatch(static_cast<benchmark::IterationCount>(texts.size()))) {
        std::chrono::duration<double> together{};
        for (size_t i = 0; i < texts.size(); ++i) {
            Hits hits;
            const auto begin = std::chrono::steady_clock::now();
            search(texts[i], hits);
            const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
            benchmark::DoNotOptimize(hits.all().data());
            microseconds[i] += taken.count() * 1e6 / passes;
            together += taken;
        }
        state.SetIterationTime(together.count());
    }
    state.counters["median us"] = median(microseconds);
    state.counters["few hits us"] = mean(with_few_hits(microseconds, prepared.counts));
}

benchmark::internal::Benchmark *timed(const std::string &name, const Prepared &prepared, const Search &search) {
    check_same_hits(prepared, search);
    const auto searches = static_cast<benchmark::IterationCount>(prepared.dictionary.texts.size()) * passes;
    return benchmark::RegisterBenchmark(
               name.c_str(), [&prepared, search](benchmark::State &state) { time_search(state, prepared, search); })
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond)
        ->Iterations(searches)
        ->Repetitions(repetitions);
}

void report_counts(benchmark::State &state, const Counts &counts) {
    state.counters["bytes mean"] = mean(counts.bytes);
    state.counters["bytes median"] = median(counts.bytes);
    state.counters["reads mean"] = mean(counts.reads);
    state.counters["reads median"] = median(counts.reads);
    state.counters["needed bytes mean"] = mean(counts.needed);
    state.counters["needed bytes median"] = median(counts.needed);
    state.counters["few hits times needed"] =
        mean(with_few_hits(counts.bytes, counts)) / mean(with_few_hits(counts.needed, counts));
    state.counters["hits mean"] = mean(Numbers(counts.hits.begin(), counts.hits.end()));
    state.counters["with few hits"] = static_cast<double>(with_few_hits(counts.bytes, counts).size());
}

void register_program(const std::string &name, const Prepared &prepared) {
    const QString path = prepared.dictionary.path;
    const Search search = [path](const QByteArray &text, Hits &hits) { search_file(path, text, hits); };
    const auto searches = static_cast<benchmark::IterationCount>(prepared.dictionary.texts.size()) * passes;
    timed(name + "/program", prepared, search);
    benchmark::RegisterBenchmark((name + "/program, file open only").c_str(),
                                 [path](benchmark::State &state) {
                                     for ([[maybe_unused]] auto one : state) {
                                         const FileSource source(path);
                                         benchmark::DoNotOptimize(source.size());
                                     }
                                 })
        ->Unit(benchmark::kMicrosecond)
        ->Iterations(searches)
        ->Repetitions(repetitions);
    benchmark::RegisterBenchmark((name + "/program, counts").c_str(),
                                 [&prepared](benchmark::State &state) {
                                     for ([[maybe_unused]] auto one : state)
                                         report_counts(state, prepared.counts);
                                 })
        ->UseManualTime()
        ->Iterations(1);
}

void register_limit(const std::string &name, const Prepared &prepared) {
    const auto mapped = std::make_shared<MappedSearch>(prepared.dictionary.path);
    timed(name + "/mapped into memory", prepared,
          [mapped](const QByteArray &text, Hits &hits) { mapped->find(text, hits); });
}

void register_sqlite(const std::string &name, const Prepared &prepared, SqliteTable table, const QString &path) {
    make_database(bytes_of(prepared.dictionary.path), table, path);
    const auto kept = std::make_shared<SqliteSearch>(path);
    timed(name + ", kept open", prepared, [kept](const QByteArray &text, Hits &hits) { kept->find(text, hits); });
    timed(name + ", opened each time", prepared,
          [path](const QByteArray &text, Hits &hits) { SqliteSearch(path).find(text, hits); });
}

std::string name_of(const BenchDictionary &dictionary) {
    return QFileInfo(dictionary.path).fileName().toStdString();
}

}  // namespace

int main(int argc, char *argv[]) {
    const QTemporaryDir folder(QDir::tempPath() + u"/zimbora-bench-XXXXXX"_s);
    // The benchmarks refer to what stands here; a deque does not move it.
    std::deque<Prepared> all;
    const auto prepare = [&all](const BenchDictionary &dictionary) -> const Prepared & {
        return all.emplace_back(Prepared{dictionary, count(dictionary)});
    };
    for (const QString &file : {english_hungarian_file, hungarian_english_file}) {
        const BenchDictionary dictionary = real_dictionary(file);
        const Prepared &real = prepare(dictionary);
        const std::string name = name_of(dictionary);
        register_program(name, real);
        register_limit(name, real);
        const QString databases = folder.filePath(file);
        register_sqlite(name + "/SQLite, index", real, SqliteTable::indexed, databases + u".indexed"_s);
        register_sqlite(name + "/SQLite, clustered", real, SqliteTable::clustered, databases + u".clustered"_s);
        const Prepared &large = prepare(tenfold(dictionary, folder.path()));
        register_program(name + " tenfold", large);
        register_limit(name + " tenfold", large);
    }
    return run_benchmarks(argc, argv);
}
