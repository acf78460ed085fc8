#include "app/core/menu_table.h"

namespace brimle {
namespace {

using enum Command;
using enum MarkGroup;

constexpr MenuRow kRows[] = {
    {"", "", "About Brimle", showAbout},
    {"", "", "Check for Updates…", checkForUpdates},
    {"", "", ""},
    {"", "", "Start at Login", toggleLoginItem, 0, "", login},
    {"", "", ""},
    {"", "", "Quit Brimle", quit, 'q'},

    {"File", "", "New Task", newTask, 'n'},
    {"File", "", ""},
    {"File", "", "Copy Day as Text", copyDay, 'C'},
    {"File", "", "Paste Clipboard as Tasks", pasteTasks, 'V'},

    {"Edit", "", "Undo", undo, 'z'},
    {"Edit", "", "Redo", redo, 'Z'},
    {"Edit", "", ""},
    {"Edit", "", "Cut", cut, 'x'},
    {"Edit", "", "Copy", copy, 'c'},
    {"Edit", "", "Paste", paste, 'v'},
    {"Edit", "", "Select All", selectAll, 'a'},

    {"View", "", "System", setAppearance, 0, "system", appearance},
    {"View", "", "Light", setAppearance, 0, "light", appearance},
    {"View", "", "Dark", setAppearance, 0, "dark", appearance},
    {"View", "", ""},
    {"View", "Paper", "Warm", setPaperTone, 0, "warm", style},
    {"View", "Paper", "White", setPaperTone, 0, "plain", style},
    {"View", "Font", "System", setFontDesign, 0, "system", style},
    {"View", "Font", "Serif", setFontDesign, 0, "serif", style},
    {"View", "Font", "Rounded", setFontDesign, 0, "rounded", style},
    {"View", "Text Size", "Small", setTextSize, 0, "small", style},
    {"View", "Text Size", "Medium", setTextSize, 0, "medium", style},
    {"View", "Text Size", "Large", setTextSize, 0, "large", style},
    {"View", "Margin", "Standard", setMargin, 0, "standard", style},
    {"View", "Margin", "Narrow", setMargin, 0, "narrow", style},
    {"View", "Margin", "Flush", setMargin, 0, "flush", style},
    {"View", "", ""},
    {"View", "Language", "System", setLanguage, 0, "system", language},
    {"View", "Language", "English", setLanguage, 0, "en", language},
    {"View", "Language", "Español", setLanguage, 0, "es", language},
    {"View", "Language", "Deutsch", setLanguage, 0, "de", language},
    {"View", "Language", "Français", setLanguage, 0, "fr", language},
    {"View", "Language", "Italiano", setLanguage, 0, "it", language},
    {"View", "Language", "Nederlands", setLanguage, 0, "nl", language},
    {"View", "Language", "Português", setLanguage, 0, "pt", language},
    {"View", "Language", "Bahasa Indonesia", setLanguage, 0, "id", language},
    {"View", "Language", "日本語", setLanguage, 0, "ja", language},
    {"View", "Language", "한국어", setLanguage, 0, "ko", language},
    {"View", "Language", "简体中文", setLanguage, 0, "zh-Hans", language},
    {"View", "Language", "繁體中文", setLanguage, 0, "zh-Hant", language},
    {"View", "", ""},
    {"View", "", "Reset to Defaults", resetDefaults},

    {"Window", "", "Minimise", minimise, 'm'},
    {"Window", "", ""},
    {"Window", "", "Compact", sizeCompact, '1'},
    {"Window", "", "Regular", sizeRegular, '2'},
    {"Window", "", "Large", sizeLarge, '3'},

    {"Help", "", "Shortcuts", showShortcuts, '/'},
    {"Help", "", "Send Feedback", sendFeedback},
};

}  // namespace

std::span<const MenuRow> menuRows() {
  return kRows;
}

}  // namespace brimle
