// What the user does to tasks on today's list.
#include <algorithm>
#include <unordered_set>
#include <utility>

#include "base/move_element.h"
#include "model/store.h"

namespace brimle {
namespace {

using Tasks = std::vector<TodoItem>;

std::size_t indexIn(const Tasks& tasks, Tasks::const_iterator task) {
  return static_cast<std::size_t>(task - tasks.begin());
}

/// Calls `change` on every task among the ids; tells whether there was one.
template <class Change>
bool changeEach(Tasks& tasks, const Store::Ids& ids, Change change) {
  const std::unordered_set<Uuid> wanted(ids.begin(), ids.end());
  bool found = false;
  for (TodoItem& task : tasks) {
    if (!wanted.contains(task.id)) continue;
    change(task);
    found = true;
  }
  return found;
}

/// Takes the tasks among the ids out of the list, in its order.
Tasks takeOut(Tasks& tasks, const Store::Ids& ids) {
  const std::unordered_set<Uuid> wanted(ids.begin(), ids.end());
  Tasks taken;
  std::erase_if(tasks, [&](TodoItem& task) {
    if (!wanted.contains(task.id)) return false;
    taken.push_back(std::move(task));
    return true;
  });
  return taken;
}

}  // namespace

void Store::setDone(const Ids& ids, bool done) {
  Tasks list = items();
  if (changeEach(list, ids, [&](TodoItem& task) { task.done = done; })) setItems(std::move(list));
}

void Store::setHighlight(const Ids& ids, bool highlighted) {
  Tasks list = items();
  if (changeEach(list, ids, [&](TodoItem& task) { task.highlighted = highlighted; }))
    setItems(std::move(list));
}

void Store::removeMany(const Ids& ids) {
  Tasks list = items();
  if (!takeOut(list, ids).empty()) setItems(std::move(list));
}

void Store::tomorrowMany(const Ids& ids) {
  Tasks list = items();
  Tasks moved = takeOut(list, ids);
  if (moved.empty()) return;
  Tasks deferred = tomorrow();
  for (TodoItem& task : moved) {
    task.done = false;
    deferred.push_back(std::move(task));
  }
  const Operation operation(*this);
  setItems(std::move(list));
  setTomorrow(std::move(deferred));
}

void Store::togglePinTop(const Uuid& id) {
  Tasks list = items();
  const auto found = std::ranges::find(list, id, &TodoItem::id);
  if (found == list.end()) return;
  TodoItem task = std::move(*found);
  list.erase(found);
  task.pinnedTop = !task.pinnedTop;
  const auto place = task.pinnedTop ? list.begin()
                                    : std::find_if(list.begin(), list.end(),
                                                   [](const TodoItem& other) { return !other.pinnedTop; });
  list.insert(place, std::move(task));
  setItems(std::move(list));
}

void Store::moveItem(const Uuid& id, const Uuid& target) {
  Tasks list = items();
  const auto from = std::ranges::find(list, id, &TodoItem::id);
  const auto to = std::ranges::find(list, target, &TodoItem::id);
  if (from == list.end() || to == list.end() || from == to) return;
  moveElement(list, indexIn(list, from), indexIn(list, to));
  setItems(std::move(list));
}

void Store::moveToEnd(const Uuid& id) {
  Tasks list = items();
  const auto from = std::ranges::find(list, id, &TodoItem::id);
  if (from == list.end()) return;
  moveElement(list, indexIn(list, from), list.size() - 1);
  setItems(std::move(list));
}

void Store::moveBy(const Uuid& id, int offset) {
  const auto visible = visibleItems();
  const auto found =
      std::find_if(visible.begin(), visible.end(), [&](const auto* task) { return task->id == id; });
  if (found == visible.end()) return;
  const std::ptrdiff_t place = found - visible.begin() + offset;
  if (place < 0 || place >= std::ssize(visible)) return;
  const auto indexOf = [&](const TodoItem* task) { return static_cast<std::size_t>(task - items().data()); };
  const std::size_t from = indexOf(*found);
  const std::size_t to = indexOf(visible[static_cast<std::size_t>(place)]);
  Tasks list = items();
  std::swap(list[from], list[to]);
  setItems(std::move(list));
}

void Store::replace(const Uuid& id, TodoItem task) {
  Tasks list = items();
  const auto found = std::ranges::find(list, id, &TodoItem::id);
  if (found == list.end()) return;
  task.id = id;
  *found = std::move(task);
  setItems(std::move(list));
}

}  // namespace brimle
