// A user who works on the list at all hours, for a year or more of simulated time, and a ledger of the tasks,
// whose texts begin with their numbers in it. After every change each task is looked for: it is in one place,
// filed once, and saved.
#pragma once

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <map>
#include <random>

#include "model/store_fixture.h"

namespace brimle {

using namespace std::chrono_literals;

class WorkingUser : public StoreTest {
 protected:
  struct Known {
    bool repeats;
    bool deleted = false;
    int filed = 0;
    int lastFiled = 0;  ///< on which of the days lived
  };

  void begin(const std::string& local, const std::string& zone) {
    open(document(""));
    time.setZone(zone);
    time.setClock(time.at(local));
    was = store->lists();
    day = store->storedDate();
    timesLived = {{day, 1}};
    watch();
  }

  /// Works until a local time.
  void workUntil(const std::string& local) {
    while (time.now() < time.at(local) && !HasFailure()) {
      for (std::size_t left = pick(mostAtOnce); left > 0; --left) actOnce();
      time.advance(std::min(pause(), Seconds(time.at(local) - time.now())));
    }
  }

  /// Ends the program and starts it again after a while.
  void endFor(Seconds duration) {
    store.reset();
    time.advance(duration);
    reopen();
    EXPECT_TRUE(store->storedDate() != day || store->lists() == was) << state();
    look();
    watch();
  }

  /// Looks at every change. The saved bytes are compared, for reading them back each time would take long;
  /// the starts read them.
  void watch() {
    observer = store->observe([this](const auto&) { look(); });
  }

  std::size_t pick(std::size_t count) { return random() % count; }

  void actOnce() {
    std::vector<std::size_t> rows;
    for (std::size_t row = 0; row < habits.size(); ++row) rows.insert(rows.end(), habits[row].first, row);
    habits[rows[pick(rows.size())]].second();
    ++deeds;
  }

  /// Some hours, a moment within which a ticked task is not yet filed, or until just before midnight.
  Seconds pause() {
    const Day tomorrow{std::chrono::sys_days(time.today()) + std::chrono::days(1)};
    const Seconds pauses[] = {1s, 1s * pick(10'000), 1s * pick(10'000), 1s * pick(10'000),
                              time.at(dayKey(tomorrow) + " 00:00") - time.now() - 0.5s};
    return std::max(pauses[pick(std::size(pauses))], Seconds(0));
  }

  std::string someDay() {
    return dayKey(std::chrono::sys_days(time.today()) + std::chrono::days(1 + pick(30)));
  }
  /// Does something with a task that the user sees, if there is one; or with one that waits for its day.
  std::function<void()> withTask(std::function<void(const TodoItem&)> action) {
    return [this, action] {
      const auto visible = store->visibleItems();
      if (!visible.empty()) action(TodoItem(*visible[pick(visible.size())]));
    };
  }
  std::function<void()> withEntry(std::function<void(const ScheduledItem&)> action) {
    return [this, action] {
      const auto entries = store->scheduled();
      if (!entries.empty()) action(entries[pick(entries.size())]);
    };
  }

  void add() {
    const std::string date = " >" + someDay();
    const std::string endings[] = {"",   "",   "",   "",    "",   "",   " // note",
                                   " !", " !", " *", " *w", date, date, " *" + date};
    const std::string& ending = endings[pick(std::size(endings))];
    known.push_back({ending.find('*') != ending.npos});
    store->addLines(std::to_string(known.size() - 1) + ending, pick(4) == 0);
  }
  void tickAll() {
    Store::Ids ids;
    for (const TodoItem* task : store->visibleItems()) ids.push_back(task->id);
    store->setDone(ids, true);
  }
  void removeTask(const TodoItem& task) {
    known.at(numberOf(task.text)).deleted = true;
    store->removeMany({task.id});
  }
  void removeEntry(const ScheduledItem& entry) {
    known.at(numberOf(entry.item.text)).deleted = true;
    store->removeScheduled(entry.id);
  }

  void putOff(const ScheduledItem& entry) {
    store->editScheduled(entry.id, entry.item.text + " >" + someDay());
  }

  static std::size_t numberOf(const std::string& text) { return std::strtoul(text.c_str(), nullptr, 10); }

  void look() {
    if (lookingAway || HasFailure()) return;  // what follows from a fault tells nothing more
    const bool newDay = store->storedDate() != day;
    enterFiled(newDay);
    if (newDay) lookAtNewDay();
    findEveryTask();
    const std::string bytes = document(store->lists(), store->storedDate());
    EXPECT_TRUE(files.read(kFile) == bytes) << "not saved: " << state();
    was = store->lists();
    day = store->storedDate();
    if (newDay) ++timesLived[day], ++daysLived;
  }

  /// A task ticked and not yet filed, or one that the end of the day takes off the list.
  static bool leaves(const TodoItem& task, bool newDay) {
    return task.done ? !task.clearedToday : newDay && !task.pinnedTop && !task.repeats;
  }

  /// Enters what was filed since the last look: under the day that was, once, and what was to leave the list.
  void enterFiled(bool newDay) {
    const Archive& archive = store->archive();
    std::vector<ArchivedItem> filed;
    if (!archive.empty()) filed = archive.front().items;
    if (!was.archive.empty() && was.archive.front().date == archive.front().date) {
      filed.erase(filed.begin(), filed.begin() + std::ssize(was.archive.front().items));
    }
    for (const ArchivedItem& entry : filed) {
      SCOPED_TRACE(entry.text);
      EXPECT_EQ(archive.front().date, day);
      const auto task = std::find_if(was.items.begin(), was.items.end(),
                                     [&](const TodoItem& other) { return other.text == entry.text; });
      ASSERT_NE(task, was.items.end());
      EXPECT_TRUE(leaves(*task, newDay));
      EXPECT_EQ(entry.completed, task->done);
      Known& ledger = known.at(numberOf(entry.text));
      EXPECT_LT(ledger.lastFiled, daysLived);
      ledger.lastFiled = daysLived;
      ++ledger.filed;
      if (!newDay) ++swept;
    }
    if (!newDay) return;
    EXPECT_EQ(std::ssize(filed), std::count_if(was.items.begin(), was.items.end(),
                                               [](const TodoItem& task) { return leaves(task, true); }));
  }

  void lookAtNewDay() {
    EXPECT_EQ(store->storedDate(), dayKey(time.today()));
    EXPECT_TRUE(store->tomorrow().empty());
    for (const TodoItem& task : store->items()) EXPECT_FALSE(task.done || task.clearedToday) << task.text;
    const auto waits = [this](const ScheduledItem& entry) { return entry.date > store->storedDate(); };
    const auto& waiting = store->scheduled();
    EXPECT_TRUE(std::all_of(waiting.begin(), waiting.end(), waits)) << "none is late";
    EXPECT_EQ(std::count_if(was.scheduled.begin(), was.scheduled.end(), waits), std::ssize(waiting))
        << "none is early";
  }

  /// Every task is in one place, or was deleted by the user; a task that repeats is in the archive besides.
  void findEveryTask() {
    std::vector<int> here(known.size()), filed(known.size());
    for (const TodoItem& task : store->items()) ++here.at(numberOf(task.text));
    for (const TodoItem& task : store->tomorrow()) ++here.at(numberOf(task.text));
    for (const ScheduledItem& entry : store->scheduled()) ++here.at(numberOf(entry.item.text));
    for (const ArchiveDay& each : store->archive()) {
      for (const ArchivedItem& entry : each.items) ++filed.at(numberOf(entry.text));
    }
    for (std::size_t task = 0; task < known.size(); ++task) {
      EXPECT_EQ(filed[task], known[task].filed) << task;
      EXPECT_EQ(here[task] + (known[task].repeats ? 0 : filed[task]), known[task].deleted ? 0 : 1) << task;
    }
  }

  /// What the user does, and how often of all the times.
  std::vector<std::pair<std::size_t, std::function<void()>>> habits = {
      {12, [this] { add(); }},
      {10, withTask([this](const auto& task) { store->setDone({task.id}, !task.done); })},
      {3, withTask([this](const auto& task) { store->togglePinTop(task.id); })},
      {4, withTask([this](const auto& task) { store->tomorrowMany({task.id}); })},
      {3, withTask([this](const auto& task) { store->sendToDay(task, someDay()); })},
      {5, withTask([this](const auto& task) { removeTask(task); })},
      {1, withEntry([this](const auto& entry) { removeEntry(entry); })},
      {1, withEntry([this](const auto& entry) { store->bringForward(entry.id); })},
      {1, withEntry([this](const auto& entry) { putOff(entry); })},
      {1, [this] { endFor(0s); }},
  };
  bool lookingAway = false;
  std::mt19937 random;  // of the same numbers in every run
  std::vector<Known> known;
  Lists was;
  std::string day;
  std::map<std::string, int> timesLived;  ///< by day key
  int daysLived = 1;
  int swept = 0;
  int deeds = 0;
  std::size_t mostAtOnce = 4;  ///< one deed less is done before the next pause
};

}  // namespace brimle
