// What the user does to tasks on today's list.
#include "model/store_fixture.h"

namespace brimle {
namespace {

using TodayList = StoreTest;

TEST_F(TodayList, ChangesAsTheUserAsks) {
  expect({
      {"A B! R* C+ D+", "tick R A Z; untick C", "A+ B! R*+ C D+"},
      {"A B^ C/n", "mark C A", "A^ B^ C^/n"},
      {"A B+ C! D", "delete D Z B", "A C!"},
      {"A B+!^/n C R*+#% | T", "defer R B Z", "A C | T B!^/n R*#%"},
      {"A B C! D", "pin D; pin B", "B! D! A C!"},
      {"P! Q! A B", "pin P", "Q! P A B"},
      {"P! A Q! B", "pin Q", "P! Q A B"},
      {"A P! B", "pin P", "P A B"},
      {"P! Q!", "pin P", "Q! P"},
      {"A B C D", "move A C", "B C A D"},
      {"A B C! D", "move D B", "A D B C!"},
      {"A B C", "end A", "B C A"},
      {"A B C", "by B -1", "B A C"},
      {"A B C", "by A 2", "C B A"},
      {"R*# A S*# B", "by B -1; by B -1", "R*# B S*# A"},
      {"A W*% B", "by B -1", "A B W*%"},
      {"A! W*% B!", "clock 2026-06-20 09:00; by B -1", "B! W*% A!"},  // on a Saturday
      {"A B/n", "rewrite B B+^/m", "A B+^/m"},
  });
}

TEST_F(TodayList, AddressesEachTaskByItsIdentity) {
  open(document("A"));
  run("rewrite A B; add twin\ntwin");
  EXPECT_EQ(store->items()[0].id, idOf("A"));
  store->setDone({store->items()[2].id}, true);
  EXPECT_EQ(state(), "B' twin' twin'+");
}

}  // namespace
}  // namespace brimle
