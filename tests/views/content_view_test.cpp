// What the header tells of the day, what becomes of a draft, and how a long text is shown.
#include "views/content_view.h"

#include "model/store_fixture.h"
#include "views/row_text.h"

namespace brimle {
namespace {

struct ContentViewTest : StoreTest {
  ContentView show(std::string_view state, std::string_view script = "") {
    open(document(state));
    run(script);
    return {*store, time};
  }
};

TEST_F(ContentViewTest, CountsWhatIsOpenAndPraisesADayThatIsDone) {
  const std::tuple<const char*, const char*, ContentView::Count> rows[] = {
      {"A B C+", "", {"2 tasks"}},
      {"A B | T", "delete B", {"1 task"}},
      {"A*# B*% C*+", "", {"1 task"}},
      {"A B*%", "clock 2026-06-20 09:00; add x", {"1 task"}},  // a Saturday
      {"", "", {}},
      {"A+ B*#", "", {}},  // ticked, but not filed yet
      {"B+ R*+# | T | | 15:R+", "", {"all done", true}},
      {" | | | 15:A 14:B+", "", {}},  // today's was closed unfinished
  };
  for (const auto& [state, script, count] : rows) {
    const auto shown = show(state, script).count();
    EXPECT_TRUE(shown == count) << state << ": " << shown.text;
  }
}

TEST_F(ContentViewTest, FilesADraftAndDropsABlankOne) {
  ContentView view = show("A B+");
  for (const char* blank : {"", "  ", " \n\t\u00A0\r\n"}) view.commitDraft(blank, blank[0] == 0);
  EXPECT_EQ(files.replaces(kFile), 0);
  view.commitDraft("C\n\tn\nD", false);
  view.commitDraft(" E \n", true);
  EXPECT_EQ(state(), "A B+ C'/n D' | E'");
}

TEST(RowText, IsWholeUnlessItIsTooLongToRead) {
  const std::string longest(kLongestShown, 'x');
  EXPECT_EQ(shownText(longest), longest);
  EXPECT_EQ(shownText(longest + "x"), longest + "…");
  EXPECT_EQ(shownText(std::string(2 * kLongestShown, '\x80')), "…") << "bytes that begin no character";
  for (std::size_t cut = 1; cut < 4; ++cut) {
    const std::string start(kLongestShown - cut, 'x');
    EXPECT_EQ(shownText(start + "\U0001F600"), start + "…");
  }
}

}  // namespace
}  // namespace brimle
