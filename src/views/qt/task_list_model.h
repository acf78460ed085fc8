// The rows of today's list for QML: the visible tasks, kept in step with the store row by row, so that the
// view can animate what changes. Reads the store only.
#pragma once

#include <vector>

#include "control/selection_model.h"
#include "model/store.h"
#include "views/qt/row_model.h"

namespace brimle {

class TaskListModel : public RowModel {
  Q_OBJECT

 public:
  enum Role {
    idRole = Qt::UserRole + 1,
    textRole,
    notesRole,
    doneRole,
    pinnedRole,
    highlightedRole,
    repeatsRole,  ///< "", "every day" or "weekdays"
    linkRole,     ///< the first web address of the text, ready to be opened; else empty
    sweepingRole,
    selectedRole,
    editingRole,     ///< the text is open in its editor
    noteEditingRole  ///< the index of the note that is open, or -1
  };

  /// Both references must outlive the model.
  TaskListModel(const Store& store, const SelectionModel& sel);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  /// Where the row of this task stands, or -1.
  int rowOf(const Uuid& id) const;

  /// Brings the rows in line with the store.
  void refresh();

 private:
  /// A row as it was last shown.
  struct Row {
    TodoItem task;
    bool sweeping = false;
    bool selected = false;
    bool editing = false;
    int noteEditing = -1;

    bool operator==(const Row&) const = default;
  };

  void refreshOnce();
  Row look(const TodoItem& task) const;
  void updateValues(std::vector<Row> next);

  const Store& store_;
  const SelectionModel& sel_;
  std::vector<Row> rows_;
};

}  // namespace brimle
