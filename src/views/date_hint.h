// The hint beside a text that is being edited: the day its date token means.
#pragma once

#include <string>
#include <string_view>

#include "entry/entry_context.h"

namespace brimle {

/// "→ Sat, 20 Jun 2026" where the text ends in a date token; else empty.
std::string dateHint(std::string_view text, const EntryContext& context);

}  // namespace brimle
