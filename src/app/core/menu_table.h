// The menu bar as a table: one row an item, in their order, with what it is called, what it does, its key and
// when it carries a check mark.
#pragma once

#include <span>
#include <string_view>

namespace brimle {

enum class Command {
  none,
  showAbout,
  checkForUpdates,
  toggleLoginItem,
  quit,
  newTask,
  copyDay,
  pasteTasks,
  undo,
  redo,
  cut,
  copy,
  paste,
  selectAll,
  setAppearance,
  setPaperTone,
  setFontDesign,
  setTextSize,
  setMargin,
  setLanguage,
  resetDefaults,
  minimise,
  sizeCompact,
  sizeRegular,
  sizeLarge,
  showShortcuts,
  sendFeedback,
};

/// The check marks that are refreshed together.
enum class MarkGroup { never, appearance, style, language, login };

struct MenuRow {
  std::string_view menu;     ///< the text of its title; empty for the program's own menu
  std::string_view submenu;  ///< the text of its title; empty for an item of the menu itself
  std::string_view title;    ///< its English text, or a language's own name; empty for a separator
  Command command = Command::none;
  char key = 0;              ///< chooses it while Command is held; upper case asks for Shift too
  std::string_view value{};  ///< of the setting that the command sets; the item is on while it has this value
  MarkGroup marks = MarkGroup::never;
};

std::span<const MenuRow> menuRows();

}  // namespace brimle
