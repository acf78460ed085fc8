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

class StoreTest : public testing::Test {
 protected:
  static inline const Path kFile = "/data/Brimle/today.json", kBackups = "/data/Brimle/Backups";

  /// Starts afresh at 09:00 with nothing but a day file of these bytes.
  void open(const std::string& bytes) {
    store.reset();
    time.setClock(time.at("2026-06-15 09:00"));
    files = MemoryFiles();
    files.put(kFile, bytes);
    reopen();
  }

  /// Ends the store and builds another on the files as they are.
  void reopen() {
    store.reset();
    store.emplace(Store::Ports{time, *disk, desktop, notifications}, Region{}, folder);
    observer = store->observe([this](const Store::Changes& changes) {
      const char* names[] = {"-items", "-archive", "-tomorrow", "-scheduled", "-sweepingIDs"};
      for (int field = 0; field < 5; ++field) {
        if (changes.has(static_cast<Store::Field>(field))) tellings += names[field];
      }
      tellings += " ";
      savesTold += changes.hasList();
      resyncsTold += changes.has(Store::Field::scheduled);
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
    for (const auto& step : split(script, ';')) runStep(step.substr(step.find_first_not_of(' ')));
  }

  void runStep(const std::string& step) {
    const auto words = split(step, ' ');
    Store::Ids ids;
    for (std::size_t word = 1; word < words.size(); ++word) ids.push_back(idOf(words[word]));
    const Uuid id = ids.empty() ? Uuid() : ids[0];
    const auto textAfter = [&step](int blanks) {
      std::size_t at = 0;
      while (blanks-- > 0 && at < step.size()) at = std::min(step.find(' ', at), step.size() - 1) + 1;
      return step.substr(at);
    };
    const std::map<std::string, std::function<void()>> verbs = {
        {"tick", [&] { store->setDone(ids, true); }},
        {"untick", [&] { store->setDone(ids, false); }},
        {"mark", [&] { store->setHighlight(ids, true); }},
        {"delete", [&] { store->removeMany(ids); }},
        {"defer", [&] { store->tomorrowMany(ids); }},
        {"pin", [&] { store->togglePinTop(id); }},
        {"move", [&] { store->moveItem(id, ids.at(1)); }},
        {"end", [&] { store->moveToEnd(id); }},
        {"by", [&] { store->moveBy(id, std::stoi(words.at(2))); }},
        {"rewrite", [&] { store->replace(id, task(words.at(2))); }},
        {"add", [&] { store->addLines(textAfter(1), false); }},
        {"later", [&] { store->addLines(textAfter(1), true); }},
        {"send", [&] { store->sendToDay(task(words.at(1)), dateOf(words.at(2))); }},
        {"drop", [&] { store->removeScheduled(id); }},
        {"bring", [&] { store->bringForward(id); }},
        {"edit", [&] { store->editScheduled(id, textAfter(2)); }},
        {"note", [&] { store->addScheduledNote(id); }},
        {"renote", [&] { store->editScheduledNote(id, std::stoi(words.at(2)), textAfter(3)); }},
        {"erase",
         [&] {
           store->removeArchived({ids.begin(), ids.end()});
         }},
        {"back",
         [&] {
           store->bringBackMany({ids.begin(), ids.end()});
         }},
        {"undo", [&] { store->undo(); }},
        {"redo", [&] { store->redo(); }},
        {"day?", [&] { store->rolloverIfNeeded(); }},
        {"search", [&] { store->archivedIDsInOrder(words.at(1)); }},
        {"prepare", [&] { store->prepareSearch(); }},
        {"remind", [&] { store->resyncArrivalNotifications(); }},
        {"wait", [&] { time.advance(Seconds(std::stod(words.at(1)))); }},
        {"clock", [&] { time.setClock(time.at(words.at(1) + " " + words.at(2))); }},
        {"reopen", [&] { reopen(); }}};
    verbs.at(words.at(0))();
  }

  struct Row {
    const char* before;  ///< the lists of the day file, which is of another day after "@14 "
    const char* script;
    const char* after;
    const char* told = nullptr;  ///< where it is given, the fields that observers are told of, each time
  };

  /// Where observers are told of a list, it was saved once, and of scheduled tasks, the reminders follow.
  void expect(std::initializer_list<Row> rows) {
    for (const auto& [before, script, after, fields] : rows) {
      SCOPED_TRACE(std::string(before) + " -> " + script);
      open(document(before));
      const int saved = files.replaces(kFile) - savesTold, resynced = notifications.statusAsks - resyncsTold;
      tellings.clear();
      run(script);
      EXPECT_EQ(state(), after);
      EXPECT_EQ(tellings, fields ? fields : tellings);
      EXPECT_EQ(files.replaces(kFile) - savesTold, saved);
      EXPECT_EQ(notifications.statusAsks - resyncsTold, resynced);
      expectSaved();
    }
  }

  /// Each script is one step to undo, or does nothing where no fields are given.
  void expectOneStep(std::initializer_list<Row> rows) {
    for (const auto& [before, script, after, fields] : rows) {
      expect({{before, script, after, fields ? fields : ""}});
      run("undo");
      EXPECT_EQ(state(), shown(lists(before))) << script;
    }
  }

  SimulatedTime time;
  MemoryFiles files;
  Files* disk = &files;  ///< where the store keeps its files
  Path folder = kFile.parent_path();
  SimulatedDesktop desktop;
  SimulatedNotificationCenter notifications{time};
  std::optional<Store> store;
  Subscription observer;
  std::string tellings;  ///< the fields that observers were told of, as "-items-archive " each time
  int savesTold = 0, resyncsTold = 0;
};

}  // namespace brimle
