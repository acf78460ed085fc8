// Scripts of what happens in the window's rows, over a store on Monday 15 June 2026: the steps of the
// control's scripts, and those of today's rows, the archive's rows, the reactions and drags.
//
//   "edit:A write:A=x_>20/6 end:A -> => B | | 20:x'!; menu:B=Tick -> => B+ | | 20:x'!"
//
// After the arrow stands the selection as in the control's scripts, then "P:draft" or "P.0:draft" for an open
// editor of the archive; then the lists, where they changed. In what is typed _ is a space.
#pragma once

#include <algorithm>

#include "control/control_fixture.h"
#include "i18n/i18n.h"
#include "views/archive_view.h"
#include "views/content_reactions.h"
#include "views/row_drag.h"
#include "views/row_view.h"

namespace brimle {

class ViewTest : public ControlTest {
 protected:
  ~ViewTest() override { I18n::setLang("en"); }

  ViewTest() { savesOnce = false; }

  void start(std::string_view lists) override {
    ControlTest::start(lists);
    row.emplace(*store, *sel, time);
    archive.emplace(*store, *sel, ui, time);
    drag.emplace(*store);
    reactions.emplace(ui, *sel, todayFocusAdd);
    watch = archive->observe([this] { told = editor(); });
  }

  std::string looks() const override { return selected() + editor(); }

  /// The entry of a scheduled task, which is named by the text it begins with.
  Uuid entryOf(const Uuid& task) const {
    const auto found =
        std::ranges::find(store->scheduled(), task, [](const auto& one) { return one.item.id; });
    return found == store->scheduled().end() ? Uuid{} : found->id;
  }

  std::string editor() const {
    if (!archive->editor()) return "";
    const auto& [id, note, draft] = *archive->editor();
    const auto entry = std::ranges::find(store->scheduled(), id, &ScheduledItem::id);
    const std::string text = entry == store->scheduled().end() ? "?" : name(entry->item.id);
    return text + (note ? "." + std::to_string(*note) : "") + ":" + draft;
  }

  void choose(const Uuid& id, const std::string& title) {
    const auto rows = archive->rows();
    const auto entry =
        std::ranges::find_if(rows, [&](const auto& one) { return one.key == id || one.key == entryOf(id); });
    const auto menu = ui.showingArchive() ? archive->menu(*entry) : row->menu(id);
    const auto item = std::ranges::find(menu, title, &MenuEntry::title);
    ASSERT_NE(item, menu.end()) << title;
    item->action();
  }

  void play(std::string_view script) override {
    told = editor();
    for (const auto& step : split(script, ' ')) {
      const auto equals = std::min(step.find('='), step.size());
      const auto words = split(step.substr(0, equals), ':');
      const auto place = split(words.size() > 1 ? words[1] : "", '.');
      const Uuid id = idOf(place.empty() ? "" : place[0]), entry = entryOf(id);
      const bool isNote = place.size() > 1;
      const int index = isNote ? std::stoi(place[1]) : 0;
      std::string text = step.substr(std::min(equals + 1, step.size()));
      std::ranges::replace(text, '_', ' ');
      const std::map<std::string, std::function<void()>> verbs = {
          {"edit", [&] { isNote ? row->beginNoteEdit(id, index) : row->beginEdit(id); }},
          {"write", [&] { isNote ? row->setNote(id, index, text) : row->setText(id, text); }},
          {"end", [&] { isNote ? row->endNoteEdit(id, index) : row->endEdit(id); }},
          {"blur", [&] { isNote ? row->noteFocusLost(id, index) : row->textFocusLost(id); }},
          {"addnote", [&] { ui.showingArchive() ? archive->addNote(entry) : row->addNote(id); }},
          {"menu", [&] { choose(id, text); }},
          {"gone", [&] { row.reset(); }},
          {"open", [&] { isNote ? archive->beginNoteEdit(entry, index) : archive->beginEdit(entry); }},
          {"draft", [&] { archive->setDraft(text); }},
          {"commit", [&] { archive->commit(); }},
          {"cancel", [&] { archive->cancel(); }},
          {"next", [&] { archive->walkDown(); }},
          {"back", [&] { archive->walkUp(); }},
          {"unschedule", [&] { store->removeScheduled(entry); }},
          {"typing", [&] { reactions->addFocused(); }},
          {"wanted", [&] { todayFocusAdd.notify(); }},
          {"future", [&] { ui.setArchiveViewingFuture(true); }},
          {"compact", [&] { ui.setCompact(!ui.compact()); }},
          {"drag", [&] { drag->begin(id); }},
          {"over", [&] { drag->enter(id); }},
          {"dragend", [&] { drag->end(); }},
          {"dropped", [&] { drag->drop(text); }}};
      const auto verb = verbs.find(words.at(0));
      verb == verbs.end() ? ControlTest::play(step) : verb->second();
    }
    EXPECT_EQ(told.substr(0, told.find(':')), editor().substr(0, editor().find(':'))) << "nobody was told";
  }

  std::optional<RowView> row;
  std::optional<ArchiveView> archive;
  std::optional<RowDrag> drag;
  std::optional<ContentReactions> reactions;
  std::string told;  ///< the archive's editor when its observers were last told
  Subscription watch;
};

}  // namespace brimle
