// Where the main window goes and how large it becomes: folding, unfolding, the preset sizes, and what keeps
// it on the screen. Pure: a frame in, a frame out. Every change of size keeps the top left corner.
#pragma once

#include <optional>

#include "base/rect.h"
#include "views/window_measures.h"

namespace brimle {

Rect folded(const Rect& frame);
/// The height to return to is raised to the least one.
Rect unfolded(const Rect& frame, double expandedHeight);
Rect resized(const Rect& frame, Size size);

/// Moves and shrinks a frame as far as it takes to lie within `visible`, the part of the screen that panels
/// leave free; where it cannot reach both, the left and the top edge win. Unchanged where there is no screen.
Rect constrainToScreen(const Rect& frame, const std::optional<Rect>& visible);

}  // namespace brimle
