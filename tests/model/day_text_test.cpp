// The day as a text to copy.
#include <gmock/gmock.h>

#include "i18n/dates.h"
#include "i18n/i18n.h"
#include "model/store_fixture.h"

namespace brimle {
namespace {

struct DayText : StoreTest {
  std::string heading() const { return formatDay(time.today(), "EEEEdMMMM"); }
};

TEST_F(DayText, ListsWhatIsVisibleAndThenWhatWasSweptToday) {
  const std::tuple<const char*, const char*, const char*> table[] = {
      {"", "", ""},
      {"A B+/x/y C!^", "", "\n○ A\n✓ B\n   x\n   y\n○ C"},
      {"A+ B/n", "wait 2", "\n○ B\n   n\n✓ A"},
      {"R*/n S*", "tick R; wait 2", "\n○ S\n✓ R\n   n"},
      {"R*# S*+# T*+ N#", "", "\n✓ T\n○ N"},
      {"W*% N%", "", "\n○ W\n○ N"},
      {"W*% N%! A", "clock 2026-06-20 09:00", "\n○ N"},
      {"A | T | 16:S | 15:X+/n,Y/m,Z+ 14:V+", "", "\n○ A\n✓ X\n   n\n✓ Z"},
      {" | | | 15:Y", "", ""},
      {"A | | | 14:V+ 15:X+", "", "\n○ A"},
  };
  for (const auto& [before, script, text] : table) {
    open(document(before));
    run(script);
    storeLog.clear();
    EXPECT_EQ(store->dayAsText(), heading() + text) << before;
    EXPECT_EQ(storeLog, "") << "nothing changes";
  }
}

TEST_F(DayText, LeavesOutEmptyNotesAndIsHeadedInTheInterfaceLanguage) {
  Lists with = lists("A | | | 15:X+");
  with.items[0].notes = {"", "a", "", "b"};
  with.archive = with.archive.withEntries("2026-06-15", {archivedCopy(with.items[0], true)});
  open(document(with));
  I18n::setLang("ja");
  EXPECT_EQ(store->dayAsText(), "6月15日月曜日\n○ A\n   a\n   b\n✓ X\n✓ A\n   a\n   b");
  I18n::setLang("en");
}

TEST_F(DayText, PastedBackGivesTheTasksAgain) {
  open(document("A! B+/x/y R* | | | 15:X+/n"));
  const std::string text = store->dayAsText();
  open(document(""));
  store->addLines(text, false);
  EXPECT_EQ(state(), heading() + "' A' B'/x/y R' X'/n");
}

}  // namespace
}  // namespace brimle
