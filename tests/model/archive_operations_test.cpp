// What is done to the archive: deleting, bringing back, searching.
#include "model/store_fixture.h"

namespace brimle {
namespace {

using ArchiveOperations = StoreTest;

TEST_F(ArchiveOperations, DeleteTasksAndTheDaysLeftEmpty) {
  expectOneStep({
      {"A+ | T | 20:S | 15:X+,Y/n,Z 14:V", "erase Y A", "A+ | T | 20:S | 15:X+,Z 14:V", "-archive "},
      {"A | | | 15:X,Y 14:V 13:U", "erase V X", "A |  |  | 15:Y 13:U", "-archive "},
      {"A | | | 15:X,Y 14:V", "erase V Y X", "A", "-archive "},
      {"A | T | 20:S | 15:X 14:", "erase A T S", "A | T | 20:S | 15:X 14:"},
      {"A | | | 15: 14:X,Y 13:", "erase Y", "A |  |  | 14:X", "-archive "},
  });
}

TEST_F(ArchiveOperations, BringTasksBackToTheBottomInTheArchivesOrder) {
  expectOneStep({
      {"A! B+ | T | 20:S | 15:X+,Y/n/m 14:V 13:U", "back U Y V", "A! B+ Y'/n/m V' U' | T | 20:S | 15:X+",
       "-items-archive "},
      {"A | | | 15:X 14:Y", "back A Z", "A |  |  | 15:X 14:Y"},
  });
}

TEST_F(ArchiveOperations, SearchIgnoresCaseAndKeepsMarks) {
  using Queries = std::vector<const char*>;
  const std::tuple<const char*, Queries, Queries> table[] = {
      {"Buy MILK", {"MILK", "uy m", " \tbuy\u3000", " \u00A0"}, {"milks", "milk buy", "\u2028"}},
      {"eggs/Milk/bread", {"milk", "BREAD"}, {"eggsmilk", "milk bread", "eggs\xFFmilk"}},
      {"nan/baa/n", {"an", "aa", "ba"}, {"ab", "nb", "nn"}},
      {"cafe Café", {"CAFÉ", "cafe\u0301", "caf"}, {"cafe\u0300", "éé"}},
      {"Cafe\u0301 au lait", {"café", "CAFÉ AU", "É A"}, {"cafe", "cafe au", "e"}},
      {"né, x\u0303x/XE", {"ne\u0301", "x", "xe"}, {"ne", "x,"}},
      {"ö¼", {"Ö"}, {"ü"}},  // whose bytes stand in it apart
      {"e\u0301\u0323", {"ẹ\u0301", "é\u0323"}, {"é", "ẹ", "e"}},
      {"Straße", {"STRASSE", "strasse", "STRAẞE", "straß"}, {"strase"}},
      {"İlk", {"i\u0307LK", "lk"}, {"ilk", "ılk", "i"}},
      {"\xFF bad", {"\uFFFD BAD", "\x80 b"}, {"\xFF\xFF"}},
  };
  for (const auto& [text, matching, others] : table) {
    const auto parts = split(text, '/');
    const ArchivedItem entry{idOf("X"), parts[0], true, {parts.begin() + 1, parts.end()}};
    open(document(Lists{{}, Archive({{"14", {entry, {idOf("Y"), "\u0301", true, {}}}}}), {}, {}}));
    const auto finds = [this](const char* query) {
      return std::ranges::count(store->archivedIDsInOrder(query), idOf("X")) > 0;
    };
    for (const char* query : matching) EXPECT_TRUE(finds(query)) << text << " by " << query;
    for (const char* query : others) EXPECT_FALSE(finds(query)) << text << " by " << query;
  }
}

TEST_F(ArchiveOperations, SearchIsPreparedInSlicesAndStaysSo) {
  std::string days;
  for (int day = 3000; day > 2300; --day) days += " " + std::to_string(day) + ":X";
  open(document("new+ | | |" + days));
  run("prepare");
  EXPECT_FALSE(store->archive().prepareSearch(0)) << "a slice is not the whole";
  run("wait 2");
  EXPECT_TRUE(store->archive().prepareSearch(0)) << "with what was swept";
}

}  // namespace
}  // namespace brimle
