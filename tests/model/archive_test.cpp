// How an archive grows, and what it shares with the one that it was made from.
#include "model/archive.h"

#include <gtest/gtest.h>

#include "model/notation.h"

namespace brimle {
namespace {

TEST(Archive, GrowsInBlocksOf32DaysAndSharesWhatDidNotChange) {
  Archive archive;
  for (int day = 0; day < 100; ++day) {
    const Archive before = archive;
    archive = before.withEntries(std::to_string(day), archiveDay("14:x").items);
    auto now = std::next(archive.begin());
    for (auto old = before.begin(); old != before.end(); ++old) ASSERT_EQ(old.node(), (now++).node());
    std::vector<std::string_view> blocks;
    archive.appendEncoded(blocks);
    EXPECT_EQ(blocks.size(), day / 32 + 1);
  }
}

}  // namespace
}  // namespace brimle
