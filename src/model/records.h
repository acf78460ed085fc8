// The records every list is made of: plain values, found by identity, never by address or row.
//
// Equality is by value over all fields, texts by canonical equivalence; it tells whether something changed
// and never finds a record.
#pragma once

#include <string>
#include <vector>

#include "base/uuid.h"

namespace brimle {

/// The days a repeating task belongs to. A task that does not repeat carries one too, and it is ignored.
enum class Schedule { everyDay, weekdays };

/// A task on today's list, on the tomorrow list, or waiting inside a scheduled item.
struct TodoItem {
  Uuid id;
  std::string text;
  bool done = false;
  bool repeats = false;
  bool pinnedTop = false;
  Schedule schedule = Schedule::everyDay;
  bool highlighted = false;
  std::vector<std::string> notes;
  /// A repeating task that was ticked and swept today; hidden until the day rolls over.
  bool clearedToday = false;

  bool operator==(const TodoItem& other) const;
};

/// A task as the archive keeps it, under an identity of its own.
struct ArchivedItem {
  Uuid id;
  std::string text;
  bool completed = false;
  std::vector<std::string> notes;

  bool operator==(const ArchivedItem& other) const;
};

/// The archive of one day; its items oldest first.
struct ArchiveDay {
  std::string date;  ///< day key
  std::vector<ArchivedItem> items;

  bool operator==(const ArchiveDay& other) const;
};

/// A task that waits for a day.
struct ScheduledItem {
  Uuid id;           ///< the entry's own identity, distinct from the task's
  std::string date;  ///< day key
  TodoItem item;

  bool operator==(const ScheduledItem& other) const;
};

/// A new task: a fresh identity, the text, no flags and no notes.
TodoItem makeTask(std::string text);

/// The archive's record of a task, under a fresh identity.
ArchivedItem archivedCopy(const TodoItem& task, bool completed);

}  // namespace brimle
