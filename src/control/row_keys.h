// The key commands that today's list and the archive share, for the rows of either one's key table.
//
// A Press has `sel`, the pressed `key`, `kList` (which rows of the selection model it is about) and `ids()`,
// their visible order.
#pragma once

#include <optional>
#include <utility>

#include "control/keys.h"
#include "control/selection_model.h"

namespace brimle {

/// Down goes one row on, Up one back.
inline int stepOf(KeyCode key) {
  return key == KeyCode::down ? 1 : -1;
}

template <class Press>
bool hasRows(Press& press) {
  return !press.ids().empty();
}

template <class Press>
bool hasSelection(Press& press) {
  return !press.sel.rows(Press::kList).ids.empty();
}

template <class Press>
bool assignRows(Press& press, std::optional<RowSelection> rows) {
  if (!rows) return false;
  press.sel.setRows(Press::kList, std::move(*rows));
  return true;
}

template <class Press>
bool selectAll(Press& press) {
  return assignRows(press, allRows(press.ids()));
}

template <class Press>
bool selectEnd(Press& press) {
  return assignRows(press, endRow(press.ids(), stepOf(press.key)));
}

template <class Press>
bool moveSelection(Press& press) {
  return assignRows(press, movedRow(press.sel.rows(Press::kList), press.ids(), stepOf(press.key)));
}

template <class Press>
bool extendSelection(Press& press) {
  return assignRows(press, extendedRows(press.sel.rows(Press::kList), press.ids(), stepOf(press.key)));
}

template <class Press>
bool deselectAll(Press& press) {
  press.sel.setSelected(Press::kList, {});
  return true;
}

}  // namespace brimle
