#include "control/list_keys.h"

#include <algorithm>
#include <string>

#include "base/limits.h"
#include "control/key_table.h"
#include "control/row_commands.h"
#include "control/row_keys.h"

namespace brimle {
namespace {

struct Press {
  static constexpr RowList kList = RowList::today;

  Store& store;
  SelectionModel& sel;
  Pasteboard& pasteboard;
  Signal<>& todayFocusAdd;
  KeyCode key;
  RowOrder order;

  const RowOrder& ids() const { return order; }
  Store::Ids selected() const { return {sel.selection().begin(), sel.selection().end()}; }
};

bool hasOneSelected(Press& press) {
  return press.sel.selection().size() == 1;
}

bool toggleDone(Press& press) {
  const auto& items = press.store.items();
  const bool anyOpen = std::any_of(items.begin(), items.end(), [&](const TodoItem& task) {
    return !task.done && press.sel.selection().contains(task.id);
  });
  press.store.setDone(press.selected(), anyOpen);
  return true;
}

bool editText(Press& press) {
  const Uuid id = *press.sel.selection().begin();
  const TodoItem* task = press.store.find(id);
  if (!task || !isShownWhole(task->text)) return false;
  press.sel.setEditingID(id);
  return true;
}

bool leaveForEntryField(Press& press) {
  deselectAll(press);
  press.todayFocusAdd.notify();
  return true;
}

bool removeSelected(Press& press) {
  const Store::Ids ids = press.selected();
  deselectAll(press);
  press.store.removeMany(ids);
  return true;
}

/// The task with its notes in the form in which it can be typed.
std::string lineOf(const TodoItem& task) {
  std::string line = task.text;
  for (const std::string& note : task.notes) {
    if (!note.empty()) line += " // " + note;
  }
  return line;
}

bool copySelected(Press& press) {
  std::string text;
  const char* separator = "";
  for (const TodoItem& task : press.store.items()) {
    if (!press.sel.selection().contains(task.id)) continue;
    text += separator + lineOf(task);
    separator = "\n";
  }
  press.pasteboard.setString(text);
  return true;
}

bool moveTask(Press& press) {
  press.store.moveBy(*press.sel.selection().begin(), stepOf(press.key));
  return true;
}

using Key = KeyCode;

const KeyRow<Press> kListKeys[] = {
    {{Key::space}, kNoModifiers, hasSelection, toggleDone, kNotUsed},
    {{Key::enter}, kNoModifiers, hasOneSelected, editText, kNotUsed},
    {{Key::escape}, kAnyModifiers, hasSelection, leaveForEntryField, kNotUsed},
    {{Key::backspace, Key::forwardDelete}, kAnyModifiers, hasSelection, removeSelected, kNotUsed},
    {{Key::a}, Modifier::command, hasRows, selectAll, kNotUsed},
    {{Key::c}, Modifier::command, hasSelection, copySelected, kNotUsed},
    {{Key::down, Key::up}, kNoModifiers, hasSelection, moveSelection, selectEnd},
    {{Key::down, Key::up}, Modifier::shift, hasSelection, extendSelection, selectEnd},
    {{Key::down, Key::up}, Modifier::command, hasOneSelected, moveTask, kNotUsed},
};

}  // namespace

bool ListKeys::handleListKey(const KeyPress& key) {
  Press press{store_, sel_, pasteboard_, todayFocusAdd_, key.code, visibleIDs(store_)};
  return hasRows(press) && runKeyTable<Press>(kListKeys, key, press);
}

}  // namespace brimle
