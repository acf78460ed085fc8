// What a sweep does to ticked tasks, and when.
#include "model/store_fixture.h"

namespace brimle {
namespace {

using Sweep = StoreTest;

TEST_F(Sweep, RestsThenFadesThenFilesTheTask) {
  const std::string tick = "save sweep told-items ", fade = tick + "sweep told-sweepingIDs ",
                    file = fade + "save told-items-archive-sweepingIDs ";
  expect({
      {"A!^/n B", "tick A; wait 0.89", "A+!^/n B", tick.c_str()},
      {"A!^/n B", "tick A; wait 0.9", "A+!^/n B", fade.c_str()},
      {"A!^/n B", "tick A; wait 1.21", "A+!^/n B", fade.c_str()},
      {"A!^/n B", "tick A; wait 1.22", "B |  |  | 15:A+/n", file.c_str()},
  });
  EXPECT_TRUE(store->sweepingIDs().empty());
}

TEST_F(Sweep, FollowsWhatTheUserDoesMeanwhile) {
  expect({
      {"A", "tick A; wait 0.5; untick A; wait 5", "A"},
      {"A", "tick A; wait 1; untick A; wait 5", "A"},
      {"A", "tick A; wait 0.2; untick A; wait 0.6; tick A; wait 0.42", " |  |  | 15:A+"},
      {"A", "tick A; wait 1; untick A; wait 0.1; tick A; wait 0.12", " |  |  | 15:A+"},
      {"A", "tick A; wait 0.8; untick A; wait 0.2; tick A; wait 1.22", " |  |  | 15:A+"},
      {"A", "tick A; wait 1.1; untick A; wait 0.2; tick A; wait 1.22", " |  |  | 15:A+"},
      {"A", "tick A; wait 1; rewrite A A+/n; wait 0.22", " |  |  | 15:A+/n"},
      {"A B", "tick A; wait 0.5; delete A; wait 5", "B"},
      {"A B", "tick A; wait 1; defer A; wait 5", "B | A"},
      {"A B", "tick A; wait 0.5; undo; wait 5", "A B"},
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
      {"A", "tick A; wait 0.9", " |  |  | 15:A+", "save sweep told-items save told-items-archive "},
      {"A", "tick A; wait 1; undo; end A; wait 0.9", " |  |  | 15:A+"},
  });
  EXPECT_NE(store->archive().front().items.front().id, idOf("A"));
}

}  // namespace
}  // namespace brimle
