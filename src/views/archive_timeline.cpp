#include "views/archive_timeline.h"

#include <algorithm>
#include <cstdint>
#include <numeric>
#include <string>
#include <unordered_map>

namespace brimle {
namespace {

using Kind = TimelineRow::Kind;
using Rows = std::vector<TimelineRow>;

/// A key for a row that is no entry: from its kind, its date and, for a date that comes again, its turn. Its
/// version digit is zero, which keeps it apart from the random ids of entries.
Uuid keyOf(Kind kind, std::string_view date, std::size_t turn) {
  Uuid key;
  key.bytes[0] = static_cast<std::uint8_t>(kind);
  key.bytes[1] = static_cast<std::uint8_t>(turn);
  key.bytes[2] = static_cast<std::uint8_t>(turn >> 8);
  const std::size_t hash = std::hash<std::string_view>()(date);
  for (std::size_t byte = 0; byte < 8; ++byte)
    key.bytes[8 + byte] = static_cast<std::uint8_t>(hash >> (8 * byte));
  return key;
}

void appendFuture(Rows& rows, const std::vector<ScheduledItem>& scheduled) {
  std::vector<std::size_t> order(scheduled.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  // The list is in order once it has been changed, but not where it comes from a file that others wrote.
  std::ranges::stable_sort(
      order, {}, [&](std::size_t index) -> const auto& { return scheduled[index].date; });
  const std::string* date = nullptr;
  for (const std::size_t index : order) {
    const ScheduledItem& entry = scheduled[index];
    if (!date || entry.date != *date) {
      rows.push_back({Kind::futureDay, keyOf(Kind::futureDay, entry.date, 0), nullptr, index});
    }
    date = &entry.date;
    rows.push_back({Kind::futureTask, entry.id, nullptr, index});
  }
}

/// The archived days with the entries that match. `matches` has their ids in the archive's order.
void appendPast(Rows& rows, const Archive& archive, const Store::Ids& matches) {
  auto match = matches.begin();
  std::unordered_map<std::string_view, std::size_t> turns;
  for (auto day = archive.begin(); day != archive.end() && match != matches.end(); ++day) {
    const std::size_t turn = turns[day->date]++;
    bool headed = false;
    for (std::size_t index = 0; index < day->items.size() && match != matches.end(); ++index) {
      if (day->items[index].id != *match) continue;
      ++match;
      if (!headed) rows.push_back({Kind::pastDay, keyOf(Kind::pastDay, day->date, turn), day.node(), 0});
      headed = true;
      rows.push_back({Kind::pastTask, day->items[index].id, day.node(), index});
    }
  }
}

}  // namespace

Rows archiveTimeline(const Store& store, std::string_view query) {
  Rows rows;
  appendFuture(rows, store.scheduled());
  rows.push_back({Kind::boundary, keyOf(Kind::boundary, {}, 0), nullptr, 0});
  const std::size_t before = rows.size();
  appendPast(rows, store.archive(), store.archivedIDsInOrder(query));
  if (rows.size() == before) rows.push_back({Kind::nothing, keyOf(Kind::nothing, {}, 0), nullptr, 0});
  return rows;
}

std::size_t boundaryRow(const Rows& rows) {
  const auto found =
      std::find_if(rows.begin(), rows.end(), [](const auto& row) { return row.kind == Kind::boundary; });
  return static_cast<std::size_t>(found - rows.begin());
}

}  // namespace brimle
