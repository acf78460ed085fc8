// Random sequences of everything that can be done to a store, some wild and one of two years, and what holds
// after every step of them.
#include <gmock/gmock.h>

#include <algorithm>
#include <random>

#include "base/text.h"
#include "model/store_fixture.h"

namespace brimle {
namespace {

using namespace std::chrono_literals;

const std::string kTexts[] = {"milk",   "MILK",     "cafe\u0301", "CAFÉ",
                              "Straße", "STRASSE",  "İx\u0303",   "\u0301日",
                              "q\"\\/", "\xFF\xC0", "a *w !",     std::string("a\0b", 3)};
const std::string kEnds[] = {"", "", "", " !", " *", " *w !", " // e // Straße", " /", " >31/2", " >"};
const std::string kZones[] = {"UTC", "Europe/Berlin", "America/New_York", "Pacific/Kiritimati"};
const std::string kQueries[] = {"",  " \t", "m",  "MILK", "cafe",   "É",    "e",  "x",
                                "i", "1",   "SS", "ß",    "\u0301", "\xFE", "日", std::string("A\0", 2)};

class RandomUse : public StoreTest {
 protected:
  using Texts = std::vector<std::string>;
  using Days = std::vector<const ArchiveDay*>;

  /// Opens a store with some months of archive, as the program does it.
  RandomUse() {
    std::string days;
    for (int number = 70; number > 0; --number) days += std::to_string(1000 + number) + ":É+/n,e\u0301/SS ";
    open(document("A! B*/n C*% | D | 20:E | " + days));
    store->resyncArrivalNotifications();
    watch();
  }

  /// Looks at every change. The saved bytes are compared after the step, for reading them back each time
  /// would take long; the starts read them.
  void watch() {
    forget();
    was = store->lists();
    observer = store->observe([this](const Store::Changes& told) {
      if (told.hasList()) remember();
    });
  }

  void forget() {
    past.clear();
    future.clear();
    changedAt.reset();
    day = store->storedDate();
  }

  /// Keeps what can be undone: a change 0.3 seconds or more after the one before it is a step of its own.
  void remember() {
    saved = saves();
    changed = true;
    const bool newDay = store->storedDate() != day;
    if (happens) expectFiled(newDay);
    if (newDay) {
      expectNewDay();
      forget();
    } else if (travels) {
      changedAt.reset();
    } else if (const auto before = std::exchange(changedAt, time.now());
               !before || time.now() - *before >= 300ms) {
      past.push_back(was);
      if (past.size() > 100) past.erase(past.begin());
      future.clear();
    }
    was = store->lists();
  }

  void travel(std::vector<Lists>& from, std::vector<Lists>& to, void (Store::*go)()) {
    lost = gained = 1000;
    stepsBack += &from == &past && !past.empty();
    const int beeps = desktop.beeps + from.empty();
    Lists expected = was;
    if (!from.empty()) {
      to.push_back(std::exchange(expected, from.back()));
      from.pop_back();
    }
    travels = true;
    (*store.*go)();
    travels = false;
    EXPECT_TRUE(store->lists() == expected) << state() << "\n is not " << shown(expected);
    EXPECT_EQ(desktop.beeps, beeps);
  }

  std::size_t pick(std::size_t count) { return random() % count; }
  template <class Options>
  const auto& oneOf(const Options& options) {
    return options[pick(std::size(options))];
  }
  /// The identity of an element, now and then of nothing.
  template <class List>
  Uuid one(const List& list) {
    return list.empty() || pick(8) == 0 ? idOf("unknown") : oneOf(list).id;
  }
  Uuid item() { return one(store->items()); }
  Uuid entry() { return one(store->scheduled()); }
  /// A few identities, some of them twice.
  Store::Ids items() {
    Store::Ids ids;
    for (auto left = pick(4); left > 0; --left) ids.insert(ids.end(), 1 + pick(2), item());
    return ids;
  }
  std::unordered_set<Uuid> archived() {
    std::unordered_set<Uuid> ids{idOf("unknown")};
    if (pick(8) > 0) return ids;
    const auto all = store->archivedIDsInOrder("");
    for (auto left = pick(5); left > 0 && !all.empty(); --left) ids.insert(oneOf(all));
    return ids;
  }

  Day someDay() {
    return std::chrono::sys_days(time.today()) + std::chrono::days(pick(40)) - std::chrono::days(2);
  }
  std::string someText() { return oneOf(kTexts) + std::to_string(++texts); }
  std::string someLine() {
    const Day date = someDay();
    const auto number = [](auto part) { return std::to_string(static_cast<unsigned>(part)); };
    return someText() + (pick(4) > 0 ? oneOf(kEnds) : " >" + number(date.day()) + "/" + number(date.month()));
  }
  std::string someLines() {
    const std::string starts[] = {"", "", "- ", "  ", "\t* "}, ends[] = {"\n", "\r\n", "\u2028"};
    std::string lines;
    for (auto left = pick(10); left > 0; --left) lines += oneOf(starts) + someLine() + oneOf(ends);
    return lines;
  }
  TodoItem itemOf(const Uuid& id) { return store->find(id) ? *store->find(id) : task("Z"); }
  TodoItem rewritten(TodoItem task) {
    task.highlighted = pick(2);
    task.pinnedTop = pick(2);
    if (!task.clearedToday) task.repeats = pick(2);  // a task that rests is not seen and not changed
    task.notes.assign(pick(3), toValidUtf8(someText()));
    if (pick(2)) task.text = toValidUtf8(someText());
    task.id = idOf("ignored");
    return task;
  }

  struct Operation {
    int lost, gained;  ///< how many texts it may take away and add
    std::function<void()> run;
  };
  const Operation operations[18] = {
      {0, 0, [this] { store->setDone(items(), pick(3) > 0); }},
      {0, 0, [this] { store->setHighlight(items(), pick(2)); }},
      {3, 0, [this] { store->removeMany(items()); }},
      {0, 0, [this] { store->tomorrowMany(items()); }},
      {0, 0, [this] { store->togglePinTop(item()); }},
      {0, 0, [this] { store->moveItem(item(), item()); }},
      {0, 0, [this] { store->moveToEnd(item()); }},
      {0, 0, [this] { store->moveBy(item(), static_cast<int>(pick(7)) - 3); }},
      {1, 1,
       [this] {
         const Uuid id = item();
         store->replace(id, rewritten(itemOf(id)));
       }},
      {0, 9, [this] { store->addLines(someLines(), pick(3) == 0); }},
      {0, 0, [this] { store->sendToDay(itemOf(item()), dayKey(someDay())); }},
      {1, 0, [this] { store->removeScheduled(entry()); }},
      {1, 1, [this] { store->editScheduled(entry(), pick(8) == 0 ? " " : someLine()); }},
      {1, 1, [this] { store->addScheduledNote(entry()); }},
      {1, 1,
       [this] {
         store->editScheduledNote(entry(), static_cast<int>(pick(6)) - 1, pick(3) ? someLine() : " ");
       }},
      {0, 0, [this] { store->bringForward(entry()); }},
      {4, 0, [this] { store->removeArchived(archived()); }},
      {0, 0, [this] { store->bringBackMany(archived()); }}};

  void change() {
    const auto run = [this] {
      const Operation& operation = oneOf(operations);
      lost += operation.lost;
      gained += operation.gained;
      operation.run();
    };
    if (pick(8) > 0) return run();
    store->perform([&] { run(), run(), run(); });
  }

  /// What else befalls a store: no task is lost by it, and one that repeats may be filed besides.
  void happen() {
    const Seconds pauses[] = {0s, 0.1s, 0.299s, 0.3s, 0.5s, 1s, 1.3s, 5s};
    const std::function<void()> events[] = {[&] { time.advance(1s * pick(150'000)); },
                                            [&] { time.setClock(time.now() + 1h * pick(60) - 30h); },
                                            [&] { time.sleep(1s * pick(150'000)); },
                                            [&] { time.setZone(oneOf(kZones)); },
                                            [&] { store->rolloverIfNeeded(); },
                                            [&] { store->prepareSearch(); },
                                            [&] { store->resyncArrivalNotifications(); },
                                            [&] { desktop.motionReduced = pick(2); },
                                            [&] { files.diskFull = pick(6) == 0; },
                                            [&] { files.unavailable = pick(6) == 0; },
                                            [&] { restart(); }};
    befall([&] { pick(6) > 0 ? time.advance(oneOf(pauses)) : oneOf(events)(); });
  }

  void befall(const std::function<void()>& event) {
    for (const TodoItem& task : store->items()) {
      if (task.repeats) filed.push_back(textOf(task));
    }
    std::ranges::sort(filed);
    happens = true;
    event();
    happens = false;
  }

  void restart() {
    if (!saved || files.unavailable) return;
    reopen();
    EXPECT_TRUE(store->lists() == was) << state() << "\n is not " << shown(was);
    watch();
  }

  template <class Record>
  static std::string textOf(const Record& record) {
    std::string text = record.text;
    for (const std::string& note : record.notes) text += '\n' + note;
    return text;
  }

  /// Whether the end of a task's time on the list files it: a sweep, or where the day ends, the rollover.
  static bool leaves(const TodoItem& task, bool dayEnds) {
    return task.done ? !task.clearedToday : dayEnds && !task.pinnedTop && !task.repeats;
  }

  /// What time has filed stands under the day that was, and is what was to leave the list: at the end of the
  /// day all of it, in its order.
  void expectFiled(bool newDay) {
    Texts leaving, entered;
    for (const TodoItem& task : was.items) {
      if (leaves(task, newDay)) leaving.push_back(textOf(task) + (task.done ? "+" : ""));
    }
    const Archive& archive = store->archive();
    if (archive != was.archive) {
      EXPECT_EQ(archive.front().date, day);
      const bool continues = !was.archive.empty() && was.archive.front().date == day;
      for (const ArchivedItem& entry : archive.front().items) {
        entered.push_back(textOf(entry) + (entry.completed ? "+" : ""));
      }
      entered.erase(entered.begin(),
                    entered.begin() + (continues ? std::ssize(was.archive.front().items) : 0));
    }
    if (newDay) {
      EXPECT_EQ(entered, leaving);
    } else {
      EXPECT_THAT(entered, testing::IsSubsetOf(leaving));
      swept += entered.size();
    }
  }

  void expectNewDay() {
    ++daysLived;
    EXPECT_TRUE(store->tomorrow().empty());
    for (const TodoItem& task : was.items) {
      const TodoItem* kept = store->find(task.id);
      EXPECT_FALSE(kept && (kept->done || kept->clearedToday)) << task.text;
    }
    std::vector<ScheduledItem> waiting = was.scheduled;
    std::erase_if(waiting, [this](const ScheduledItem& entry) { return entry.date <= store->storedDate(); });
    EXPECT_EQ(store->scheduled(), waiting) << "one is late or early";
  }

  /// The days of the first archive that the second does not share.
  static Days daysApart(const Archive& archive, const Archive& other) {
    Days all, others, apart;
    if (archive == other) return apart;
    for (const ArchiveDay& each : archive) all.push_back(&each);
    for (const ArchiveDay& each : other) others.push_back(&each);
    std::ranges::sort(all);
    std::ranges::sort(others);
    std::ranges::set_difference(all, others, std::back_inserter(apart));
    return apart;
  }

  /// The texts of every task and of the archived entries of these days, sorted.
  static Texts textsOf(const Lists& lists, const Days& days) {
    Texts all;
    Store::Ids ids;
    const auto add = [&](const auto& record) {
      all.push_back(textOf(record));
      ids.push_back(record.id);
      if constexpr (requires { record.clearedToday; }) {
        EXPECT_TRUE(record.repeats || !record.clearedToday);
      }
    };
    std::ranges::for_each(lists.items, add);
    std::ranges::for_each(lists.tomorrow, add);
    for (const ScheduledItem& each : lists.scheduled) {
      add(each.item);
      ids.push_back(each.id);
    }
    for (const ArchiveDay* each : days) std::ranges::for_each(each->items, add);
    std::ranges::sort(all);
    std::ranges::sort(ids);
    EXPECT_EQ(std::ranges::adjacent_find(ids), ids.end()) << "an identity stands twice";
    return all;
  }

  static Texts without(const Texts& all, const Texts& others) {
    Texts rest;
    std::ranges::set_difference(all, others, std::back_inserter(rest));
    return rest;
  }

  /// Does what one step is and looks at what it left, compared with what was.
  void step(const std::function<void()>& action) {
    SCOPED_TRACE("step " + std::to_string(++steps));
    const Lists before = store->lists();
    lost = gained = 0;
    filed.clear();
    action();
    const Lists& after = store->lists();
    const Texts had = textsOf(before, daysApart(before.archive, after.archive));
    const Texts has = textsOf(after, daysApart(after.archive, before.archive));
    EXPECT_LE(std::ssize(without(had, has)), lost);
    EXPECT_LE(std::ssize(without(without(has, had), filed)), gained);
    EXPECT_TRUE(std::ranges::is_sorted(after.scheduled, {}, &ScheduledItem::date));
    EXPECT_EQ(store->storedDate(), dayKey(time.today()));
    if (std::exchange(changed, false) && saved && !files.unavailable) {
      EXPECT_EQ(files.read(kFile), document(after, day));
    }
    expectReminders();
    if (steps % searchEvery == 0) expectSearch();
  }

  void expectSearch() {
    const std::string& query = oneOf(kQueries);
    const std::string wanted = folded(trimmed(query));
    const auto contains = [&](const std::string& text) {
      const std::string where = folded(text);
      for (auto at = where.find(wanted); at != where.npos; at = where.find(wanted, at + 1)) {
        if (!startsWithMark(where.substr(at + wanted.size()))) return true;
      }
      return false;
    };
    Store::Ids expected;
    for (const ArchiveDay& each : store->archive()) {
      for (const auto& [id, text, completed, notes] : each.items) {
        if (wanted.empty() || contains(text) || std::ranges::any_of(notes, contains)) expected.push_back(id);
      }
    }
    EXPECT_EQ(store->archivedIDsInOrder(query), expected) << query;
  }

  void expectReminders() {
    time.runUntilIdle();
    Texts expected, pending;
    for (const auto& [id, date, task] : store->scheduled()) {
      if (date > day) expected.push_back("arrival-" + id.string() + date + task.text);
    }
    for (const auto& [identifier, title, body, trigger] : notifications.pending) {
      if (dayKey(trigger->day) > day) pending.push_back(identifier + dayKey(trigger->day) + title);
    }
    EXPECT_THAT(pending, testing::UnorderedElementsAreArray(expected));
  }

  std::minstd_rand random;
  int steps = 0, searchEvery = 4, texts = 0, lost = 0, gained = 0;
  Texts filed;  ///< what may be filed and stay on the list besides
  bool saved = true, changed = false, travels = false, happens = false;
  std::size_t daysLived = 0, swept = 0, stepsBack = 0;
  Lists was;
  std::string day;
  std::vector<Lists> past, future;
  std::optional<Instant> changedAt;

  const std::function<void()> deeds[4] = {[this] { change(); }, [this] { change(); },
                                          [this] { travel(past, future, &Store::undo); },
                                          [this] { travel(future, past, &Store::redo); }};
};

struct AnySequence : RandomUse, testing::WithParamInterface<unsigned> {};

TEST_P(AnySequence, KeepsEveryPromise) {
  random.seed(GetParam());
  while (steps < 4000 && !HasFailure()) {
    step(pick(3) ? oneOf(deeds) : [this] { happen(); });
  }
}

INSTANTIATE_TEST_SUITE_P(Property, AnySequence, testing::Range(1u, 7u));

TEST_F(RandomUse, OfAHundredDeedsADayForTwoYearsKeepsEveryPromise) {
  const Instant start = time.now();
  searchEvery = 200;
  for (int deed = 0; deed < 73'100 && !HasFailure(); ++deed) {
    if (deed % 100 == 0) step([this] { happen(); });
    step([this] { befall([this] { time.advance(1s * pick(1728)); }); });
    step(pick(2) ? oneOf(deeds) : [this] { change(); });
  }
  EXPECT_GT(time.now() - start, 24h * 731);
  EXPECT_GT(daysLived, 700u);
  EXPECT_GT(swept, 1'000u);
  EXPECT_GT(stepsBack, 5'000u);
  EXPECT_GT(store->archive().dayCount(), 500u);
}

}  // namespace
}  // namespace brimle
