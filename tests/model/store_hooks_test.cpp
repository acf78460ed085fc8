// Every operation is one undo step and one save, then the reminders, the sweep and the observers, once each.
#include "model/store_fixture.h"

namespace brimle {
namespace {

using StoreHooks = StoreTest;

TEST_F(StoreHooks, RunInOrderOnceAnOperation) {
  expect({
      {"A B", "tick B A", "A+ B+", "save sweep sweep told-items "},
      {"A", "untick A", "A", "save told-items "},
      {"A B | T", "defer A B", " | T A B", "save told-items-tomorrow "},
      {"", "add a\nb !", "b'! a'", "save told-items "},
      {"", "add a >20/6\nb >21/6", " |  | 20:a'! 21:b'!", "save resync told-scheduled "},
      {"", "later a >20/6\nb", " | b' | 20:a'!", "save resync told-tomorrow-scheduled "},
      {"A+", "wait 2", " |  |  | 15:A+", "sweep told-sweepingIDs save told-items-archive-sweepingIDs "},
      {"A B", "end A; undo", "A B", "save told-items save resync told-items-archive-tomorrow-scheduled "},
      {"A", "wait 54000", " |  |  | 15:A", "save resync told-items-archive-tomorrow-scheduled "},
  });
}

TEST_F(StoreHooks, DoNotRunWhereNothingIsToDo) {
  const char* state = "A B | T | 20:S | 14:X+";
  for (const auto* script : {"tick Z T S X", "mark", "delete Z", "defer T", "pin Z", "move Z A", "move A Z",
                             "move A A", "end Z", "by A -1", "by B 1", "by Z 0", "rewrite Z Z",
                             "add \n\t\r\n\u2028", "day?", "undo", "redo", "wait 53999"}) {
    expect({{state, script, state, ""}});
  }
  EXPECT_EQ(desktop.beeps, 2) << "undo and redo";
}

TEST_F(StoreHooks, RunOnceForSeveralOperationsInOne) {
  open(document("A B"));
  store->perform([this] { run("add a >20/6; tick A; defer B; wait 1; later b; tick A"); });
  EXPECT_EQ(storeLog, "save resync sweep told-items-tomorrow-scheduled ");
  run("undo");
  EXPECT_EQ(state(), "A B");
}

}  // namespace
}  // namespace brimle
