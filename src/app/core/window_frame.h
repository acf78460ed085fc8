// The main window's frame as it is kept in the settings: x, y, width and height in points, with a blank
// between. Example: "1200 64.5 300 400"
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "base/rect.h"

namespace brimle {

inline constexpr std::string_view kFrameKey = "NSWindow Frame TodayWindow";

std::string frameText(const Rect& frame);

/// Reads any bytes; nothing where they are of another form or name no place that a desktop could have.
std::optional<Rect> readFrame(std::string_view text);

/// Brings a frame that lies on none of the screens onto the first of them, and one that is larger than all of
/// them together onto one that it touches. Unchanged where there is no screen.
Rect ontoAScreen(const Rect& frame, std::span<const Rect> screens);

}  // namespace brimle
