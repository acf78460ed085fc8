// The program as a process: its start, its memory and its rest, against the smallest window of the same
// parts.
#include <filesystem>
#include <thread>

#include "child_window.h"
#include "operations.h"
#include "platform/desktop/posix_files.h"
#include "sample_data.h"
#include "scratch_folder.h"
#include "timing.h"
#include "workplace.h"

namespace brimle::bench {
namespace {

const Path kPrograms = BRIMLE_BENCH_PROGRAMS;
/// What a program needs after its first frame until its memory is that at rest.
constexpr std::chrono::milliseconds kSettling(1000);
/// And until nothing is left to end: the threads that help Qt to paint do after thirty seconds without work.
constexpr std::chrono::seconds kLongSettling(35);
constexpr std::chrono::seconds kRest(60);

/// The lists of an archive of this age, or empty ones.
std::string documentOfAge(int years) {
  return years == 0 ? documentOf({}) : sample(years).document;
}

/// The program's folders with a day file in them. It has been started once: the sample's day is long over.
struct UserFolders {
  explicit UserFolders(int years) {
    const Path data = folder.path() / "DATA" / "Brimle";
    std::filesystem::create_directories(data);
    const std::string document = documentOfAge(years);
    const std::string_view whole = document;
    require(PosixFiles().replace(data / "today.json", std::span(&whole, 1)), "writing the day file");
    const ChildWindow once(kPrograms / "brimle", folder.path());
    std::this_thread::sleep_for(kSettling);
  }

  ScratchFolder folder;
};

struct Start {
  double seconds;
  double bytes;
};

Start start(const char* program, const UserFolders& user) {
  const ChildWindow child(kPrograms / program, user.folder.path());
  std::this_thread::sleep_for(kSettling);
  return {child.secondsToFrame(), child.bytes()};
}

void startUp(benchmark::State& state, int years) {
  const UserFolders user(years);
  std::vector<double> times, memories, ownTimes, ownMemories;
  for (auto _ : state) {
    const Start ours = start("brimle", user);
    const Start smallest = start("smallest_window", user);
    times.push_back(ours.seconds / smallest.seconds);
    memories.push_back(ours.bytes / smallest.bytes);
    ownTimes.push_back(ours.seconds);
    ownMemories.push_back(ours.bytes);
  }
  state.counters[kRatioCounter] = median(times);
  state.counters[kMemoryRatioCounter] = median(memories);
  state.counters[kOwnSecondsCounter] = median(ownTimes);
  state.counters[kBytesCounter] = median(ownMemories);
}

/// A thread that ended meanwhile was woken to do so.
double wakeUps(const ChildWindow::Sleeps& before, const ChildWindow::Sleeps& after) {
  double count = 0;
  for (const auto& [thread, sleeps] : before) {
    const auto now = after.find(thread);
    count += now == after.end() ? 1 : now->second - sleeps;
  }
  return count;
}

/// Another window takes the keyboard, or the caret would blink.
void rest(benchmark::State& state, int years) {
  const UserFolders user(years);
  for (auto _ : state) {
    const ChildWindow ours(kPrograms / "brimle", user.folder.path());
    const ChildWindow inFront(kPrograms / "smallest_window", user.folder.path());
    std::this_thread::sleep_for(kLongSettling);
    const ChildWindow::Sleeps before = ours.sleeps();
    std::this_thread::sleep_for(kRest);
    state.counters[kWakeUpsCounter] = wakeUps(before, ours.sleeps());
  }
}

}  // namespace

const Operation kStartUp{"start", startUp, 15, 1};
const Operation kIdle{"rest", rest, 1, 1};

}  // namespace brimle::bench
