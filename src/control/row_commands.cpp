#include "control/row_commands.h"

#include <utility>

#include "base/text.h"

namespace brimle {
namespace {

IdSet targetsOf(const SelectionModel& sel, RowList list, const Uuid& id) {
  const IdSet& selected = sel.rows(list).ids;
  return selected.contains(id) ? selected : IdSet{id};
}

Store::Ids listOf(const IdSet& ids) {
  return {ids.begin(), ids.end()};
}

void click(SelectionModel& sel, RowList list, const Uuid& id, const RowOrder& order, Modifiers modifiers) {
  sel.setRows(list, clickedRow(sel.rows(list), id, order, modifiers));
}

}  // namespace

RowOrder visibleIDs(const Store& store) {
  RowOrder ids;
  for (const TodoItem* task : store.visibleItems()) ids.push_back(task->id);
  return ids;
}

bool cleanupNote(Store& store, const Uuid& id, std::int64_t index) {
  const TodoItem* found = store.find(id);
  if (!found || index < 0 || index >= std::ssize(found->notes)) return false;
  TodoItem task = *found;
  const auto note = task.notes.begin() + index;
  std::string text(trimmedLines(*note));
  const bool blank = text.empty();
  if (blank) {
    task.notes.erase(note);
  } else {
    *note = std::move(text);
  }
  store.replace(id, std::move(task));
  return blank;
}

void RowCommands::select(const Uuid& id, Modifiers modifiers) {
  click(sel_, RowList::today, id, visibleIDs(store_), modifiers);
}

Store::Ids RowCommands::targetIDs(const Uuid& id) const {
  return listOf(targetsOf(sel_, RowList::today, id));
}

void RowCommands::toggleTargets(const Uuid& id) {
  if (const TodoItem* task = store_.find(id)) store_.setDone(targetIDs(id), !task->done);
}

void RowCommands::highlightTargets(const Uuid& id) {
  if (const TodoItem* task = store_.find(id)) store_.setHighlight(targetIDs(id), !task->highlighted);
}

void RowCommands::deleteTargets(const Uuid& id) {
  const IdSet targets = targetsOf(sel_, RowList::today, id);
  if (sel_.editingID() && targets.contains(*sel_.editingID())) sel_.setEditingID(std::nullopt);
  if (sel_.noteEditingID() && targets.contains(*sel_.noteEditingID())) sel_.setNoteEditingID(std::nullopt);
  sel_.deselect(RowList::today, targets);
  store_.removeMany(listOf(targets));
}

void RowCommands::moveTargetsToTomorrow(const Uuid& id) {
  const IdSet targets = targetsOf(sel_, RowList::today, id);
  sel_.deselect(RowList::today, targets);
  store_.tomorrowMany(listOf(targets));
}

void RowCommands::sendToDay(const Uuid& id, const std::string& day) {
  sel_.deselect(RowList::today, {id});
  const TodoItem* found = store_.find(id);
  if (!found) return;
  TodoItem task = *found;
  task.pinnedTop = true;
  store_.sendToDay(task, day);
}

void ArchiveCommands::selectEntry(const Uuid& id, Modifiers modifiers) {
  click(sel_, RowList::archive, id, store_.archivedIDsInOrder(ui_.archiveQuery()), modifiers);
}

IdSet ArchiveCommands::targets(const Uuid& id) const {
  return targetsOf(sel_, RowList::archive, id);
}

IdSet ArchiveCommands::takeTargets(const Uuid& id) {
  IdSet ids = targets(id);
  sel_.deselect(RowList::archive, ids);
  return ids;
}

void ArchiveCommands::bringBackTargets(const Uuid& id) {
  store_.bringBackMany(takeTargets(id));
}

void ArchiveCommands::deleteTargets(const Uuid& id) {
  store_.removeArchived(takeTargets(id));
}

}  // namespace brimle
