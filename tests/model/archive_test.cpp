// How an archive grows, and what it shares with the one that it was made from.
#include "model/archive.h"

#include <gtest/gtest.h>

#include "model/notation.h"

namespace brimle {
namespace {

/// That many days, newest first.
std::vector<ArchiveDay> days(int count) {
  std::vector<ArchiveDay> days;
  for (; count > 0; --count) days.push_back(archiveDay(std::to_string(1000 + count) + ":old+/note,older"));
  return days;
}

std::vector<std::string_view> piecesOf(const Archive& archive) {
  std::vector<std::string_view> pieces;
  archive.appendEncoded(pieces);
  return pieces;
}

TEST(Archive, SharesWhatDidNotChange) {
  for (const int size : {31, 32, 33, 100}) {
    const std::vector<ArchiveDay> plain = days(size);
    const Archive before(plain);
    EXPECT_NE(Archive(std::vector(plain.begin(), plain.end() - 1)), before);
    std::vector<ArchivedItem> removed;
    for (const Archive& after : {before.withEntries("2000", archiveDay("14:x").items),
                                 before.withEntries(plain.front().date, archiveDay("14:x").items),
                                 before.without({plain.front().items.front().id}, removed)}) {
      EXPECT_EQ(before, Archive(plain)) << "the former value is untouched";
      auto old = before.begin(), now = after.begin();
      if (now->date != "2000") ++old;
      while (old != before.end()) ASSERT_EQ((old++).node(), (++now).node()) << size;
      EXPECT_EQ(++now, after.end());
      EXPECT_EQ(piecesOf(before).back().data() == piecesOf(after).back().data(), size > 32);
    }
  }
}

TEST(Archive, GrowsInBlocksOf32Days) {
  Archive archive;
  for (int day = 0; day < 100; ++day) {
    archive = archive.withEntries(std::to_string(day), archiveDay("14:x").items);
    EXPECT_EQ(piecesOf(archive).size(), day / 32 + 1);
  }
}

}  // namespace
}  // namespace brimle
