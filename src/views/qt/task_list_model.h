// The rows of today's list for QML: the visible tasks, kept in step with the store row by row, so that the
// view can animate what changes. Reads the store only.
#pragma once

#include <QAbstractListModel>
#include <unordered_set>
#include <vector>

#include "base/signal.h"
#include "model/store.h"

namespace brimle {

class TaskListModel : public QAbstractListModel {
  Q_OBJECT

 public:
  enum Role { idRole = Qt::UserRole + 1, textRole, notesRole, doneRole, highlightedRole, sweepingRole };

  /// `store` must outlive the model.
  explicit TaskListModel(const Store& store);

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QHash<int, QByteArray> roleNames() const override;

  /// Brings the rows in line with the store.
  void refresh();

 private:
  /// A row as it was last shown.
  struct Row {
    TodoItem task;
    bool sweeping = false;

    bool operator==(const Row&) const = default;
  };

  void reorder(const std::vector<Row>& next);
  void updateValues(std::vector<Row> next);

  const Store& store_;
  std::vector<Row> rows_;
};

}  // namespace brimle
