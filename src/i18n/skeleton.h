// The one place where a CLDR skeleton becomes a date pattern.
// Example: bestPattern(icu::Locale("de_DE"), "dM") is "d.M.". Making one costs ICU a millisecond or so:
// callers that ask often keep the answer.
#pragma once

#include <unicode/locid.h>
#include <unicode/unistr.h>

#include <string_view>

namespace brimle {

/// The locale's preferred pattern for a skeleton in ASCII (UTS #35); empty where ICU has no data to make one
/// from.
icu::UnicodeString bestPattern(const icu::Locale& locale, std::string_view skeleton);

}  // namespace brimle
