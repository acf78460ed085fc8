// What a row's own controls do: its check dot, its menu, a click on it. A command on a selected row acts on
// the whole selection, a command on any other row on that row alone.
#pragma once

#include <cstdint>
#include <string>

#include "control/keys.h"
#include "control/selection_model.h"
#include "model/store.h"
#include "prefs/ui_state.h"

namespace brimle {

/// The ids of today's list that ranges and arrow keys walk: its tasks in their order without the resting
/// ones.
RowOrder visibleIDs(const Store& store);

/// Trims a note of a task at both ends; a note of blanks is removed, and then the result is true. False, and
/// no change, where there is no such note.
bool cleanupNote(Store& store, const Uuid& id, std::int64_t index);

/// The commands of a row of today's list. A task that is gone is left out; where it is the row itself, its
/// tick and its highlight do nothing.
class RowCommands {
 public:
  /// All references must outlive this.
  RowCommands(Store& store, SelectionModel& sel) : store_(store), sel_(sel) {}

  /// A click on the row. The window takes the keyboard from any text field afterwards.
  void select(const Uuid& id, Modifiers modifiers);
  /// The tasks that a command on this row acts on, in no particular order.
  Store::Ids targetIDs(const Uuid& id) const;
  /// Ticks or unticks the targets: whichever the row's own task is not.
  void toggleTargets(const Uuid& id);
  void highlightTargets(const Uuid& id);
  /// Removes the targets; an editor open on one of them closes.
  void deleteTargets(const Uuid& id);
  void moveTargetsToTomorrow(const Uuid& id);
  /// Sends this one task, pinned, to a day.
  void sendToDay(const Uuid& id, const std::string& day);

 private:
  Store& store_;
  SelectionModel& sel_;
};

/// The commands of a row of the archive's past days.
class ArchiveCommands {
 public:
  /// All references must outlive this.
  ArchiveCommands(Store& store, SelectionModel& sel, const UIState& ui) : store_(store), sel_(sel), ui_(ui) {}

  void selectEntry(const Uuid& id, Modifiers modifiers);
  IdSet targets(const Uuid& id) const;
  void bringBackTargets(const Uuid& id);
  void deleteTargets(const Uuid& id);

 private:
  IdSet takeTargets(const Uuid& id);

  Store& store_;
  SelectionModel& sel_;
  const UIState& ui_;
};

}  // namespace brimle
