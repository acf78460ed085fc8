// The single owner of all task data while the program runs, with every rule that moves tasks.
//
// An operation computes a new list and assigns it whole. Assigning runs the hooks, and no other path changes
// data: an undo snapshot before; the day file saved, reminders and sweeps brought in line after. However many
// lists an operation assigns, it is one undo step and one save, made before the outermost operation returns.
// No operation reports an error: where a file cannot be written the lists go on in memory and the next change
// tries again. One that runs out of memory throws and changes nothing: all lists are computed before the
// first is assigned, and after that nothing throws. Main thread only. The sources are parted by what they are
// about: store_<subject>.cpp.
#pragma once

#include <bitset>
#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "base/lifetime.h"
#include "base/signal.h"
#include "entry/entry.h"
#include "i18n/region.h"
#include "model/day_file.h"
#include "model/stored_day.h"
#include "platform/desktop.h"
#include "platform/files.h"
#include "platform/notification_center.h"
#include "platform/time.h"

namespace brimle {

class Store {
 public:
  struct Ports {
    Time& time;
    Files& files;
    Desktop& desktop;
    NotificationCenter& notifications;
  };

  /// What observers are told of.
  enum class Field { items, archive, tomorrow, scheduled, sweepingIDs };
  class Changes {
   public:
    bool has(Field field) const { return bits_[static_cast<std::size_t>(field)]; }
    void add(Field field) { bits_.set(static_cast<std::size_t>(field)); }
    void add(const Changes& others) { bits_ |= others.bits_; }
    bool any() const { return bits_.any(); }
    /// True where one of the four lists was assigned, which is what the day file holds.
    bool hasList() const {
      return (bits_ & ~std::bitset<5>(1u << static_cast<unsigned>(Field::sweepingIDs))).any();
    }

   private:
    std::bitset<5> bits_;
  };

  using Ids = std::vector<Uuid>;

  /// Takes over what was read of `dataFolder`, or starts with the starter tasks; takes the day's backup,
  /// rolls the day over where it is a new one, and takes up the sweeps of tasks left ticked. The ports must
  /// outlive the store.
  Store(Ports ports, Region region, Path dataFolder, StoredDay stored);
  /// The same with the folder read now.
  Store(Ports ports, Region region, const Path& dataFolder)
      : Store(ports, region, dataFolder, readStoredDay(ports.files, dataFolder)) {}
  Store(const Store&) = delete;
  Store& operator=(const Store&) = delete;

  // Reading.
  const std::vector<TodoItem>& items() const { return lists_.items; }
  const Archive& archive() const { return lists_.archive; }
  const std::vector<TodoItem>& tomorrow() const { return lists_.tomorrow; }
  const std::vector<ScheduledItem>& scheduled() const { return lists_.scheduled; }
  const Lists& lists() const { return lists_; }
  const std::string& storedDate() const { return storedDate_; }
  const std::unordered_set<Uuid>& sweepingIDs() const { return sweepingIDs_; }
  /// The task with this identity on today's list, or null. Valid until the next operation.
  const TodoItem* find(const Uuid& id) const;
  /// The tasks of today's list that do not rest today, in their order.
  std::vector<const TodoItem*> visibleItems() const;
  /// How many of them are not ticked.
  std::size_t remaining() const;
  /// What the store reads entries by: today, the region, the interface language's locale.
  EntryContext entryContext() const;

  /// Tells what an operation changed, once, after it has been saved.
  [[nodiscard]] Subscription observe(std::function<void(const Changes&)> observer);

  /// Runs several operations as one: one undo step, one save. Where one of them throws, none is done.
  template <class Action>
  void perform(Action action) {
    const Operation operation(*this);
    Lists before = lists_;
    try {
      action();
    } catch (...) {
      lists_ = std::move(before);
      throw;
    }
  }

  // Adding (store_entries.cpp).
  static std::optional<Entry> parseEntry(std::string_view line, const EntryContext& context) {
    return brimle::parseEntry(line, context);
  }
  /// Adds a block of typed, pasted or dropped text to today, or to tomorrow; dated lines to their day. Bytes
  /// that are not UTF-8 come in as U+FFFD.
  void addLines(std::string_view text, bool toTomorrow);

  // Today's list (store_list.cpp). Ids that match no task are ignored.
  void setDone(const Ids& ids, bool done);
  void setHighlight(const Ids& ids, bool highlighted);
  void removeMany(const Ids& ids);
  void tomorrowMany(const Ids& ids);
  void togglePinTop(const Uuid& id);
  /// Moves a task to the place of `target`: just after it when moving down, just before it when moving up.
  void moveItem(const Uuid& id, const Uuid& target);
  void moveToEnd(const Uuid& id);
  /// Swaps a task with the visible task `offset` places away; nothing past either end.
  void moveBy(const Uuid& id, int offset);
  /// Puts `task` in the place of the one with this identity, which it keeps; dropped where there is none.
  void replace(const Uuid& id, TodoItem task);

  // Tasks for future days (store_scheduled.cpp). Ids are the entries', not the tasks'.
  /// Sends a task of today's list, as it is given, unticked, to a day; nothing where it is not on the list.
  void sendToDay(TodoItem task, const std::string& day);
  void removeScheduled(const Uuid& id);
  /// Sets the text, which may end in a date token that moves the entry; a text of blanks deletes it.
  void editScheduled(const Uuid& id, std::string_view text);
  /// Adds an empty note and gives its index; nothing where the entry is gone or its notes are full.
  std::optional<std::size_t> addScheduledNote(const Uuid& id);
  /// Sets a note; blanks remove it.
  void editScheduledNote(const Uuid& id, std::ptrdiff_t index, std::string_view text);
  /// Moves an entry's task onto today's list: to the top where it is pinned, else to the bottom.
  void bringForward(const Uuid& id);

  // The archive (store_archive.cpp).
  /// The entries whose text or notes contain the search text, regardless of case, in the archive's order; all
  /// entries where it is blank.
  Ids archivedIDsInOrder(std::string_view matching) const;
  /// Prepares the search of the archive a little at a time, so that the first keystroke need not wait for it.
  void prepareSearch();
  void removeArchived(const std::unordered_set<Uuid>& ids);
  /// Puts entries back on today's list as new tasks at its bottom.
  void bringBackMany(const std::unordered_set<Uuid>& ids);

  // The day as plain text (store_text.cpp).
  std::string dayAsText() const;

  // The day (store_rollover.cpp).
  /// Closes the stored day and opens today's where they differ; nothing where they are the same.
  void rolloverIfNeeded();

  // History (store_undo.cpp). With nothing to do, the alert sounds.
  void undo();
  void redo();

  // Reminders (store_reminders.cpp).
  /// Brings the pending reminders in line with the scheduled tasks of future days.
  void resyncArrivalNotifications();

 private:
  using Snapshot = Lists;

  /// The guard of the change path: the outermost one saves and tells the observers when it ends.
  class Operation {
   public:
    explicit Operation(Store& store) : store_(store) { ++store_.depth_; }
    ~Operation() {
      if (--store_.depth_ == 0) store_.finishOperation();
    }
    Operation(const Operation&) = delete;
    Operation& operator=(const Operation&) = delete;

   private:
    Store& store_;
  };

  // The four setters.
  void setItems(std::vector<TodoItem> items);
  void setArchive(Archive archive);
  void setTomorrow(std::vector<TodoItem> tomorrow);
  void setScheduled(std::vector<ScheduledItem> scheduled);
  template <class List>
  void assign(List Lists::*list, List value, Field field);
  void finishOperation();

  void removeLeftovers();
  void load(StoredDay stored);
  void loadStarterTasks();
  void save();
  void backupIfNeeded(const std::string& stamp);
  bool keepUnreadable(const std::string& bytes);
  Path unreadablePath() const;
  bool setAsideUnkept();

  void pushUndo();
  void restore(Snapshot snapshot);
  void scheduleCompletedSweep();
  void checkBeforeFade(const Uuid& id);
  void checkAfterFade(const Uuid& id);
  void sweepLater(Seconds wait, const Uuid& id, void (Store::*check)(const Uuid&));
  void sweepCompleted(const Uuid& id);
  void commit(std::vector<Entry> entries, bool toTomorrow);

  std::string todayKey() const { return dayKey(time_.today()); }
  bool isWeekendToday() const { return region_.isWeekend(time_.today()); }

  Time& time_;
  Files& files_;
  Desktop& desktop_;
  NotificationCenter& notifications_;
  const Region region_;
  const Path folder_;
  const Path fileURL_;

  Lists lists_;
  std::string storedDate_;
  bool loading_ = true;
  bool unkept_ =
      false;  ///< what may lie in the day file's place was neither loaded nor copied to the backups
  std::unordered_set<Uuid> pendingArchive_;
  std::unordered_set<Uuid> sweepingIDs_;
  std::deque<Snapshot> undoStack_;
  std::vector<Snapshot> redoStack_;
  bool suppressUndo_ = false;
  std::optional<Instant> lastSnapshotAt_;
  std::shared_ptr<int> resyncs_ =
      std::make_shared<int>(0);  ///< how many were asked for; shared with their callbacks

  // The operation under way.
  int depth_ = 0;
  bool snapshotTaken_ = false;
  bool sweepDue_ = false;
  Changes changes_;

  Signal<const Changes&> observers_;
  Subscription dayChange_;
  Lifetime life_;
};

}  // namespace brimle
