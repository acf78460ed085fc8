#include "control/row_selection.h"

#include <algorithm>

namespace brimle {
namespace {

/// The ids between two rows, both included; nothing where either is not in the order.
std::optional<IdSet> range(const RowOrder& order, const Uuid& from, const Uuid& to) {
  auto first = std::find(order.begin(), order.end(), from);
  auto last = std::find(order.begin(), order.end(), to);
  if (first == order.end() || last == order.end()) return std::nullopt;
  if (last < first) std::swap(first, last);
  return IdSet(first, last + 1);
}

/// The row that arrow keys start from: the lead, else any that is selected.
std::optional<Uuid> currentRow(const RowSelection& rows) {
  if (rows.lead || rows.ids.empty()) return rows.lead;
  return *rows.ids.begin();
}

std::optional<Uuid> neighbour(const RowSelection& rows, const RowOrder& order, int step) {
  const auto current = currentRow(rows);
  if (!current) return std::nullopt;
  const auto place = std::find(order.begin(), order.end(), *current);
  if (place == order.end()) return std::nullopt;
  const std::ptrdiff_t target = place - order.begin() + step;
  return order[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(target, 0, std::ssize(order) - 1))];
}

}  // namespace

std::optional<Uuid> selectedLead(const RowSelection& rows) {
  if (rows.ids.empty()) return std::nullopt;
  return rows.lead && rows.ids.contains(*rows.lead) ? *rows.lead : *rows.ids.begin();
}

RowSelection onlyRow(const Uuid& id) {
  return {{id}, id, id};
}

RowSelection clickedRow(RowSelection rows, const Uuid& id, const RowOrder& order, Modifiers modifiers) {
  if (modifiers.has(Modifier::command)) {
    if (rows.ids.erase(id) > 0) return rows;
    rows.ids.insert(id);
    return {std::move(rows.ids), id, id};
  }
  if (modifiers.has(Modifier::shift) && rows.anchor) {
    if (auto ids = range(order, *rows.anchor, id)) return {std::move(*ids), rows.anchor, id};
  }
  return onlyRow(id);
}

std::optional<RowSelection> allRows(const RowOrder& order) {
  if (order.empty()) return std::nullopt;
  return RowSelection{IdSet(order.begin(), order.end()), order.front(), order.back()};
}

std::optional<RowSelection> endRow(const RowOrder& order, int step) {
  if (order.empty()) return std::nullopt;
  return onlyRow(step > 0 ? order.front() : order.back());
}

std::optional<RowSelection> movedRow(const RowSelection& rows, const RowOrder& order, int step) {
  const auto target = neighbour(rows, order, step);
  return target ? std::optional(onlyRow(*target)) : std::nullopt;
}

std::optional<RowSelection> extendedRows(const RowSelection& rows, const RowOrder& order, int step) {
  const auto target = neighbour(rows, order, step);
  if (!target) return std::nullopt;
  auto ids = range(order, rows.anchor ? *rows.anchor : *currentRow(rows), *target);
  if (!ids) return std::nullopt;
  return RowSelection{std::move(*ids), rows.anchor, target};
}

}  // namespace brimle
