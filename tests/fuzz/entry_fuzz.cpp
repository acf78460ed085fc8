// The entry language: any bytes as a block of lines, as one line and as a date token, on several days and in
// several regions and languages.
#include "entry/entry.h"

#include "entry/date_token.h"
#include "target.h"

namespace brimle {
namespace {

bool isPieceOf(std::string_view whole, std::string_view piece) {
  return !piece.empty() && whole.find(piece) != whole.npos && (isValidUtf8(piece) || !isValidUtf8(whole));
}

/// Where each entry comes from is known to the byte: nothing is ever invented or cut within a character.
void checkEntry(const Entry& entry, std::string_view source, const EntryContext& context) {
  const TodoItem& task = entry.item;
  require(isPieceOf(source, task.text) && task.text == trimmed(task.text), "the text is a trimmed piece");
  require(task.notes.size() <= kMostNotes, "there are no more notes than are kept");
  for (const auto& note : task.notes) require(isPieceOf(source, note), "a note is a piece");
  require(!task.done && !task.highlighted && !task.clearedToday, "a new task was not touched");
  if (!entry.sendDate) return;
  const auto day = parseDay(*entry.sendDate);
  require(day && dayKey(*day) == *entry.sendDate && *day > context.today, "it is sent to a later day");
  require(task.pinnedTop, "what is sent arrives pinned");
}

void checkLine(std::string_view line, const EntryContext& context) {
  const auto entry = parseEntry(line, context);
  require(entry.has_value() == !trimmedLines(line).empty(), "every line but a blank one is an entry");
  if (!entry) return;
  checkEntry(*entry, line, context);
  require(trimmedLines(line).starts_with(entry->item.text), "the text is the line's beginning");
}

void checkBlock(std::string_view text, const EntryContext& context) {
  const auto entries = parseLines(text, context);
  require(entries.size() <= splitLines(text).size(), "a line is one entry at most");
  for (const Entry& entry : entries) {
    checkEntry(entry, text, context);
    require(!containsNewline(entry.item.text), "a task is one line");
    require(std::ranges::none_of(entry.item.notes, containsNewline), "a note is one line");
  }
}

void checkToken(std::string_view token, const EntryContext& context) {
  const auto day = parseDateToken(token, context);
  require(parseDateToken("\t " + std::string(token) + "\u3000", context) == day,
          "blanks around do not count");
  if (!day) return;
  require(day->ok() && *day > context.today && day->year() <= std::chrono::year(9999), "it is a later day");
  require(parseDateToken(dayKey(*day), context) == day, "its key is a token for it");
  const std::string text = "milk >" + std::string(token);
  const auto dated = extractDateToken(text, context);
  require(token.find(" >") != token.npos || (dated && dated->text == "milk" && dated->day == *day),
          "a token is found at the end of a text");
}

}  // namespace
}  // namespace brimle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace brimle;
  std::string_view text = asText(data, size);
  const EntryContext context = takeEntryContext(text);
  checkBlock(text, context);
  for (const auto line : splitLines(text)) {
    checkLine(line, context);
    const std::size_t sign = line.rfind('>');
    checkToken(line.substr(sign == line.npos ? 0 : sign + 1), context);
  }
  return 0;
}
