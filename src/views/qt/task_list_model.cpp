#include "views/qt/task_list_model.h"

#include <algorithm>
#include <utility>

#include "views/qt/convert.h"
#include "views/row_text.h"
#include "views/row_view.h"
#include "views/web_link.h"

namespace brimle {
namespace {

QString repeatsText(const TodoItem& task) {
  switch (repeatChoiceOf(task)) {
    case RepeatChoice::off: break;
    case RepeatChoice::everyDay: return QStringLiteral("every day");
    case RepeatChoice::weekdays: return QStringLiteral("weekdays");
  }
  return {};
}

}  // namespace

TaskListModel::TaskListModel(const Store& store, const SelectionModel& sel) : store_(store), sel_(sel) {
  refresh();
}

int TaskListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant TaskListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const Row& row = rows_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case idRole: return toQt(row.task.id);
    case Qt::DisplayRole:
    case textRole: return toQt(shownText(row.task.text));
    case notesRole: return shownNotes(row.task.notes);
    case doneRole: return row.task.done;
    case pinnedRole: return row.task.pinnedTop;
    case highlightedRole: return row.task.highlighted;
    case repeatsRole: return repeatsText(row.task);
    case linkRole: return toQt(firstWebLink(row.task.text).value_or(""));
    case sweepingRole: return row.sweeping;
    case selectedRole: return row.selected;
    case editingRole: return row.editing;
    case noteEditingRole: return row.noteEditing;
    default: return {};
  }
}

QHash<int, QByteArray> TaskListModel::roleNames() const {
  return {{idRole, "taskId"},         {textRole, "taskText"},   {notesRole, "notes"},
          {doneRole, "done"},         {pinnedRole, "pinned"},   {highlightedRole, "highlighted"},
          {repeatsRole, "repeats"},   {linkRole, "link"},       {sweepingRole, "sweeping"},
          {selectedRole, "selected"}, {editingRole, "editing"}, {noteEditingRole, "noteEditing"}};
}

int TaskListModel::rowOf(const Uuid& id) const {
  const auto found = std::ranges::find(rows_, id, [](const Row& row) { return row.task.id; });
  return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

TaskListModel::Row TaskListModel::look(const TodoItem& task) const {
  Row row{task};
  row.sweeping = store_.sweepingIDs().contains(task.id);
  row.selected = sel_.selection().contains(task.id);
  row.editing = sel_.editingID() == task.id && isShownWhole(task.text);
  if (sel_.noteEditingID() == task.id) {
    const auto index = static_cast<std::size_t>(sel_.noteEditingIndex());
    if (index < task.notes.size() && isShownWhole(task.notes[index]))
      row.noteEditing = static_cast<int>(index);
  }
  return row;
}

void TaskListModel::refresh() {
  runInTurn([this] { refreshOnce(); });
}

void TaskListModel::refreshOnce() {
  std::vector<Row> next;
  for (const TodoItem* task : store_.visibleItems()) {
    next.push_back(look(*task));
  }
  const auto idOf = [](const Row& row) { return row.task.id; };
  apply(rowChanges(idsOf(rows_, idOf), idsOf(next, idOf)), rows_, next);
  updateValues(std::move(next));
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
