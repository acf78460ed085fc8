// The shortcuts card: three sections of keys and what they do, in the interface language. Shows only; does
// nothing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "i18n/region.h"

namespace brimle {

struct ShortcutsSection {
  struct Row {
    std::string keys;
    std::string description;
    /// The keys by their English names, as "Ctrl+Up, Ctrl+Down"; empty for what is typed, or has no key here.
    std::string names;
  };

  std::string title;
  std::vector<Row> rows;
};

/// The card in the current language; the example of a date follows the region's order. `hotKey` is the key
/// that stands for quick add on this desktop, as the user reads it; empty where none does.
std::vector<ShortcutsSection> shortcutsCard(const Region& region, std::string_view hotKey = {});

}  // namespace brimle
