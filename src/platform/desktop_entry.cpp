#include "platform/desktop_entry.h"

#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include "base/escape.h"

namespace brimle {
namespace {

constexpr std::string_view kGroup = "[Desktop Entry]";
constexpr std::string_view kBlanks = " \t\r";
/// An argument with one of these has to be quoted.
constexpr std::string_view kReserved = " \t\n\"'\\><~|&;$*?#()`";
/// These need a backslash between quotes.
constexpr std::string_view kEscapedInQuotes = "\"`$\\";

/// What stands for a character in any value. The space needs it at the beginning alone, where none of ours
/// is.
constexpr std::array kEscapes{Escape{' ', 's'}, Escape{'\n', 'n'}, Escape{'\t', 't'}, Escape{'\r', 'r'},
                              Escape{'\\', '\\'}};

std::string_view trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
  return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

using Lines = std::vector<std::string_view>;

Lines linesOf(std::string_view text) {
  Lines lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    lines.push_back(text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

/// The lines of the group, without its heading and the empty ones at its end; [0, 0) where there is none.
struct Range {
  std::size_t first = 0, end = 0;
};

Range groupIn(const Lines& lines) {
  const auto heading =
      std::ranges::find_if(lines, [](std::string_view line) { return trimmed(line) == kGroup; });
  if (heading == lines.end()) return {};
  auto end =
      std::find_if(heading + 1, lines.end(), [](std::string_view line) { return line.starts_with('['); });
  while (trimmed(*(end - 1)).empty()) --end;
  return {static_cast<std::size_t>(heading + 1 - lines.begin()),
          static_cast<std::size_t>(end - lines.begin())};
}

/// The value in a line with that key; nothing in any other.
std::optional<std::string_view> valueIn(std::string_view line, std::string_view key) {
  const std::size_t equals = line.find('=');
  if (equals == line.npos || trimmed(line.substr(0, equals)) != key) return std::nullopt;
  return trimmed(line.substr(equals + 1));
}

/// The first argument of a command line.
std::optional<std::string> firstArgument(std::string_view line) {
  line = trimmed(line);
  if (!line.starts_with('"')) return std::string(line.substr(0, line.find(' ')));
  std::string argument;
  for (std::size_t i = 1; i < line.size(); ++i) {
    if (line[i] == '"') return argument;
    if (line[i] == '\\' && ++i == line.size()) return std::nullopt;
    argument += line[i];
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> entryValue(std::string_view text, std::string_view key) {
  const Lines lines = linesOf(text);
  const Range group = groupIn(lines);
  std::optional<std::string> value;
  for (std::size_t i = group.first; i < group.end; ++i) {
    if (const auto found = valueIn(lines[i], key)) value = *found;
  }
  return value;
}

std::string withEntryValue(std::string_view text, std::string_view key,
                           const std::optional<std::string>& value) {
  Lines lines = linesOf(text);
  Range group = groupIn(lines);
  if (group.first == 0) {
    lines = {kGroup};
    group = {1, 1};
  }
  std::optional<std::size_t> place;  // of the new line
  for (std::size_t i = group.end; i-- > group.first;) {
    if (!valueIn(lines[i], key)) continue;
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(i));
    --group.end;
    place = i;
  }
  const std::string line = std::string(key) + '=' + value.value_or("");
  if (value) lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(place.value_or(group.end)), line);
  std::string result;
  for (const std::string_view kept : lines) (result += kept) += '\n';
  return result;
}

std::string execValue(std::string_view program) {
  std::string argument;
  for (const char c : program) {
    if (kEscapedInQuotes.find(c) != kEscapedInQuotes.npos) argument += '\\';
    argument += c;
    if (c == '%') argument += '%';  // alone it stands for a file or a name
  }
  if (program.empty() || program.find_first_of(kReserved) != program.npos) argument = '"' + argument + '"';
  return escaped(argument, std::span(kEscapes).subspan(1));
}

std::optional<std::string> programOfExec(std::string_view exec) {
  const auto line = unescaped(exec, kEscapes);
  const auto argument = line ? firstArgument(*line) : std::nullopt;
  if (!argument) return std::nullopt;
  std::string program;
  for (std::size_t i = 0; i < argument->size(); ++i) {
    program += (*argument)[i];
    if ((*argument)[i] == '%' && argument->compare(i + 1, 1, "%") == 0) ++i;
  }
  return program.empty() ? std::nullopt : std::optional(program);
}

}  // namespace brimle
