// The texts of archived entries in the form that a search compares: composed, case-folded, in one run of
// bytes. Built once for a block of days and shared as long as the block does not change; finding is a search
// for bytes.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/records.h"

namespace brimle {

class FoldedEntries {
 public:
  void add(const ArchivedItem& entry);
  /// Adds entries of another run as they are: `count` of them from `first` on.
  void add(const FoldedEntries& other, std::size_t first, std::size_t count);

  std::string_view bytes() const { return bytes_; }

  /// Appends the ids of the entries of which the text or a note contains `query`, which is folded and not
  /// empty. A match ends between characters: "e" is not found in an e that carries a mark.
  void find(std::string_view query, std::vector<Uuid>& matches) const;

 private:
  std::size_t begin(std::size_t entry) const { return entry == 0 ? 0 : ends_[entry - 1]; }

  std::string bytes_;
  std::vector<std::uint32_t> ends_;  ///< where each entry ends in `bytes_`
  std::vector<Uuid> ids_;  ///< here, and not only in the records, so that a search reads them in a row
};

}  // namespace brimle
