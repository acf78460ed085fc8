#include "views/composer_runs.h"

#include <unicode/unistr.h>

#include <cstdint>
#include <string>

#include "base/text.h"
#include "entry/date_token.h"

namespace brimle {
namespace {

using Text = std::u16string_view;
using Ink = TextRun::Ink;

constexpr std::size_t kNone = Text::npos;

std::string toUtf8(Text text) {
  std::string bytes;
  icu::UnicodeString(false, text.data(), static_cast<std::int32_t>(text.size())).toUTF8String(bytes);
  return bytes;
}

/// Colours one line, which stands at `start` in the whole text.
class LineStyler {
 public:
  LineStyler(Text line, std::size_t start, const EntryContext& context, std::vector<TextRun>& runs)
      : line_(line), start_(start), context_(context), runs_(runs) {}

  void style() {
    if (line_.empty()) return;
    if (line_.front() == u' ' || line_.front() == u'\t') return add(0, line_.size(), Ink::secondary, true);
    const std::size_t note = line_.find(u" //");
    const std::size_t taskEnd = note == kNone ? line_.size() : note;
    const std::size_t date = styleDate(taskEnd);
    if (note != kNone) {
      add(note, line_.size(), Ink::secondary, true);
      styleMarkers(note);
    } else if (line_.ends_with(u" /")) {
      // On the way to typing a note.
      add(line_.size() - 2, line_.size(), Ink::secondary, true);
      styleMarkers(line_.size() - 2);
    } else {
      styleMarkers(date == kNone ? line_.size() : date);
    }
  }

 private:
  void add(std::size_t from, std::size_t to, Ink ink, bool italic) {
    runs_.push_back({start_ + from, to - from, ink, italic});
  }

  /// Where an accepted date token of the task begins, its sign and the space before it included.
  std::size_t styleDate(std::size_t taskEnd) {
    const std::size_t sign = line_.substr(0, taskEnd).rfind(u" >");
    if (sign == kNone) return kNone;
    if (!parseDateToken(toUtf8(line_.substr(sign + 2, taskEnd - sign - 2)), context_)) return kNone;
    add(sign, taskEnd, Ink::secondary, false);
    return sign;
  }

  /// The markers are the last words before `end`; the first word of a line is none.
  void styleMarkers(std::size_t end) {
    for (;;) {
      while (end > 0 && line_[end - 1] == u' ') --end;
      const std::size_t space = end == 0 ? kNone : line_.rfind(u' ', end - 1);
      if (space == kNone) return;
      const Text word = line_.substr(space + 1, end - space - 1);
      if (word != u"!" && word != u"*" && word != u"*w") return;
      add(space + 1, end, word == u"!" ? Ink::pencilRed : Ink::secondary, false);
      end = space;
    }
  }

  const Text line_;
  const std::size_t start_;
  const EntryContext& context_;
  std::vector<TextRun>& runs_;
};

}  // namespace

std::vector<TextRun> composerRuns(Text text, const EntryContext& context) {
  std::vector<TextRun> runs;
  for (std::size_t from = 0; from < text.size();) {
    std::size_t end = from;
    while (end < text.size() && !isNewline(text[end])) ++end;
    LineStyler(text.substr(from, end - from), from, context, runs).style();
    from = end + 1;
  }
  return runs;
}

}  // namespace brimle
