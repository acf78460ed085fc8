// Web addresses in any bytes.
#include "target.h"
#include "views/web_link.h"

namespace brimle {
namespace {

void checkAddress(std::string_view address, std::string_view text) {
  const std::string lower = folded(address.substr(0, 8));
  require(lower.starts_with("https://") || lower.starts_with("http://"), "an address says how to get there");
  const std::string_view typed = text.find(address) == text.npos ? address.substr(8) : address;
  require(text.find(typed) != text.npos, "an address stands in the text, with https before a bare www");
  require(isValidUtf8(address), "an address is text");
  require(address.find_first_of(" \t\n\r\"") == address.npos, "an address has no blanks and quotation marks");
  require(std::string_view(".,;:!?'").find(address.back()) == std::string_view::npos,
          "an address does not end as a sentence does");
  require(firstWebLink(address) == address, "an address is its own");
}

}  // namespace
}  // namespace brimle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace brimle;
  const auto text = asText(data, size);
  const auto address = firstWebLink(text);
  if (address) checkAddress(*address, text);
  const std::string further = std::string(text) + " see http://a.example.";
  require(firstWebLink(further) == address.value_or("http://a.example"), "the first address is the one");
  return 0;
}
