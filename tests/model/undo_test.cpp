// What is one step to undo, and where undo and redo lead.
#include "model/store_fixture.h"

namespace brimle {
namespace {

using Undo = StoreTest;

TEST_F(Undo, GoesBackAndForthBetweenWholeStates) {
  const char* before = "A!^/n B* | T | 20:S | 14:X+";
  const std::string change = "add n >21/6; tick B; defer A; wait 2; undo; undo; redo; redo";
  expect({
      {before, change.c_str(), "B*+# | T A!^/n | 20:S 21:n'! | 15:B+ 14:X+"},
      {before, (change + "; undo; undo").c_str(), before},
      {"A", "add b; clock 2026-06-15 08:00; add c; undo", "A"},  // a clock set back parts no steps
      {"A/n B | | | 15:X", "tick A; wait 2; undo; wait 10", "A+/n B |  |  | 15:X"},
      {"A/n B | | | 15:X", "tick A; wait 2; undo; wait 10; end B; wait 2", "B |  |  | 15:X,A+/n"},
  });
}

TEST_F(Undo, GoesBackAHundredSteps) {
  open(document(""));
  for (int step = 0; step < 150; ++step) run("add x; wait 1");
  for (const auto& [verb, left] : {std::pair("undo", 50u), std::pair("redo", 150u)}) {
    desktop.beeps = 0;
    for (int step = 0; step < 101; ++step) run(verb);
    EXPECT_EQ(store->items().size(), left);
    EXPECT_EQ(desktop.beeps, 1) << "there is no further step";
  }
}

}  // namespace
}  // namespace brimle
