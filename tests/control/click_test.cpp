// Clicks on rows and beside them, and the commands of a row.
#include "control/control_fixture.h"

namespace brimle {
namespace {

using Click = ControlTest;

TEST_F(Click, SelectsRows) {
  for (const auto& [lists, show] : kRows) {
    expect(lists,
           {show + "click:shift+C -> C @C >C; click:D -> D @D >D; click:cmd+B -> B D @B >B",  // no anchor yet
            show + "click:C click:shift+D -> C D @C >D; click:shift+A -> A B C @C >A",
            show + "click:B click:cmd+B -> @B >B; click:shift+C -> B C @B >C",
            show + "click:B click:shift+cmd+D -> B D @D >D; click:cmd+shift+B -> D @D >D",
            show + "click:B click:opt+caps+C -> C @C >C; click:ctrl+shift+D -> C D @C >D",
            show + "click:B click:shift+R -> R @R >R; click:shift+C -> C @C >C"});
  }
}

TEST_F(Click, AwayDeselectsWhereTheClickLeavesTheSelectionAsItWas) {
  for (const auto& [lists, show] : kRows) {
    expect(lists,
           {show + "click:B blank:shift blank:cmd -> B @B >B; blank: -> @B >B; click:shift+C -> B C @B >C",
            show + "click:B click:shift+D blank:opt+caps -> @B >D",
            show + "click:B click:B -> @B >B; click:B -> B @B >B",  // the only selected row
            show + "click:B click:shift+D click:C -> C @C >C"});
  }
  expect("A B", {"click:A release: -> A @A >A; show:archive wait:0 show:today -> @A >A",
                 "click:A show:archive release: wait:0 show:today -> A @A >A"});
}

TEST_F(Click, OnARowsControlsActsOnTheSelectionItIsIn) {
  expect("A B+^ C",
         {"click:A click:cmd+B tick:A -> A B @B >B => A+ B+^ C; tick:B -> A B @B >B => A B^ C",
          "click:A click:cmd+B tick:C -> A B @B >B => A B+^ C+; mark:B -> A B @B >B => A B+ C+",
          "click:A mark:C -> A @A >A => A B+^ C^; click:cmd+Z tick:Z mark:Z -> A Z @Z >Z",
          "click:A click:cmd+B edit:A note:B delete:B -> @B >B => C",
          "click:A edit:A note:B delete:C -> A @A >A edit:A note:B.0 => A B+^",
          "click:B click:shift+C defer:C -> @B >C => A | B^ C", "click:B defer:C -> B @B >B => A B+^ | C",
          "click:B click:shift+C send:B -> C @B >C => A C | | 20:B!^; click:Z send:Z -> @Z >Z"});
  expect(
      "A | | | 14:X+,Y 13:V",
      {"show:archive click:X drop:X -> @X >X => A | | | 14:Y 13:V; click:V drop:Y -> V @V >V => A | | | 13:V",
       "show:archive click:X restore:Y -> X @X >X => A Y' | | | 14:X+ 13:V",
       "show:archive click:X click:shift+V restore:Y -> @X >V => A X' Y' V'"});
}

}  // namespace
}  // namespace brimle
