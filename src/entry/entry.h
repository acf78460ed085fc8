// The entry language: one typed line -> a task and perhaps a day; a block of text -> entries.
//
//   milk // eggs // bread      a task with two notes
//   call the bank !            pinned
//   water plants *             repeats every day;  *w on weekdays
//   send invoice >12/9         sent to a day, where it arrives pinned
// Pure: a line, the day and the region in; a task out.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "entry/entry_context.h"
#include "model/records.h"

namespace brimle {

/// Most notes that typing, pasting or the future section give a task.
inline constexpr std::size_t kMostNotes = 10;

struct Entry {
  TodoItem item;
  std::optional<std::string> sendDate;  ///< day key
};

/// Reads one line (no line breaks in it). Nothing where it is blank.
std::optional<Entry> parseEntry(std::string_view line, const EntryContext& context);

/// Reads a block of typed, pasted or dropped text: strips one list bullet a line, takes indented lines as
/// notes of the task above, and parses every other line.
std::vector<Entry> parseLines(std::string_view text, const EntryContext& context);

}  // namespace brimle
