#include "support/table.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace {

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// With three significant digits at least, and no more than two after the point.
std::string number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, value >= 100 || value == static_cast<int>(value) ? "%.0f" : "%.2f", value);
    return text;
}

/// The repetitions of one benchmark.
struct Row {
    std::string name;
    std::string unit;
    std::string failure;
    std::vector<double> times;
    std::map<std::string, std::vector<double>> counters;
};

/// The repetitions of all benchmarks come mixed, so that a busy moment of the machine hits none of them alone; the
/// table is printed when all are there, in the order of their registration.
class Table final : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &runs) override {
        for (const Run &run : runs) {
            if (run.run_type != Run::RT_Iteration)
                continue;
            Row &row = rows_[{run.family_index, run.per_family_instance_index}];
            row.name = run.run_name.function_name;
            row.unit = benchmark::GetTimeUnitString(run.time_unit);
            if (run.error_occurred)
                row.failure = run.error_message;
            row.times.push_back(run.GetAdjustedRealTime());
            for (const auto &[name, counter] : run.counters)
                row.counters[name].push_back(counter.value);
        }
    }

    void Finalize() override {
        for (const auto &[place, row] : rows_)
            print(row);
    }

    [[nodiscard]] bool failed() const {
        return std::any_of(rows_.begin(), rows_.end(), [](const auto &row) { return !row.second.failure.empty(); });
    }

  private:
    static void print(const Row &row) {
        if (!row.failure.empty()) {
            std::printf("%-44s FAILED: %s\n", row.name.c_str(), row.failure.c_str());
            return;
        }
        print_time(row);
        const char *separator = "  | ";
        for (const auto &[name, values] : row.counters) {
            std::printf("%s%s %s", separator, name.c_str(), number(median(values)).c_str());
            separator = ", ";
        }
        std::printf("\n");
    }

    /// Nothing for what only counts.
    static void print_time(const Row &row) {
        const auto [lowest, highest] = std::minmax_element(row.times.begin(), row.times.end());
        std::string time;
        if (*highest > 0)
            time =
                number(median(row.times)) + ' ' + row.unit + " (" + number(*lowest) + " to " + number(*highest) + ')';
        std::printf("%-44s %28s", row.name.c_str(), time.c_str());
    }

    std::map<std::pair<int64_t, int64_t>, Row> rows_;
};

}  // namespace

int run_benchmarks(int argc, char *argv[]) {
    std::vector<char *> arguments(argv, argv + argc);
    std::string mixed = "--benchmark_enable_random_interleaving=true";
    arguments.insert(arguments.begin() + 1, mixed.data());
    int count = static_cast<int>(arguments.size());
    benchmark::Initialize(&count, arguments.data());
    if (benchmark::ReportUnrecognizedArguments(count, arguments.data()))
        return 1;
    Table table;
    benchmark::RunSpecifiedBenchmarks(&table);
    return table.failed() ? 1 : 0;
}
