// What is done to the archive: deleting, bringing back, searching.
#include "model/store_fixture.h"

namespace brimle {
namespace {

using ArchiveOperations = StoreTest;

TEST_F(ArchiveOperations, DeleteTasksAndTheDaysLeftEmpty) {
  const char* deleted = "save told-archive ";
  expectOneStep({
      {"A | T | 20:S | 15:X+,Y/n,Z 14:V", "erase Y", "A | T | 20:S | 15:X+,Z 14:V", deleted},
      {"A+ | | | 15:X 14:V,W", "erase X", "A+ |  |  | 14:V,W", deleted},
      {"A | | | 15:X,Y 14:V 13:U", "erase V X", "A |  |  | 15:Y 13:U", deleted},
      {"A | | | 15:X,Y 14:V", "erase V Y X", "A", deleted},
      {"A | T | 20:S | 15:X 14:", "erase A T S", "A | T | 20:S | 15:X 14:"},
      {"A | | | 15: 14:X,Y 13:", "erase Y", "A |  |  | 14:X", deleted},
  });
}

TEST_F(ArchiveOperations, BringTasksBackToTheBottomInTheArchivesOrder) {
  const char* back = "save told-items-archive ";
  expectOneStep({
      {"A! B+ | T | 20:S | 15:X+,Y/n/m 14:V 13:U", "back U Y V", "A! B+ Y'/n/m V' U' | T | 20:S | 15:X+",
       back},
      {" | | | 15:X+/n", "back X", "X'/n", back},
      {"A | | | 15:X 14:Y", "back Z", "A |  |  | 15:X 14:Y"},
  });
  const Uuid filed = store->archive().front().items.front().id;
  run("back X");
  EXPECT_NE(store->items().back().id, filed);
}

TEST_F(ArchiveOperations, SearchIgnoresCaseAndKeepsMarks) {
  using Queries = std::vector<const char*>;
  const std::tuple<const char*, Queries, Queries> table[] = {
      {"Buy MILK",
       {"milk", "MILK", "uy m", " \tbuy\u3000", "", " \t\u00A0"},
       {"milks", "milk buy", "\u2028"}},
      {"eggs/Milk/bread", {"milk", "BREAD", "eggs"}, {"eggsmilk", "milk bread", "eggs\xFFmilk", "milkbread"}},
      {"Café", {"CAFÉ", "cafe\u0301", "CAFE\u0301", "caf"}, {"cafe", "cafe\u0300", "éé"}},
      {"Cafe\u0301 au lait", {"café", "CAFÉ AU", "É A"}, {"cafe", "cafe au", "e"}},
      {"cafe", {"CAFE"}, {"café", "cafe\u0301"}},
      {"x\u0303x\u0303x", {"x\u0303X"}, {"xx"}},
      {"né, x\u0303x/XE", {"ne\u0301", "x", "xe"}, {"ne", "x,"}},
      {"q\u0323\u0307", {"Q\u0307\u0323"}, {"q", "q\u0323", "q\u0307"}},
      {"e\u0301\u0323", {"ẹ\u0301", "é\u0323"}, {"é", "ẹ", "e"}},
      {"Straße", {"STRASSE", "strasse", "STRAẞE", "straß"}, {"strase"}},
      {"FUSSBALL", {"fußball", "uß"}, {"fuß\u0301"}},
      {"ISTANBUL", {"istanbul"}, {"İstanbul", "ıstanbul"}},
      {"İlk", {"i\u0307LK", "lk"}, {"ilk", "ılk", "i"}},
      {"ΟΔΟΣ", {"οδος", "οδοσ", "ς"}, {"ό"}},
      {"ガ 각", {"カ\u3099", "\u1100\u1161\u11A8"}, {"カ", "가"}},
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
  for (int day = 0; day < 700; ++day) days += " " + std::to_string(3000 - day) + ":a,É/n,b";
  const auto isPrepared = [this] { return store->archive().prepareSearch(0); };
  open(document("new+ | | |" + days));
  store->prepareSearch();
  EXPECT_FALSE(isPrepared()) << "a slice is not the whole";
  store->removeArchived({std::next(store->archive().begin(), 300)->items[0].id});
  time.runUntilIdle();
  EXPECT_TRUE(isPrepared());
  run("wait 2");
  EXPECT_TRUE(isPrepared()) << "with what was swept";
  for (const auto& [query, found] : {std::pair{"e\u0301", 700u}, {"A", 699u}, {"e", 1u}, {"NEW", 1u}}) {
    EXPECT_EQ(store->archivedIDsInOrder(query).size(), found) << query;
  }
}

}  // namespace
}  // namespace brimle
