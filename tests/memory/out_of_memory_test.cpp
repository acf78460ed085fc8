// What a store is after one of its operations ran out of memory, at any of its allocations.
#include <gmock/gmock.h>

#include "memory/allocator.h"
#include "model/store_fixture.h"
#include "platform/desktop/posix_files.h"
#include "platform/temp_folder.h"

namespace brimle {
namespace {

namespace fs = std::filesystem;
using testing::AnyOf;

constexpr const char* kBefore = "A/n! B*% C | T | 20:E/e 21:F! | 14:X+/m,Y 13:Z";

/// What undo takes back; of several steps, done as one.
constexpr const char* kSteps[] = {"tick A B",
                                  "mark A C",
                                  "delete A C",
                                  "defer A C",
                                  "pin C",
                                  "move A C",
                                  "end A",
                                  "by A 1",
                                  "wait 2",
                                  "rewrite A a-text-too-long-to-be-kept-in-its-own-place/note",
                                  "add x // y\nz !\nq >20/6",
                                  "later x\nq >20/6",
                                  "send A 20",
                                  "drop 20:E/e",
                                  "edit 20:E/e anything else >25/6",
                                  "note 20:E/e",
                                  "renote 20:E/e 0 anything else",
                                  "bring 21:F!",
                                  "erase Y Z",
                                  "back Y Z",
                                  "pin B; bring 20:E/e"};
constexpr const char* kOthers[] = {
    "clock 2026-06-16 09:00", "undo", "redo", "search m", "prepare", "remind", "tell"};

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

  bool act(const std::string& script, Refusal planned) {
    const auto steps = actionsOf(script);
    const auto all = [&] {
      for (const auto& step : steps) step();
    };
    return attempt(planned, [&] { steps.size() > 1 ? store->perform(all) : all(); });
  }

  /// True where the action did not throw.
  template <class Action>
  bool attempt(Refusal planned, Action action) {
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

  void expectHistory(std::initializer_list<std::pair<const char*, std::string>> steps) {
    for (const auto& [step, expected] : steps) {
      run(step);
      EXPECT_EQ(state(), expected) << step;
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
    const std::string undone = stateAfter("undo"), redone = stateAfter("redo"), before = stateAfter("");
    act(script, {});
    const std::string after = state();
    refuseEach([&](Refusal planned) {
      begin();
      const std::size_t descriptors = real.list("/proc/self/fd")->size();
      const bool done = act(script, planned);
      EXPECT_EQ(real.list("/proc/self/fd")->size(), descriptors);
      EXPECT_EQ(state(), done ? after : before);
      EXPECT_THAT(onDisk(), AnyOf(before, after));
      if (done && isStep) expectHistory({{"undo", before}, {"redo", after}});
      // Where several are not done, they may leave an empty step behind.
      if (!done && script.find(';') == script.npos) {
        expectHistory({{"undo", undone}, {"redo", before}, {"redo", redone}, {"undo", before}});
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
  const std::string bytes = document("A! B | T", "14");
  const std::string before = shown(lists("A! B | T")), after = "A! T |  |  | 14:B";
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
