// The search of the archive at every keystroke, against a plain search for bytes.
#include <cstring>

#include "base/text.h"
#include "model/folded_entries.h"
#include "operations.h"
#include "sample_data.h"
#include "timing.h"

namespace brimle::bench {
namespace {

/// Found nearly everywhere, often, rarely and nowhere; in one letter and in many; not ASCII.
constexpr const char* kQueries[] = {"e", "an",  "milk", "invoice for",
                                    "ü", "zzz", "qu",   "no such words at all"};

/// All texts of the archive as one run of folded bytes.
std::string foldedBytes(const std::vector<ArchiveDay>& days) {
  FoldedEntries all;
  for (const ArchiveDay& day : days) {
    for (const ArchivedItem& entry : day.items) all.add(entry);
  }
  return std::string(all.bytes());
}

std::size_t countIn(std::string_view bytes, std::string_view query) {
  std::size_t count = 0;
  while (const void* found = memmem(bytes.data(), bytes.size(), query.data(), query.size())) {
    const auto at = static_cast<std::size_t>(static_cast<const char*>(found) - bytes.data());
    bytes.remove_prefix(at + query.size());
    ++count;
  }
  return count;
}

void search(benchmark::State& state, int years) {
  const Archive archive(sample(years).days);
  archive.prepareSearch(archive.dayCount());
  const std::string bytes = foldedBytes(sample(years).days);
  double slowest = 0;
  double worstRatio = 0;
  for (const char* query : kQueries) {
    std::vector<double> ours, bare;
    for (int turn = 0; turn < 9; ++turn) {
      ours.push_back(secondsOf([&] { benchmark::DoNotOptimize(archive.matchingIDs(folded(query))); }));
      bare.push_back(secondsOf([&] { benchmark::DoNotOptimize(countIn(bytes, query)); }));
    }
    slowest = std::max(slowest, median(ours));
    worstRatio = std::max(worstRatio, median(ours) / median(bare));
  }
  for (auto _ : state) benchmark::DoNotOptimize(archive.matchingIDs("e"));
  state.counters[kRatioCounter] = worstRatio;
  state.counters[kOwnSecondsCounter] = slowest;
}

void prepareSearch(benchmark::State& state, int years) {
  for (auto _ : state) {
    state.PauseTiming();
    const Archive archive(sample(years).days);
    state.ResumeTiming();
    archive.prepareSearch(archive.dayCount());
  }
}

}  // namespace

const Operation kSearch{"search", search, 1, 5};
const Operation kPrepareSearch{"prepareSearch", prepareSearch, 1, 3};

}  // namespace brimle::bench
