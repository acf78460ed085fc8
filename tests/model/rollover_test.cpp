// What the end of a day does to tasks, and when.
#include "model/store_fixture.h"

namespace brimle {
namespace {

using Rollover = StoreTest;

TEST_F(Rollover, ClosesTheOldDayAndOpensTheNewOne) {
  expect({
      // Repeating: just ticked, swept, open. Once: ticked, ticked and pinned, pinned, open.
      {"@14 R*+!%^/n S*+#!^/n T*% A+^/n B+! C!^/n/m D^%/n", "",
       "R*!^%/n S*!^/n T*% C!^/n/m |  |  | 14:R+/n,A+/n,B+,D/n"},
      {"@14 K! | T+^/n U! | 12:a 14:b! 15:c*+%#/n 15:d! 16:e 2027-01-01:f | 14:X", "",
       "b! d! K! T+^/n U! a c*+#%/n |  | 16:e 2027-01-01:f | 14:X"},
      {"@14 A B+ | | | 14:X+ 13:Y", "", " |  |  | 14:X+,A,B+ 13:Y"},
      {"@10 A B+ K! | T | 11:a! 16:c | 09:Y", "", "a! K! T |  | 16:c | 10:A,B+ 09:Y"},  // after several days
      {"@16 A | T | 15:a 16:b", "", "T a |  | 16:b | 16:A"},                            // the clock went back
      {"A", "clock 2026-06-14 09:00; day?", " |  |  | 15:A"},
      {"A! B*% C% D*#", "clock 2026-06-20 09:00", "A! B*% D* |  |  | 15:C"},  // on a Saturday, B rests
  });
}

TEST_F(Rollover, HappensOnceADayAndEndsHistoryAndSweeps) {
  expect({
      {"A! B", "wait 54000; day?; wait 86399; day?", "A! |  |  | 15:B", "-items-archive-tomorrow-scheduled "},
      {"A! B! C!", "delete B; wait 1; delete C; wait 1; undo; wait 54000; undo; redo", "A! C!"},
      {"A!", "wait 53999.9; pin A; wait 0.1; add x; undo", " |  |  | 15:A"},  // a step of its own
      {"A R*", "wait 53999; tick A R; wait 10; end R; wait 10", "R* |  |  | 15:A+,R+"},
      {"B! | T+", "wait 54010; mark B; wait 2",
       "B!^ |  |  | 16:T+"},  // an arrival is swept after the next change
  });
}

TEST_F(Rollover, DoesNotHappenToAStoreThatIsGone) {
  open(document("A+"));
  store.reset();
  time.advance(std::chrono::hours(20));
  EXPECT_EQ(files.read(kFile), document("A+")) << "nor is anything swept";
}

}  // namespace
}  // namespace brimle
