#include "views/list_diff.h"

#include <algorithm>
#include <unordered_set>

#include "base/move_element.h"

namespace brimle {
namespace {

using Rows = std::vector<Uuid>;
using Kind = RowChange::Kind;

/// Takes the rows that `after` lacks out of `rows`, runs of neighbours as one step, last first.
void removeGone(Rows& rows, const Rows& after, std::vector<RowChange>& changes) {
  const std::unordered_set<Uuid> staying(after.begin(), after.end());
  const auto isGone = [&](std::size_t row) { return !staying.contains(rows[row]); };
  for (std::size_t end = rows.size(); end > 0; --end) {
    if (!isGone(end - 1)) continue;
    std::size_t begin = end - 1;
    while (begin > 0 && isGone(begin - 1)) --begin;
    changes.push_back({Kind::remove, begin, end - begin, 0});
    rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(begin),
               rows.begin() + static_cast<std::ptrdiff_t>(end));
    end = begin + 1;
  }
}

/// Brings the rows that stay into the order they have in `after`. Of two ways to mend a place the one that
/// moves a single row is taken: a row that went down is taken out, any other is fetched.
void moveStaying(Rows& rows, const Rows& after, std::vector<RowChange>& changes) {
  const std::unordered_set<Uuid> known(rows.begin(), rows.end());
  Rows order;
  std::copy_if(after.begin(), after.end(), std::back_inserter(order),
               [&](const Uuid& id) { return known.contains(id); });
  const auto move = [&](std::size_t from, std::size_t to) {
    changes.push_back({Kind::move, from, 1, to});
    moveElement(rows, from, to);
  };
  for (std::size_t row = 0; row < order.size(); ++row) {
    while (rows[row] != order[row]) {
      const bool nextIsRight = row + 1 < rows.size() && rows[row + 1] == order[row];
      if (nextIsRight) {
        const auto place = std::find(order.begin(), order.end(), rows[row]) - order.begin();
        move(row, static_cast<std::size_t>(place));
      } else {
        const auto place = std::find(rows.begin(), rows.end(), order[row]) - rows.begin();
        move(static_cast<std::size_t>(place), row);
      }
    }
  }
}

void insertNew(const Rows& rows, const Rows& after, std::vector<RowChange>& changes) {
  const std::unordered_set<Uuid> there(rows.begin(), rows.end());
  for (std::size_t begin = 0; begin < after.size(); ++begin) {
    if (there.contains(after[begin])) continue;
    std::size_t end = begin + 1;
    while (end < after.size() && !there.contains(after[end])) ++end;
    changes.push_back({Kind::insert, begin, end - begin, begin});
    begin = end - 1;
  }
}

bool hasTwice(const Rows& rows) {
  return std::unordered_set<Uuid>(rows.begin(), rows.end()).size() < rows.size();
}

/// Takes all rows out and the others in.
std::vector<RowChange> replaceAll(std::size_t before, std::size_t after) {
  std::vector<RowChange> changes;
  if (before > 0) changes.push_back({Kind::remove, 0, before, 0});
  if (after > 0) changes.push_back({Kind::insert, 0, after, 0});
  return changes;
}

}  // namespace

std::vector<RowChange> rowChanges(const Rows& before, const Rows& after) {
  if (before == after) return {};
  if (hasTwice(before) || hasTwice(after)) return replaceAll(before.size(), after.size());
  std::vector<RowChange> changes;
  Rows rows = before;
  removeGone(rows, after, changes);
  moveStaying(rows, after, changes);
  insertNew(rows, after, changes);
  return changes;
}

}  // namespace brimle
