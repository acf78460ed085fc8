#include "views/row_text.h"

namespace brimle {
namespace {

bool continuesCharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

}  // namespace

std::string shownText(std::string_view text) {
  if (isShownWhole(text)) return std::string(text);
  std::size_t length = kLongestShown;
  while (length > 0 && continuesCharacter(text[length])) --length;
  return std::string(text.substr(0, length)) + "…";
}

}  // namespace brimle
