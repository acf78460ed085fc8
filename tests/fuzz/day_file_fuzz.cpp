// The day file: what is read from any document, and written again.
#include "../model/notation.h"
#include "model/day_file.h"
#include "target.h"

namespace brimle {
namespace {

/// Writes what was read, or built, and reads it again. `cut` is how much of a document a lost write leaves,
/// in parts of 256.
void checkRoundTrip(const std::string& date, const Lists& lists, std::size_t cut) {
  const std::string bytes = document(lists, date);
  const auto again = readDayFile(bytes);
  require(again.has_value(), "what is written can be read");
  require(again->version == 1 && again->date == dateOf(date) && again->lists == lists,
          "it reads as what was written");
  require(document(again->lists, again->date) == bytes, "to the byte");
  require(!readDayFile(bytes.substr(0, bytes.size() * cut / 256)), "a part of a document is none");
}

void checkReading(std::string_view document, std::size_t cut) {
  std::string roomy;
  roomy.reserve(document.size() + 64);
  roomy = document;
  const auto file = readDayFile(std::string(document)), inPlace = readDayFile(roomy);
  require(file.has_value() == inPlace.has_value(), "spare capacity decides nothing");
  if (!file) return;
  require(file->lists == inPlace->lists && file->date == inPlace->date, "spare capacity changes nothing");
  require(isValidUtf8(file->date + shown(file->lists)), "what is read is UTF-8");
  checkRoundTrip(file->date, file->lists, cut);
}

}  // namespace
}  // namespace brimle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  brimle::checkReading(brimle::asText(data, size), size == 0 ? 0 : data[size - 1]);
  return 0;
}
