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

  /// Does the steps of a script, such as "tick A B; wait 0.9; undo".
  void run(std::string_view script) {
    for (const auto& step : split(script, ';')) {
      const auto words = split(step, ' ');
      Store::Ids ids;
      for (std::size_t word = 1; word < words.size(); ++word) ids.push_back(idOf(words[word]));
      const std::map<std::string, std::function<void()>> verbs = {
          {"tick", [&] { store->setDone(ids, true); }},
          {"untick", [&] { store->setDone(ids, false); }},
          {"mark", [&] { store->setHighlight(ids, true); }},
          {"delete", [&] { store->removeMany(ids); }},
          {"defer", [&] { store->tomorrowMany(ids); }},
          {"pin", [&] { store->togglePinTop(ids.at(0)); }},
          {"move", [&] { store->moveItem(ids.at(0), ids.at(1)); }},
          {"end", [&] { store->moveToEnd(ids.at(0)); }},
          {"by", [&] { store->moveBy(ids.at(0), std::stoi(words.at(2))); }},
          {"rewrite", [&] { store->replace(ids.at(0), task(words.at(2))); }},
          {"add", [&] { store->addLines(step.substr(step.find("add ") + 4), false); }},
          {"later", [&] { store->addLines(step.substr(step.find("later ") + 6), true); }},
          {"undo", [&] { store->undo(); }},
          {"redo", [&] { store->redo(); }},
          {"day?", [&] { store->rolloverIfNeeded(); }},
          {"wait", [&] { time.advance(Seconds(std::stod(words.at(1)))); }},
          {"clock", [&] { time.setClock(time.at(words.at(1) + " " + words.at(2))); }},
          {"reopen", [&] { reopen(); }}};
      verbs.at(words.at(0))();
    }
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
