// When two records are equal.
#include "model/records.h"

#include <gtest/gtest.h>

#include "model/notation.h"

namespace brimle {
namespace {

TEST(Records, AreEqualWhereEveryFieldIs) {
  const TodoItem same = task("a*!/n/m");
  for (const char* word :
       {"b*!/n/m", "a*+!/n/m", "a!/n/m", "a*/n/m", "a*!%/n/m", "a*!^/n/m", "a*!#/n/m", "a*!/m/n"}) {
    EXPECT_NE((ScheduledItem{{}, "14", task(word)}), (ScheduledItem{{}, "14", same})) << word;
  }
  EXPECT_NE(makeTask("a"), makeTask("a")) << "in identity";
  EXPECT_NE((ScheduledItem{{}, "14", same}), (ScheduledItem{{}, "15", same}));
  const ArchivedItem entry{{}, "\u00C5", true, {"\u00C5"}};
  EXPECT_EQ(entry, (ArchivedItem{{}, "A\u030A", true, {"A\u030A"}}));
  for (const char* word : {"14:b+/n", "14:a/n", "14:a+/m", "14:a+", "15:a+/n"}) {
    EXPECT_NE(archiveDay(word), archiveDay("14:a+/n")) << word;
  }
}

}  // namespace
}  // namespace brimle
