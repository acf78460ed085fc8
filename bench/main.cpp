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

/// An archive of this age, and the most that the quantity may be with it; no goal where it is only shown.
struct Target {
  int years;
  std::optional<double> goal = std::nullopt;
};

struct Row {
  const char* label;
  const Operation& operation;
  Quantity quantity;
  std::vector<Target> targets;
};

const Row kRows[] = {
    {"save / bare save", kSave, kRatio, {{1}, {10, 1.15}, {50}}},
    {"save, all but the system calls", kSave, kOwnTime, {{1}, {10, 0.1}, {50}}},
    {"encode for a save", kEncode, kTime, {{1}, {10, 0.1}, {50}}},
    {"encode for a save / at 1 year", kEncodeGrowth, kRatio, {{50, 2}}},
    {"tick to the file / bare save", kTick, kRatio, {{1}, {10, 1.15}, {50}}},
    {"add 1,000 lines / bare save", kAddLines, kRatio, {{1}, {10}, {50}}},
    {"rollover and backup / bare save", kRollover, kRatio, {{1}, {10}, {50}}},
    {"undo step / bare save", kUndo, kRatio, {{1}, {10}, {50}}},
    {"memory of 100 undo steps", kUndoMemory, kMemory, {{1}, {10, 8}, {50}}},
    {"load / copy of the records", kLoad, kRatio, {{1, 8}, {10, 8}, {50, 8}}},
    {"search / bare search", kSearch, kRatio, {{1, 3}, {10, 3}, {50, 3}}},
    {"search, slowest query", kSearch, kOwnTime, {{1}, {10}, {50, 8}}},
    {"search, folding once", kPrepareSearch, kTime, {{1}, {10}, {50}}},
    {"archive opens after a click", kOpenArchive, kFrames, {{1, 3}, {10, 3}, {50}}},
    {"archive scrolls a page, 99%", kScroll, kOwnTime, {{1, 25}, {10, 25}, {50}}},
    {"key in the entry field, 99%", kTypeTask, kOwnTime, {{1, 33}, {10, 33}, {50, 33}}},
    {"Down or Up in the list, 99%", kWalkList, kOwnTime, {{1, 33}, {10, 33}, {50, 33}}},
    {"key in the search, 99%", kTypeSearch, kOwnTime, {{1, 33}, {10, 33}, {50}}},
    {"first frame / smallest window", kStartUp, kRatio, {{0, 1.3}, {10, 1.6}, {50}}},
    {"first frame", kStartUp, kOwnTime, {{0}, {10}, {50}}},
    {"memory / smallest window", kStartUp, kMemoryRatio, {{0, 1.3}, {10, 1.6}, {50}}},
    {"memory at rest", kStartUp, kMemory, {{0}, {10}, {50}}},
    {"wake-ups in a minute at rest", kIdle, kWakeUps, {{10, 0}}},
};

std::string benchmarkOf(const Row& row, const Target& target) {
  return row.operation.name + ("/" + std::to_string(target.years));
}

/// Rows may share a benchmark; it is measured once.
void registerBenchmarks() {
  std::set<std::string> registered;
  for (const Row& row : kRows) {
    for (const Target& target : row.targets) {
      const std::string name = benchmarkOf(row, target);
      if (!registered.insert(name).second) continue;
      benchmark::RegisterBenchmark(name.c_str(), row.operation.run, target.years)
          ->Iterations(row.operation.iterations)
          ->Repetitions(row.operation.repetitions);
    }
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

const char* verdict(const Target& target, double value) {
  if (!target.goal) return "-";
  return value <= *target.goal ? "met" : "missed";
}

std::string shown(double value, const Quantity& quantity, const char* format) {
  char text[32];
  std::snprintf(text, sizeof text, format, value);
  return text + std::string(quantity.unit);
}

std::string ageOf(int years) {
  return years == 0 ? "empty" : std::to_string(years) + (years == 1 ? " year" : " years");
}

void print(const Row& row, const Target& target, const Reporter& reporter) {
  const auto median = reporter.median(benchmarkOf(row, target), row.quantity.counter);
  if (!median) return;  // left out by a filter
  const double value = *median / row.quantity.perUnit;
  const std::string goal = target.goal ? "<= " + shown(*target.goal, row.quantity, "%g") : "-";
  std::printf(kLine, row.label, ageOf(target.years).c_str(), shown(value, row.quantity, "%.3f").c_str(),
              goal.c_str(), verdict(target, value));
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
  for (const Row& row : kRows) {
    for (const Target& target : row.targets) print(row, target, reporter);
  }
}
