// Key commands as a table: one row for each group of keys and modifiers, saying what the press does.
//
//   {{KeyCode::down, KeyCode::up}, kNoModifiers, hasSelection, moveRow, selectEnd}
//
// `Press` is what the conditions and commands of one table look at and change.
#pragma once

#include <algorithm>
#include <optional>
#include <span>
#include <vector>

#include "control/keys.h"

namespace brimle {

template <class Press>
struct KeyRow {
  using Ask = bool (*)(Press&);
  using Command = bool (*)(Press&);  ///< answers whether it used the key

  std::vector<KeyCode> keys;
  std::optional<Modifiers> modifiers;  ///< exactly these; any where there is none
  Ask condition;
  Command command;
  Command otherwise;  ///< where the condition does not hold; kNotUsed leaves the key to the rows below

  bool applies(const KeyPress& press) const {
    return std::find(keys.begin(), keys.end(), press.code) != keys.end() &&
           (!modifiers || *modifiers == press.modifiers);
  }
};

inline constexpr Modifiers kNoModifiers;
inline constexpr std::nullopt_t kAnyModifiers = std::nullopt;
inline constexpr std::nullptr_t kNotUsed = nullptr;

/// Does what the first row that has a command for the key press says; whether the key was used.
template <class Press>
bool runKeyTable(std::span<const KeyRow<Press>> table, const KeyPress& key, Press& press) {
  for (const auto& row : table) {
    if (!row.applies(key)) continue;
    if (const auto command = row.condition(press) ? row.command : row.otherwise) return command(press);
  }
  return false;
}

}  // namespace brimle
