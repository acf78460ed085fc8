// The day as a text to copy.
#include "i18n/dates.h"
#include "i18n/i18n.h"
#include "model/store_fixture.h"

namespace brimle {
namespace {

using DayText = StoreTest;

TEST_F(DayText, ListsWhatIsVisibleAndThenWhatWasSweptToday) {
  const std::tuple<const char*, const char*, const char*> table[] = {
      {"A B+/x/y C!^", "", "\n○ A\n✓ B\n   x\n   y\n○ C"},
      {"A+ B/n", "wait 2", "\n○ B\n   n\n✓ A"},
      {"R*/n S*", "tick R; wait 2", "\n○ S\n✓ R\n   n"},
      {"W*%# S*+# N#", "", "\n○ N"},
      {"W*% N%! A", "clock 2026-06-20 09:00", "\n○ N"},
      {"A | T | 16:S | 15:X+/n,Y/m,Z+ 14:V+", "", "\n○ A\n✓ X\n   n\n✓ Z"},
      {"A | | | 14:V+ 15:X+", "", "\n○ A"},
  };
  for (const auto& [before, script, text] : table) {
    open(document(before));
    run(script);
    EXPECT_EQ(store->dayAsText(), formatDay(time.today(), "EEEEdMMMM") + text) << before;
  }
}

TEST_F(DayText, IsHeadedInTheInterfaceLanguageAndPastedBackGivesTheTasksAgain) {
  open(document("R* A+/x | | 20:B!/n | 15:X+/n"));
  run("note 20:B!/n; bring 20:B!/n");  // an empty note is left out
  I18n::setLang("ja");
  const std::string text = store->dayAsText();
  I18n::setLang("en");
  EXPECT_EQ(text, "6月15日月曜日\n○ B\n   n\n○ R\n✓ A\n   x\n✓ X\n   n");
  open(document(""));
  store->addLines(text, false);
  EXPECT_EQ(state(), "6月15日月曜日' B'/n R' A'/x X'/n");
}

}  // namespace
}  // namespace brimle
