// The sizes of the main window, in points: what the rules of its frame and its views agree on.
#pragma once

#include "base/rect.h"

namespace brimle {

/// Folded, the window is its header.
inline constexpr double kFoldedHeight = 34;
/// The least while it is not folded.
inline constexpr Size kLeastSize{230, 200};

inline constexpr Size kCompactSize{240, 280};
inline constexpr Size kRegularSize{300, 400};
inline constexpr Size kLargeSize{400, 600};

}  // namespace brimle
