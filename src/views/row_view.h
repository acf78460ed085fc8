// A row of today's list: what it derives from its task, its context menu, and its two editors in place.
//
// A row changes its task only by whole writes through the store, which drops them where the task is gone. The
// editor that is open is kept in the selection model; this says what opening, typing, closing and losing the
// keyboard do.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "base/lifetime.h"
#include "control/row_commands.h"
#include "control/selection_model.h"
#include "model/store.h"
#include "platform/menu.h"

namespace brimle {

/// How a task repeats, as one choice.
enum class RepeatChoice { off, everyDay, weekdays };

RepeatChoice repeatChoiceOf(const TodoItem& task);

class RowView {
 public:
  /// All references must outlive the view.
  RowView(Store& store, SelectionModel& sel, Time& time) : store_(store), sel_(sel), time_(time) {}

  // The text editor.
  /// A double click on the row: opens its text, unless one of its notes is open.
  void beginEdit(const Uuid& id);
  void setText(const Uuid& id, std::string_view text);
  /// Closes the editor: the text is trimmed; one that ends in a date sends the task there, pinned; an empty
  /// one deletes it, with the selection it is in.
  void endEdit(const Uuid& id);
  /// The editor lost the keyboard.
  void textFocusLost(const Uuid& id);

  // The note editor.
  /// Opens a note; one that is open is closed before.
  void beginNoteEdit(const Uuid& id, std::int64_t index);
  void setNote(const Uuid& id, std::int64_t index, std::string_view text);
  /// Closes the editor: the note is trimmed, and removed where nothing is left.
  void endNoteEdit(const Uuid& id, std::int64_t index);
  /// The editor of this note lost the keyboard; while the keyboard hops that means nothing.
  void noteFocusLost(const Uuid& id, std::int64_t index);

  /// "→ Mon, 20 Jun 2026" while the text holds a date token; else empty.
  std::string dateHint(std::string_view text) const;

  void togglePin(const Uuid& id) { store_.togglePinTop(id); }
  void setRepeatChoice(const Uuid& id, RepeatChoice choice);
  void addNote(const Uuid& id);
  /// The context menu of a row in the current language; empty where its task is gone.
  std::vector<MenuEntry> menu(const Uuid& id);

 private:
  /// Writes a changed copy of the task through the store; nothing where it is gone.
  template <class Change>
  void write(const Uuid& id, Change change);
  /// What a text that was typed becomes: trimmed, sent to its day, or deleted.
  void settleText(const Uuid& id);

  Store& store_;
  SelectionModel& sel_;
  Time& time_;
  RowCommands commands_{store_, sel_};
  /// Of the calls that will close a note: opening another ends them.
  Lifetime closing_;
};

}  // namespace brimle
