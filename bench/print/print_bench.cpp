#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <string>

#include "support/process_memory.h"
#include "support/table.h"

// Printing 5,000 pairs into a PDF file in each layout, beside the same texts drawn without any layout: time, the most
// memory that the process had, and the size of the file.

namespace {

constexpr int repetitions = 5;
constexpr int patience = 300'000;

void print(benchmark::State &state, const QString &layout, const QString &way, const QString &file) {
    for ([[maybe_unused]] auto one : state) {
        QProcess process;
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process.start(QCoreApplication::applicationDirPath() + QStringLiteral("/print_to_pdf"), {layout, way, file});
        if (!process.waitForReadyRead(patience)) {
            state.SkipWithError("nothing was printed");
            return;
        }
        state.SetIterationTime(process.readLine().toDouble());
        state.counters["peak MiB"] = mebibytes(process, QStringLiteral("status"), "VmHWM");
        state.counters["file MiB"] = static_cast<double>(QFileInfo(file).size()) / 1024 / 1024;
        process.closeWriteChannel();
        process.waitForFinished(patience);
    }
}

void register_print(const std::string &name, const QString &layout, const QString &way, const QString &file) {
    benchmark::RegisterBenchmark(name.c_str(), [=](benchmark::State &state) { print(state, layout, way, file); })
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(1)
        ->Repetitions(repetitions);
}

}  // namespace

int main(int argc, char *argv[]) {
    const QCoreApplication application(argc, argv);
    const QTemporaryDir folder;
    for (const char *layout : {"list", "pairs", "cards"}) {
        for (const char *way : {"program", "plain"}) {
            register_print(std::string(layout) + ", " + way, QString::fromUtf8(layout), QString::fromUtf8(way),
                           folder.filePath(QString::fromUtf8(layout) + QString::fromUtf8(way)));
        }
    }
    register_print("nothing printed", QStringLiteral("list"), QStringLiteral("nothing"),
                   folder.filePath(QStringLiteral("nothing")));
    return run_benchmarks(argc, argv);
}
