#include "views/content_reactions.h"

#include <utility>

namespace brimle {

ContentReactions::ContentReactions(UIState& ui, SelectionModel& sel, Signal<>& todayFocusAdd)
    : ui_(ui),
      sel_(sel),
      showingArchive_(ui.showingArchive()),
      archiveQuery_(ui.archiveQuery()),
      notices_(todayFocusAdd.subscribe([this] { focusAdd(); })),
      settings_(ui.observe([this] { settingsChanged(); })),
      editing_(sel.observe([this] { editingChanged(); })) {}

void ContentReactions::addFocused() {
  if (!sel_.selection().empty()) sel_.setSelection({});
}

void ContentReactions::focusAdd() {
  if (ui_.compact()) ui_.setCompact(false);
  if (ui_.showingArchive()) ui_.setShowingArchive(false);
  focusAdd_.notify();
}

void ContentReactions::settingsChanged() {
  const bool left = std::exchange(showingArchive_, ui_.showingArchive()) && !ui_.showingArchive();
  const bool searched = std::exchange(archiveQuery_, ui_.archiveQuery()) != ui_.archiveQuery();
  if ((left || searched) && !sel_.archiveSelection().empty()) sel_.setArchiveSelection({});
  if (left && !ui_.archiveQuery().empty()) ui_.setArchiveQuery("");
}

/// A task leaves the selection when its editing ends.
void ContentReactions::editingChanged() {
  const auto ended = [](std::optional<Uuid>& before, const std::optional<Uuid>& now) {
    const auto was = std::exchange(before, now);
    return now ? std::nullopt : was;
  };
  const auto text = ended(editingID_, sel_.editingID());
  const auto note = ended(noteEditingID_, sel_.noteEditingID());
  for (const auto& id : {text, note}) {
    if (id && sel_.selection().contains(*id)) sel_.deselect(RowList::today, {*id});
  }
}

}  // namespace brimle
