// What a row shows of a text: all of it, unless it is longer than anybody can read in a list.
#pragma once

#include <string>
#include <string_view>

#include "base/limits.h"

namespace brimle {

/// The text, or its first kLongestShown bytes to a whole character and an ellipsis.
std::string shownText(std::string_view text);

}  // namespace brimle
