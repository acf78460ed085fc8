// How one list of rows becomes another: removals, insertions and moves, so that a view can animate the rows
// that change and keep the others.
#pragma once

#include <cstddef>
#include <vector>

#include "base/uuid.h"

namespace brimle {

/// One step. Steps apply in order, each to the list as the steps before it left it.
struct RowChange {
  enum class Kind { remove, insert, move };

  Kind kind;
  std::size_t at;     ///< first row removed or inserted; where a moved row stood
  std::size_t count;  ///< how many rows are removed or inserted; 1 for a move
  std::size_t to;  ///< where a moved row stands afterwards; for an insertion, its first row in the new list

  bool operator==(const RowChange&) const = default;
};

/// The steps from `before` to `after`. Where an identity stands in one list twice, as a file written by hand
/// may have it, all rows are replaced.
std::vector<RowChange> rowChanges(const std::vector<Uuid>& before, const std::vector<Uuid>& after);

}  // namespace brimle
