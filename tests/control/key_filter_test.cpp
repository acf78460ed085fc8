// What happens to a key before the list or the archive sees it: pastes, hops, and who has the keyboard.
#include "base/limits.h"
#include "control/control_fixture.h"

namespace brimle {
namespace {

using KeyFilterTest = ControlTest;

TEST_F(KeyFilterTest, HopsBetweenATaskAndItsNotes) {
  expect("A", {"edit:A tab -> note:A.0 hop => A/; up -> edit:A hop => A",
               "edit:Z tab -> note:Z.0 hop; up -> edit:Z hop", "edit:A up -> A @A >A edit:A",
               "note:Z index:3 up -> edit:Z hop"});
  expect("A/n/m",
         {"keyboard:field edit:A index:1 down -> note:A.0 hop", "edit:A note:A index:1 tab -> note:A.0 hop",
          "note:A tab -> note:A.1 hop => A/n/m; down -> hop => A/n/m",
          "note:A index:1 up -> note:A.0 hop => A/n/m; up -> edit:A hop => A/n/m",
          "note:A index:7 up -> note:A.1 hop; index:-1 up -> edit:A hop",
          "note:A index:9223372036854775807 down -> hop",
          "keyboard:field edit:A !caps+tab !caps+down !cmd+down !return -> edit:A",
          "keyboard:field note:A !caps+up !shift+tab !space !esc -> note:A.0"});
  expect("A/\tn\u00A0/\u2003\u2028/m",
         {"note:A down -> note:A.1 hop => A/n/\u2003\u2028/m; down -> note:A.1 hop => A/n/m",
          "note:A index:1 up -> note:A.0 hop => A/\tn\u00A0/m"});
  expect("A/\u00A0", {"note:A down -> hop => A", "note:A up -> edit:A hop => A"});
}

TEST_F(KeyFilterTest, KeepsTheHopFlagForAMomentAfterTheFirstHop) {
  expect("A/n/m", {"edit:A tab wait:0.1499 -> note:A.0 hop; wait:0.0001 -> note:A.0",
                   "edit:A tab wait:0.1 down -> note:A.1 hop => A/n/m; wait:0.05 -> note:A.1"});
}

TEST_F(KeyFilterTest, TurnsAPasteOfSeveralLinesIntoTasks) {
  const std::string longest(kLongestShown, 'x');
  const auto added = [&](std::optional<std::string> text, const char* key = "cmd+v") {
    start("A");
    play("show:archive keyboard:field edit:A");
    pasteboard.text = std::move(text);
    const bool used = press(key);
    EXPECT_EQ(store->items().size() > 1, used);
    return store->items().size() - 1;
  };
  EXPECT_EQ(added("one\ntwo"), 2u);
  EXPECT_EQ(added("one\u2028\ttwo", "cmd+V"), 1u);
  EXPECT_EQ(added(longest + "x"), 1u);
  EXPECT_EQ(added("one") + added(longest) + added(std::nullopt), 0u) << "an ordinary paste";
  for (const auto* key : {"v", "shift+cmd+v", "caps+cmd+v", "cmd+x"}) EXPECT_EQ(added("one\ntwo", key), 0u);
}

TEST_F(KeyFilterTest, LeavesOtherKeysToAnotherWindowAndToTextFields) {
  expect("A B | | | 14:X", {"keyboard:elsewhere !down keyboard:field !down keyboard:window down -> A @A >A",
                            "show:archive keyboard:field !esc keyboard:window up -> X @X >X"});
}

}  // namespace
}  // namespace brimle
