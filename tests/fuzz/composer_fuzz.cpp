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

void checkRun(const TextRun& run, Text text) {
  require(run.length > 0 && run.start <= text.size() && run.length <= text.size() - run.start,
          "a run lies in the text");
  const Text of = text.substr(run.start, run.length);
  require(!containsNewline(toUtf8(of)), "a run lies in one line");
  require((run.ink == TextRun::Ink::pencilRed) == (of == u"!"),
          "the mark that pins is red, and nothing else");
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
    if (!run.italic && of.starts_with(u" >")) {
      require(entry->sendDate.has_value(), "a faint date sends");
      date = run.start;
    } else if (run.start < date) {
      require(run.ink != TextRun::Ink::pencilRed || entry->item.pinnedTop, "what is red pins");
      require((of != u"*" && of != u"*w") || entry->item.repeats, "a faint star repeats");
    }
  }
}

}  // namespace
}  // namespace brimle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace brimle;
  std::string_view input = asText(data, size);
  const EntryContext context = takeEntryContext(input);
  const std::u16string text = unitsOf(input);
  const auto runs = composerRuns(text, context);
  for (const TextRun& run : runs) checkRun(run, text);
  if (!containsNewline(toUtf8(text))) checkAgainstEntry(text, runs, context);
  return 0;
}
