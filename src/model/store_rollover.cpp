// The end of a day and the start of the next.
#include <algorithm>
#include <iterator>
#include <utility>

#include "model/store.h"

namespace brimle {
namespace {

/// What becomes of the old day's tasks.
struct ClosedDay {
  std::vector<TodoItem> kept;
  std::vector<ArchivedItem> leaving;
};

ClosedDay close(const std::vector<TodoItem>& items) {
  ClosedDay day;
  for (const TodoItem& task : items) {
    // A repeating task that was swept during the day is in the archive already.
    if (task.done && !(task.repeats && task.clearedToday)) day.leaving.push_back(archivedCopy(task, true));
    if (task.repeats) {
      TodoItem& kept = day.kept.emplace_back(task);
      kept.done = kept.clearedToday = false;
    } else if (!task.done && task.pinnedTop) {
      day.kept.push_back(task);
    } else if (!task.done) {
      day.leaving.push_back(archivedCopy(task, false));
    }
  }
  return day;
}

/// The tasks whose day has come, and those that go on waiting.
struct Arrivals {
  std::vector<TodoItem> pinned;
  std::vector<TodoItem> others;
  std::vector<ScheduledItem> waiting;
};

Arrivals arrive(const std::vector<ScheduledItem>& scheduled, const std::string& today) {
  Arrivals arrivals;
  for (const ScheduledItem& entry : scheduled) {
    if (entry.date > today) {
      arrivals.waiting.push_back(entry);
    } else {
      (entry.item.pinnedTop ? arrivals.pinned : arrivals.others).push_back(entry.item);
    }
  }
  return arrivals;
}

void append(std::vector<TodoItem>& list, std::vector<TodoItem> more) {
  std::move(more.begin(), more.end(), std::back_inserter(list));
}

}  // namespace

void Store::rolloverIfNeeded() {
  std::string today = todayKey();
  if (storedDate_ == today) return;
  backupIfNeeded(storedDate_);

  ClosedDay closed = close(items());
  const bool files = !closed.leaving.empty();
  Archive filed = files ? archive().withEntries(storedDate_, std::move(closed.leaving)) : archive();
  Arrivals arrivals = arrive(scheduled(), today);
  std::vector<TodoItem> opened = std::move(arrivals.pinned);
  append(opened, std::move(closed.kept));
  append(opened, tomorrow());
  append(opened, std::move(arrivals.others));

  const Operation operation(*this);
  suppressUndo_ = true;
  if (files) setArchive(std::move(filed));
  storedDate_ = std::move(today);
  setScheduled(std::move(arrivals.waiting));
  setItems(std::move(opened));
  setTomorrow({});

  suppressUndo_ = false;
  undoStack_.clear();
  redoStack_.clear();
  lastSnapshotAt_.reset();
}

}  // namespace brimle
