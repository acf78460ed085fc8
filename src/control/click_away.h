// Click-away: a plain click that leaves the selection as it was empties it. So a click on empty space
// deselects, and so does one on the only selected row.
#pragma once

#include "base/lifetime.h"
#include "control/keys.h"
#include "control/selection_model.h"
#include "platform/time.h"
#include "prefs/ui_state.h"

namespace brimle {

class ClickAway {
 public:
  /// All references must outlive this.
  ClickAway(SelectionModel& sel, const UIState& ui, Time& time) : sel_(sel), ui_(ui), time_(time) {}

  /// To be called at every release of the left button in the main window, before the window handles it.
  /// Whether the click changed the selection is seen on the next turn of the main queue.
  void mouseUp(Modifiers modifiers);

 private:
  SelectionModel& sel_;
  const UIState& ui_;
  Time& time_;
  Lifetime life_;
};

}  // namespace brimle
