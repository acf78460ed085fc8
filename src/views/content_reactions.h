// What today's view does of itself when something else changes: which selections, queries and editors go when
// the view leaves the archive, when the entry field takes the keyboard, when an edit ends.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "base/signal.h"
#include "control/selection_model.h"
#include "prefs/ui_state.h"

namespace brimle {

class ContentReactions {
 public:
  /// `todayFocusAdd` is the notice that somebody wants to type a task. All references must outlive this.
  ContentReactions(UIState& ui, SelectionModel& sel, Signal<>& todayFocusAdd);
  ContentReactions(const ContentReactions&) = delete;
  ContentReactions& operator=(const ContentReactions&) = delete;

  /// The entry field took the keyboard.
  void addFocused();

  /// Tells that the entry field should take the keyboard; the window shows it by then.
  [[nodiscard]] Subscription onFocusAdd(std::function<void()> observer) {
    return focusAdd_.subscribe(std::move(observer));
  }

 private:
  void focusAdd();
  void settingsChanged();
  void editingChanged();

  UIState& ui_;
  SelectionModel& sel_;
  bool showingArchive_;
  std::string archiveQuery_;
  std::optional<Uuid> editingID_;
  std::optional<Uuid> noteEditingID_;
  Signal<> focusAdd_;
  Subscription notices_;
  Subscription settings_;
  Subscription editing_;
};

}  // namespace brimle
