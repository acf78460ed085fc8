// The lists of a user in a notation short enough for tables: items, tomorrow, scheduled, archive, between
// bars; empty parts at the end are left out. Texts and notes hold no spaces and none of the marks.
//
//   "milk!^/2l bread+ | rent | 20:party! | 14:eggs+,flour 13:salt"
//
// A task is its text, its marks and its notes: * repeats, + done, ! pinned, ^ highlighted, # cleared today,
// % on weekdays. A number is a day of June 2026; other days are written in full. A task whose identity is not
// the one the notation gives its text is shown with ' after it.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "model/day_file.h"

namespace brimle {

/// The parts of a text between separators, without the empty ones.
inline std::vector<std::string> split(std::string_view text, char separator) {
  std::vector<std::string> parts;
  for (std::size_t end = 0; !text.empty(); text.remove_prefix(std::min(end + 1, text.size()))) {
    end = std::min(text.find(separator), text.size());
    if (end > 0) parts.emplace_back(text.substr(0, end));
  }
  return parts;
}

inline Uuid idOf(std::string_view text) {
  Uuid id;
  std::copy_n(text.begin(), std::min(text.size(), id.bytes.size()), id.bytes.begin());
  return id;
}

inline constexpr std::string_view kMarks = "*+!^#";
inline constexpr bool TodoItem::*kMarked[] = {&TodoItem::repeats, &TodoItem::done, &TodoItem::pinnedTop,
                                              &TodoItem::highlighted, &TodoItem::clearedToday};

inline TodoItem task(std::string_view word) {
  const std::string_view head = word.substr(0, word.find('/'));
  TodoItem task = makeTask(std::string(head.substr(0, head.find_first_of("*+!^#%"))));
  task.id = idOf(task.text);
  task.notes = split(word.substr(head.size()), '/');
  for (std::size_t mark = 0; mark < 5; ++mark) task.*kMarked[mark] = head.find(kMarks[mark]) != head.npos;
  if (head.find('%') != head.npos) task.schedule = Schedule::weekdays;
  return task;
}

inline std::string dateOf(std::string_view day) {
  return (day.size() == 2 ? "2026-06-" : "") + std::string(day);
}

inline ScheduledItem scheduledItem(std::string_view word) {
  const auto colon = word.find(':');
  return {idOf(word), dateOf(word.substr(0, colon)), task(word.substr(colon + 1))};
}

inline ArchiveDay archiveDay(std::string_view word) {
  ArchiveDay day{dateOf(word.substr(0, word.find(':'))), {}};
  for (const auto& entry : split(word.substr(word.find(':') + 1), ',')) {
    const TodoItem it = task(entry);
    day.items.push_back({it.id, it.text, it.done, it.notes});
  }
  return day;
}

inline Lists lists(std::string_view state) {
  const auto take = [&](auto read) {
    const std::string_view part = state.substr(0, state.find('|'));
    state.remove_prefix(std::min(part.size() + 1, state.size()));
    std::vector<decltype(read(part))> list;
    for (const auto& word : split(part, ' ')) list.push_back(read(word));
    return list;
  };
  Lists lists{take(task), {}, take(task), take(scheduledItem)};
  lists.archive = Archive(take(archiveDay));
  return lists;
}

inline std::string shown(const std::string& note) {
  return "/" + note;
}

template <class List>
std::string joined(const List& list, const std::string& separator) {
  std::string text;
  for (const auto& element : list) text += (text.empty() ? "" : separator) + shown(element);
  return text;
}

inline std::string shown(const TodoItem& task) {
  std::string text = task.text + (task.id == idOf(task.text) ? "" : "'");
  for (std::size_t mark = 0; mark < 5; ++mark) text.append(task.*kMarked[mark], kMarks[mark]);
  return text + (task.schedule == Schedule::weekdays ? "%" : "") + joined(task.notes, "");
}

inline std::string shown(const ArchivedItem& entry) {
  return entry.text + (entry.completed ? "+" : "") + joined(entry.notes, "");
}

inline std::string dayOf(const std::string& date) {
  return date.starts_with("2026-06-") ? date.substr(8) : date;
}

inline std::string shown(const ScheduledItem& entry) {
  return dayOf(entry.date) + ":" + shown(entry.item);
}
inline std::string shown(const ArchiveDay& day) {
  return dayOf(day.date) + ":" + joined(day.items, ",");
}

inline std::string shown(const Lists& lists) {
  std::string text = joined(lists.items, " ") + " | " + joined(lists.tomorrow, " ") + " | " +
                     joined(lists.scheduled, " ") + " | " + joined(lists.archive, " ");
  while (text.ends_with(" | ")) text.resize(text.size() - 3);
  return text;
}

/// The day file of a day with these lists; of another day in June where the notation begins with "@14 ".
inline std::string document(const Lists& lists, std::string_view day = "15") {
  std::string bytes;
  const EncodedDayFile encoded(dateOf(day), lists);
  for (const auto piece : encoded.pieces()) bytes += piece;
  return bytes;
}

inline std::string document(std::string_view state, std::string_view day = "15") {
  if (state.starts_with('@')) return document(state.substr(4), state.substr(1, 2));
  return document(lists(state), day);
}

}  // namespace brimle
