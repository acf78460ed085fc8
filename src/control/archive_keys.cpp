#include "control/archive_keys.h"

#include "control/key_table.h"
#include "control/row_keys.h"

namespace brimle {
namespace {

struct Press {
  static constexpr RowList kList = RowList::archive;

  Store& store;
  SelectionModel& sel;
  UIState& ui;
  Signal<>& todayFocusAdd;
  KeyCode key;
  std::optional<RowOrder> order = std::nullopt;

  /// Searched for at the first call, for most keys need no search.
  const RowOrder& ids() {
    if (!order) order = store.archivedIDsInOrder(ui.archiveQuery());
    return *order;
  }
};

bool removeSelected(Press& press) {
  const IdSet ids = press.sel.archiveSelection();
  deselectAll(press);
  press.store.removeArchived(ids);
  return true;
}

bool closeArchive(Press& press) {
  press.ui.setShowingArchive(false);
  press.todayFocusAdd.notify();
  return true;
}

using Key = KeyCode;

const KeyRow<Press> kArchiveKeys[] = {
    {{Key::a}, Modifier::command, hasRows, selectAll, kNotUsed},
    {{Key::escape}, kAnyModifiers, hasSelection, deselectAll, closeArchive},
    {{Key::backspace, Key::forwardDelete}, kAnyModifiers, hasSelection, removeSelected, kNotUsed},
    {{Key::down, Key::up}, kNoModifiers, hasSelection, moveSelection, selectEnd},
    {{Key::down, Key::up}, Modifier::shift, hasSelection, extendSelection, selectEnd},
};

}  // namespace

bool ArchiveKeys::handleArchiveKey(const KeyPress& key) {
  Press press{store_, sel_, ui_, todayFocusAdd_, key.code};
  return runKeyTable<Press>(kArchiveKeys, key, press);
}

}  // namespace brimle
