// The day file. The input is a document, read as one; and again it is what records are built from, whose
// texts are any bytes.
#include "../model/notation.h"
#include "model/day_file.h"
#include "target.h"

namespace brimle {
namespace {

std::string encoded(const std::string& date, const Lists& lists) {
  std::string bytes;
  const EncodedDayFile file(date, lists);
  for (const auto piece : file.pieces()) bytes += piece;
  return bytes;
}

/// Writes what was read, or built, and reads it again. `cut` is how much of a document a lost write leaves,
/// in parts of 256.
void checkRoundTrip(const std::string& date, const Lists& lists, std::size_t cut) {
  const std::string bytes = encoded(date, lists);
  const auto again = readDayFile(bytes);
  require(again.has_value(), "what is written can be read");
  require(again->version == 1 && again->date == date && again->lists == lists,
          "it reads as what was written");
  require(encoded(again->date, again->lists) == bytes, "to the byte");
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

/// Builds lists from the input, their texts repaired or as they come; the same input gives the same lists.
class Builder {
 public:
  Builder(std::string_view bytes, bool repairs) : input_(bytes), repairs_(repairs) {}

  std::string text() { return repairs_ ? toValidUtf8(input_.text()) : input_.text(); }

  Lists lists() {
    Lists lists{list(&Builder::task), {}, list(&Builder::task), list(&Builder::scheduled)};
    // More than the archive puts into one block, now and then.
    lists.archive = Archive(list(&Builder::day, 80));
    return lists;
  }

 private:
  template <class Record>
  std::vector<Record> list(Record (Builder::*next)(), std::size_t fewer = 4) {
    std::vector<Record> list(input_.byte() % fewer);
    for (Record& record : list) record = (this->*next)();
    return list;
  }

  Uuid id() { return {{input_.byte(), 0xAB, input_.byte()}}; }
  std::vector<std::string> notes() {
    std::vector<std::string> notes(input_.byte() % 3);
    for (std::string& note : notes) note = text();
    return notes;
  }

  TodoItem task() {
    TodoItem task;
    task.id = id();
    task.text = text();
    task.done = input_.flag();
    task.repeats = input_.flag();
    task.pinnedTop = input_.flag();
    task.schedule = input_.flag() ? Schedule::weekdays : Schedule::everyDay;
    task.highlighted = input_.flag();
    task.notes = notes();
    task.clearedToday = input_.flag();
    return task;
  }
  ArchivedItem archived() { return {id(), text(), input_.flag(), notes()}; }
  ArchiveDay day() { return {text(), list(&Builder::archived)}; }
  ScheduledItem scheduled() { return {id(), text(), task()}; }

  Input input_;
  bool repairs_;
};

void checkWriting(std::string_view bytes, std::size_t cut) {
  Builder asTheyCome(bytes, false);
  Builder repaired(bytes, true);
  const std::string date = asTheyCome.text();
  const std::string repairedDate = repaired.text();
  const Lists lists = repaired.lists();
  require(encoded(date, asTheyCome.lists()) == encoded(repairedDate, lists),
          "bytes that are no text are repaired");
  checkRoundTrip(repairedDate, lists, cut);
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
