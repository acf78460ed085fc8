// Scripts of keys, clicks and row commands over a store on Monday 15 June 2026.
//
//   "click:B shift+down -> B C @B >C; space -> B C @B >C => A B+ C+"
//
// A step is a key, with ! where it must not be used, or "verb:row". After the arrow stands the selection of
// the list that shows, its anchor and lead, then "edit:A" and "note:A.0" for open editors, "hop" while the
// flag is set, and "focus" where the entry field was asked to take the keyboard; then, where they changed in
// one save, the lists. Entries of the archive have the ids of their texts.
#pragma once

#include <algorithm>
#include <set>

#include "control/click_away.h"
#include "control/key_filter.h"
#include "control/row_commands.h"
#include "model/store_fixture.h"
#include "platform/simulated/simulated_pasteboard.h"
#include "platform/simulated/simulated_preferences_store.h"

namespace brimle {

inline const auto kModifiers = split("caps shift ctrl opt cmd help", ' ');
inline const std::map<std::string, int> kKeys = {{"a", 0},      {"c", 8},     {"return", 36}, {"tab", 48},
                                                 {"space", 49}, {"back", 51}, {"esc", 53},    {"del", 117},
                                                 {"down", 125}, {"up", 126},  {"x", 7}};

/// "cmd+down", or a click on the row that `characters` names.
inline KeyPress chord(std::string_view text) {
  KeyPress press;
  for (const auto& word : split(text, '+')) {
    const auto modifier = std::ranges::find(kModifiers, word) - kModifiers.begin();
    if (modifier < 6) press.modifiers = press.modifiers | static_cast<Modifier>(1 << modifier);
    if (kKeys.contains(word)) press.code = static_cast<KeyCode>(kKeys.at(word));
    press.characters = word;
  }
  return press;
}

class ControlTest : public StoreTest {
 protected:
  virtual void start(std::string_view text) {
    Lists start = lists(text);
    std::vector<ArchiveDay> days(start.archive.begin(), start.archive.end());
    for (auto& day : days) {
      for (auto& entry : day.items) entry.id = idOf(entry.text);
    }
    start.archive = Archive(days);
    open(document(start));
    sel.emplace(time);
    away.emplace(*sel, ui, time);
    focused = false;
    ControlTest::play("show:today search: keyboard:window");
  }

  RowList shown() const { return ui.showingArchive() ? RowList::archive : RowList::today; }

  static std::string name(const Uuid& id) { return reinterpret_cast<const char*>(id.bytes.data()); }

  std::string selected() const {
    const auto& [ids, anchor, lead] = sel->rows(shown());
    std::set<std::string> names;
    for (const Uuid& id : ids) names.insert(name(id));
    std::string text;
    for (const auto& row : names) text += row + " ";
    if (anchor) text += "@" + name(*anchor) + " ";
    if (lead) text += ">" + name(*lead) + " ";
    if (const auto& id = sel->editingID()) text += "edit:" + name(*id) + " ";
    if (const auto& id = sel->noteEditingID())
      text += "note:" + name(*id) + "." + std::to_string(sel->noteEditingIndex()) + " ";
    return text + (sel->hopping() ? "hop " : "") + (focused ? "focus " : "");
  }

  bool press(const KeyPress& key) {
    KeyFilter filter(*store, *sel, ui, pasteboard, todayFocusAdd);
    return filter.filter(key, {keyboard != "elsewhere", keyboard == "field"});
  }
  bool press(std::string_view key) { return press(chord(key)); }

  virtual void play(std::string_view script) {
    RowCommands row(*store, *sel);
    ArchiveCommands entry(*store, *sel, ui);
    for (const auto& step : split(script, ' ')) {
      const std::string what = step.substr(step.find(':') + 1);
      const KeyPress at = chord(what);
      const Uuid id = idOf(at.characters);
      const std::map<std::string, std::function<void()>> verbs = {
          {"release", [&] { away->mouseUp(at.modifiers); }},
          {"select",
           [&] { ui.showingArchive() ? entry.selectEntry(id, at.modifiers) : row.select(id, at.modifiers); }},
          {"blank", [&] { ControlTest::play("release:" + what + " wait:0"); }},
          {"click", [&] { ControlTest::play("release:" + what + " select:" + what + " wait:0"); }},
          {"pick", [&] { sel->setSelected(shown(), {id}); }},
          {"edit", [&] { sel->setEditingID(id); }},
          {"note", [&] { sel->setNoteEditingID(id); }},
          {"index", [&] { sel->setNoteEditingIndex(std::stoll(what)); }},
          {"tick", [&] { row.toggleTargets(id); }},
          {"mark", [&] { row.highlightTargets(id); }},
          {"delete", [&] { row.deleteTargets(id); }},
          {"defer", [&] { row.moveTargetsToTomorrow(id); }},
          {"send", [&] { row.sendToDay(id, "2026-06-20"); }},
          {"restore", [&] { entry.bringBackTargets(id); }},
          {"drop", [&] { entry.deleteTargets(id); }},
          {"show", [&] { ui.setShowingArchive(what == "archive"); }},
          {"search", [&] { ui.setArchiveQuery(what); }},
          {"keyboard", [&] { keyboard = what; }},
          {"wait", [&] { time.advance(Seconds(std::stod(what))); }}};
      const auto verb = verbs.find(step.substr(0, step.find(':')));
      if (verb != verbs.end())
        verb->second();
      else
        EXPECT_EQ(press(step.substr(step[0] == '!')), step[0] != '!') << step;
    }
  }

  /// What a script says of the list that shows and of open editors.
  virtual std::string looks() const { return selected(); }

  /// Plays each script on these lists and compares where it says so.
  void expect(const std::string& lists, const std::vector<std::string>& scripts) {
    for (const auto& script : scripts) {
      SCOPED_TRACE(lists + ": " + script);
      start(lists);
      for (const auto& part : split(script, ';')) {
        const auto arrow = part.find("->"), change = part.find("=>");
        const bool changes = change != part.npos;
        const std::string listsAfter = changes ? part.substr(change + 2) : state();
        const int saves = files.replaces(kFile) + changes;
        play(part.substr(0, arrow));
        EXPECT_EQ(split(looks(), ' '), split(part.substr(arrow + 2, change - arrow - 2), ' ')) << part;
        EXPECT_EQ(split(state(), ' '), split(listsAfter, ' ')) << part;
        EXPECT_TRUE(!savesOnce || files.replaces(kFile) == saves) << part;
      }
    }
  }

  bool savesOnce = true;  ///< each change that a script tells of is one save
  SimulatedPreferencesStore preferences;
  UIState ui{preferences, {}};
  SimulatedPasteboard pasteboard;
  std::optional<SelectionModel> sel;
  std::optional<ClickAway> away;
  Signal<> todayFocusAdd;
  bool focused = false;
  Subscription onFocus = todayFocusAdd.subscribe([this] { focused = true; });
  std::string keyboard;
};

/// Rows A B C D in this order, with R between them that ranges and arrow keys leave out: on today's list
/// after the one script, in the archive after the other.
inline const std::pair<std::string, std::string> kRows[] = {
    {"A B R*# C D", ""}, {"T | | | 14:A/x,R,B/x 13:C/x,D/x", "show:archive search:x "}};

}  // namespace brimle
