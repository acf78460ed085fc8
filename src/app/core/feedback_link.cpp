#include "app/core/feedback_link.h"

#include <algorithm>

namespace brimle {
namespace {

/// What may stand in an address and needs no escape in a link.
constexpr std::string_view kAddressCharacters =
    "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789!$'*+-./=_~@";

bool isAddress(std::string_view text) {
  return std::ranges::count(text, '@') == 1 && !text.starts_with('@') && !text.ends_with('@') &&
         text.find_first_not_of(kAddressCharacters) == text.npos;
}

}  // namespace

std::optional<std::string> feedbackLink(std::string_view address) {
  if (!isAddress(address)) return std::nullopt;
  return "mailto:" + std::string(address) + "?subject=Brimle%20feedback";
}

}  // namespace brimle
