// The day as plain text, for the clipboard: a heading, the tasks with a mark each, their notes indented.
// Pasted back as tasks it gives them again.
#include "i18n/dates.h"
#include "model/store.h"

namespace brimle {
namespace {

constexpr std::string_view kOpen = "○ ";
constexpr std::string_view kTicked = "✓ ";
constexpr std::string_view kIndent = "   ";

void appendLine(std::string& text, std::string_view mark, std::string_view line) {
  text += '\n';
  text += mark;
  text += line;
}

template <class Record>
void appendTask(std::string& text, std::string_view mark, const Record& record) {
  appendLine(text, mark, record.text);
  for (const std::string& note : record.notes) {
    if (!note.empty()) appendLine(text, kIndent, note);
  }
}

}  // namespace

std::string Store::dayAsText() const {
  std::string text = formatDay(time_.today(), "EEEEdMMMM");
  for (const TodoItem* task : visibleItems()) appendTask(text, task->done ? kTicked : kOpen, *task);
  if (!archive().empty() && archive().front().date == storedDate_) {
    for (const ArchivedItem& entry : archive().front().items) {
      if (entry.completed) appendTask(text, kTicked, entry);
    }
  }
  return text;
}

}  // namespace brimle
