// What a data folder holds when the program starts. Reading it depends on nothing but the file, so that it
// can be done beside other work; the store then takes it over.
#pragma once

#include <optional>
#include <string>

#include "model/day_file.h"
#include "platform/files.h"

namespace brimle {

struct StoredDay {
  std::optional<std::string> bytes;  ///< of the day file; none where there is no file that can be read
  std::optional<DayFile> file;       ///< none where they are no document
};

/// Where the day file is.
Path dayFileIn(const Path& dataFolder);

/// Reads the day file of a folder. May be called on another thread where `files` may.
StoredDay readStoredDay(const Files& files, const Path& dataFolder);

}  // namespace brimle
