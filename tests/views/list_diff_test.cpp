#include "views/list_diff.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>

namespace brimle {
namespace {

using Rows = std::vector<Uuid>;
using Kind = RowChange::Kind;

Rows rows(std::uint32_t count, std::uint32_t step = 1) {
  Rows ids(count);
  for (std::uint32_t row = 0, number = 0; row < count; ++row, number += step)
    std::memcpy(&ids[row].bytes[8], &number, sizeof number);
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

TEST(ListDiff, TakesOneStepForOneRowMovedAndForNeighbours) {
  const Rows before = rows(7);
  for (std::size_t from = 0; from < 7; ++from) {
    for (std::size_t to = 0; to < 7; ++to) {
      const Rows after = applied(before, {}, {{Kind::move, from, 1, to}});
      EXPECT_EQ(rowChanges(before, after).size(), from == to ? 0u : 1u) << from << " " << to;
      Rows fewer = before;
      fewer.erase(fewer.begin() + std::min(from, to), fewer.begin() + std::max(from, to));
      EXPECT_EQ(rowChanges(before, fewer).size(), from == to ? 0u : 1u);
      EXPECT_EQ(rowChanges(fewer, before).size(), from == to ? 0u : 1u);
    }
  }
}

TEST(ListDiff, TakesAHundredThousandRows) {
  Rows all = rows(200'000);
  EXPECT_EQ(rowChanges({}, all).size(), 1u);
  EXPECT_EQ(rowChanges(rows(100'000, 2), all).size(), 100'000u);
  std::rotate(all.begin(), all.begin() + 1, all.end());
  EXPECT_EQ(rowChanges(rows(200'000), all).size(), 1u);
}

}  // namespace
}  // namespace brimle
