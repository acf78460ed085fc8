#include "model/day_file.h"

#include <simdjson.h>

#include <algorithm>
#include <cmath>

#include "model/json_writer.h"

namespace brimle {
namespace {

namespace dom = simdjson::dom;

/// How many records are made room for before they are seen: a file of nonsense can promise millions.
constexpr std::size_t kMostReserved = 1024;

// Readers of one value: true where it has the right type and form. What they read into is then complete.

bool read(dom::element value, std::string& out) {
  std::string_view text;
  if (value.get(text) != simdjson::SUCCESS) return false;
  out = text;
  return true;
}

bool read(dom::element value, bool& out) {
  return value.get(out) == simdjson::SUCCESS;
}

bool read(dom::element value, Uuid& out) {
  std::string_view text;
  if (value.get(text) != simdjson::SUCCESS) return false;
  const auto id = Uuid::parse(text);
  if (id) out = *id;
  return id.has_value();
}

bool read(dom::element value, Schedule& out) {
  std::string_view text;
  if (value.get(text) != simdjson::SUCCESS) return false;
  for (const Schedule schedule : {Schedule::everyDay, Schedule::weekdays}) {
    if (text != json::textOf(schedule)) continue;
    out = schedule;
    return true;
  }
  return false;
}

/// Any integer; one may be written with a fraction of zero or an exponent, as JSON has one kind of number.
bool read(dom::element value, std::optional<std::int64_t>& out) {
  std::int64_t integer;
  if (value.get(integer) == simdjson::SUCCESS) {
    out = integer;
    return true;
  }
  double number;
  if (!value.is<double>() || value.get(number) != simdjson::SUCCESS) return false;
  constexpr double limit = 9223372036854775808.0;
  if (std::trunc(number) != number || number < -limit || number >= limit) return false;
  out = static_cast<std::int64_t>(number);
  return true;
}

bool read(dom::element value, TodoItem& out);
bool read(dom::element value, ArchivedItem& out);
bool read(dom::element value, ArchiveDay& out);
bool read(dom::element value, ScheduledItem& out);

template <class Record>
bool read(dom::element value, std::vector<Record>& out) {
  dom::array array;
  if (value.get(array) != simdjson::SUCCESS) return false;
  out.clear();
  out.reserve(std::min(array.size(), kMostReserved));
  for (const dom::element element : array) {
    if (!read(element, out.emplace_back())) return false;
  }
  return true;
}

/// Calls `field(key, value)` for every field that is not null, which counts as absent. False where the value
/// is no object or a field was refused.
template <class ReadField>
bool readObject(dom::element value, ReadField field) {
  dom::object object;
  if (value.get(object) != simdjson::SUCCESS) return false;
  for (const auto& [key, element] : object) {
    if (!element.is_null() && !field(key, element)) return false;
  }
  return true;
}

// An older key is read only where the current one is absent; elsewhere it is ignored, whatever it holds.

bool readLegacyPinned(const std::optional<dom::element>& pinned, bool hasRepeats, bool& repeats) {
  return hasRepeats || !pinned || read(*pinned, repeats);
}

bool readLegacyNote(const std::optional<dom::element>& note, bool hasNotes, std::vector<std::string>& notes) {
  if (hasNotes || !note) return true;
  std::string text;
  if (!read(*note, text)) return false;
  if (!text.empty()) notes.push_back(std::move(text));
  return true;
}

bool read(dom::element value, TodoItem& out) {
  bool hasId = false, hasText = false, hasRepeats = false, hasNotes = false;
  std::optional<dom::element> legacyPinned, legacyNote;
  const bool sound = readObject(value, [&](std::string_view key, dom::element field) {
    if (key == "id") return hasId = read(field, out.id);
    if (key == "text") return hasText = read(field, out.text);
    if (key == "done") return read(field, out.done);
    if (key == "repeats") return hasRepeats = read(field, out.repeats);
    if (key == "pinned") return legacyPinned = field, true;
    if (key == "pinnedTop") return read(field, out.pinnedTop);
    if (key == "schedule") return read(field, out.schedule);
    if (key == "highlighted") return read(field, out.highlighted);
    if (key == "notes") return hasNotes = read(field, out.notes);
    if (key == "note") return legacyNote = field, true;
    if (key == "clearedToday") return read(field, out.clearedToday);
    return true;
  });
  return sound && hasId && hasText && readLegacyPinned(legacyPinned, hasRepeats, out.repeats) &&
         readLegacyNote(legacyNote, hasNotes, out.notes);
}

bool read(dom::element value, ArchivedItem& out) {
  bool hasId = false, hasText = false, hasNotes = false;
  std::optional<dom::element> legacyNote;
  const bool sound = readObject(value, [&](std::string_view key, dom::element field) {
    if (key == "id") return hasId = read(field, out.id);
    if (key == "text") return hasText = read(field, out.text);
    if (key == "completed") return read(field, out.completed);
    if (key == "notes") return hasNotes = read(field, out.notes);
    if (key == "note") return legacyNote = field, true;
    return true;
  });
  return sound && hasId && hasText && readLegacyNote(legacyNote, hasNotes, out.notes);
}

bool read(dom::element value, ArchiveDay& out) {
  bool hasDate = false, hasItems = false;
  const bool sound = readObject(value, [&](std::string_view key, dom::element field) {
    if (key == "date") return hasDate = read(field, out.date);
    if (key == "items") return hasItems = read(field, out.items);
    return true;
  });
  return sound && hasDate && hasItems;
}

bool read(dom::element value, ScheduledItem& out) {
  bool hasId = false, hasDate = false, hasItem = false;
  const bool sound = readObject(value, [&](std::string_view key, dom::element field) {
    if (key == "id") return hasId = read(field, out.id);
    if (key == "date") return hasDate = read(field, out.date);
    if (key == "item") return hasItem = read(field, out.item = TodoItem());  // nothing of one before it
    return true;
  });
  return sound && hasId && hasDate && hasItem;
}

bool read(dom::element value, DayFile& out) {
  bool hasDate = false, hasItems = false;
  std::vector<ArchiveDay> days;
  const bool sound = readObject(value, [&](std::string_view key, dom::element field) {
    if (key == "version") return read(field, out.version);
    if (key == "date") return hasDate = read(field, out.date);
    if (key == "items") return hasItems = read(field, out.lists.items);
    if (key == "archive") return read(field, days);
    if (key == "tomorrow") return read(field, out.lists.tomorrow);
    if (key == "scheduled") return read(field, out.lists.scheduled);
    return true;
  });
  if (!sound || !hasDate || !hasItems) return false;
  out.lists.archive = Archive(std::move(days));
  return true;
}

}  // namespace

std::optional<DayFile> readDayFile(const std::string& bytes) {
  dom::parser parser;
  dom::element document;
  if (parser.parse(bytes).get(document) != simdjson::SUCCESS) return std::nullopt;
  DayFile file;
  if (!read(document, file)) return std::nullopt;
  return file;
}

EncodedDayFile::EncodedDayFile(const std::string& date, const Lists& lists) {
  head_ = "{\"version\":1,\"date\":";
  json::appendString(head_, date);
  head_ += ",\"items\":[";
  json::appendElements(head_, lists.items);
  head_ += "],\"archive\":[";

  tail_ = "],\"tomorrow\":[";
  json::appendElements(tail_, lists.tomorrow);
  tail_ += "],\"scheduled\":[";
  json::appendElements(tail_, lists.scheduled);
  tail_ += "]}";

  pieces_.push_back(head_);
  lists.archive.appendEncoded(pieces_);
  pieces_.push_back(tail_);
}

}  // namespace brimle
