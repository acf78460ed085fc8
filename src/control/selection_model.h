// The one object that says which rows are selected, on today's list and in the archive, and which task or
// note is being edited in place. It holds ids, never task data; ids of tasks that are gone may stay and match
// nothing.
//
// Each assignment of an observed field is told to the observers; the ends of ranges change without a word of
// their own.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

#include "base/signal.h"
#include "control/row_selection.h"
#include "platform/time.h"

namespace brimle {

enum class RowList { today, archive };

class SelectionModel {
 public:
  /// `time` must outlive the model.
  explicit SelectionModel(Time& time) : time_(time) {}

  // Selected rows.
  const RowSelection& rows(RowList list) const { return rows_[static_cast<std::size_t>(list)]; }
  const IdSet& selection() const { return rows(RowList::today).ids; }
  const IdSet& archiveSelection() const { return rows(RowList::archive).ids; }
  void setRows(RowList list, RowSelection rows);
  /// Replaces the selected rows and leaves the ends of the range as they are.
  void setSelected(RowList list, IdSet ids);
  void setSelection(IdSet ids) { setSelected(RowList::today, std::move(ids)); }
  void setArchiveSelection(IdSet ids) { setSelected(RowList::archive, std::move(ids)); }
  /// Takes rows out of the selection.
  void deselect(RowList list, const IdSet& ids);
  /// Selects one task of today's list, which becomes both ends of a range.
  void selectOnly(const Uuid& id) { setRows(RowList::today, onlyRow(id)); }

  // Editing in place.
  /// The task whose text is open.
  const std::optional<Uuid>& editingID() const { return editingID_; }
  /// The task one of whose notes is open.
  const std::optional<Uuid>& noteEditingID() const { return noteEditingID_; }
  /// Which of its notes; means nothing while noteEditingID is none.
  std::int64_t noteEditingIndex() const { return noteEditingIndex_; }
  void setEditingID(std::optional<Uuid> id);
  void setNoteEditingID(std::optional<Uuid> id);
  void setNoteEditingIndex(std::int64_t index);

  /// True for a moment after the keyboard moved the editor from one field to another. A note editor that
  /// loses the keyboard meanwhile stays open, for its loss is the hop's doing and would undo it.
  bool hopping() const { return *hopping_; }
  void beginHop();

  [[nodiscard]] Subscription observe(std::function<void()> observer) {
    return changed_.subscribe(std::move(observer));
  }

 private:
  RowSelection& mutableRows(RowList list) { return rows_[static_cast<std::size_t>(list)]; }

  Time& time_;
  std::array<RowSelection, 2> rows_;
  std::optional<Uuid> editingID_;
  std::optional<Uuid> noteEditingID_;
  std::int64_t noteEditingIndex_ = 0;
  std::shared_ptr<bool> hopping_ = std::make_shared<bool>(false);  ///< shared with the calls that reset it
  Signal<> changed_;
};

}  // namespace brimle
