#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <chrono>
#include <string>

#include "support/bench_dictionary.h"
#include "support/table.h"

using namespace Qt::StringLiterals;

// From the start of a process until its first window is painted, and the memory that it has then. Everything that is
// loaded lies in the system's cache.

namespace {

constexpr int repetitions = 21;
constexpr int patience = 30'000;

/// A value of a file of /proc whose lines are "Name:   123 kB", in MiB.
double mebibytes(const QProcess &process, const QString &file, const QByteArray &name) {
    QFile lines(u"/proc/%1/%2"_s.arg(process.processId()).arg(file));
    if (!lines.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : lines.readAll().split('\n')) {
        if (line.startsWith(name + ':'))
            return line.sliced(name.size() + 1).simplified().split(' ').first().toDouble() / 1024;
    }
    return 0;
}

void start(benchmark::State &state, const QString &program) {
    for ([[maybe_unused]] auto one : state) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        const auto begin = std::chrono::steady_clock::now();
        process.start(program, QStringList());
        if (!process.waitForReadyRead(patience)) {
            state.SkipWithError("no window was painted");
            return;
        }
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
        state.SetIterationTime(taken.count());
        state.counters["resident MiB"] = mebibytes(process, u"status"_s, "VmRSS");
        state.counters["proportional MiB"] = mebibytes(process, u"smaps_rollup"_s, "Pss");
        state.counters["anonymous MiB"] = mebibytes(process, u"smaps_rollup"_s, "Anonymous");
        process.closeWriteChannel();
        process.waitForFinished(patience);
    }
}

void register_start(const std::string &what, const char *program) {
    const QString path = QCoreApplication::applicationDirPath() + u'/' + QString::fromUtf8(program);
    const std::string name = "start of " + what + " on " + qgetenv("QT_QPA_PLATFORM").toStdString();
    benchmark::RegisterBenchmark(name.c_str(), [path](benchmark::State &state) { start(state, path); })
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1)
        ->Repetitions(repetitions);
}

}  // namespace

int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir drive_c;
    qputenv("ZIMBORA_C", drive_c.path().toUtf8());
    qputenv("ZIMBORA_PROGRAM", staged_program().toUtf8());
    register_start("an empty window", "empty_window_start");
    register_start("the program", "program_start");
    return run_benchmarks(argc, argv);
}
