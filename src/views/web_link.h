// The first web address in a text: what begins with http://, https:// or www., up to the next space,
// quotation mark or full-width punctuation, without what ends a sentence or a bracket that was opened before
// it. Nothing else is a link. Example: in "read (https://example.org/a_(b))." it is
// "https://example.org/a_(b)".
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brimle {

/// The address ready to be opened ("https://" put before a bare www.), or nothing.
std::optional<std::string> firstWebLink(std::string_view text);

}  // namespace brimle
