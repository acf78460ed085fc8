// Where added lines go, and that any bytes may be added.
#include "base/text.h"
#include "model/store_fixture.h"

namespace brimle {
namespace {

using AddLines = StoreTest;

TEST_F(AddLines, FilesEachTaskWhereItBelongs) {
  expect({
      {"P! A+", "add a !\nb\nc !\nd", "c'! a'! P! A+ b' d'"},
      {"A | T", "later a !\nd >20/6\nb *w\n c", "A | T a'! b'*%/c | 20:d'!"},
      {"A | | 19:R 21:S 21:T", "add a >21/6\nb >20/6\nc >21/6", "A |  | 19:R 20:b'! 21:S 21:T 21:a'! 21:c'!"},
      {"A", "add a // n // m\r\n\t- o\r\n- [ ]\u2028b", "A a'/n/m/o [ ]' b'"},
      {"A", "add a >20/6\nb\nc !; undo", "A"},
  });
}

TEST_F(AddLines, KeepsTheOrderOfManyTasksForOneDay) {
  std::string lines, expected = " |  |";
  for (int line = 0; line < 50; ++line) lines += std::to_string(line) + (line % 2 ? " >21/6\n" : " >20/6\n");
  for (int line = 0; line < 50; line += 2) expected += " 20:" + std::to_string(line) + "'!";
  open(document(""));
  store->addLines(lines, false);
  EXPECT_TRUE(state().starts_with(expected)) << state();
}

TEST_F(AddLines, TakesAnyBytesAndSavesThemReadably) {
  std::string lines;
  for (int line = 0; line < 100'000; ++line) lines += "- task // note !\n";
  const std::pair<std::string, std::size_t> table[] = {
      {std::string("a\0b\n\0", 6), 2},
      {"\xFF\n\x80 !\n\xC0\xAF\n\xED\xA0\x80 // \xF4\x90\x80\x80\ncut \xF0\x9F\x98", 5},
      {std::string(5'000'000, '\xFF'), 1},
      {lines, 100'000},
  };
  for (const auto& [text, tasks] : table) {
    open(document(""));
    store->addLines(text, false);
    EXPECT_EQ(store->items().size(), tasks);
    for (const TodoItem& item : store->items()) ASSERT_TRUE(isValidUtf8(item.text) && !item.text.empty());
    expectSaved();
  }
}

}  // namespace
}  // namespace brimle
