// The mail link that feedback is sent by.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brimle {

/// A link that opens a new message to `address`; nothing where that is no mail address.
std::optional<std::string> feedbackLink(std::string_view address);

}  // namespace brimle
