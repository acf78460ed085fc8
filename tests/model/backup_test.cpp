// Which copies of the day file are made and kept.
#include "model/store_fixture.h"

namespace brimle {
namespace {

struct Backups : StoreTest {
  Path backup(std::string_view stamp) { return kBackups / ("today-" + dateOf(stamp) + ".json"); }
};

TEST_F(Backups, CopyTheFileOnceForItsDay) {
  reopen();
  EXPECT_TRUE(files.list(kBackups)->empty()) << "there is no day file yet";
  for (const auto& [day, bytes] :
       {std::pair("15", "\n" + document("A!")), {"14", "\n" + document("@14 B")}}) {
    files.put(kFile, bytes);
    reopen();
    run("add c; reopen");
    EXPECT_EQ(files.read(backup(day)), bytes) << "as it was at the first start that found it";
  }
  run("wait 54000; add e");
  const auto last = files.read(kFile);
  run("wait 86400");
  EXPECT_EQ(files.read(backup("16")), last) << "as it was at the end of the day";
}

TEST_F(Backups, KeepTheSevenGreatestNamesEvenWhereTheCopyFails) {
  const std::tuple<const char*, bool, const char*> table[] = {
      {"01 02 03 04 05 06", false, "01 02 03 04 05 06 15"},
      {"01 02 03 04 05 06 07 old", false, "03 04 05 06 07 15 old"},
      {"01 02 03 04 05 06 07 08 15", false, "01 02 03 04 05 06 07 08 15"},  // the day has its copy
      {"01 02 03 04 05 06 07 08", true, "02 03 04 05 06 07 08"},
  };
  for (const auto& [before, fails, after] : table) {
    files = MemoryFiles();
    for (const auto* name : {"notes.txt", "unreadable-1.json"}) files.put(kBackups / name, "x");
    for (const auto& stamp : split(before, ' ')) files.put(backup(stamp), "x");
    files.put(kFile, document("A"));
    files.diskFull = fails;
    reopen();
    for (const auto& stamp : split(after, ' ')) EXPECT_TRUE(files.exists(backup(stamp))) << after;
    EXPECT_EQ(files.list(kBackups)->size(), split(after, ' ').size() + 2) << after;
  }
}

}  // namespace
}  // namespace brimle
