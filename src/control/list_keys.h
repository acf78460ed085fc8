// The keyboard on today's list: tick, edit, delete, select, reorder, copy. Acts only on the selection and by
// the store's operations; knows no window.
#pragma once

#include "base/signal.h"
#include "control/keys.h"
#include "control/selection_model.h"
#include "model/store.h"
#include "platform/pasteboard.h"

namespace brimle {

class ListKeys {
 public:
  /// `todayFocusAdd` is posted for the entry field to take the keyboard. All references must outlive this.
  ListKeys(Store& store, SelectionModel& sel, Pasteboard& pasteboard, Signal<>& todayFocusAdd)
      : store_(store), sel_(sel), pasteboard_(pasteboard), todayFocusAdd_(todayFocusAdd) {}

  /// Whether the key was used. With no visible task none is.
  bool handleListKey(const KeyPress& key);

 private:
  Store& store_;
  SelectionModel& sel_;
  Pasteboard& pasteboard_;
  Signal<>& todayFocusAdd_;
};

}  // namespace brimle
