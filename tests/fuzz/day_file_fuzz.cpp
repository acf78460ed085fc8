// The day file. The input is a document, read as one; and again it is lists in the notation of the tests,
// whose texts are any bytes.
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
  const std::string exact(document);
  std::string roomy;
  roomy.reserve(document.size() + 64);
  roomy = document;
  const auto file = readDayFile(exact);
  const auto inPlace = readDayFile(roomy);
  require(file.has_value() == inPlace.has_value(), "spare capacity decides nothing");
  if (!file) return;
  require(file->lists == inPlace->lists && file->date == inPlace->date, "spare capacity changes nothing");
  require(isValidUtf8(file->date + shown(file->lists)), "what is read is UTF-8");
  checkRoundTrip(file->date, file->lists, cut);
}

/// The lists in the notation of the tests; without what tells how an identity came about.
std::string plain(const Lists& lists) {
  std::string text = toValidUtf8(shown(lists));
  std::erase(text, '\'');
  return text;
}

void checkWriting(std::string_view bytes, std::size_t cut) {
  const Lists built = lists(bytes);
  const auto written = readDayFile(document(built, bytes.substr(0, 20)));
  require(written.has_value(), "any bytes can be written");
  require(plain(written->lists) == plain(built), "bytes that are no text are repaired, and no others");
  checkRoundTrip(written->date, written->lists, cut);
}

}  // namespace
}  // namespace brimle

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto bytes = brimle::asText(data, size);
  const std::size_t cut = size == 0 ? 0 : data[size - 1];
  brimle::checkReading(bytes, cut);
  brimle::checkWriting(bytes, cut);
  return 0;
}
