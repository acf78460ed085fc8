// Two years of everything that can be done to a store, at random, and what holds after every step of them.
#include <gmock/gmock.h>

#include <algorithm>
#include <random>

#include "base/text.h"
#include "model/store_fixture.h"

namespace brimle {
namespace {

using namespace std::chrono_literals;

const std::string kTexts[] = {"MILK",   "cafe\u0301", "Straße", "\u0301日",
                              "q\"\\/", "\xFF\xC0",   "a *w !", {"a\0b", 3}};
const std::string kEnds[] = {"",   "",       "",      " !",       " *", " *w !", " // e // Straße",
                             " /", " >31/2", " >1/7", " > 15 dec"};
const std::string kZones[] = {"UTC", "Europe/Berlin", "America/New_York", "Pacific/Kiritimati"};
const std::string kQueries[] = {"", "m", "É", "e", "1", "SS", "\u0301", "\xFE", "日"};

class RandomUse : public StoreTest {
 protected:
  using Texts = std::vector<std::string>;
  using Days = std::vector<const ArchiveDay*>;

  /// Opens a store with some months of archive, as the program does it.
  RandomUse() {
    std::string days;
    for (int number = 1070; number > 1000; --number)
      days += std::to_string(number) + ":É" + std::to_string(number) + "/n ";
    open(document("A! B*/n C*% | D | 20:E | " + days));
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
    EXPECT_TRUE(!happens || store->archive() == was.archive || store->archive().front().date == day);
    if (store->storedDate() != day) {
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
    auto all = pick(8) > 0 ? Store::Ids() : store->archivedIDsInOrder("");
    all.push_back(idOf("unknown"));
    return {oneOf(all), oneOf(all), oneOf(all), oneOf(all)};
  }

  std::string someDay() {
    return dayKey(std::chrono::sys_days(time.today()) + std::chrono::days(pick(40)) - std::chrono::days(2));
  }
  std::string someText() { return oneOf(kTexts) + std::to_string(++texts); }
  std::string someLine() { return someText() + oneOf(kEnds); }
  std::string someLines() {
    const std::string starts[] = {"", "", "- ", "  ", "\t* "}, ends[] = {"\n", "\r\n", "\u2028"};
    std::string lines;
    for (auto left = pick(10); left > 0; --left) lines += oneOf(starts) + someLine() + oneOf(ends);
    return lines;
  }
  TodoItem itemOf(const Uuid& id) { return store->find(id) ? *store->find(id) : task("Z"); }
  void rewrite(const Uuid& id) {
    TodoItem task = itemOf(id);
    task.pinnedTop = pick(2);
    if (!task.clearedToday) task.repeats = pick(2);  // a task that rests is not seen and not changed
    task.text = toValidUtf8(someText());
    task.id = idOf("ignored");
    store->replace(id, task);
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
      {1, 1, [this] { rewrite(item()); }},
      {0, 9, [this] { store->addLines(someLines(), pick(3) == 0); }},
      {0, 0, [this] { store->sendToDay(itemOf(item()), someDay()); }},
      {1, 0, [this] { store->removeScheduled(entry()); }},
      {1, 1, [this] { store->editScheduled(entry(), pick(8) == 0 ? " " : someLine()); }},
      {1, 1, [this] { store->addScheduledNote(entry()); }},
      {1, 1, [this] { store->editScheduledNote(entry(), pick(6) - 1, pick(3) ? someLine() : " "); }},
      {0, 0, [this] { store->bringForward(entry()); }},
      {4, 0, [this] { store->removeArchived(archived()); }},
      {0, 0, [this] { store->bringBackMany(archived()); }}};

  void change() {
    store->perform([this] {
      for (int left = pick(8) > 0 ? 1 : 3; left > 0; --left) {
        const Operation& operation = oneOf(operations);
        lost += operation.lost;
        gained += operation.gained;
        operation.run();
      }
    });
  }

  /// What else befalls a store: no task is lost by it, and one that repeats may be filed besides.
  void happen() {
    const Seconds pauses[] = {0s, 0.1s, 0.299s, 0.3s, 0.5s, 1s, 1.3s, 5s};
    const std::function<void()> events[] = {[&] { time.advance(1s * pick(150'000)); },
                                            [&] { time.setClock(time.now() + 1h * pick(60) - 30h); },
                                            [&] { time.sleep(1s * pick(150'000)); },
                                            [&] { time.setZone(oneOf(kZones)); },
                                            [&] { store->prepareSearch(); },
                                            [&] { desktop.motionReduced = pick(2); },
                                            [&] { files.diskFull = pick(6) == 0; },
                                            [&] { files.unavailable = pick(6) == 0; },
                                            [&] { restart(); }};
    gained += static_cast<int>(std::ranges::count(store->items(), true, &TodoItem::repeats));
    happens = true;
    pick(6) > 0 ? time.advance(oneOf(pauses)) : oneOf(events)();
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

  template <class List>
  static List without(const List& all, const List& others) {
    List rest;
    std::ranges::set_difference(all, others, std::back_inserter(rest));
    return rest;
  }

  static Days daysOf(const Archive& archive) {
    Days days;
    for (const ArchiveDay& each : archive) days.push_back(&each);
    std::ranges::sort(days);
    return days;
  }

  /// The texts of every task and of the archived entries of these days, sorted.
  static Texts textsOf(const Lists& lists, const Days& days) {
    Texts all;
    Store::Ids ids;
    const auto add = [&](const auto& record) {
      all.push_back(textOf(record));
      ids.push_back(record.id);
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

  /// Does what one step is and looks at what it left, compared with what was.
  void step(const std::function<void()>& action) {
    SCOPED_TRACE("step " + std::to_string(++steps));
    const Lists before = store->lists();
    lost = gained = 0;
    action();
    const Lists& after = store->lists();
    const bool same = after.archive == before.archive;  // only the days that the archives do not share count
    const Days then = same ? Days() : daysOf(before.archive), now = same ? Days() : daysOf(after.archive);
    const Texts had = textsOf(before, without(then, now)), has = textsOf(after, without(now, then));
    EXPECT_LE(std::ssize(without(had, has)), lost);
    EXPECT_LE(std::ssize(without(has, had)), gained);
    EXPECT_TRUE(std::ranges::is_sorted(after.scheduled, {}, &ScheduledItem::date));
    EXPECT_EQ(store->storedDate(), dayKey(time.today()));
    if (std::exchange(changed, false) && saved && !files.unavailable) {
      EXPECT_EQ(files.read(kFile), document(after, day));
    }
    if (steps % 20 == 0) {
      const Archive fresh({after.archive.begin(), after.archive.end()});
      const std::string& query = oneOf(kQueries);
      EXPECT_EQ(store->archivedIDsInOrder(query), fresh.matchingIDs(folded(query))) << query;
    }
  }

  std::minstd_rand random;
  int steps = 0, texts = 0, lost = 0, gained = 0;
  bool saved = true, changed = false, travels = false, happens = false;
  Lists was;
  std::string day;
  std::vector<Lists> past, future;
  std::optional<Instant> changedAt;

  const std::function<void()> deeds[4] = {[this] { change(); }, [this] { change(); },
                                          [this] { travel(past, future, &Store::undo); },
                                          [this] { travel(future, past, &Store::redo); }};
};

TEST_F(RandomUse, OfTwoYearsKeepsEveryPromise) {
  for (const Instant end = time.now() + 24h * 731; time.now() < end && !HasFailure();) {
    step(pick(3) ? oneOf(deeds) : [this] { happen(); });
  }
  EXPECT_GT(steps, 50'000);
  EXPECT_GT(store->archive().dayCount(), 300u);
}

}  // namespace
}  // namespace brimle
