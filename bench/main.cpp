// Measures what must stay fast and small, and prints it as one table: a ratio to a bare operation taken in
// the same run where there is one to compare with, so that the table says the same on every machine.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QQuickWindow>
#include <cstdio>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "operations.h"
#include "reporter.h"

namespace brimle::bench {
namespace {

constexpr char kLine[] = "%-32s  %-8s  %9s  %-9s  %s\n";

/// What a row shows of its operation.
struct Quantity {
  const char* counter;
  const char* unit;
  double perUnit;  ///< how much of the counter is one of the unit
};
constexpr Quantity kRatio{kRatioCounter, "x", 1};
constexpr Quantity kTime{kSecondsCounter, " ms", 1e-3};
constexpr Quantity kOwnTime{kOwnSecondsCounter, " ms", 1e-3};
constexpr Quantity kFrames{kOwnSecondsCounter, " frames", 1.0 / 60};  ///< of a display with 60 a second
constexpr Quantity kMemoryRatio{kMemoryRatioCounter, "x", 1};
constexpr Quantity kWakeUps{kWakeUpsCounter, "", 1};
constexpr Quantity kMemory{kBytesCounter, " MiB", 1024.0 * 1024.0};

struct Row {
  const char* label;
  const Operation& operation;
  int years;
  Quantity quantity;
  std::optional<double> goal;  ///< the most it may be; none where it is only shown

  std::string benchmark() const { return operation.name + ("/" + std::to_string(years)); }
};

const Row kRows[] = {
    {"save / bare save", kSave, 1, kRatio, {}},
    {"save / bare save", kSave, 10, kRatio, 1.15},
    {"save / bare save", kSave, 50, kRatio, {}},
    {"save, all but the system calls", kSave, 1, kOwnTime, {}},
    {"save, all but the system calls", kSave, 10, kOwnTime, 0.1},
    {"save, all but the system calls", kSave, 50, kOwnTime, {}},
    {"encode for a save", kEncode, 1, kTime, {}},
    {"encode for a save", kEncode, 10, kTime, 0.1},
    {"encode for a save", kEncode, 50, kTime, {}},
    {"encode for a save / at 1 year", kEncodeGrowth, 50, kRatio, 2},
    {"memory of 100 undo steps", kUndoMemory, 1, kMemory, {}},
    {"memory of 100 undo steps", kUndoMemory, 10, kMemory, 8},
    {"memory of 100 undo steps", kUndoMemory, 50, kMemory, {}},
    {"load / copy of the records", kLoad, 1, kRatio, 8},
    {"load / copy of the records", kLoad, 10, kRatio, 8},
    {"load / copy of the records", kLoad, 50, kRatio, 8},
    {"add 1,000 lines / bare save", kAddLines, 10, kRatio, {}},
    {"rollover and backup / bare save", kRollover, 10, kRatio, {}},
    {"undo step / bare save", kUndo, 10, kRatio, {}},
    {"search / bare search", kSearch, 10, kRatio, 3},
    {"search / bare search", kSearch, 50, kRatio, 3},
    {"search, slowest query", kSearch, 10, kOwnTime, {}},
    {"search, slowest query", kSearch, 50, kOwnTime, 8},
    {"search, folding once", kPrepareSearch, 50, kTime, {}},
    {"archive opens after a click", kOpenArchive, 10, kFrames, 3},
    {"archive scrolls a page, 99%", kScroll, 10, kOwnTime, 25},
    {"key in the entry field, 99%", kTypeTask, 10, kOwnTime, 33},
    {"Down or Up in the list, 99%", kWalkList, 10, kOwnTime, 33},
    {"key in the search, 99%", kTypeSearch, 10, kOwnTime, 33},
    {"first frame / smallest window", kStartUp, 0, kRatio, 1.3},
    {"first frame / smallest window", kStartUp, 10, kRatio, 1.6},
    {"memory / smallest window", kStartUp, 0, kMemoryRatio, 1.3},
    {"memory / smallest window", kStartUp, 10, kMemoryRatio, 1.6},
    {"first frame", kStartUp, 10, kOwnTime, {}},
    {"memory at rest", kStartUp, 10, kMemory, {}},
    {"wake-ups in 20 seconds at rest", kIdle, 10, kWakeUps, 0},
};

/// Rows may share a benchmark; it is measured once.
void registerBenchmarks() {
  std::set<std::string> registered;
  for (const Row& row : kRows) {
    if (!registered.insert(row.benchmark()).second) continue;
    benchmark::RegisterBenchmark(row.benchmark().c_str(), row.operation.run, row.years)
        ->Iterations(row.operation.iterations)
        ->Repetitions(row.operation.repetitions);
  }
}

/// Takes the options of the command line, and has the repetitions of all benchmarks spread over the whole
/// run. False where an option is none of Google Benchmark's.
bool initialize(int argc, char** argv) {
  std::vector<char*> arguments(argv, argv + argc);
  std::string interleaved = "--benchmark_enable_random_interleaving=true";
  arguments.insert(arguments.begin() + 1, interleaved.data());
  int count = argc + 1;
  benchmark::Initialize(&count, arguments.data());
  return !benchmark::ReportUnrecognizedArguments(count, arguments.data());
}

const char* verdict(const Row& row, double value) {
  if (!row.goal) return "-";
  return value <= *row.goal ? "met" : "missed";
}

std::string shown(double value, const Quantity& quantity, const char* format) {
  char text[32];
  std::snprintf(text, sizeof text, format, value);
  return text + std::string(quantity.unit);
}

void print(const Row& row, const Reporter& reporter) {
  const auto median = reporter.median(row.benchmark(), row.quantity.counter);
  if (!median) return;  // left out by a filter
  const double value = *median / row.quantity.perUnit;
  const std::string size =
      row.years == 0 ? "empty" : std::to_string(row.years) + (row.years == 1 ? " year" : " years");
  const std::string goal = row.goal ? "<= " + shown(*row.goal, row.quantity, "%g") : "-";
  std::printf(kLine, row.label, size.c_str(), shown(value, row.quantity, "%.3f").c_str(), goal.c_str(),
              verdict(row, value));
}

}  // namespace
}  // namespace brimle::bench

int main(int argc, char** argv) {
  using namespace brimle::bench;
  if (!initialize(argc, argv)) return 2;
  QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
  int none = 1;
  const QApplication application(none, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  registerBenchmarks();
  Reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  std::printf(kLine, "operation", "archive", "measured", "goal", "verdict");
  for (const Row& row : kRows) print(row, reporter);
}
