#include "model/store.h"

#include <algorithm>
#include <new>
#include <utility>

#include "i18n/i18n.h"
#include "model/visibility.h"

namespace brimle {

Store::Store(Ports ports, Region region, Path dataFolder, StoredDay stored)
    : time_(ports.time),
      files_(ports.files),
      desktop_(ports.desktop),
      notifications_(ports.notifications),
      region_(region),
      folder_(std::move(dataFolder)),
      fileURL_(dayFileIn(folder_)),
      storedDate_(todayKey()) {
  removeLeftovers();
  load(std::move(stored));
  rolloverIfNeeded();
  scheduleCompletedSweep();
  dayChange_ = time_.onDayChange([this] { rolloverIfNeeded(); });
}

void Store::load(StoredDay stored) {
  if (stored.file) {
    storedDate_ = std::move(stored.file->date);
    lists_ = std::move(stored.file->lists);
  } else {
    loadStarterTasks();
  }
  loading_ = false;
  backupIfNeeded(storedDate_);
  unkept_ = !stored.file && !(stored.bytes && keepUnreadable(*stored.bytes));
}

void Store::loadStarterTasks() {
  for (const std::string_view key :
       {"Tick this task to see it filed away", "Drag me to the top", "Double-click a task to edit it",
        "Right-click a task for everything else"}) {
    lists_.items.push_back(makeTask(I18n::t(key)));
  }
  lists_.items.back().notes.emplace_back(I18n::t("Notes sit underneath — try typing: milk // eggs // bread"));
}

const TodoItem* Store::find(const Uuid& id) const {
  const auto found = std::ranges::find(items(), id, &TodoItem::id);
  return found == items().end() ? nullptr : &*found;
}

std::vector<const TodoItem*> Store::visibleItems() const {
  std::vector<const TodoItem*> visible;
  const bool weekend = isWeekendToday();
  for (const TodoItem& task : items()) {
    if (!rests(task, weekend)) visible.push_back(&task);
  }
  return visible;
}

std::size_t Store::remaining() const {
  return static_cast<std::size_t>(std::ranges::count(visibleItems(), false, &TodoItem::done));
}

EntryContext Store::entryContext() const {
  return {time_.today(), region_, std::string(I18n::locale())};
}

Subscription Store::observe(std::function<void(const Changes&)> observer) {
  return observers_.subscribe(std::move(observer));
}

template <class List>
void Store::assign(List Lists::*list, List value, Field field) {
  const Operation operation(*this);
  pushUndo();
  lists_.*list = std::move(value);
  changes_.add(field);
}

void Store::setItems(std::vector<TodoItem> items) {
  const Operation operation(*this);
  assign(&Lists::items, std::move(items), Field::items);
  if (!suppressUndo_) sweepDue_ = true;
}

void Store::setArchive(Archive archive) {
  assign(&Lists::archive, std::move(archive), Field::archive);
}

void Store::setTomorrow(std::vector<TodoItem> tomorrow) {
  assign(&Lists::tomorrow, std::move(tomorrow), Field::tomorrow);
}

void Store::setScheduled(std::vector<ScheduledItem> scheduled) {
  assign(&Lists::scheduled, std::move(scheduled), Field::scheduled);
}

void Store::finishOperation() {
  const Changes changes = std::exchange(changes_, {});
  const bool sweepDue = std::exchange(sweepDue_, false);
  snapshotTaken_ = false;
  // What memory runs out in does not keep the rest from being done, and is done again after the next
  // operation.
  const auto attempt = [&](auto hook) {
    try {
      hook();
    } catch (const std::bad_alloc&) {
      changes_.add(changes);
      sweepDue_ = sweepDue_ || sweepDue;
    }
  };
  if (changes.hasList()) attempt([&] { save(); });
  if (changes.has(Field::scheduled)) attempt([&] { resyncArrivalNotifications(); });
  if (sweepDue) attempt([&] { scheduleCompletedSweep(); });
  if (changes.any()) attempt([&] { observers_.notify(changes); });
}

void Store::save() {
  if (loading_ || !setAsideUnkept()) return;
  const EncodedDayFile file(storedDate_, lists_);
  if (files_.replace(fileURL_, file.pieces())) unkept_ = false;
}

}  // namespace brimle
