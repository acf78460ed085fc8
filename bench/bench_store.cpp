// The store's operations with real files, against the least that a durable save can do.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>

#include "operations.h"
#include "platform/desktop/posix_files.h"
#include "sample_data.h"
#include "scratch_folder.h"
#include "timing.h"
#include "workplace.h"

namespace brimle::bench {
namespace {

/// Counts the time spent in the system calls of a save.
class TimedCalls : public FileCalls {
  template <class Call>
  auto timed(Call call) {
    const auto start = std::chrono::steady_clock::now();
    const auto result = call();
    total += std::chrono::steady_clock::now() - start;
    return result;
  }

 public:
  int stat(const char* path, struct stat* status) override {
    return timed([&] { return FileCalls::stat(path, status); });
  }
  ssize_t readlink(const char* path, char* target, std::size_t size) override {
    return timed([&] { return FileCalls::readlink(path, target, size); });
  }
  int open(const char* path, int flags, mode_t mode) override {
    return timed([&] { return FileCalls::open(path, flags, mode); });
  }
  int fstat(int file, struct stat* status) override {
    return timed([&] { return FileCalls::fstat(file, status); });
  }
  int fchmod(int file, mode_t mode) override {
    return timed([&] { return FileCalls::fchmod(file, mode); });
  }
  ssize_t writev(int file, const iovec* pieces, int count) override {
    return timed([&] { return FileCalls::writev(file, pieces, count); });
  }
  int fdatasync(int file) override {
    return timed([&] { return FileCalls::fdatasync(file); });
  }
  int close(int file) override {
    return timed([&] { return FileCalls::close(file); });
  }
  int rename(const char* from, const char* to) override {
    return timed([&] { return FileCalls::rename(from, to); });
  }
  int unlink(const char* path) override {
    return timed([&] { return FileCalls::unlink(path); });
  }

  std::chrono::duration<double> total{};
};

bool writeWhole(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(file, bytes.data(), bytes.size());
    if (count <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

bool replaceBarely(const Path& path, const Path& temporary, std::string_view bytes) {
  const int file = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
  return file >= 0 && writeWhole(file, bytes) && ::fdatasync(file) == 0 && ::close(file) == 0 &&
         ::rename(temporary.c_str(), path.c_str()) == 0;
}

/// A store over a sample day file on the disk, and a bare file of the same bytes beside it. Both have been
/// saved once, so that every measured save replaces a file that an earlier one wrote.
struct OnDisk {
  explicit OnDisk(int years) : document(sample(years).document), place(filesWithDayFile(), folder.path()) {
    place.change();
    bareSave();
  }

  Files& filesWithDayFile() {
    const std::string_view whole = document;
    require(files.replace(folder.path() / "today.json", std::span(&whole, 1)), "writing the day file");
    return files;
  }

  double bareSave() {
    bool done = false;
    const double seconds = secondsOf([&] { done = replaceBarely(bare, bareTemporary, document); });
    require(done, "the bare save");
    return seconds;
  }

  const std::string& document;
  ScratchFolder folder;
  const Path bare = folder.path() / "bare.json";
  const Path bareTemporary = folder.path() / ".bare.json.tmp";
  TimedCalls calls;
  PosixFiles files{calls};
  Workplace place;
};

void save(benchmark::State& state, int years) {
  OnDisk disk(years);
  std::vector<double> own;
  const auto change = [&] {
    disk.place.pause();
    disk.calls.total = {};
    const double seconds = secondsOf([&] { disk.place.change(); });
    own.push_back(seconds - disk.calls.total.count());
    return seconds;
  };
  compare(state, change, [&] { return disk.bareSave(); });
  state.counters[kOwnSecondsCounter] = median(std::move(own));
}

void tick(benchmark::State& state, int years) {
  OnDisk disk(years);
  Store& store = disk.place.store;
  const Store::Ids open{std::ranges::find(store.items(), false, &TodoItem::done)->id};
  const auto tickOne = [&] {
    disk.place.pause();
    const double seconds = secondsOf([&] { store.setDone(open, true); });
    store.setDone(open, false);
    return seconds;
  };
  compare(state, tickOne, [&] { return disk.bareSave(); });
}

void addLines(benchmark::State& state, int years) {
  OnDisk disk(years);
  const std::string lines = sampleLines(1000);
  const auto add = [&] {
    disk.place.pause();
    const double seconds = secondsOf([&] { disk.place.store.addLines(lines, false); });
    disk.place.store.undo();
    return seconds;
  };
  compare(state, add, [&] { return disk.bareSave(); });
}

void rollover(benchmark::State& state, int years) {
  OnDisk disk(years);
  SimulatedTime& time = disk.place.time;
  const auto nextDay = [&] {
    disk.place.store.addLines(sampleLines(kLiveTasks), false);
    return secondsOf([&] { time.setClock(time.now() + std::chrono::hours(24)); });
  };
  compare(state, nextDay, [&] { return disk.bareSave(); });
}

void undo(benchmark::State& state, int years) {
  OnDisk disk(years);
  disk.place.pause();
  disk.place.sweepOne();
  const auto undoAndRedo = [&] {
    const double seconds = secondsOf([&] { disk.place.store.undo(); });
    disk.place.store.redo();
    return seconds;
  };
  compare(state, undoAndRedo, [&] { return disk.bareSave(); });
}

}  // namespace

const Operation kSave{"save", save, 10, 10};
const Operation kTick{"tick", tick, 10, 10};
const Operation kAddLines{"addLines", addLines, 5, 10};
const Operation kRollover{"rollover", rollover, 5, 10};
const Operation kUndo{"undo", undo, 5, 10};

}  // namespace brimle::bench
