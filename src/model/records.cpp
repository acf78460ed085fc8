#include "model/records.h"

#include <algorithm>

#include "base/text.h"

namespace brimle {
namespace {

bool sameNotes(const std::vector<std::string>& a, const std::vector<std::string>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const auto& one, const auto& other) { return canonicallyEqual(one, other); });
}

}  // namespace

bool TodoItem::operator==(const TodoItem& other) const {
  return id == other.id && done == other.done && repeats == other.repeats && pinnedTop == other.pinnedTop &&
         schedule == other.schedule && highlighted == other.highlighted &&
         clearedToday == other.clearedToday && canonicallyEqual(text, other.text) &&
         sameNotes(notes, other.notes);
}

bool ArchivedItem::operator==(const ArchivedItem& other) const {
  return id == other.id && completed == other.completed && canonicallyEqual(text, other.text) &&
         sameNotes(notes, other.notes);
}

bool ArchiveDay::operator==(const ArchiveDay& other) const {
  return canonicallyEqual(date, other.date) && items == other.items;
}

bool ScheduledItem::operator==(const ScheduledItem& other) const {
  return id == other.id && canonicallyEqual(date, other.date) && item == other.item;
}

TodoItem makeTask(std::string text) {
  TodoItem task;
  task.id = Uuid::random();
  task.text = std::move(text);
  return task;
}

ArchivedItem archivedCopy(const TodoItem& task, bool completed) {
  return {Uuid::random(), task.text, completed, task.notes};
}

}  // namespace brimle
