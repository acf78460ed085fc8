#include "reporter.h"

#include "timing.h"

namespace brimle::bench {

void Reporter::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.run_type != Run::RT_Iteration) continue;
    const std::string& name = run.run_name.function_name;
    samples_[{name, kSecondsCounter}].push_back(run.real_accumulated_time /
                                                static_cast<double>(run.iterations));
    for (const auto& [counter, value] : run.counters) samples_[{name, counter}].push_back(value);
  }
}

std::optional<double> Reporter::median(const std::string& benchmark, const std::string& counter) const {
  const auto found = samples_.find({benchmark, counter});
  if (found == samples_.end()) return std::nullopt;
  return bench::median(found->second);
}

}  // namespace brimle::bench
