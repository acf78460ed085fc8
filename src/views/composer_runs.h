// How the entry field colours the entry language while it is typed: a pure function of the text, the day and
// the region. Example: in "buy milk ! // oat" the "!" is red and " // oat" is faint and slanted.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "entry/entry_context.h"

namespace brimle {

/// A stretch of text that does not look like the rest, which has the label colour and the upright font.
struct TextRun {
  enum class Ink { secondary, pencilRed };

  std::size_t start;   ///< in UTF-16 units
  std::size_t length;  ///< in UTF-16 units
  Ink ink;
  bool italic;

  bool operator==(const TextRun&) const = default;
};

/// The runs of a text of any number of lines; where two overlap, the later one counts.
std::vector<TextRun> composerRuns(std::u16string_view text, const EntryContext& context);

}  // namespace brimle
