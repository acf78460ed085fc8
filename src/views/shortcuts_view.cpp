#include "views/shortcuts_view.h"

#include <span>

#include "i18n/i18n.h"

namespace brimle {
namespace {

struct RowText {
  std::string_view keys;
  std::string_view description;
  std::string_view names = {};  ///< what a keyboard of this desktop calls the keys, if they are any
};

/// Stands in the keys column for what is not the same everywhere.
constexpr std::string_view kDateExample = "date example";
constexpr std::string_view kSpace = "Space";
/// What the card calls the key that works from everywhere, whichever key stands for it here.
constexpr std::string_view kHotKey = "⌥⌘T";

constexpr RowText kAdding[] = {
    {"⏎", "Add a task", "Return"},
    {"⇧⏎", "New line", "Shift+Return"},
    {"⌥⏎", "Move to tomorrow", "Alt+Return"},
    {kHotKey, "Quick add from anywhere"},
};
constexpr RowText kMarkers[] = {
    {"// …", "Add note"},
    {"// … // …", "Another note"},
    {"⇥ …", "Indent for a note", "Tab"},
    {kDateExample, "Send to a day"},
    {"!", "Pin to top"},
    {"*", "Every day"},
    {"*w", "Weekdays only"},
};
constexpr RowText kWorking[] = {
    {kSpace, "Tick"},
    {"⏎", "Edit", "Return"},
    {"⇥ / ↓", "Walk the notes", "Tab, Down"},
    {"⌘↑ ⌘↓", "Move task", "Ctrl+Up, Ctrl+Down"},
    {"⌫", "Delete", "Backspace, Del"},
    {"⌘Z", "Undo", "Ctrl+Z"},
    {"⇧⌘C", "Copy Day as Text", "Ctrl+Shift+C"},
    {"⇧⌘V", "Paste Clipboard as Tasks", "Ctrl+Shift+V"},
};

struct SectionText {
  std::string_view title;
  std::span<const RowText> rows;
};
constexpr SectionText kSections[] = {
    {"Adding tasks", kAdding},
    {"Notes & markers", kMarkers},
    {"Working the list", kWorking},
};

std::string keysOf(const RowText& row, const Region& region) {
  if (row.keys == kDateExample) return region.monthFirst ? "> 9/22" : "> 22/9";
  return row.keys == kSpace ? I18n::t(kSpace) : std::string(row.keys);
}

}  // namespace

std::vector<ShortcutsSection> shortcutsCard(const Region& region, std::string_view hotKey) {
  std::vector<ShortcutsSection> card;
  for (const SectionText& section : kSections) {
    auto& shown = card.emplace_back();
    shown.title = I18n::t(section.title);
    for (const RowText& row : section.rows) {
      shown.rows.push_back({keysOf(row, region), I18n::t(row.description),
                            std::string(row.keys == kHotKey ? hotKey : row.names)});
    }
  }
  return card;
}

}  // namespace brimle
