// Bounds that keep the program alive whatever a file or a clipboard holds.
#pragma once

#include <cstddef>
#include <string_view>

namespace brimle {

/// More than this many bytes of one text are not laid out, typed or pasted into a field; text layout takes
/// time that grows with the length.
inline constexpr std::size_t kLongestShown = 16 * 1024;

/// A text that is not shown whole is not edited in place either: what the field lacks would be lost.
inline bool isShownWhole(std::string_view text) {
  return text.size() <= kLongestShown;
}

}  // namespace brimle
