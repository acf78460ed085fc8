// The keyboard in the archive: select, delete, leave. Walks the entries of past days that the search finds,
// also while the future days are on screen.
#pragma once

#include "base/signal.h"
#include "control/keys.h"
#include "control/selection_model.h"
#include "model/store.h"
#include "prefs/ui_state.h"

namespace brimle {

class ArchiveKeys {
 public:
  /// `todayFocusAdd` is posted for the entry field to take the keyboard. All references must outlive this.
  ArchiveKeys(Store& store, SelectionModel& sel, UIState& ui, Signal<>& todayFocusAdd)
      : store_(store), sel_(sel), ui_(ui), todayFocusAdd_(todayFocusAdd) {}

  /// Whether the key was used.
  bool handleArchiveKey(const KeyPress& key);

 private:
  Store& store_;
  SelectionModel& sel_;
  UIState& ui_;
  Signal<>& todayFocusAdd_;
};

}  // namespace brimle
