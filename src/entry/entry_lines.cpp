// A block of text becomes entries: bullets are taken off, indented lines become notes.
#include "base/text.h"
#include "entry/entry.h"

namespace brimle {
namespace {

/// In the order they are tried. The circle and the check mark are those of a day copied as text.
constexpr std::string_view kBullets[] = {"- ", "* ", "• ", "○ ", "✓ ", "[ ] ", "[x] "};

std::string_view withoutBullet(std::string_view line) {
  for (const auto bullet : kBullets) {
    if (line.starts_with(bullet)) return line.substr(bullet.size());
  }
  return line;
}

void addNote(TodoItem& task, std::string_view note) {
  if (task.notes.size() < kMostNotes) task.notes.emplace_back(note);
}

}  // namespace

std::vector<Entry> parseLines(std::string_view text, const EntryContext& context) {
  std::vector<Entry> entries;
  for (const auto line : splitLines(text)) {
    const bool indented = line.starts_with(' ') || line.starts_with('\t');
    const std::string_view content = withoutBullet(trimmed(line));
    if (content.empty()) continue;
    if (indented && !entries.empty()) {
      addNote(entries.back().item, content);
    } else if (auto entry = parseEntry(content, context)) {
      entries.push_back(std::move(*entry));
    }
  }
  return entries;
}

}  // namespace brimle
