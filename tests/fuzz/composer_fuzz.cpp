// The colours of the entry field, over any UTF-16, unpaired surrogates included.
#include "views/composer_runs.h"

#include <unicode/unistr.h>

#include "entry/entry.h"
#include "target.h"

namespace brimle {
namespace {

using Text = std::u16string_view;

/// The input's bytes as units: Latin-1, and for the last of them what else could matter, so that a few bytes
/// say much: line breaks, blanks, months in CJK, halves of pairs.
std::u16string unitsOf(std::string_view bytes) {
  static constexpr char16_t others[] = {0x2028, 0x2029, 0x3000, 0x2003, 0x6708, 0xC6D4, 0x65E5, 0xFF1E,
                                        0xD83D, 0xDE00, 0xD800, 0xDFFF, 0x0301, 0x0437, 0xFEFF, 0xFFFF};
  std::u16string units;
  for (const char c : bytes) {
    const auto byte = static_cast<std::uint8_t>(c);
    units += byte >= 0xF0 ? others[byte - 0xF0] : static_cast<char16_t>(byte);
  }
  return units;
}

std::string toUtf8(Text text) {
  std::string bytes;
  icu::UnicodeString(text.data(), static_cast<std::int32_t>(text.size())).toUTF8String(bytes);
  return bytes;
}

bool isDate(const TextRun& run, Text of) {
  return !run.italic && run.ink == TextRun::Ink::secondary && of.starts_with(u" >");
}

void checkRun(const TextRun& run, Text text) {
  require(run.length > 0 && run.start <= text.size() && run.length <= text.size() - run.start,
          "a run lies in the text");
  const Text of = text.substr(run.start, run.length);
  require(!containsNewline(toUtf8(of)), "a run lies in one line");
  if (run.ink == TextRun::Ink::pencilRed) {
    require(of == u"!" && !run.italic, "only the mark that pins is red");
  } else if (run.italic) {
    require(of.front() == u' ' || of.front() == u'\t', "a note begins with its blank");
  } else {
    require(of == u"*" || of == u"*w" || isDate(run, of), "what else is faint repeats or is a date");
  }
}

/// What is coloured in a line is what its entry will have. A line that begins with a blank, or whose task
/// ends on the way to a note, is read otherwise than it is coloured, and so are words within a date.
void checkAgainstEntry(Text line, const std::vector<TextRun>& runs, const EntryContext& context) {
  const std::string bytes = toUtf8(line);
  const std::string_view task = trimmed(std::string_view(bytes).substr(0, bytes.find(" //")));
  if (task.empty() || task.data() != bytes.data() || task.ends_with(" /")) return;
  const auto entry = parseEntry(bytes, context);
  require(entry.has_value(), "such a line is an entry");
  std::size_t date = line.size();
  for (const TextRun& run : runs) {
    const Text of = line.substr(run.start, run.length);
    if (isDate(run, of)) {
      require(entry->sendDate.has_value(), "a faint date sends");
      date = run.start;
    } else if (run.start < date) {
      require(run.ink != TextRun::Ink::pencilRed || entry->item.pinnedTop, "what is red pins");
      require((of != u"*" && of != u"*w") || entry->item.repeats, "a faint star repeats");
    }
  }
}

/// A text of two parts, one above the other, is coloured as the two are.
void checkJoined(Text above, Text below, const EntryContext& context) {
  auto expected = composerRuns(above, context);
  for (TextRun run : composerRuns(below, context)) {
    run.start += above.size() + 1;
    expected.push_back(run);
  }
  require(composerRuns(std::u16string(above) + u'\n' + std::u16string(below), context) == expected,
          "lines do not know each other");
}

}  // namespace
}  // namespace brimle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace brimle;
  Input input(asText(data, size));
  const EntryContext context = takeEntryContext(input);
  const std::u16string text = unitsOf(input.rest());
  const auto runs = composerRuns(text, context);
  std::size_t previous = 0;
  for (const TextRun& run : runs) {
    checkRun(run, text);
    const std::size_t from = std::min(run.start, previous);
    const std::string back = toUtf8(Text(text).substr(from, previous - from));
    require(!containsNewline(back), "the runs of a line come after those of the lines above");
    previous = run.start;
  }
  if (!containsNewline(toUtf8(text))) checkAgainstEntry(text, runs, context);
  const std::size_t middle = text.size() / 2;
  checkJoined(Text(text).substr(0, middle), Text(text).substr(middle), context);
  return 0;
}
