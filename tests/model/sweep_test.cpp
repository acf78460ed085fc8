// What a sweep does to ticked tasks, and when.
#include "model/store_fixture.h"

namespace brimle {
namespace {

using Sweep = StoreTest;

TEST_F(Sweep, RestsThenFadesThenFilesTheTask) {
  expect({
      {"A!^/n B", "tick A; wait 0.89", "A+!^/n B", "-items "},
      {"A!^/n B", "tick A; wait 0.9", "A+!^/n B", "-items -sweepingIDs "},
      {"A!^/n B", "tick A; wait 1.21", "A+!^/n B", "-items -sweepingIDs "},
      {"A!^/n B", "tick A; wait 1.22", "B |  |  | 15:A+/n",
       "-items -sweepingIDs -items-archive-sweepingIDs "},
  });
  EXPECT_TRUE(store->sweepingIDs().empty());
}

TEST_F(Sweep, FollowsWhatTheUserDoesMeanwhile) {
  expect({
      {"A", "tick A; wait 1; untick A; wait 5", "A"},
      {"A", "tick A; wait 0.2; untick A; wait 0.6; tick A; wait 0.42", " |  |  | 15:A+"},
      {"A", "tick A; wait 1; untick A; wait 0.1; tick A; wait 0.12", " |  |  | 15:A+"},
      {"A", "tick A; wait 1.1; untick A; wait 0.2; tick A; wait 1.22", " |  |  | 15:A+"},
      {"A", "tick A; wait 1; rewrite A A+/n; wait 0.22", " |  |  | 15:A+/n"},
      {"A B", "tick A; wait 0.5; delete A; wait 5", "B"},
      {"A B", "tick A; wait 1; defer A; wait 5", "B | A"},
      {"A B C D | | | 14:X", "tick C A; wait 0.5; tick B A; wait 1.5", "D |  |  | 15:A+,C+,B+ 14:X"},
      {"A B", "tick A B; wait 2; undo", "A+ B+"},
      {"A+ B R*+#", "wait 1.22", "B R*+# |  |  | 15:A+"},
      {"R*!/n S*%", "tick R S; wait 2; end R; wait 5; reopen; wait 5", "S*+#% R*+!#/n |  |  | 15:R+/n,S+"},
  });
}

TEST_F(Sweep, DoesNotFadeWhereMotionIsReduced) {
  desktop.motionReduced = true;
  expect({
      {"A", "tick A; wait 0.89", "A+"},
      {"A", "tick A; wait 0.9", " |  |  | 15:A+", "-items -items-archive "},
      {"A", "tick A; wait 1; undo; end A; wait 0.9", " |  |  | 15:A+"},
  });
  EXPECT_NE(store->archive().front().items.front().id, idOf("A"));
}

}  // namespace
}  // namespace brimle
