// What a row shows of a text: all of it, unless it is longer than anybody can read in a list.
#pragma once

#include <string>
#include <string_view>

namespace brimle {

/// More than this many bytes of one text are not laid out, typed or pasted into a field; text layout takes time
/// that grows with the length, and the window must stay alive whatever a file or a clipboard holds.
inline constexpr std::size_t kLongestShown = 16 * 1024;

/// The text, or its first kLongestShown bytes to a whole character and an ellipsis.
std::string shownText(std::string_view text);

}  // namespace brimle
