// Random sequences of everything that can be done to a store, and what holds after every step of them.
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
const std::string kQueries[] = {"",  " \t", "m",  "MILK", "cafe",   "É",    "e",  "x",
                                "i", "1",   "SS", "ß",    "\u0301", "\xFE", "日", std::string("A\0", 2)};

class AnySequence : public StoreTest, public testing::WithParamInterface<unsigned> {
 protected:
  using Texts = std::vector<std::string>;

  /// Opens a store with some months of archive, as the program does it.
  void begin() {
    std::string days;
    for (int number = 70; number > 0; --number) days += std::to_string(1000 + number) + ":É+/n,e\u0301/SS ";
    open(document("A! B*/n C*% | D | 20:E | " + days));
    store->resyncArrivalNotifications();
    watch();
  }

  void watch() {
    forget();
    was = store->lists();
    watching = store->observe([this](const Store::Changes& told) {
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
    saved = !files.diskFull && !files.unavailable;
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
    const auto all = store->archivedIDsInOrder("");
    std::unordered_set<Uuid> ids{idOf("unknown")};
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
    const Seconds pauses[] = {0s, 0.1s, 0.25s, 0.5s, 1s, 1.3s, 5s};
    const std::function<void()> events[] = {[&] { time.advance(1s * pick(150'000)); },
                                            [&] { time.setClock(time.now() + 1h * pick(60) - 30h); },
                                            [&] { store->rolloverIfNeeded(); },
                                            [&] { store->prepareSearch(); },
                                            [&] { store->resyncArrivalNotifications(); },
                                            [&] { desktop.motionReduced = pick(2); },
                                            [&] { files.diskFull = pick(6) == 0; },
                                            [&] { files.unavailable = pick(6) == 0; },
                                            [&] { restart(); }};
    for (const TodoItem& task : store->items()) {
      if (task.repeats) filed.push_back(textOf(task));
    }
    std::ranges::sort(filed);
    pick(6) > 0 ? time.advance(oneOf(pauses)) : oneOf(events)();
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

  /// Looks at every task and archived entry; gives their texts, sorted.
  Texts look() const {
    Texts all;
    Store::Ids ids;
    const auto add = [&](const auto& record) {
      all.push_back(textOf(record));
      ids.push_back(record.id);
      if constexpr (requires { record.clearedToday; }) {
        EXPECT_TRUE(record.repeats || !record.clearedToday);
      }
    };
    std::ranges::for_each(store->items(), add);
    std::ranges::for_each(store->tomorrow(), add);
    for (const ScheduledItem& each : store->scheduled()) {
      add(each.item);
      ids.push_back(each.id);
    }
    for (const ArchiveDay& each : store->archive()) std::ranges::for_each(each.items, add);
    std::ranges::sort(all);
    std::ranges::sort(ids);
    EXPECT_EQ(std::ranges::adjacent_find(ids), ids.end()) << "an identity stands twice";
    EXPECT_TRUE(std::ranges::is_sorted(store->scheduled(), {}, &ScheduledItem::date));
    EXPECT_EQ(store->storedDate(), dayKey(time.today()));
    return all;
  }

  static Texts without(const Texts& all, const Texts& others) {
    Texts rest;
    std::ranges::set_difference(all, others, std::back_inserter(rest));
    return rest;
  }

  void expectFile() {
    Lists plain = store->lists();
    plain.archive = Archive({plain.archive.begin(), plain.archive.end()});
    const std::string encoded = document(plain, day);
    EXPECT_EQ(document(store->lists(), day), encoded);
    if (!saved || files.unavailable) return;
    EXPECT_EQ(files.read(kFile), encoded);
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

  std::minstd_rand random{GetParam()};
  int texts = 0, lost = 0, gained = 0;
  Texts filed;
  bool saved = true, travels = false;
  Lists was;
  std::string day;
  std::vector<Lists> past, future;
  std::optional<Instant> changedAt;
  Subscription watching;
};

TEST_P(AnySequence, KeepsEveryPromise) {
  begin();
  Texts before = look();
  for (int step = 0; step < 4000 && !HasFailure(); ++step) {
    SCOPED_TRACE("step " + std::to_string(step));
    lost = gained = 0;
    filed.clear();
    const std::function<void()> kinds[] = {[&] { change(); },
                                           [&] { change(); },
                                           [&] { happen(); },
                                           [&] { happen(); },
                                           [&] { travel(past, future, &Store::undo); },
                                           [&] { travel(future, past, &Store::redo); }};
    oneOf(kinds)();
    Texts after = look();
    EXPECT_LE(std::ssize(without(before, after)), lost);
    EXPECT_LE(std::ssize(without(without(after, before), filed)), gained);
    expectFile();
    if (step % 4 == 0) expectSearch();
    if (step % 3 == 0) expectReminders();
    before = std::move(after);
  }
}

INSTANTIATE_TEST_SUITE_P(Property, AnySequence, testing::Range(1u, 7u));

}  // namespace
}  // namespace brimle
