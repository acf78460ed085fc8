#include "control/key_filter.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "base/limits.h"
#include "base/text.h"
#include "control/key_table.h"
#include "control/row_commands.h"

namespace brimle {
namespace {

/// A key press in an inline editor.
struct Press {
  Store& store;
  SelectionModel& sel;
};

bool editsText(Press& press) {
  return press.sel.editingID().has_value();
}
bool editsNote(Press& press) {
  return press.sel.noteEditingID().has_value();
}

bool openFirstNote(Press& press) {
  auto& [store, sel] = press;
  const Uuid id = *sel.editingID();
  sel.beginHop();
  sel.setEditingID(std::nullopt);
  if (const TodoItem* found = store.find(id); found && found->notes.empty()) {
    TodoItem task = *found;
    task.notes.emplace_back();
    store.replace(id, std::move(task));
  }
  sel.setNoteEditingIndex(0);
  sel.setNoteEditingID(id);
  return true;
}

/// A note editor that the keyboard is about to leave, its note tidied.
struct LeftNote {
  Uuid id;
  std::int64_t index;
  bool removed;        ///< the note was blank
  std::int64_t count;  ///< how many notes the task has now
};

LeftNote leaveNote(Press& press) {
  auto& [store, sel] = press;
  const Uuid id = *sel.noteEditingID();
  const std::int64_t index = sel.noteEditingIndex();
  sel.beginHop();
  const bool removed = cleanupNote(store, id, index);
  const TodoItem* task = store.find(id);
  return {id, index, removed, task ? std::ssize(task->notes) : 0};
}

bool openNextNote(Press& press) {
  const LeftNote left = leaveNote(press);
  const std::int64_t next = left.removed ? left.index : std::min(left.index, left.count) + 1;
  if (next < left.count) {
    press.sel.setNoteEditingIndex(next);
  } else {
    press.sel.setNoteEditingID(std::nullopt);
  }
  return true;
}

bool openPreviousNoteOrText(Press& press) {
  const LeftNote left = leaveNote(press);
  if (left.index >= 1 && left.count > 0) {
    press.sel.setNoteEditingIndex(std::min(left.count, left.index) - 1);
  } else {
    press.sel.setNoteEditingID(std::nullopt);
    press.sel.setEditingID(left.id);
  }
  return true;
}

const KeyRow<Press> kHops[] = {
    {{KeyCode::tab, KeyCode::down}, kNoModifiers, editsText, openFirstNote, kNotUsed},
    {{KeyCode::tab, KeyCode::down}, kNoModifiers, editsNote, openNextNote, kNotUsed},
    {{KeyCode::up}, kNoModifiers, editsNote, openPreviousNoteOrText, kNotUsed},
};

bool isPaste(const KeyPress& key) {
  return key.modifiers == Modifier::command && (key.characters == "v" || key.characters == "V");
}

}  // namespace

KeyFilter::KeyFilter(Store& store, SelectionModel& sel, UIState& ui, Pasteboard& pasteboard,
                     Signal<>& todayFocusAdd)
    : store_(store),
      sel_(sel),
      ui_(ui),
      pasteboard_(pasteboard),
      listKeys_(store, sel, pasteboard, todayFocusAdd),
      archiveKeys_(store, sel, ui, todayFocusAdd) {}

bool KeyFilter::filter(const KeyPress& key, KeyboardPlace place) {
  if (pasteAsTasks(key) || hop(key)) return true;
  if (!place.mainWindowIsKey || place.inTextField) return false;
  return ui_.showingArchive() ? archiveKeys_.handleArchiveKey(key) : listKeys_.handleListKey(key);
}

/// Several lines, or more than a field can show, become tasks at once; one line is an ordinary paste.
bool KeyFilter::pasteAsTasks(const KeyPress& key) {
  if (!isPaste(key)) return false;
  const auto text = pasteboard_.string();
  if (!text || (!containsNewline(*text) && isShownWhole(*text))) return false;
  store_.addLines(*text, false);
  return true;
}

bool KeyFilter::hop(const KeyPress& key) {
  Press press{store_, sel_};
  return runKeyTable<Press>(kHops, key, press);
}

}  // namespace brimle
