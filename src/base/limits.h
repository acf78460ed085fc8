// Bounds that keep the program alive whatever a file or a clipboard holds.
#pragma once

#include <cstddef>

namespace brimle {

/// More than this many bytes of one text are not laid out, typed or pasted into a field; text layout takes
/// time that grows with the length.
inline constexpr std::size_t kLongestShown = 16 * 1024;

}  // namespace brimle
