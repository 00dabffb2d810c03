#include <benchmark/benchmark.h>

#include <QFile>
#include <QSaveFile>
#include <QTemporaryDir>
#include <functional>
#include <optional>
#include <string>
#include <variant>

#include "platform/code_page.h"
#include "platform/files.h"
#include "state/program_folder.h"
#include "support/bench_dictionary.h"
#include "support/table.h"
#include "wordlist/szs_file.h"
#include "wordlist/word_pair_list.h"

using namespace Qt::StringLiterals;

// Opening and saving a long word list, beside reading and writing the same bytes plainly.

namespace {

constexpr int pair_count = 100'000;
constexpr int repetitions = 15;

/// Pairs of the Hungarian–English dictionary: each headword with the first of its meanings.
QVector<szópár> real_pairs() {
    QVector<szópár> pairs;
    each_entry(bytes_of(staged_program() + u'/' + hungarian_english_file), [&](const szócikk &entry) {
        const QString headword = code_page::decode(entry.címszó);
        const szópár pair{code_page::decode(entry.jelentések).section(u'÷', 0, 0), headword};
        if (pairs.size() < pair_count && szsfájl::akadály(pair).isEmpty())
            pairs.append(pair);
    });
    if (pairs.size() != pair_count)
        qFatal("the dictionary has only %d pairs", static_cast<int>(pairs.size()));
    return pairs;
}

void must(bool good, const char *what) {
    if (!good)
        qFatal("%s failed", what);
}

QVector<szópár> open(const QString &path) {
    return szsfájl::olvas(std::get<QByteArray>(files::read_whole(path)));
}

void save(const QString &path, const QVector<szópár> &pairs) {
    must(!files::replace_whole(path, std::get<QByteArray>(szsfájl::ír(pairs))), "saving");
}

void write_plainly(QFileDevice &file, const QByteArray &bytes) {
    must(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.flush(), "writing");
}

void timed(const std::string &name, const std::function<void()> &what) {
    benchmark::RegisterBenchmark(name.c_str(),
                                 [what](benchmark::State &state) {
                                     for ([[maybe_unused]] auto one : state)
                                         what();
                                 })
        ->UseRealTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(3)
        ->Repetitions(repetitions);
}

}  // namespace

int main(int argc, char *argv[]) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"long.szs"_s);
    const QString plain = folder.filePath(u"plain"_s);
    const QVector<szópár> pairs = real_pairs();
    save(path, pairs);
    const QByteArray bytes = bytes_of(path);
    must(open(path) == pairs, "reading back");
    szópárlista list;
    list.hozzáfűz(pairs);

    timed("open 100,000 pairs/plain reading", [&] { benchmark::DoNotOptimize(bytes_of(path).size()); });
    timed("open 100,000 pairs/pairs of the file", [&] { benchmark::DoNotOptimize(open(path).size()); });
    timed("open 100,000 pairs/into the word list", [&] {
        szópárlista opened;
        opened.hozzáfűz(open(path));
        benchmark::DoNotOptimize(opened.darab());
    });
    timed("save 100,000 pairs/plain writing", [&] {
        QFile file(plain);
        write_plainly(file, bytes);
    });
    timed("save 100,000 pairs/plain, whole or not at all", [&] {
        QSaveFile file(plain);
        write_plainly(file, bytes);
        must(file.commit(), "committing");
    });
    timed("save 100,000 pairs/bytes of the file, in memory",
          [&] { benchmark::DoNotOptimize(std::get<QByteArray>(szsfájl::ír(pairs)).size()); });
    timed("save 100,000 pairs/from the word list", [&] { save(path, list.párok()); });
    return run_benchmarks(argc, argv);
}
