// The steps that lead from one list of rows to another.
#include "views/list_diff.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <random>

namespace brimle {
namespace {

using Rows = std::vector<Uuid>;
using Kind = RowChange::Kind;

Rows rows(std::uint32_t count) {
  Rows ids(count);
  for (std::uint32_t row = 0; row < count; ++row) std::memcpy(&ids[row].bytes[8], &row, sizeof row);
  return ids;
}

/// What a view makes of the steps; a row out of bounds throws.
Rows applied(Rows list, const Rows& after, const std::vector<RowChange>& changes) {
  const auto at = [&](std::size_t place) {
    if (place > list.size()) throw std::out_of_range("row");
    return list.begin() + static_cast<std::ptrdiff_t>(place);
  };
  for (const auto& [kind, from, count, to] : changes) {
    if (kind == Kind::insert) {
      list.insert(at(from), &after.at(to), &after.at(to + count - 1) + 1);
      continue;
    }
    const Rows taken(at(from), at(from + count));
    list.erase(at(from), at(from + count));
    if (kind == Kind::move) list.insert(at(to), taken.begin(), taken.end());
  }
  return list;
}

TEST(ListDiff, LeadsFromAnyListToAnyOther) {
  std::mt19937 random(20260615);
  for (int pair = 0; pair < 5000; ++pair) {
    const auto some = [&](bool shuffled) {
      Rows list = rows(1 + random() % 14);
      std::erase_if(list, [&](const Uuid&) { return random() % 3 == 0; });
      if (shuffled) std::shuffle(list.begin(), list.end(), random);
      if (pair % 10 == 0 && !list.empty())
        list.push_back(list[random() % list.size()]);  // one stands there twice
      return list;
    };
    const Rows before = some(pair % 2 == 0), after = some(pair % 3 == 0);
    const auto changes = rowChanges(before, after);
    ASSERT_EQ(applied(before, after, changes), after) << "pair " << pair;
    EXPECT_LE(changes.size(), before.size() + after.size());
  }
}

TEST(ListDiff, TakesOneStepForOneRowMovedAndForNeighboursInAnyNumberOfRows) {
  for (const std::uint32_t count : {7u, 20'000u}) {
    const Rows all = rows(count);
    for (const auto& [from, to] : {std::pair(0u, count - 1), {count - 1, 0u}, {3u, 4u}, {4u, 2u}}) {
      const Rows moved = applied(all, {}, {{Kind::move, from, 1, to}});
      EXPECT_EQ(rowChanges(all, moved).size(), 1u) << from << " " << to;
      Rows fewer = all;
      fewer.erase(fewer.begin() + std::min(from, to), fewer.begin() + std::max(from, to));
      EXPECT_EQ(rowChanges(all, fewer).size(), 1u);
      EXPECT_EQ(rowChanges(fewer, all).size(), 1u);
    }
    EXPECT_TRUE(rowChanges(all, all).empty());
  }
}

}  // namespace
}  // namespace brimle
