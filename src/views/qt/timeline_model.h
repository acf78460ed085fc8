// The rows of the archive's timeline for QML, kept in step row by row, so that the view keeps its place.
#pragma once

#include <vector>

#include "views/archive_view.h"
#include "views/qt/row_model.h"

namespace brimle {

class TimelineModel : public RowModel {
  Q_OBJECT

 public:
  enum Role {
    kindRole = Qt::UserRole + 1,  ///< "heading", "boundary", "nothing", "future" or "past"
    keyRole,
    textRole,
    notesRole,
    completedRole,
    selectedRole,
    editingRole,     ///< the text of a scheduled task is open
    noteEditingRole  ///< the index of its note that is open, or -1
  };

  /// All references must outlive the model.
  TimelineModel(const Store& store, const ArchiveView& view, const SelectionModel& sel)
      : store_(store), view_(view), sel_(sel) {}

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  /// Brings the rows in line with the store and the search.
  void refresh();
  /// Drops all rows, for as long as the archive is not shown.
  void clear();
  /// Tells that rows may look different though they are the same: a selection, an editor.
  void touch();

  const TimelineRow* find(const Uuid& key) const;
  /// Where the row with this key stands, or -1.
  int rowOf(const Uuid& key) const;
  /// The row of the next scheduled task below a row, or above with a step of -1; -1 where there is none.
  int nextScheduled(int row, int step) const;
  int boundary() const { return static_cast<int>(boundaryRow(rows_)); }

 private:
  void refreshOnce();
  QVariant taskData(const TimelineRow& row, int role) const;

  const Store& store_;
  const ArchiveView& view_;
  const SelectionModel& sel_;
  std::vector<TimelineRow> rows_;
};

}  // namespace brimle
