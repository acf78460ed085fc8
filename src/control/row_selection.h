// Which rows of one list are selected, as a value, and how clicks and arrow keys change it.
//
// Rows are known by their ids, and ranges walk the visible order that is handed in. The ids may name rows
// that are no longer there. Pure: a selection and an order in, a selection out.
#pragma once

#include <optional>
#include <unordered_set>
#include <vector>

#include "base/uuid.h"
#include "control/keys.h"

namespace brimle {

using IdSet = std::unordered_set<Uuid>;
using RowOrder = std::vector<Uuid>;

struct RowSelection {
  IdSet ids;
  std::optional<Uuid> anchor;  ///< the fixed end of a range
  std::optional<Uuid> lead;    ///< the moving end

  bool operator==(const RowSelection&) const = default;
};

RowSelection onlyRow(const Uuid& id);

/// The selected row at which the user stands: the lead while it is selected, else any; none without a
/// selection.
std::optional<Uuid> selectedLead(const RowSelection& rows);

/// What a click on a row makes of a selection: with Command held the row is toggled, with Shift the range
/// from the anchor is selected where both ends are visible, else the row alone. Command comes before Shift.
RowSelection clickedRow(RowSelection rows, const Uuid& id, const RowOrder& order, Modifiers modifiers);

// What keys make of a selection; nothing where the order lacks the row they start from. `step` is +1 for down
// and -1 for up.

std::optional<RowSelection> allRows(const RowOrder& order);
/// The row that the keyboard starts on: the first going down, the last going up.
std::optional<RowSelection> endRow(const RowOrder& order, int step);
/// The row next to the lead, or the row at the end itself.
std::optional<RowSelection> movedRow(const RowSelection& rows, const RowOrder& order, int step);
/// The range from the anchor to the row next to the lead.
std::optional<RowSelection> extendedRows(const RowSelection& rows, const RowOrder& order, int step);

}  // namespace brimle
