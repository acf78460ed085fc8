// A store over the simulated ports, on Monday 15 June 2026 at 09:00 UTC, and scripts of what is done with it.
// Whenever the store tells of a change while files can be written, the saved document must equal its lists.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <optional>
#include <string>

#include "model/notation.h"
#include "model/store.h"
#include "platform/simulated/memory_files.h"
#include "platform/simulated/simulated_desktop.h"
#include "platform/simulated/simulated_notification_center.h"
#include "platform/simulated/simulated_time.h"

namespace brimle {

/// What the store did, in its order: "save ", "resync ", "sweep " for a timer, "told-items-archive " for
/// observers.
inline std::string storeLog;

struct LoggedFiles : MemoryFiles {
  bool replace(const Path& path, std::span<const std::string_view> pieces) override {
    if (path.filename() == "today.json") storeLog += "save ";
    return MemoryFiles::replace(path, pieces);
  }
};

struct LoggedTime : SimulatedTime {
  void after(Seconds delay, std::function<void()> action) override {
    if (delay > Seconds(0)) storeLog += "sweep ";  // only the sweep waits
    SimulatedTime::after(delay, std::move(action));
  }
};

struct LoggedCenter : SimulatedNotificationCenter {
  using SimulatedNotificationCenter::SimulatedNotificationCenter;
  void getAuthorizationStatus(std::function<void(AuthorizationStatus)> done) override {
    storeLog += "resync ";
    SimulatedNotificationCenter::getAuthorizationStatus(std::move(done));
  }
};

class StoreTest : public testing::Test {
 protected:
  static inline const Path kFile = "/data/Brimle/today.json", kBackups = "/data/Brimle/Backups";

  /// Starts afresh at 09:00 with nothing but a day file of these bytes.
  void open(const std::string& bytes) {
    store.reset();
    time.setClock(time.at("2026-06-15 09:00"));
    files = LoggedFiles();
    files.put(kFile, bytes);
    reopen();
  }

  /// Ends the store and builds another on the files as they are.
  void reopen() {
    store.reset();
    storeLog.clear();
    store.emplace(Store::Ports{time, *disk, desktop, notifications}, Region{}, folder);
    observer = store->observe([this](const Store::Changes& changes) {
      storeLog += "told";
      const char* names[] = {"-items", "-archive", "-tomorrow", "-scheduled", "-sweepingIDs"};
      for (int field = 0; field < 5; ++field) {
        if (changes.has(static_cast<Store::Field>(field))) storeLog += names[field];
      }
      storeLog += " ";
      if (changes.hasList() && saves()) expectSaved();
    });
  }

  virtual bool saves() const { return !files.diskFull && !files.unavailable; }

  void expectSaved() {
    const auto file = readDayFile(disk->read(folder / "today.json").value_or(""));
    ASSERT_TRUE(file);
    EXPECT_EQ(file->date, store->storedDate());
    EXPECT_TRUE(file->lists == store->lists()) << "saved is " << shown(file->lists) << ", not " << state();
  }

  std::string state() const { return shown(store->lists()); }

  bool isBackedUp(const std::string& bytes) const {
    const Path backups = folder / "Backups";
    const auto names = disk->list(backups).value_or(std::vector<std::string>{});
    return std::ranges::any_of(names, [&](const auto& name) { return disk->read(backups / name) == bytes; });
  }

  /// Does the steps of a script, such as "tick A B; wait 0.9; undo". A text at a step's end is taken with its
  /// blanks.
  void run(std::string_view script) {
    for (const auto& step : actionsOf(script)) step();
  }

  std::vector<std::function<void()>> actionsOf(std::string_view script) {
    std::vector<std::function<void()>> actions;
    for (const auto& step : split(script, ';')) {
      actions.push_back(actionOf(step.substr(step.find_first_not_of(' '))));
    }
    return actions;
  }

  std::function<void()> actionOf(const std::string& step) {
    const auto words = split(step, ' ');
    Store::Ids ids;
    for (std::size_t word = 1; word < words.size(); ++word) ids.push_back(idOf(words[word]));
    const Uuid id = ids.empty() ? Uuid() : ids[0];
    const auto textAfter = [step](int blanks) {
      std::size_t at = 0;
      while (blanks-- > 0 && at < step.size()) at = std::min(step.find(' ', at), step.size() - 1) + 1;
      return step.substr(at);
    };
    const std::map<std::string, std::function<void()>> verbs = {
        {"tick", [=, this] { store->setDone(ids, true); }},
        {"untick", [=, this] { store->setDone(ids, false); }},
        {"mark", [=, this] { store->setHighlight(ids, true); }},
        {"delete", [=, this] { store->removeMany(ids); }},
        {"defer", [=, this] { store->tomorrowMany(ids); }},
        {"pin", [=, this] { store->togglePinTop(id); }},
        {"move", [=, this] { store->moveItem(id, ids.at(1)); }},
        {"end", [=, this] { store->moveToEnd(id); }},
        {"by", [=, this] { store->moveBy(id, std::stoi(words.at(2))); }},
        {"rewrite", [=, this] { store->replace(id, task(words.at(2))); }},
        {"add", [=, this] { store->addLines(textAfter(1), false); }},
        {"later", [=, this] { store->addLines(textAfter(1), true); }},
        {"send",
         [=, this] {
           store->sendToDay(store->find(id) ? *store->find(id) : task("Z"), dateOf(words.at(2)));
         }},
        {"drop", [=, this] { store->removeScheduled(id); }},
        {"bring", [=, this] { store->bringForward(id); }},
        {"edit", [=, this] { store->editScheduled(id, textAfter(2)); }},
        {"note", [=, this] { store->addScheduledNote(id); }},
        {"renote", [=, this] { store->editScheduledNote(id, std::stoi(words.at(2)), textAfter(3)); }},
        {"erase", [=, this] { store->removeArchived(archived(words)); }},
        {"back", [=, this] { store->bringBackMany(archived(words)); }},
        {"undo", [this] { store->undo(); }},
        {"redo", [this] { store->redo(); }},
        {"day?", [this] { store->rolloverIfNeeded(); }},
        {"search", [=, this] { store->archivedIDsInOrder(words.at(1)); }},
        {"prepare", [this] { store->prepareSearch(); }},
        {"remind", [this] { store->resyncArrivalNotifications(); }},
        {"tell", [this] { store->dayAsText(); }},
        {"wait", [=, this] { time.advance(Seconds(std::stod(words.at(1)))); }},
        {"clock", [=, this] { time.setClock(time.at(words.at(1) + " " + words.at(2))); }},
        {"reopen", [this] { reopen(); }}};
    return verbs.at(words.at(0));
  }

  /// The archived tasks of these texts; and what is no archived task, a task's identity among it.
  std::unordered_set<Uuid> archived(const std::vector<std::string>& texts) const {
    std::unordered_set<Uuid> ids{idOf("unknown"), idOf("A")};
    for (const ArchiveDay& day : store->archive()) {
      for (const ArchivedItem& entry : day.items) {
        if (std::ranges::count(texts, entry.text) > 0) ids.insert(entry.id);
      }
    }
    return ids;
  }

  struct Row {
    const char* before;  ///< the lists of the day file, which is of another day after "@14 "
    const char* script;
    const char* after;
    const char* log = nullptr;  ///< where it is given, what the script makes the store do
  };

  void expect(std::initializer_list<Row> rows) {
    for (const auto& [before, script, after, log] : rows) {
      SCOPED_TRACE(std::string(before) + " -> " + script);
      const std::string_view start(before);
      open(start.starts_with('@') ? document(start.substr(4), start.substr(1, 2)) : document(start));
      storeLog.clear();
      run(script);
      EXPECT_EQ(state(), after);
      EXPECT_EQ(storeLog, log ? log : storeLog);
      expectSaved();
    }
  }

  /// Each script is one step to undo, or does nothing where no log is given.
  void expectOneStep(std::initializer_list<Row> rows) {
    for (const auto& [before, script, after, log] : rows) {
      expect({{before, script, after, log ? log : ""}});
      run("undo");
      EXPECT_EQ(state(), shown(lists(before))) << script;
    }
  }

  LoggedTime time;
  LoggedFiles files;
  Files* disk = &files;  ///< where the store keeps its files
  Path folder = kFile.parent_path();
  SimulatedDesktop desktop;
  LoggedCenter notifications{time};
  std::optional<Store> store;
  Subscription observer;
};

}  // namespace brimle
