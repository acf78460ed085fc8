#include "views/qt/timeline_model.h"

#include <algorithm>
#include <utility>

#include "views/qt/convert.h"
#include "views/row_text.h"

namespace brimle {
namespace {

using Kind = TimelineRow::Kind;

/// More rows than this to change are shown anew instead of one by one.
constexpr std::size_t kMostAnimated = 400;

QString kindText(Kind kind) {
  switch (kind) {
    case Kind::futureDay:
    case Kind::pastDay: return QStringLiteral("heading");
    case Kind::boundary: return QStringLiteral("boundary");
    case Kind::nothing: return QStringLiteral("nothing");
    case Kind::futureTask: return QStringLiteral("future");
    case Kind::pastTask: return QStringLiteral("past");
  }
  return {};
}

bool isTask(const TimelineRow& row) {
  return row.kind == Kind::futureTask || row.kind == Kind::pastTask;
}

}  // namespace

int TimelineModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant TimelineModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  const TimelineRow& row = rows_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case kindRole: return kindText(row.kind);
    case keyRole: return toQt(row.key);
    default: break;
  }
  if (isTask(row)) return taskData(row, role);
  switch (role) {
    case textRole: return toQt(view_.title(row));
    case notesRole: return QStringList();
    case noteEditingRole: return -1;
    case completedRole:
    case selectedRole:
    case editingRole: return false;
    default: return {};
  }
}

QVariant TimelineModel::taskData(const TimelineRow& row, int role) const {
  const bool future = row.kind == Kind::futureTask;
  // Between a change of the store and the refresh that follows it a row may name an entry that has gone.
  if (future && row.index >= store_.scheduled().size()) return {};
  const auto& editor = view_.editor();
  const bool open = editor && editor->id == row.key;
  switch (role) {
    case textRole:
      return toQt(
          shownText(future ? store_.scheduled()[row.index].item.text : row.day->items[row.index].text));
    case notesRole:
      return shownNotes(future ? store_.scheduled()[row.index].item.notes : row.day->items[row.index].notes);
    case completedRole: return !future && row.day->items[row.index].completed;
    case selectedRole: return sel_.archiveSelection().contains(row.key);
    case editingRole: return open && !editor->note;
    case noteEditingRole: return open && editor->note ? static_cast<int>(*editor->note) : -1;
    default: return {};
  }
}

QHash<int, QByteArray> TimelineModel::roleNames() const {
  return {{kindRole, "kind"},           {keyRole, "key"},
          {textRole, "rowText"},        {notesRole, "notes"},
          {completedRole, "completed"}, {selectedRole, "selected"},
          {editingRole, "editing"},     {noteEditingRole, "noteEditing"}};
}

void TimelineModel::refresh() {
  runInTurn([this] { refreshOnce(); });
}

void TimelineModel::refreshOnce() {
  auto next = view_.rows();
  const auto keyOf = [](const TimelineRow& row) { return row.key; };
  const auto before = idsOf(rows_, keyOf);
  const auto after = idsOf(next, keyOf);
  const std::size_t difference =
      before.size() > after.size() ? before.size() - after.size() : after.size() - before.size();
  const auto changes = difference > kMostAnimated ? std::vector<RowChange>() : rowChanges(before, after);
  if (difference > kMostAnimated || changes.size() > kMostAnimated) {
    beginResetModel();
    rows_ = std::move(next);
    endResetModel();
    return;
  }
  apply(changes, rows_, next);
  rows_ = std::move(next);
  touch();
}

void TimelineModel::clear() {
  beginResetModel();
  rows_.clear();
  endResetModel();
}

void TimelineModel::touch() {
  if (!rows_.empty()) emit dataChanged(index(0), index(rowCount() - 1));
}

int TimelineModel::rowOf(const Uuid& key) const {
  const auto found = std::ranges::find(rows_, key, &TimelineRow::key);
  return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

int TimelineModel::nextScheduled(int row, int step) const {
  for (row += step; row >= 0 && row < rowCount(); row += step) {
    const auto kind = rows_[static_cast<std::size_t>(row)].kind;
    if (kind == TimelineRow::Kind::futureTask) return row;
    if (kind == TimelineRow::Kind::boundary) break;
  }
  return -1;
}

const TimelineRow* TimelineModel::find(const Uuid& key) const {
  const int row = rowOf(key);
  return row < 0 ? nullptr : &rows_[static_cast<std::size_t>(row)];
}

}  // namespace brimle
