// What the user does to tasks on today's list.
#include "model/store_fixture.h"

namespace brimle {
namespace {

using TodayList = StoreTest;

TEST_F(TodayList, ChangesAsTheUserAsks) {
  expect({
      {"A B! R* C+ D+", "tick R A Z; untick C", "A+ B! R*+ C D+", "-items -items "},
      {"A B^ C/n", "mark C A", "A^ B^ C^/n", "-items "},
      {"A B+ C! D", "delete D Z B", "A C!", "-items "},
      {"A B+!^/n C R*+#% | T", "defer R B Z", "A C | T B!^/n R*#%", "-items-tomorrow "},
      {"A B C! D", "pin D; pin B", "B! D! A C!"},
      {"P! A Q! B", "pin Q", "P! Q A B"},
      {"P! Q!", "pin P", "Q! P"},
      {"A B C D", "move A C", "B C A D"},
      {"A B C! D", "move D B", "A D B C!"},
      {"A B C", "end A", "B C A"},
      {"A B C", "by A 2", "C B A"},
      {"R*# A S*# B", "by B -1; by B -1", "R*# B S*# A"},
      {"A! W*% B!", "clock 2026-06-20 09:00; by B -1", "B! W*% A!"},  // on a Saturday
      {"A B/n", "rewrite B C+^/m; tick A", "A+ C'+^/m"},
      {"A", "add A; tick A", "A+ A'"},
  });
}

}  // namespace
}  // namespace brimle
