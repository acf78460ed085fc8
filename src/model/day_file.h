// The day file: all task data as one JSON document, and back.
//
// Reading takes bytes and gives the whole document or nothing: one bad record anywhere rejects the file. It
// takes keys in any order, ignores unknown ones, and reads two keys of older files: "pinned" for "repeats",
// "note" for "notes". Writing gives the pieces of the document in order. The codec touches no file and no
// other state.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/archive.h"
#include "model/records.h"

namespace brimle {

/// The four lists of a user: all task data there is.
struct Lists {
  std::vector<TodoItem> items;
  Archive archive;
  std::vector<TodoItem> tomorrow;
  std::vector<ScheduledItem> scheduled;

  bool operator==(const Lists&) const = default;
};

struct DayFile {
  std::optional<std::int64_t> version;
  std::string date;  ///< day key of the day that `lists.items` belongs to
  Lists lists;
};

/// Reads a document of any size. No copy of the bytes is made where the string has 64 bytes of spare
/// capacity.
std::optional<DayFile> readDayFile(const std::string& bytes);

/// A document ready to be written: pieces in order. It views the archive it was made from, which must outlive
/// it.
class EncodedDayFile {
 public:
  EncodedDayFile(const std::string& date, const Lists& lists);
  EncodedDayFile(const EncodedDayFile&) = delete;
  EncodedDayFile& operator=(const EncodedDayFile&) = delete;

  std::span<const std::string_view> pieces() const { return pieces_; }

 private:
  std::string head_;
  std::string tail_;
  std::vector<std::string_view> pieces_;
};

}  // namespace brimle
