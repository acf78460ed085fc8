// Sees every key press of the application before any window or text field does, and answers whether it used
// it.
//
// In this order: a paste that becomes tasks; hops of the inline editors between a task's text and its notes;
// then, where no text field of the main window has the keyboard, the commands of the archive or of today's
// list.
#pragma once

#include "base/signal.h"
#include "control/archive_keys.h"
#include "control/keys.h"
#include "control/list_keys.h"
#include "control/selection_model.h"
#include "model/store.h"
#include "platform/pasteboard.h"
#include "prefs/ui_state.h"

namespace brimle {

/// Where the keyboard is at the moment of a key press.
struct KeyboardPlace {
  bool mainWindowIsKey = false;
  bool inTextField = false;  ///< of the main window: the entry field, an inline editor, the search box
};

class KeyFilter {
 public:
  /// `todayFocusAdd` is posted for the entry field to take the keyboard. All references must outlive this.
  KeyFilter(Store& store, SelectionModel& sel, UIState& ui, Pasteboard& pasteboard, Signal<>& todayFocusAdd);

  /// Whether the press was used and goes no further.
  bool filter(const KeyPress& key, KeyboardPlace place);

 private:
  bool pasteAsTasks(const KeyPress& key);
  bool hop(const KeyPress& key);

  Store& store_;
  SelectionModel& sel_;
  const UIState& ui_;
  const Pasteboard& pasteboard_;
  ListKeys listKeys_;
  ArchiveKeys archiveKeys_;
};

}  // namespace brimle
