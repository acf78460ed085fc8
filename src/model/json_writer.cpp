#include "model/json_writer.h"

#include <cstdint>
#include <cstring>

#include "base/text.h"

namespace brimle::json {
namespace {

bool isPlain(char c) {
  return static_cast<signed char>(c) >= 0x20 && c != '"' && c != '\\';
}

/// True where all eight bytes are ASCII that stands for itself in a JSON string. The usual tricks on bytes in
/// a word: a byte below 0x20 borrows from its top bit; a byte equal to c becomes zero under xor and borrows
/// from 1.
bool arePlain(const char* eightBytes) {
  constexpr std::uint64_t ones = 0x0101010101010101;
  constexpr std::uint64_t tops = 0x8080808080808080;
  std::uint64_t word;
  std::memcpy(&word, eightBytes, sizeof word);
  const std::uint64_t quotes = word ^ (ones * '"');
  const std::uint64_t slashes = word ^ (ones * '\\');
  return (((word - ones * 0x20) | (quotes - ones) | (slashes - ones) | word) & tops) == 0;
}

/// How many bytes from the start of `text` stand for themselves.
std::size_t plainLength(std::string_view text) {
  std::size_t at = 0;
  while (at + 8 <= text.size() && arePlain(text.data() + at)) at += 8;
  while (at < text.size() && isPlain(text[at])) ++at;
  return at;
}

void appendEscaped(std::string& out, char c) {
  constexpr char digits[] = "0123456789abcdef";
  switch (c) {
    case '"': out += "\\\""; break;
    case '\\': out += "\\\\"; break;
    case '\n': out += "\\n"; break;
    case '\t': out += "\\t"; break;
    case '\r': out += "\\r"; break;
    default:
      out += "\\u00";
      out += digits[(c >> 4) & 0x0F];
      out += digits[c & 0x0F];
  }
}

bool needsEscape(char c) {
  return static_cast<unsigned char>(c) < 0x20 || c == '"' || c == '\\';
}

void appendValidated(std::string& out, std::string_view text) {
  std::size_t copied = 0;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!needsEscape(text[at])) continue;
    out += text.substr(copied, at - copied);
    appendEscaped(out, text[at]);
    copied = at + 1;
  }
  out += text.substr(copied);
}

void appendBoolean(std::string& out, std::string_view key, bool value) {
  out += key;
  out += value ? "true" : "false";
}

void appendId(std::string& out, const Uuid& id) {
  out += "{\"id\":\"";
  const std::size_t at = out.size();
  out.resize(at + 36);
  id.write(out.data() + at);
  out += '"';
}

void appendNotes(std::string& out, const std::vector<std::string>& notes) {
  out += ",\"notes\":[";
  for (std::size_t index = 0; index < notes.size(); ++index) {
    if (index > 0) out += ',';
    appendString(out, notes[index]);
  }
  out += ']';
}

}  // namespace

void appendString(std::string& out, std::string_view text) {
  out += '"';
  const std::size_t plain = plainLength(text);
  out += text.substr(0, plain);
  if (plain < text.size()) {
    const std::string_view rest = text.substr(plain);
    if (isValidUtf8(rest)) {
      appendValidated(out, rest);
    } else {
      appendValidated(out, toValidUtf8(rest));
    }
  }
  out += '"';
}

std::string_view textOf(Schedule schedule) {
  return schedule == Schedule::weekdays ? "weekdays" : "everyDay";
}

void append(std::string& out, const TodoItem& task) {
  appendId(out, task.id);
  out += ",\"text\":";
  appendString(out, task.text);
  appendBoolean(out, ",\"done\":", task.done);
  appendBoolean(out, ",\"repeats\":", task.repeats);
  appendBoolean(out, ",\"pinnedTop\":", task.pinnedTop);
  out += ",\"schedule\":\"";
  out += textOf(task.schedule);
  out += '"';
  appendBoolean(out, ",\"highlighted\":", task.highlighted);
  appendNotes(out, task.notes);
  appendBoolean(out, ",\"clearedToday\":", task.clearedToday);
  out += '}';
}

void append(std::string& out, const ArchivedItem& entry) {
  appendId(out, entry.id);
  out += ",\"text\":";
  appendString(out, entry.text);
  appendBoolean(out, ",\"completed\":", entry.completed);
  appendNotes(out, entry.notes);
  out += '}';
}

void append(std::string& out, const ArchiveDay& day) {
  out += "{\"date\":";
  appendString(out, day.date);
  out += ",\"items\":[";
  appendElements(out, day.items);
  out += "]}";
}

void append(std::string& out, const ScheduledItem& entry) {
  appendId(out, entry.id);
  out += ",\"date\":";
  appendString(out, entry.date);
  out += ",\"item\":";
  append(out, entry.item);
  out += '}';
}

}  // namespace brimle::json
