// Writes the records as compact JSON (RFC 8259) with the day file's fixed key order.
// Every key is written every time. Text that is not valid UTF-8 is repaired on the way, so that what is
// written can always be read. Example: {"id":"1B4E…","text":"Buy milk","done":false, … ,"clearedToday":false}
#pragma once

#include <string>
#include <string_view>

#include "model/records.h"

namespace brimle::json {

void appendString(std::string& out, std::string_view text);
void append(std::string& out, const TodoItem& task);
void append(std::string& out, const ArchivedItem& entry);
void append(std::string& out, const ArchiveDay& day);
void append(std::string& out, const ScheduledItem& entry);

/// Appends the elements of a list, separated by commas, without the brackets.
template <class List>
void appendElements(std::string& out, const List& list) {
  bool first = true;
  for (const auto& element : list) {
    if (!first) out += ',';
    first = false;
    append(out, element);
  }
}

/// The text form of a repeat rule.
std::string_view textOf(Schedule schedule);

}  // namespace brimle::json
