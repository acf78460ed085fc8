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
    if (!pendingArchive_.insert(task.id).second) continue;
    later(kPause, [this, id = task.id] { checkBeforeFade(id); });
  }
}

void Store::checkBeforeFade(const Uuid& id) {
  const TodoItem* task = find(id);
  if (!task || !task->done) {
    pendingArchive_.erase(id);
    return;
  }
  if (desktop_.reduceMotion()) {
    pendingArchive_.erase(id);
    return sweepCompleted(id);
  }
  const Operation operation(*this);
  sweepingIDs_.insert(id);
  changes_.add(Field::sweepingIDs);
  later(kFadeWait, [this, id] { checkAfterFade(id); });
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
  const Operation operation(*this);
  ArchivedItem entry = archivedCopy(*task, true);
  auto list = items();
  const auto swept = list.begin() + (task - items().data());
  if (swept->repeats) {
    swept->clearedToday = true;
  } else {
    list.erase(swept);
  }
  setItems(std::move(list));
  addToTodayArchive(std::move(entry));
}

void Store::addToTodayArchive(ArchivedItem entry) {
  std::vector<ArchivedItem> entries;
  entries.push_back(std::move(entry));
  setArchive(archive().withEntries(storedDate_, std::move(entries)));
}

}  // namespace brimle
