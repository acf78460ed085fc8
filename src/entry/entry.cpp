#include "entry/entry.h"

#include "base/text.h"
#include "entry/date_token.h"

namespace brimle {
namespace {

constexpr std::string_view kNoteSeparator = " //";
constexpr std::string_view kStraySlash = " /";

struct Marker {
  std::string_view suffix;
  void (*apply)(TodoItem&);
};

constexpr Marker kMarkers[] = {
    {" !", [](TodoItem& task) { task.pinnedTop = true; }},
    {" *", [](TodoItem& task) { task.repeats = true; }},
    {" *w",
     [](TodoItem& task) {
       task.repeats = true;
       task.schedule = Schedule::weekdays;
     }},
};

/// Removes `suffix` and the whitespace before it; false, and `text` as it was, where it does not end so.
bool takeSuffix(std::string_view& text, std::string_view suffix) {
  if (!text.ends_with(suffix)) return false;
  text = trimmed(text.substr(0, text.size() - suffix.size()));
  return true;
}

/// Takes what stands before the next note separator off the front of `line`, together with the separator.
std::string_view takePiece(std::string_view& line) {
  const std::size_t at = line.find(kNoteSeparator);
  const std::string_view piece = line.substr(0, at);
  line.remove_prefix(at == std::string_view::npos ? line.size() : at + kNoteSeparator.size());
  return trimmed(piece);
}

std::vector<std::string> readNotes(std::string_view pieces) {
  std::vector<std::string> notes;
  while (!pieces.empty() && notes.size() < kMostNotes) {
    if (const auto note = takePiece(pieces); !note.empty()) notes.emplace_back(note);
  }
  return notes;
}

/// Takes one marker of any kind off the end of `text` and applies it.
bool takeMarker(std::string_view& text, TodoItem& task) {
  for (const auto& [suffix, apply] : kMarkers) {
    if (!takeSuffix(text, suffix)) continue;
    apply(task);
    return true;
  }
  return false;
}

}  // namespace

std::optional<Entry> parseEntry(std::string_view line, const EntryContext& context) {
  line = trimmedLines(line);
  if (line.empty()) return std::nullopt;
  Entry entry;
  std::string_view text = takePiece(line);
  entry.item.notes = readNotes(line);
  takeSuffix(text, kStraySlash);
  if (const auto dated = extractDateToken(text, context)) {
    text = dated->text;
    entry.sendDate = dayKey(dated->day);
    entry.item.pinnedTop = true;  // it arrives at the top of its day
  }
  while (takeMarker(text, entry.item)) continue;
  entry.item.id = Uuid::random();
  entry.item.text = text;
  return entry;
}

}  // namespace brimle
