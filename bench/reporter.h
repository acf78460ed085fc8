// Collects what Google Benchmark measured, and prints none of it.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace brimle::bench {

/// Stands beside the benchmarks' own counters: the real time of an iteration.
inline constexpr char kSecondsCounter[] = "seconds";

class Reporter : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override;

  /// The median of a counter over the repetitions of a benchmark; nothing where it did not run or never set
  /// it.
  std::optional<double> median(const std::string& benchmark, const std::string& counter) const;

 private:
  std::map<std::pair<std::string, std::string>, std::vector<double>> samples_;
};

}  // namespace brimle::bench
