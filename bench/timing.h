// Times operations, alone or in turns with a bare one.
#pragma once

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <fstream>
#include <string>
#include <vector>

#include "operations.h"

namespace brimle::bench {

template <class Action>
double secondsOf(Action action) {
  const auto start = std::chrono::steady_clock::now();
  action();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// How long a thread, by its name in /proc, has wanted a processor so far that others had. Measurements of a
/// few milliseconds leave it out, or they would measure what else the machine does.
inline std::chrono::nanoseconds waitedForProcessor(const std::string& thread) {
  std::ifstream schedule("/proc/" + thread + "/schedstat");
  std::chrono::nanoseconds::rep run = 0, waited = 0;
  schedule >> run >> waited;
  return std::chrono::nanoseconds(waited);
}

/// The least of at least one value that this share of them does not exceed.
inline double quantile(std::vector<double> values, double share) {
  const auto rank = static_cast<std::ptrdiff_t>(std::ceil(share * static_cast<double>(values.size())));
  const auto at = values.begin() + std::max<std::ptrdiff_t>(rank - 1, 0);
  std::nth_element(values.begin(), at, values.end());
  return *at;
}

/// The middle one of at least one value; of an even number, the upper of the two.
inline double median(std::vector<double> values) {
  const auto middle = values.begin() + std::ssize(values) / 2;
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

/// Runs all iterations of `state` and sets its ratio. `ours` and `bare` each do one of the two operations,
/// prepare it as they need, and return the seconds that count.
template <class Ours, class Bare>
void compare(benchmark::State& state, Ours ours, Bare bare) {
  std::vector<double> ratios;
  for (auto _ : state) {
    const double seconds = ours();
    ratios.push_back(seconds / bare());
  }
  state.counters[kRatioCounter] = median(std::move(ratios));
}

}  // namespace brimle::bench
