// Where added lines go.
#include "model/store_fixture.h"

namespace brimle {
namespace {

using AddLines = StoreTest;

TEST_F(AddLines, FilesEachTaskWhereItBelongs) {
  expect({
      {"P! A+", "add a !\nb\nc !\nd", "c'! a'! P! A+ b' d'", "-items "},
      {"A | T", "later a !\nd >20/6\nb *w\n c", "A | T a'! b'*%/c | 20:d'!", "-tomorrow-scheduled "},
      {"A | | 19:R 21:S 21:T", "add a >21/6\nb >20/6\nc >21/6", "A |  | 19:R 20:b'! 21:S 21:T 21:a'! 21:c'!",
       "-scheduled "},
      {"A", "add a // n // m\r\n\t- o\r\n- [ ]\u2028b", "A a'/n/m/o [ ]' b'"},
      {"A", "add a >20/6\nb\nc !; undo", "A"},
  });
}

TEST_F(AddLines, KeepsTheOrderOfManyTasksForOneDay) {
  std::string script = "add ", sorted = " |  |";
  for (int line = 0; line < 50; ++line) {
    script += std::to_string(line) + (line % 2 ? " >21/6\n" : " >20/6\n");
    sorted += (line < 25 ? " 20:" : " 21:") + std::to_string(line * 2 % 50 + line / 25) + "'!";
  }
  expect({{"", script.c_str(), sorted.c_str()}});
}

}  // namespace
}  // namespace brimle
