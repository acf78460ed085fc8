// The sweep: a ticked task rests for a moment, fades, and is filed into today's archive.
#include <utility>

#include "model/store.h"

namespace brimle {
namespace {

constexpr Seconds kPause{0.9};
/// A little longer than the fade that the views draw (0.28 s).
constexpr Seconds kFadeWait{0.32};

}  // namespace

void Store::scheduleCompletedSweep() {
  if (loading_ || suppressUndo_) return;
  for (const TodoItem& task : items()) {
    if (!task.done || (task.repeats && task.clearedToday)) continue;
    if (!pendingArchive_.contains(task.id)) sweepLater(kPause, task.id, &Store::checkBeforeFade);
  }
}

/// Calls `check` after a wait, during which no other sweep of the task begins.
void Store::sweepLater(Seconds wait, const Uuid& id, void (Store::*check)(const Uuid&)) {
  pendingArchive_.insert(id);
  try {
    time_.after(wait, life_.guard([this, id, check] { (this->*check)(id); }));
  } catch (...) {
    pendingArchive_.erase(id);
    throw;
  }
}

void Store::checkBeforeFade(const Uuid& id) {
  pendingArchive_.erase(id);
  const TodoItem* task = find(id);
  if (!task || !task->done) return;
  if (desktop_.reduceMotion()) return sweepCompleted(id);
  const Operation operation(*this);
  sweepLater(kFadeWait, id, &Store::checkAfterFade);
  sweepingIDs_.insert(id);
  changes_.add(Field::sweepingIDs);
}

void Store::checkAfterFade(const Uuid& id) {
  const Operation operation(*this);
  pendingArchive_.erase(id);
  sweepingIDs_.erase(id);
  changes_.add(Field::sweepingIDs);
  const TodoItem* task = find(id);
  if (task && task->done) sweepCompleted(id);
}

void Store::sweepCompleted(const Uuid& id) {
  const TodoItem* task = find(id);
  if (!task) return;
  std::vector<ArchivedItem> entries;
  entries.push_back(archivedCopy(*task, true));
  Archive filed = archive().withEntries(storedDate_, std::move(entries));
  auto list = items();
  const auto swept = list.begin() + (task - items().data());
  if (swept->repeats) {
    swept->clearedToday = true;
  } else {
    list.erase(swept);
  }
  const Operation operation(*this);
  setItems(std::move(list));
  setArchive(std::move(filed));
}

}  // namespace brimle
