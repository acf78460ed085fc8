// What a store is after one of its operations ran out of memory, at any of its allocations.
#include <gmock/gmock.h>

#include <cstdlib>
#include <new>

#include "model/store_fixture.h"
#include "platform/desktop/posix_files.h"
#include "platform/temp_folder.h"

namespace brimle {
namespace {

/// What the allocator of this program refuses.
struct Refusal {
  long after = -1;       ///< how many allocations are granted before it; negative: there is none
  bool lasting = false;  ///< all later ones are refused as well
  bool met = false;
} refusal;

bool refuses() {
  if (refusal.after < 0 || refusal.after-- > 0) return false;
  refusal.met = true;
  if (refusal.lasting) refusal.after = 0;
  return true;
}

}  // namespace
}  // namespace brimle

// A sanitizer's own would not come to the one below.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return brimle::refuses() ? nullptr : std::malloc(std::max<std::size_t>(size, 1));
}
void* operator new(std::size_t size) {
  if (void* memory = operator new(size, std::nothrow)) return memory;
  throw std::bad_alloc();
}
// Inlined, it would look to the compiler as if memory from new went to free.
[[gnu::noinline]] void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  operator delete(memory);
}

namespace brimle {
namespace {

namespace fs = std::filesystem;
using testing::AnyOf;

constexpr const char* kBefore = "A/n! B*% C | T | 20:E/e 21:F! | 14:X+/m,Y 13:Z";

/// What undo takes back; of several steps, done as one.
constexpr const char* kSteps[] = {
    "tick A B",    "delete A C",  "pin C",       "rewrite A a-text-of-its-own/note",
    "defer A C",   "move A C",    "wait 2",      "add x // y\nz !\nq >20/6",
    "send A 20",   "drop 20:E/e", "note 20:E/e", "edit 20:E/e something else >25/6",
    "bring 21:F!", "erase Y Z",   "back Y Z",    "renote 20:E/e 0 something else",
    "later x",     "end A",       "by A 1",      "pin B; edit 20:E/e else >25/6"};
constexpr const char* kOthers[] = {"clock 2026-06-16 09:00", "undo", "redo", "search m", "prepare", "remind"};

class OutOfMemory : public StoreTest {
 protected:
  OutOfMemory() {
    disk = &real;
    folder = temporary.path;
  }

  bool saves() const override { return false; }

  /// A store with a step to undo, one to redo and a task that is about to be filed; and a view of it.
  void begin() {
    store.reset();
    time.setClock(time.at("2026-06-15 09:00"));
    const std::string bytes = document(kBefore);
    real.replace(folder / "today.json", {{bytes}});
    reopen();
    seen = store->lists();
    observer = store->observe([this](const Store::Changes& changes) {
      if (changes.has(Store::Field::items)) seen.items = store->items();
      if (changes.has(Store::Field::archive)) seen.archive = store->archive();
      if (changes.has(Store::Field::tomorrow)) seen.tomorrow = store->tomorrow();
      if (changes.has(Store::Field::scheduled)) seen.scheduled = store->scheduled();
    });
    run("mark B; wait 1; tick C; wait 0.4; mark A; undo; wait 0.1");
  }

  std::string stateAfter(const char* script) {
    begin();
    run(script);
    return state();
  }

  /// True where the action did not throw.
  bool attempt(Refusal planned, const std::function<void()>& action) {
    refusal = planned;
    bool done = true;
    try {
      action();
    } catch (const std::bad_alloc&) {
      done = false;
    }
    wasRefused = std::exchange(refusal, {}).met;
    return done;
  }

  std::string onDisk() {
    const auto file = readDayFile(real.read(folder / "today.json").value_or(""));
    return file ? shown(file->lists) : "no document";
  }

  /// Does every allocation's refusal in turn, once alone and once with all later ones, until none is met.
  void refuseEach(const std::function<void(Refusal)>& attempt) {
    for (const bool lasting : {false, true}) {
      wasRefused = true;
      for (long granted = 0; wasRefused && !HasFailure(); ++granted) {
        SCOPED_TRACE("after " + std::to_string(granted) + " allocations");
        attempt({granted, lasting});
      }
    }
  }

  /// Nothing that was refused is left undone, once there is memory again.
  void expectAllDone() {
    store->rolloverIfNeeded();
    run("add z; wait 5");
    expectSaved();
    EXPECT_TRUE(seen == store->lists()) << shown(seen) << " is seen, not " << state();
    EXPECT_TRUE(store->sweepingIDs().empty());
    for (const TodoItem& task : store->items()) EXPECT_TRUE(!task.done || task.clearedToday) << task.text;
    EXPECT_EQ(notifications.pending.size(), store->scheduled().size());
    EXPECT_EQ(store->archivedIDsInOrder("m").size(), store->archive().empty() ? 0u : 1u);
    const auto names = real.list(folder).value();
    for (const auto& name : names) EXPECT_FALSE(name.ends_with(".tmp")) << name;
  }

  void expectWhole(const std::string& script, bool isStep) {
    SCOPED_TRACE(script);
    const bool isOne = script.find(';') == script.npos;
    const auto act = [&] { isOne ? run(script) : store->perform([&] { run(script); }); };
    const std::string undone = stateAfter("undo"), redone = stateAfter("redo"), before = stateAfter("");
    act();
    const std::string after = state();
    refuseEach([&](Refusal planned) {
      begin();
      const std::size_t descriptors = real.list("/proc/self/fd")->size();
      const bool done = attempt(planned, act);
      EXPECT_EQ(real.list("/proc/self/fd")->size(), descriptors);
      EXPECT_EQ(state(), done ? after : before);
      EXPECT_THAT(onDisk(), AnyOf(before, after));
      std::vector<std::pair<const char*, std::string>> history;
      if (done && isStep) history = {{"undo", before}, {"redo", after}};
      // Where several are not done, they may leave an empty step behind.
      if (!done && isOne) history = {{"undo", undone}, {"redo", before}, {"redo", redone}, {"undo", before}};
      for (const auto& [step, expected] : history) {
        run(step);
        EXPECT_EQ(state(), expected) << step;
      }
      expectAllDone();
    });
  }

  const TempFolder temporary{fs::is_directory("/dev/shm") ? "/dev/shm" : fs::temp_directory_path()};
  PosixFiles real;
  Lists seen;  ///< by a view that looks at what it is told of
  bool wasRefused = true;
};

TEST_F(OutOfMemory, AnOperationIsDoneWholeOrNotAtAll) {
  for (const char* script : kSteps) expectWhole(script, true);
  for (const char* script : kOthers) expectWhole(script, false);
}

TEST_F(OutOfMemory, AStartIsDoneWholeOrNotAtAll) {
  const std::string bytes = document("@14 A! B | T"), before = "A! B | T", after = "A! T |  |  | 14:B";
  refuseEach([&](Refusal planned) {
    store.reset();
    fs::remove_all(folder / "Backups");
    real.replace(folder / "today.json", {{bytes}});
    attempt(planned, [this] { reopen(); });
    EXPECT_THAT(onDisk(), AnyOf(before, after));
    if (!store) reopen();
    const bool loaded = state() == after;
    run("add z");
    EXPECT_TRUE(loaded || isBackedUp(bytes)) << state();
    expectSaved();
  });
}

}  // namespace
}  // namespace brimle
