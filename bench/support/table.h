#pragma once

/// Runs the registered benchmarks as the command line says (Google Benchmark's own options) and prints a table: for
/// each its time as the median over the repetitions, the lowest and the highest of them, and the median of each
/// counter. Returns the exit code of the program.
[[nodiscard]] int run_benchmarks(int argc, char *argv[]);
