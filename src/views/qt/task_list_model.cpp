#include "views/qt/task_list_model.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <utility>

#include "views/list_diff.h"
#include "views/qt/convert.h"
#include "views/row_text.h"

namespace brimle {
namespace {

QStringList shownNotes(const TodoItem& task) {
  QStringList notes;
  for (const std::string& note : task.notes) {
    if (!note.empty()) notes.append(toQt(shownText(note)));
  }
  return notes;
}

template <class Row>
std::vector<Uuid> idsOf(const std::vector<Row>& rows) {
  std::vector<Uuid> ids;
  ids.reserve(rows.size());
  for (const Row& row : rows) ids.push_back(row.task.id);
  return ids;
}

}  // namespace

TaskListModel::TaskListModel(const Store& store) : store_(store) {
  refresh();
}

int TaskListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant TaskListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const Row& row = rows_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case idRole:
      return toQt(row.task.id);
    case Qt::DisplayRole:
    case textRole:
      return toQt(shownText(row.task.text));
    case notesRole:
      return shownNotes(row.task);
    case doneRole:
      return row.task.done;
    case highlightedRole:
      return row.task.highlighted;
    case sweepingRole:
      return row.sweeping;
    default:
      return {};
  }
}

QHash<int, QByteArray> TaskListModel::roleNames() const {
  return {{idRole, "taskId"}, {textRole, "taskText"},           {notesRole, "notes"},
          {doneRole, "done"}, {highlightedRole, "highlighted"}, {sweepingRole, "sweeping"}};
}

void TaskListModel::refresh() {
  std::vector<Row> next;
  for (const TodoItem* task : store_.visibleItems()) {
    next.push_back({*task, store_.sweepingIDs().contains(task->id)});
  }
  reorder(next);
  updateValues(std::move(next));
}

void TaskListModel::reorder(const std::vector<Row>& next) {
  const auto at = [this](std::size_t row) { return rows_.begin() + static_cast<std::ptrdiff_t>(row); };
  for (const RowChange& change : rowChanges(idsOf(rows_), idsOf(next))) {
    const int first = static_cast<int>(change.at);
    const int last = static_cast<int>(change.at + change.count) - 1;
    switch (change.kind) {
      case RowChange::Kind::remove:
        beginRemoveRows({}, first, last);
        rows_.erase(at(change.at), at(change.at + change.count));
        endRemoveRows();
        break;
      case RowChange::Kind::insert: {
        const auto from = next.begin() + static_cast<std::ptrdiff_t>(change.at);
        beginInsertRows({}, first, last);
        rows_.insert(at(change.at), from, from + static_cast<std::ptrdiff_t>(change.count));
        endInsertRows();
        break;
      }
      case RowChange::Kind::move: {
        const bool down = change.at < change.to;
        beginMoveRows({}, first, first, {}, static_cast<int>(change.to) + (down ? 1 : 0));
        if (down) {
          std::rotate(at(change.at), at(change.at + 1), at(change.to + 1));
        } else {
          std::rotate(at(change.to), at(change.at), at(change.at + 1));
        }
        endMoveRows();
        break;
      }
    }
  }
}

void TaskListModel::updateValues(std::vector<Row> next) {
  for (std::size_t row = 0; row < rows_.size(); ++row) {
    if (rows_[row] == next[row]) continue;
    rows_[row] = std::move(next[row]);
    const QModelIndex changed = index(static_cast<int>(row));
    emit dataChanged(changed, changed);
  }
}

}  // namespace brimle
