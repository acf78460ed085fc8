#include "views/row_view.h"

#include "base/limits.h"
#include "base/text.h"
#include "entry/date_token.h"
#include "i18n/i18n.h"
#include "views/date_hint.h"

namespace brimle {
namespace {

struct RepeatTitle {
  RepeatChoice choice;
  std::string_view title;
};
constexpr RepeatTitle kRepeatTitles[] = {
    {RepeatChoice::off, "No repeat"},
    {RepeatChoice::everyDay, "Every day"},
    {RepeatChoice::weekdays, "Weekdays only"},
};

bool hasNote(const TodoItem& task, std::int64_t index) {
  return index >= 0 && index < std::ssize(task.notes);
}

}  // namespace

RepeatChoice repeatChoiceOf(const TodoItem& task) {
  if (!task.repeats) return RepeatChoice::off;
  return task.schedule == Schedule::weekdays ? RepeatChoice::weekdays : RepeatChoice::everyDay;
}

template <class Change>
void RowView::write(const Uuid& id, Change change) {
  const TodoItem* task = store_.find(id);
  if (!task) return;
  TodoItem copy = *task;
  change(copy);
  store_.replace(id, std::move(copy));
}

void RowView::beginEdit(const Uuid& id) {
  const TodoItem* task = store_.find(id);
  if (task && isShownWhole(task->text) && sel_.noteEditingID() != id) sel_.setEditingID(id);
}

void RowView::setText(const Uuid& id, std::string_view text) {
  write(id, [&](TodoItem& task) { task.text = toValidUtf8(text); });
}

void RowView::endEdit(const Uuid& id) {
  store_.perform([&] {
    settleText(id);
    // Not before: an edit that ends takes the task out of the selection that a cleared text deletes.
    if (sel_.editingID() == id) sel_.setEditingID(std::nullopt);
  });
}

void RowView::settleText(const Uuid& id) {
  write(id, [](TodoItem& task) { task.text = std::string(trimmedLines(task.text)); });
  const TodoItem* task = store_.find(id);
  if (!task) return;
  const std::string text = task->text;
  if (const auto dated = extractDateToken(text, store_.entryContext())) {
    write(id, [&](TodoItem& sent) { sent.text = std::string(dated->text); });
    commands_.sendToDay(id, dayKey(dated->day));
  } else if (text.empty()) {
    commands_.deleteTargets(id);
  }
}

void RowView::textFocusLost(const Uuid& id) {
  if (sel_.editingID() == id) endEdit(id);
}

void RowView::beginNoteEdit(const Uuid& id, std::int64_t index) {
  closing_.renew();
  if (const auto open = sel_.noteEditingID()) {
    const std::int64_t openIndex = sel_.noteEditingIndex();
    if (cleanupNote(store_, *open, openIndex) && open == id && openIndex < index) --index;
  }
  const TodoItem* task = store_.find(id);
  if (!task || !hasNote(*task, index) || !isShownWhole(task->notes[static_cast<std::size_t>(index)])) {
    return sel_.setNoteEditingID(std::nullopt);
  }
  sel_.setNoteEditingIndex(index);
  sel_.setNoteEditingID(id);
}

void RowView::setNote(const Uuid& id, std::int64_t index, std::string_view text) {
  write(id, [&](TodoItem& task) {
    if (hasNote(task, index)) task.notes[static_cast<std::size_t>(index)] = toValidUtf8(text);
  });
}

void RowView::endNoteEdit(const Uuid& id, std::int64_t index) {
  if (sel_.noteEditingID() == id) sel_.setNoteEditingID(std::nullopt);
  cleanupNote(store_, id, index);
}

void RowView::noteFocusLost(const Uuid& id, std::int64_t index) {
  const auto isOpen = [this, id, index] {
    return sel_.noteEditingID() == id && sel_.noteEditingIndex() == index;
  };
  if (!isOpen() || sel_.hopping()) return;
  // On the next turn, since the keyboard may be on its way to another note of the same row.
  time_.after(Seconds(0), closing_.guard([this, isOpen, id, index] {
    if (isOpen()) endNoteEdit(id, index);
  }));
}

std::string RowView::dateHint(std::string_view text) const {
  return brimle::dateHint(text, store_.entryContext());
}

void RowView::setRepeatChoice(const Uuid& id, RepeatChoice choice) {
  write(id, [&](TodoItem& task) {
    task.repeats = choice != RepeatChoice::off;
    if (!task.repeats) return;
    task.schedule = choice == RepeatChoice::weekdays ? Schedule::weekdays : Schedule::everyDay;
  });
}

void RowView::addNote(const Uuid& id) {
  const TodoItem* task = store_.find(id);
  if (!task) return;
  const auto index = std::ssize(task->notes);
  write(id, [](TodoItem& changed) { changed.notes.emplace_back(); });
  beginNoteEdit(id, index);
}

std::vector<MenuEntry> RowView::menu(const Uuid& id) {
  const TodoItem* task = store_.find(id);
  if (!task) return {};
  std::vector<MenuEntry> items = {
      {I18n::t(task->done ? "Untick" : "Tick"), [this, id] { commands_.toggleTargets(id); }},
      {I18n::t("Add note"), [this, id] { addNote(id); }},
      {I18n::t(task->highlighted ? "Remove highlight" : "Highlight"),
       [this, id] { commands_.highlightTargets(id); }},
      {I18n::t(task->pinnedTop ? "Unpin" : "Pin to top"), [this, id] { togglePin(id); }},
      {I18n::t("Move to tomorrow"), [this, id] { commands_.moveTargetsToTomorrow(id); }},
      {},
      {I18n::t("Repeat"), {}},
  };
  for (const auto& [choice, title] : kRepeatTitles) {
    items.push_back({.title = I18n::t(title),
                     .action = [this, id, choice = choice] { setRepeatChoice(id, choice); },
                     .on = repeatChoiceOf(*task) == choice});
  }
  items.push_back({});
  items.push_back({.title = I18n::t("Delete"),
                   .action = [this, id] { commands_.deleteTargets(id); },
                   .destructive = true});
  return items;
}

}  // namespace brimle
