// What the user does to tasks that wait for a future day.
#include <algorithm>
#include <utility>

#include "base/text.h"
#include "entry/date_token.h"
#include "model/scheduled_order.h"
#include "model/store.h"

namespace brimle {
namespace {

using Scheduled = std::vector<ScheduledItem>;

}  // namespace

void Store::sendToDay(TodoItem task, const std::string& day) {
  if (!find(task.id)) return;
  const Uuid id = task.id;
  Scheduled list = scheduled();
  task.done = false;
  list.push_back({Uuid::random(), day, std::move(task)});
  sortByDate(list);
  const Operation operation(*this);
  removeMany({id});
  setScheduled(std::move(list));
}

void Store::removeScheduled(const Uuid& id) {
  Scheduled list = scheduled();
  if (std::erase_if(list, [&](const ScheduledItem& entry) { return entry.id == id; }) > 0) {
    setScheduled(std::move(list));
  }
}

void Store::editScheduled(const Uuid& id, std::string_view text) {
  Scheduled list = scheduled();
  const auto entry = std::ranges::find(list, id, &ScheduledItem::id);
  if (entry == list.end()) return;
  const std::string valid = toValidUtf8(text);
  std::string_view rest = valid;
  if (const auto dated = extractDateToken(valid, entryContext())) {
    entry->date = dayKey(dated->day);
    rest = dated->text;
  }
  rest = trimmed(rest);
  if (rest.empty()) {
    list.erase(entry);
  } else {
    entry->item.text = rest;
  }
  sortByDate(list);
  setScheduled(std::move(list));
}

std::optional<std::size_t> Store::addScheduledNote(const Uuid& id) {
  Scheduled list = scheduled();
  const auto entry = std::ranges::find(list, id, &ScheduledItem::id);
  if (entry == list.end() || entry->item.notes.size() >= kMostNotes) return std::nullopt;
  const std::size_t index = entry->item.notes.size();
  entry->item.notes.emplace_back();
  setScheduled(std::move(list));
  return index;
}

void Store::editScheduledNote(const Uuid& id, std::ptrdiff_t index, std::string_view text) {
  Scheduled list = scheduled();
  const auto entry = std::ranges::find(list, id, &ScheduledItem::id);
  if (entry == list.end()) return;
  auto& notes = entry->item.notes;
  if (index < 0 || index >= std::ssize(notes)) return;
  const std::string valid = toValidUtf8(text);
  if (const auto rest = trimmed(valid); rest.empty()) {
    notes.erase(notes.begin() + index);
  } else {
    notes[static_cast<std::size_t>(index)] = rest;
  }
  setScheduled(std::move(list));
}

void Store::bringForward(const Uuid& id) {
  Scheduled waiting = scheduled();
  const auto entry = std::ranges::find(waiting, id, &ScheduledItem::id);
  if (entry == waiting.end()) return;
  TodoItem task = std::move(entry->item);
  task.done = false;
  waiting.erase(entry);
  auto list = items();
  list.insert(task.pinnedTop ? list.begin() : list.end(), std::move(task));
  const Operation operation(*this);
  setScheduled(std::move(waiting));
  setItems(std::move(list));
}

}  // namespace brimle
