#include "control/selection_model.h"

#include <utility>

namespace brimle {
namespace {

/// Longer than the fields take to hand the keyboard on.
constexpr Seconds kHop(0.15);

}  // namespace

void SelectionModel::setRows(RowList list, RowSelection rows) {
  mutableRows(list) = std::move(rows);
  changed_.notify();
}

void SelectionModel::setSelected(RowList list, IdSet ids) {
  mutableRows(list).ids = std::move(ids);
  changed_.notify();
}

void SelectionModel::deselect(RowList list, const IdSet& ids) {
  IdSet left = rows(list).ids;
  std::erase_if(left, [&](const Uuid& id) { return ids.contains(id); });
  setSelected(list, std::move(left));
}

void SelectionModel::setEditingID(std::optional<Uuid> id) {
  editingID_ = id;
  changed_.notify();
}

void SelectionModel::setNoteEditingID(std::optional<Uuid> id) {
  noteEditingID_ = id;
  changed_.notify();
}

void SelectionModel::setNoteEditingIndex(std::int64_t index) {
  noteEditingIndex_ = index;
  changed_.notify();
}

void SelectionModel::beginHop() {
  *hopping_ = true;
  time_.after(kHop, [hopping = hopping_] { *hopping = false; });
}

}  // namespace brimle
