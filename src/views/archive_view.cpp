#include "views/archive_view.h"

#include <algorithm>
#include <utility>

#include "base/text.h"
#include "i18n/dates.h"
#include "i18n/i18n.h"
#include "views/row_text.h"

namespace brimle {
namespace {

using Kind = TimelineRow::Kind;

}  // namespace

std::string ArchiveView::title(const TimelineRow& row) const {
  switch (row.kind) {
    case Kind::futureDay:
      // Between a change of the store and the refresh that follows it a row may name an entry that has gone.
      if (row.index >= store_.scheduled().size()) return {};
      return futureDayLabel(store_.scheduled()[row.index].date);
    case Kind::boundary: return I18n::t("Today");
    case Kind::nothing:
      return I18n::t(store_.archive().empty() ? "Past days will collect here at midnight." : "No matches");
    case Kind::pastDay: return pastDayLabel(row.day->date, time_.today());
    case Kind::futureTask:
    case Kind::pastTask: break;
  }
  return {};
}

std::vector<MenuEntry> ArchiveView::menu(const TimelineRow& row) {
  const Uuid id = row.key;
  if (row.kind == Kind::futureTask) {
    return {{I18n::t("Add note"), [this, id] { addNote(id); }},
            {I18n::t("Move to today"), [this, id] { store_.bringForward(id); }},
            {},
            {.title = I18n::t("Delete"),
             .action = [this, id] { store_.removeScheduled(id); },
             .destructive = true}};
  }
  if (row.kind == Kind::pastTask) {
    return {{I18n::t("Bring back to today"), [this, id] { commands_.bringBackTargets(id); }},
            {},
            {.title = I18n::t("Delete"),
             .action = [this, id] { commands_.deleteTargets(id); },
             .destructive = true}};
  }
  return {};
}

const ScheduledItem* ArchiveView::find(const Uuid& id) const {
  const auto& scheduled = store_.scheduled();
  const auto found = std::ranges::find(scheduled, id, &ScheduledItem::id);
  return found == scheduled.end() ? nullptr : &*found;
}

void ArchiveView::open(std::optional<Editor> editor) {
  editor_ = std::move(editor);
  changed_.notify();
}

void ArchiveView::beginEdit(const Uuid& id) {
  commit();
  const ScheduledItem* entry = find(id);
  if (entry && isShownWhole(entry->item.text)) open(Editor{id, std::nullopt, entry->item.text});
}

void ArchiveView::beginNoteEdit(const Uuid& id, std::size_t index) {
  // A blank note goes when its editor closes, and the notes after it move up.
  const bool oneGoes = editor_ && editor_->id == id && editor_->note && trimmed(editor_->draft).empty();
  if (oneGoes && *editor_->note < index) --index;
  commit();
  const ScheduledItem* entry = find(id);
  if (!entry || index >= entry->item.notes.size() || !isShownWhole(entry->item.notes[index])) return;
  open(Editor{id, index, entry->item.notes[index]});
}

void ArchiveView::addNote(const Uuid& id) {
  commit();
  if (const auto index = store_.addScheduledNote(id)) beginNoteEdit(id, *index);
}

void ArchiveView::setDraft(std::string_view draft) {
  if (editor_) editor_->draft = draft;
}

void ArchiveView::commit() {
  if (!editor_) return;
  const Editor closed = *editor_;
  open(std::nullopt);
  if (closed.note) {
    store_.editScheduledNote(closed.id, static_cast<std::ptrdiff_t>(*closed.note), closed.draft);
  } else {
    store_.editScheduled(closed.id, closed.draft);
  }
}

void ArchiveView::cancel() {
  if (editor_) open(std::nullopt);
}

void ArchiveView::walkDown() {
  if (!editor_) return;
  const Editor from = *editor_;
  commit();
  if (from.note && trimmedLines(from.draft).empty()) return;
  const ScheduledItem* entry = find(from.id);
  if (!entry) return;
  const std::size_t next = from.note ? *from.note + 1 : 0;
  if (next < entry->item.notes.size()) {
    beginNoteEdit(from.id, next);
  } else {
    addNote(from.id);
  }
}

void ArchiveView::walkUp() {
  if (!editor_ || !editor_->note) return;
  const Editor from = *editor_;
  commit();
  const ScheduledItem* entry = find(from.id);
  if (!entry) return;
  const std::size_t count = entry->item.notes.size();
  if (*from.note >= 1 && count > 0) {
    beginNoteEdit(from.id, std::min(*from.note, count) - 1);
  } else {
    beginEdit(from.id);
  }
}

}  // namespace brimle
