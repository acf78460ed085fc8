#include "model/stored_day.h"

#include <utility>

namespace brimle {

Path dayFileIn(const Path& dataFolder) {
  return dataFolder / "today.json";
}

StoredDay readStoredDay(const Files& files, const Path& dataFolder) {
  auto bytes = files.read(dayFileIn(dataFolder));
  auto file = bytes ? readDayFile(*bytes) : std::nullopt;
  return {std::move(bytes), std::move(file)};
}

}  // namespace brimle
