// What is done to tasks that wait for their day.
#include "model/store_fixture.h"

namespace brimle {
namespace {

constexpr auto kEdited = "-scheduled ";
constexpr auto kMoved = "-items-scheduled ";

using Scheduled = StoreTest;

TEST_F(Scheduled, TasksAreSentToADayDeletedAndBroughtForward) {
  expectOneStep({
      {"A B+!^ C R*%", "send B+!^/n/m 20", "A C R*% |  | 20:B!^/n/m", kMoved},  // as it is given, unticked
      {"A B | | 20:S 21:U", "send A 20", "B |  | 20:S 20:A 21:U", kMoved},
      {"A B | | 20:S 21:U", "send A 19", "B |  | 19:A 20:S 21:U", kMoved},
      {"A | T | 20:S", "send T 20", "A | T | 20:S"},
      {"A | | 20:S 20:T 21:S", "drop 20:S", "A |  | 20:T 21:S", kEdited},
      {"A | | 20:S", "drop S", "A |  | 20:S"},
      {"P! A | | 20:S+!^*%/n 21:T", "bring 20:S+!^*%/n", "S*!^%/n P! A |  | 21:T", kMoved},
      {"P! A | | 20:S! 21:T+^/n", "bring 21:T+^/n", "P! A T^/n |  | 20:S!", kMoved},
      {"A | | 20:S", "bring S", "A |  | 20:S"},
  });
}

TEST_F(Scheduled, OnlyADateTokenIsReadInAnEditedText) {
  const auto* before = " | | 20:A!/n 20:B 21:C";
  expectOneStep({
      {before, "edit 20:A!/n \t call the bank \u3000", " |  | 20:call the bank'!/n 20:B 21:C", kEdited},
      {before, "edit 20:A!/n call > 21 June ", " |  | 20:B 21:call'!/n 21:C", kEdited},
      {before, "edit 21:C call >20/6", " |  | 20:A!/n 20:B 20:call'", kEdited},
      {before, "edit 20:A!/n x >15/6/26", " |  | 20:x >15/6/26'!/n 20:B 21:C", kEdited},  // today
      {before, "edit 20:B x >21/6 ! * *w // m", " |  | 20:A!/n 20:x >21/6 ! * *w // m' 21:C", kEdited},
      {before, "edit 20:B \xFF", " |  | 20:A!/n 20:\uFFFD' 21:C", kEdited},
      {before, "edit 20:B \t\u00A0", " |  | 20:A!/n 21:C", kEdited},
      {before, "edit B x", " |  | 20:A!/n 20:B 21:C"},
  });
}

TEST_F(Scheduled, NotesAreAddedEmptyUpToTenAndBlankOnesRemoved) {
  expectOneStep({
      {" | | 20:A/x/y/z", "renote 20:A/x/y/z 0  new ! // n >21/6\t", " |  | 20:A/new ! // n >21/6/y/z",
       kEdited},
      {" | | 20:A/x/y/z", "renote 20:A/x/y/z 1 \u2003", " |  | 20:A/x/z", kEdited},
      {" | | 20:A/x/y/z", "renote 20:A/x/y/z 1 \x80", " |  | 20:A/x/\uFFFD/z", kEdited},
      {" | | 20:A/x/y/z", "renote 20:A/x/y/z 3 new", " |  | 20:A/x/y/z"},
      {" | | 20:A/x/y/z", "renote 20:A/x/y/z -1 new", " |  | 20:A/x/y/z"},
      {" | | 20:A/x/y/z", "renote A 0 new", " |  | 20:A/x/y/z"},
      {" | | 20:A/1/2/3/4/5/6/7/8/9", "note 20:A/1/2/3/4/5/6/7/8/9", " |  | 20:A/1/2/3/4/5/6/7/8/9/",
       kEdited},
      {" | | 20:/1/2/3/4/5/6/7/8/9/0", "note 20:/1/2/3/4/5/6/7/8/9/0", " |  | 20:/1/2/3/4/5/6/7/8/9/0"},
      {" | | 20:A", "note A", " |  | 20:A"},
  });
}

}  // namespace
}  // namespace brimle
