// What is done to tasks that wait for their day.
#include "model/store_fixture.h"

namespace brimle {
namespace {

constexpr auto kEdited = "save resync told-scheduled ";
constexpr auto kMoved = "save resync told-items-scheduled ";

using Scheduled = StoreTest;

TEST_F(Scheduled, TasksAreSentToADayDeletedAndBroughtForward) {
  expectOneStep({
      {"A B+!^/n/m C R*%", "send B 20", "A C R*% |  | 20:B!^/n/m", kMoved},
      {"A R+*%", "send R 2027-01-01", "A |  | 2027-01-01:R*%", kMoved},
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

TEST_F(Scheduled, EntriesHaveAnIdentityOfTheirOwnAndKeepTheirOrder) {
  open(document("A B C"));
  store->sendToDay(task("C!/n"), "2026-06-20");  // as it is given
  store->sendToDay(*store->find(idOf("A")), store->scheduled()[0].date);
  const ScheduledItem entry = store->scheduled()[1];
  EXPECT_NE(entry.id, idOf("A"));
  EXPECT_EQ(entry.item.id, idOf("A"));
  store->editScheduled(store->scheduled()[0].id, "C >21/6");
  store->editScheduled(entry.id, "A >21/6");
  EXPECT_EQ(state(), "B |  | 21:A 21:C!/n");
  EXPECT_EQ(store->scheduled()[0].id, entry.id);
}

TEST_F(Scheduled, OnlyADateTokenIsReadInAnEditedText) {
  const auto* before = " | | 20:A!/n 20:B 21:C";
  expectOneStep({
      {before, "edit 20:A!/n \t call the bank \u3000", " |  | 20:call the bank'!/n 20:B 21:C", kEdited},
      {before, "edit 20:A!/n call >20/6", " |  | 20:call'!/n 20:B 21:C", kEdited},
      {before, "edit 20:A!/n call > 21 June ", " |  | 20:B 21:call'!/n 21:C", kEdited},
      {before, "edit 20:A!/n call >16.6.26", " |  | 16:call'!/n 20:B 21:C", kEdited},
      {before, "edit 21:C call >20/6", " |  | 20:A!/n 20:B 20:call'", kEdited},
      {before, "edit 20:A!/n x >15/6/26", " |  | 20:x >15/6/26'!/n 20:B 21:C", kEdited},  // today
      {before, "edit 20:A!/n x >14/6/26", " |  | 20:x >14/6/26'!/n 20:B 21:C", kEdited},
      {before, "edit 20:A!/n  >21/6", " |  | 20:>21/6'!/n 20:B 21:C", kEdited},
      {before, "edit 20:B x ! * *w // m", " |  | 20:A!/n 20:x ! * *w // m' 21:C", kEdited},
      {before, "edit 20:B x >21/6 !", " |  | 20:A!/n 20:x >21/6 !' 21:C", kEdited},
      {before, "edit 20:B \xFF", " |  | 20:A!/n 20:\uFFFD' 21:C", kEdited},
      {before, "edit 20:B", " |  | 20:A!/n 21:C", kEdited},
      {before, "edit 20:B \t\u00A0", " |  | 20:A!/n 21:C", kEdited},
      {before, "edit B x", " |  | 20:A!/n 20:B 21:C"},
      {before, "edit B", " |  | 20:A!/n 20:B 21:C"},
  });
}

TEST_F(Scheduled, NotesAreAddedEmptyUpToTenAndBlankOnesRemoved) {
  expectOneStep({
      {" | | 20:A/x/y/z", "renote 20:A/x/y/z 0  new note\t", " |  | 20:A/new note/y/z", kEdited},
      {" | | 20:A/x/y/z", "renote 20:A/x/y/z 2 m ! // n >21/6", " |  | 20:A/x/y/m ! // n >21/6", kEdited},
      {" | | 20:A/x/y/z", "renote 20:A/x/y/z 1 \u2003", " |  | 20:A/x/z", kEdited},
      {" | | 20:A/x/y/z", "renote 20:A/x/y/z 1 \x80", " |  | 20:A/x/\uFFFD/z", kEdited},
      {" | | 20:A/x/y/z", "renote 20:A/x/y/z 3 new", " |  | 20:A/x/y/z"},
      {" | | 20:A/x/y/z", "renote 20:A/x/y/z 5", " |  | 20:A/x/y/z"},
      {" | | 20:A/x/y/z", "renote 20:A/x/y/z -1 new", " |  | 20:A/x/y/z"},
      {" | | 20:A/x/y/z", "renote A 0 new", " |  | 20:A/x/y/z"},
      {" | | 20:A/x", "note 20:A/x", " |  | 20:A/x/", kEdited},
      {" | | 20:A/x", "note A", " |  | 20:A/x"},
  });
  open(document(" | | 20:A"));
  const Uuid id = store->scheduled()[0].id;
  for (std::size_t note = 0; note < 12; ++note) {
    EXPECT_EQ(store->addScheduledNote(id), note < 10 ? std::optional(note) : std::nullopt);
    EXPECT_EQ(store->scheduled()[0].item.notes, std::vector<std::string>(std::min(note + 1, 10ul)));
  }
  EXPECT_EQ(std::ranges::count(split(storeLog, ' '), "save"), 10);
}

}  // namespace
}  // namespace brimle
