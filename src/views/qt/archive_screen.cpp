#include "views/qt/archive_screen.h"

#include "views/qt/convert.h"
#include "views/qt/key_events.h"
#include "views/scroll_watch.h"

namespace brimle {

ArchiveScreen::ArchiveScreen(Store& store, SelectionModel& sel, UIState& ui, ArchiveView& view,
                             Signal<>& todayFocusAdd)
    : RowScreen(sel, RowList::archive),
      store_(store),
      ui_(ui),
      sel_(sel),
      view_(view),
      todayFocusAdd_(todayFocusAdd),
      commands_(store, sel, ui),
      rows_(store, view, sel) {
  subscriptions_.push_back(store.observe([this](const Store::Changes& changes) {
    if (shown_ && (changes.has(Store::Field::archive) || changes.has(Store::Field::scheduled))) refresh();
  }));
  subscriptions_.push_back(sel.observe([this] { rows_.touch(); }));
  subscriptions_.push_back(view.observe([this] { rows_.touch(); }));
  subscriptions_.push_back(ui.observe([this] {
    const bool searched = std::exchange(query_, ui_.archiveQuery()) != ui_.archiveQuery();
    const bool turned = std::exchange(shown_, ui_.showingArchive()) != ui_.showingArchive();
    if (turned && shown_) store_.prepareSearch();
    if (turned && !shown_) rows_.clear();
    const bool spoken = std::exchange(language_, ui_.language()) != ui_.language();
    if (shown_ && (turned || searched)) refresh();
    if (shown_ && spoken) rows_.touch();
    if (turned) emit showingChanged();
    emit changed();
  }));
}

void ArchiveScreen::refresh() {
  rows_.refresh();
  emit rowsChanged();
}

QString ArchiveScreen::query() const {
  return toQt(ui_.archiveQuery());
}

void ArchiveScreen::setQuery(const QString& query) {
  if (query != this->query()) ui_.setArchiveQuery(fromQt(query));
}

void ArchiveScreen::leave() {
  ui_.setShowingArchive(false);
  todayFocusAdd_.notify();
}

void ArchiveScreen::boundaryMoved(double distance) {
  const bool future = isViewingFuture(distance);
  if (shown_ && future != ui_.archiveViewingFuture()) ui_.setArchiveViewingFuture(future);
}

void ArchiveScreen::select(const QString& key, int modifiers) {
  withId(key, [&](const Uuid& id) {
    commands_.selectEntry(id, modifiersOf(Qt::KeyboardModifiers::fromInt(modifiers)));
    emit releaseKeyboard();
  });
}

void ArchiveScreen::openMenu(const QString& key, const QPointF& place) {
  withId(key, [&](const Uuid& id) {
    if (const TimelineRow* row = rows_.find(id)) openRowMenu(key, view_.menu(*row), place);
  });
}

/// Only one thing at a time is what keys act on.
void ArchiveScreen::setFocusedKey(const QString& key) {
  focusedKey_ = key;
  if (!key.isEmpty() && !sel_.archiveSelection().empty()) sel_.setArchiveSelection({});
}

int ArchiveScreen::rowOfKeys() const {
  const auto focused = Uuid::parse(fromQt(focusedKey_));
  return focused ? rowOf(*focused) : leadRow();
}

void ArchiveScreen::remove(const QString& key) {
  withId(key, [&](const Uuid& id) { store_.removeScheduled(id); });
}

void ArchiveScreen::beginEdit(const QString& key) {
  withId(key, [&](const Uuid& id) { view_.beginEdit(id); });
}

void ArchiveScreen::beginNoteEdit(const QString& key, int index) {
  if (index < 0) return;
  withId(key, [&](const Uuid& id) { view_.beginNoteEdit(id, static_cast<std::size_t>(index)); });
}

QString ArchiveScreen::dateHint(const QString& text) const {
  return toQt(view_.dateHint(fromQt(text)));
}

void ArchiveScreen::setDraft(const QString& draft) {
  view_.setDraft(fromQt(draft));
}

}  // namespace brimle
