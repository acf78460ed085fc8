#include "views/qt/today.h"

#include "views/qt/convert.h"
#include "views/qt/key_events.h"

namespace brimle {

Today::Today(Parts parts)
    : RowScreen(parts.sel, RowList::today),
      parts_(parts),
      header_(headerLook(parts.content, parts.archive, parts.ui)),
      rows_(parts.store, parts.sel, parts.time),
      commands_(parts.store, parts.sel),
      drag_(parts.store),
      reactions_(parts.ui, parts.sel, parts.todayFocusAdd),
      tasks_(parts.store, parts.sel) {
  subscriptions_.push_back(parts.store.observe([this](const Store::Changes&) {
    tasks_.refresh();
    refreshHeader();
  }));
  subscriptions_.push_back(parts.sel.observe([this] { tasks_.refresh(); }));
  subscriptions_.push_back(parts.ui.observe([this] { refreshHeader(); }));
  subscriptions_.push_back(reactions_.onFocusAdd([this] { emit focusAdd(); }));
}

void Today::refreshHeader() {
  header_ = headerLook(parts_.content, parts_.archive, parts_.ui);
  emit changed();
}

QString Today::title() const {
  return toQt(header_.title);
}
QString Today::count() const {
  return toQt(header_.count.text);
}
bool Today::allDone() const {
  return header_.count.allDone;
}
QString Today::tomorrowLabel() const {
  return toQt(header_.tomorrowLabel);
}
QString Today::tomorrowTooltip() const {
  return toQt(header_.tomorrowTooltip);
}
QString Today::draggingId() const {
  return drag_.draggingID() ? toQt(*drag_.draggingID()) : QString();
}

void Today::commit(const QString& draft, bool toTomorrow) {
  const auto row = parts_.content.commitDraft(fromQt(draft), toTomorrow);
  if (row) emit rowShown(static_cast<int>(*row));
}

void Today::toggle(const QString& taskId) {
  withId(taskId, [&](const Uuid& id) { commands_.toggleTargets(id); });
}

void Today::select(const QString& taskId, int modifiers) {
  withId(taskId, [&](const Uuid& id) {
    commands_.select(id, modifiersOf(Qt::KeyboardModifiers::fromInt(modifiers)));
    emit releaseKeyboard();
  });
}

void Today::togglePin(const QString& taskId) {
  withId(taskId, [&](const Uuid& id) { rows_.togglePin(id); });
}

void Today::openLink(const QString& address) {
  parts_.links.open(fromQt(address));
}

void Today::openMenu(const QString& taskId, const QPointF& place) {
  withId(taskId, [&](const Uuid& id) { openRowMenu(taskId, rows_.menu(id), place); });
}

void Today::beginEdit(const QString& taskId) {
  withId(taskId, [&](const Uuid& id) { rows_.beginEdit(id); });
}

void Today::setText(const QString& taskId, const QString& text) {
  withId(taskId, [&](const Uuid& id) { rows_.setText(id, fromQt(text)); });
}

void Today::endEdit(const QString& taskId) {
  withId(taskId, [&](const Uuid& id) { rows_.endEdit(id); });
}

void Today::textFocusLost(const QString& taskId) {
  withId(taskId, [&](const Uuid& id) { rows_.textFocusLost(id); });
}

void Today::beginNoteEdit(const QString& taskId, int index) {
  withId(taskId, [&](const Uuid& id) { rows_.beginNoteEdit(id, index); });
}

void Today::setNote(const QString& taskId, int index, const QString& text) {
  withId(taskId, [&](const Uuid& id) { rows_.setNote(id, index, fromQt(text)); });
}

void Today::endNoteEdit(const QString& taskId, int index) {
  withId(taskId, [&](const Uuid& id) { rows_.endNoteEdit(id, index); });
}

void Today::noteFocusLost(const QString& taskId, int index) {
  withId(taskId, [&](const Uuid& id) { rows_.noteFocusLost(id, index); });
}

QString Today::dateHint(const QString& text) const {
  return toQt(rows_.dateHint(fromQt(text)));
}

void Today::beginDrag(const QString& taskId) {
  withId(taskId, [&](const Uuid& id) { drag_.begin(id); });
  emit dragChanged();
}

void Today::dragEntered(const QString& taskId) {
  withId(taskId, [&](const Uuid& id) { drag_.enter(id); });
}

void Today::endDrag() {
  drag_.end();
  emit dragChanged();
}

void Today::dropText(const QString& text) {
  drag_.drop(fromQt(text));
  emit dragChanged();
}

}  // namespace brimle
