// What happens in memory alone: encoding, loading, and what the history of changes holds.
#include <malloc.h>

#include <algorithm>
#include <vector>

#include "model/day_file.h"
#include "operations.h"
#include "platform/simulated/memory_files.h"
#include "sample_data.h"
#include "timing.h"
#include "workplace.h"

namespace brimle::bench {
namespace {

constexpr int kUndoSteps = 100;
constexpr int kDaysOfMonth = 31;
constexpr int kDaysApart = 3;

void encodeOnce(const Lists& lists) {
  benchmark::DoNotOptimize(EncodedDayFile(kToday, lists).pieces().data());
}

void encode(benchmark::State& state, int years) {
  const Lists& lists = sample(years).lists;
  for (auto _ : state) encodeOnce(lists);
}

void encodeGrowth(benchmark::State& state, int years) {
  const Lists& lists = sample(years).lists;
  const Lists& young = sample(1).lists;
  const auto time = [](const Lists& encoded) { return secondsOf([&] { encodeOnce(encoded); }); };
  compare(
      state, [&] { return time(lists); }, [&] { return time(young); });
}

void load(benchmark::State& state, int years) {
  const Sample& data = sample(years);
  const auto read = [&] {
    std::optional<DayFile> file;
    const double seconds = secondsOf([&] { file = readDayFile(data.document); });
    require(file.has_value(), "reading the sample day file");
    return seconds;
  };
  const auto copy = [&] {
    std::vector<ArchiveDay> days;
    return secondsOf([&] { days = data.days; });
  };
  compare(state, read, copy);
}

double heapInUse() {
  const auto info = ::mallinfo2();
  return static_cast<double>(info.uordblks + info.hblkhd);
}

std::size_t archivedToday(const Workplace& place) {
  return place.store.archive().front().items.size();
}

/// What the heap grows by when a store over these days takes kUndoSteps sweeps. Its lists are as long
/// afterwards as before, but for the swept tasks' own entries in the archive.
double historyOf(std::vector<ArchiveDay> days) {
  MemoryFiles files;
  files.put("/data/today.json", documentOf(sampleLists(std::move(days))));
  files.diskFull = true;  // so that no file of this port's grows on the heap
  Workplace place(files, "/data");
  place.sweepOne();
  const double before = heapInUse();
  for (int step = 0; step < kUndoSteps; ++step) place.sweepOne();
  const double grown = heapInUse() - before;

  const std::size_t swept = archivedToday(place);
  for (int step = 0; step < kUndoSteps; ++step) place.store.undo();
  require(archivedToday(place) + kUndoSteps == swept, "every undo step to take back one sweep");
  return grown;
}

/// What a step holds depends on how much of a month the archive begins with: the worst of some counts.
void undoMemory(benchmark::State& state, int years) {
  const std::vector<ArchiveDay>& days = sample(years).days;
  double most = 0;
  for (auto _ : state) {
    for (int dropped = 0; dropped < kDaysOfMonth; dropped += kDaysApart) {
      most = std::max(most, historyOf({days.begin() + dropped, days.end()}));
    }
  }
  state.counters[kBytesCounter] = most;
}

}  // namespace

const Operation kEncode{"encode", encode, 1000, 15};
const Operation kEncodeGrowth{"encode growth", encodeGrowth, 1000, 15};
const Operation kUndoMemory{"undo memory", undoMemory, 1, 1};
const Operation kLoad{"load", load, 3, 10};

}  // namespace brimle::bench
