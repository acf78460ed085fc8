// What is one step to undo, saved once and told of once, and where undo and redo lead.
#include "model/store_fixture.h"

namespace brimle {
namespace {

using Undo = StoreTest;

TEST_F(Undo, GoesBackAndForthBetweenWholeStates) {
  expect({
      {"A!^/n B* | T | 20:S | 14:X+", "add n >21/6; tick B; defer A; wait 2; undo; undo; redo; redo",
       "B*+# | T A!^/n | 20:S 21:n'! | 15:B+ 14:X+"},
      {"A", "add b; clock 2026-06-15 08:00; add c; undo", "A"},  // a clock set back parts no steps
      {"A/n B | | | 15:X", "tick A; wait 2; undo; wait 10", "A+/n B |  |  | 15:X",
       "-items -sweepingIDs -items-archive-sweepingIDs -items-archive-tomorrow-scheduled "},
      {"A/n B | | | 15:X", "tick A; wait 2; undo; wait 10; end B; wait 2", "B |  |  | 15:X,A+/n"},
  });
}

TEST_F(Undo, GoesBackAHundredSteps) {
  open(document(""));
  for (int step = 0; step < 150; ++step) run("add x; wait 1");
  for (int step = 0; step < 101; ++step) run("undo");
  EXPECT_EQ(store->items().size(), 50u);
  EXPECT_EQ(desktop.beeps, 1) << "there is no further step";
}

TEST_F(Undo, HasNoStepWhereNothingWasToDo) {
  const char* state = "A B | T | 20:S | 14:X+";
  for (const auto* script : {"tick Z T S X", "mark", "delete Z", "defer T", "pin Z", "move Z A", "move A Z",
                             "move A A", "end Z", "by A -1", "by B 1", "by Z 0", "rewrite Z Z",
                             "add \n\t\r\n\u2028", "day?", "undo", "redo", "wait 53999"}) {
    expect({{state, script, state, ""}});
  }
  EXPECT_EQ(desktop.beeps, 2) << "undo and redo";
}

}  // namespace
}  // namespace brimle
