// What the rest of the window does when an editor ends, a list is left, or somebody wants to type; and row
// drags.
#include "views/content_reactions.h"

#include "views/scroll_watch.h"
#include "views/view_fixture.h"

namespace brimle {
namespace {

using ContentReactionsTest = ViewTest;
using RowDragTest = ViewTest;

TEST_F(ContentReactionsTest, GiveUpWhatWasSelectedForTheEntryFieldAndTheSearch) {
  expect("A B | | | 14:X,Y",
         {"click:A click:cmd+B typing -> @B >B", "show:archive click:X typing -> X @X >X",
          "show:archive click:X search:x -> @X >X; click:X search:x compact show:archive -> X @X >X",
          "show:archive click:X show:today show:archive -> @X >X",
          "click:B show:archive click:X search:y show:today -> B @B >B"});
  start("A");
  play("show:archive search:x compact show:archive");
  EXPECT_EQ(ui.archiveQuery(), "x") << "only leaving clears it";
  play("show:today");
  EXPECT_EQ(ui.archiveQuery(), "");
}

TEST_F(ContentReactionsTest, TakeATaskOutOfTheSelectionWhenItsEditingEnds) {
  expect("A/m B/n C",
         {"click:A click:cmd+B edit:A end:A -> B @B >B", "click:A click:cmd+B edit:A.0 end:A.0 -> B @B >B",
          "click:A click:cmd+B edit:A edit:C -> A B @B >B edit:C; end:C -> A B @B >B",
          "click:A click:cmd+B edit:A edit:B.0 end:B.0 -> A @B >B edit:A",
          "click:A edit:A tab -> @A >A note:A.0 hop"});
}

TEST_F(ContentReactionsTest, ShowTheEntryFieldWhenSomebodyWantsToType) {
  start("A");
  std::string seen;
  const auto wanted = reactions->onFocusAdd([&] {
    seen += ui.compact() ? "compact;" : ui.showingArchive() ? "archive;" : "field" + ui.archiveQuery() + ";";
  });
  const auto changed = ui.observe([&] { seen += "change "; });
  play("wanted");
  EXPECT_EQ(seen, "field;");
  play("compact show:archive search:x wanted show:archive wanted compact wanted");
  EXPECT_EQ(split(seen, ';').size(), 4u);
  EXPECT_TRUE(seen.ends_with("field;change change field;change change field;")) << seen;
}

TEST_F(RowDragTest, MovesTheTaskAlongWithThePointer) {
  expect("A B C", {"drag:C over:A -> => C A B; over:A -> => A C B; over:C ->; dragend over:A ->", "over:A ->",
                   "drag:A over:B over:C -> => B C A", "drag:Z over:A drag:A over:Z ->",
                   "drag:C dropped:=D over:A ->; dropped:=D\n\tn\nE -> => A B C D'/n E'"});
  start("A B");
  play("drag:A over:A");
  EXPECT_EQ(files.replaces(kFile), 0);
}

TEST(ScrollWatch, SpeaksOfTheFutureMoreThanFortyPointsAboveTheBoundary) {
  for (const auto& [distance, future] : {std::pair(-1.0, false), {40.0, false}, {40.01, true}}) {
    EXPECT_EQ(isViewingFuture(distance), future) << distance;
  }
}

}  // namespace
}  // namespace brimle
