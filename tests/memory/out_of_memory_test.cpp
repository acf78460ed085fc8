// What a store is after one of its operations ran out of memory, at any of its allocations.
#include <gmock/gmock.h>

#include <new>

#include "memory/allocator.h"
#include "model/store_fixture.h"
#include "platform/desktop/posix_files.h"
#include "platform/temp_folder.h"

namespace brimle {
namespace {

namespace fs = std::filesystem;
using testing::AnyOf;

constexpr const char* kBefore = "A/n! B*% C | T | 20:E/e 21:F! | 14:X+/m,Y 13:Z";

struct Deed {
  const char* what;
  std::function<void(Store&, SimulatedTime&)> act;
  bool isStep = true;      ///< undo takes it back
  bool isSeveral = false;  ///< where it throws, it may leave an empty step behind

  friend void PrintTo(const Deed& deed, std::ostream* out) { *out << deed.what; }
};

const Uuid kA = idOf("A"), kB = idOf("B"), kC = idOf("C"), kE = idOf("20:E/e"), kF = idOf("21:F!");

std::unordered_set<Uuid> archived(const Store& store) {
  const auto all = store.archivedIDsInOrder("");
  return {all.begin() + 1, all.end()};
}

TodoItem changed(const Store& store) {
  TodoItem task = *store.find(kA);
  task.text = "a text too long to be kept in its own place";
  return task;
}

const Deed kDeeds[] = {
    {"tick",
     [](Store& store, auto&) {
       store.setDone({kA, kB}, true);
     }},
    {"mark",
     [](Store& store, auto&) {
       store.setHighlight({kA, kC}, true);
     }},
    {"delete",
     [](Store& store, auto&) {
       store.removeMany({kA, kC});
     }},
    {"defer",
     [](Store& store, auto&) {
       store.tomorrowMany({kA, kC});
     }},
    {"pin", [](Store& store, auto&) { store.togglePinTop(kC); }},
    {"move", [](Store& store, auto&) { store.moveItem(kA, kC); }},
    {"to the end", [](Store& store, auto&) { store.moveToEnd(kA); }},
    {"by one", [](Store& store, auto&) { store.moveBy(kA, 1); }},
    {"rewrite", [](Store& store, auto&) { store.replace(kA, changed(store)); }},
    {"add", [](Store& store, auto&) { store.addLines("x // y\nz !\nq >20/6", false); }},
    {"add to tomorrow", [](Store& store, auto&) { store.addLines("x\nq >20/6", true); }},
    {"send", [](Store& store, auto&) { store.sendToDay(*store.find(kA), "2026-06-20"); }},
    {"remove scheduled", [](Store& store, auto&) { store.removeScheduled(kE); }},
    {"edit scheduled", [](Store& store, auto&) { store.editScheduled(kE, "anything else >25/6"); }},
    {"add note", [](Store& store, auto&) { store.addScheduledNote(kE); }},
    {"edit note", [](Store& store, auto&) { store.editScheduledNote(kE, 0, "anything else"); }},
    {"bring forward", [](Store& store, auto&) { store.bringForward(kF); }},
    {"remove archived", [](Store& store, auto&) { store.removeArchived(archived(store)); }},
    {"bring back", [](Store& store, auto&) { store.bringBackMany(archived(store)); }},
    {"several in one",
     [](Store& store, auto&) {
       store.perform([&] {
         store.togglePinTop(kB);
         store.bringForward(kE);
       });
     },
     true, true},
    {"sweep", [](auto&, SimulatedTime& time) { time.advance(Seconds(2)); }},
    {"new day", [](auto&, SimulatedTime& time) { time.setClock(time.at("2026-06-16 09:00")); }, false},
    {"undo", [](Store& store, auto&) { store.undo(); }, false},
    {"redo", [](Store& store, auto&) { store.redo(); }, false},
    {"search", [](Store& store, auto&) { store.archivedIDsInOrder("m"); }, false},
    {"prepare the search", [](Store& store, auto&) { store.prepareSearch(); }, false},
    {"remind", [](Store& store, auto&) { store.resyncArrivalNotifications(); }, false},
    {"tell", [](Store& store, auto&) { store.dayAsText(); }, false},
};

class OutOfMemory : public StoreTest, public testing::WithParamInterface<Deed> {
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

  bool act(Refusal planned) {
    return attempt(planned, [this] { GetParam().act(*store, time); });
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

  bool isBackedUp(const std::string& bytes) {
    const auto names = real.list(folder / "Backups").value();
    return std::ranges::any_of(
        names, [&](const auto& name) { return real.read(folder / "Backups" / name) == bytes; });
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

  const TempFolder temporary{fs::is_directory("/dev/shm") ? "/dev/shm" : fs::temp_directory_path()};
  PosixFiles real;
  Lists seen;  ///< by a view that looks at what it is told of
  bool wasRefused = true;
};

INSTANTIATE_TEST_SUITE_P(Deeds, OutOfMemory, testing::ValuesIn(kDeeds));

TEST_P(OutOfMemory, AnOperationIsDoneWholeOrNotAtAll) {
  const Deed& deed = GetParam();
  const std::string undone = stateAfter("undo"), redone = stateAfter("redo"), before = stateAfter("");
  act({});
  const std::string after = state();
  for (const bool lasting : {false, true}) {
    wasRefused = true;
    for (long granted = 0; wasRefused && !HasFailure(); ++granted) {
      SCOPED_TRACE("after " + std::to_string(granted) + " allocations");
      begin();
      const std::size_t descriptors = real.list("/proc/self/fd")->size();
      const bool done = act({granted, lasting});
      EXPECT_EQ(real.list("/proc/self/fd")->size(), descriptors);
      EXPECT_EQ(state(), done ? after : before);
      EXPECT_THAT(onDisk(), AnyOf(before, after));
      if (done && deed.isStep) expectHistory({{"undo", before}, {"redo", after}});
      if (!done && !deed.isSeveral) {
        expectHistory({{"undo", undone}, {"redo", before}, {"redo", redone}, {"undo", before}});
      }
      expectAllDone();
    }
  }
}

TEST_F(OutOfMemory, AStartIsDoneWholeOrNotAtAll) {
  const std::string bytes = document("A! B | T", "14");
  const std::string before = shown(lists("A! B | T")), after = "A! T |  |  | 14:B";
  for (const bool lasting : {false, true}) {
    wasRefused = true;
    for (long granted = 0; wasRefused && !HasFailure(); ++granted) {
      SCOPED_TRACE("after " + std::to_string(granted) + " allocations");
      store.reset();
      fs::remove_all(folder / "Backups");
      real.replace(folder / "today.json", {{bytes}});
      attempt({granted, lasting}, [this] { reopen(); });
      EXPECT_THAT(onDisk(), AnyOf(before, after));
      if (!store) reopen();
      const bool loaded = state() == after;
      run("add z");
      EXPECT_TRUE(loaded || isBackedUp(bytes)) << state();
      expectSaved();
    }
  }
}

}  // namespace
}  // namespace brimle
