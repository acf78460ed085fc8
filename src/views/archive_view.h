// The archive view: the timeline's texts, the commands of its rows, and the editors of scheduled tasks in
// place.
//
// A scheduled task is edited in a draft that reaches the store when the editor closes; Escape drops the
// draft. The editor walks with the keyboard between the task's text and its notes.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/signal.h"
#include "control/row_commands.h"
#include "control/selection_model.h"
#include "model/store.h"
#include "platform/menu.h"
#include "views/archive_timeline.h"
#include "views/date_hint.h"

namespace brimle {

class ArchiveView {
 public:
  /// The editor that is open: of a scheduled task's text, or of one of its notes.
  struct Editor {
    Uuid id;
    std::optional<std::size_t> note;
    std::string draft;

    bool operator==(const Editor&) const = default;
  };

  /// All references must outlive the view.
  ArchiveView(Store& store, SelectionModel& sel, const UIState& ui, const Time& time)
      : store_(store), sel_(sel), ui_(ui), time_(time) {}

  std::vector<TimelineRow> rows() const { return archiveTimeline(store_, ui_.archiveQuery()); }
  /// What a heading, the boundary or the empty timeline says.
  std::string title(const TimelineRow& row) const;
  /// The heading's count: how many entries match the search.
  std::size_t matchCount() const { return store_.archivedIDsInOrder(ui_.archiveQuery()).size(); }

  /// The context menu of a scheduled task or of an archived entry.
  std::vector<MenuEntry> menu(const TimelineRow& row);

  /// "→ Sat, 20 Jun 2026" while the text holds a date token; else empty.
  std::string dateHint(std::string_view text) const { return brimle::dateHint(text, store_.entryContext()); }

  // Editing scheduled tasks.
  const std::optional<Editor>& editor() const { return editor_; }
  void beginEdit(const Uuid& id);
  void beginNoteEdit(const Uuid& id, std::size_t index);
  /// Adds a note and opens it; nothing where the notes are full.
  void addNote(const Uuid& id);
  void setDraft(std::string_view draft);
  /// Return, or the keyboard going elsewhere: the draft is stored.
  void commit();
  /// Escape: the draft is dropped.
  void cancel();
  /// Down, and Tab in the text: on to the next note, a new one after the last.
  void walkDown();
  /// Up in a note: back to the note before it, or to the text.
  void walkUp();

  /// Tells that the editor opened, moved or closed.
  [[nodiscard]] Subscription observe(std::function<void()> observer) {
    return changed_.subscribe(std::move(observer));
  }

 private:
  const ScheduledItem* find(const Uuid& id) const;
  void open(std::optional<Editor> editor);

  Store& store_;
  SelectionModel& sel_;
  const UIState& ui_;
  const Time& time_;
  ArchiveCommands commands_{store_, sel_, ui_};
  std::optional<Editor> editor_;
  Signal<> changed_;
};

}  // namespace brimle
