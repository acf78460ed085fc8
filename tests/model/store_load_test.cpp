// What a start finds in the data folder, and that it loses none of it.
#include "i18n/i18n.h"
#include "model/data_folder.h"
#include "model/store_fixture.h"

namespace brimle {
namespace {

using StoreLoad = StoreTest;

TEST_F(StoreLoad, StartsWithFourTasksInTheLanguageAndWritesNothingBeforeTheFirstChange) {
  I18n::setLang("de");
  reopen();
  EXPECT_EQ(store->items().size(), 4u);
  EXPECT_EQ(store->items()[1].text, I18n::t("Drag me to the top"));
  EXPECT_EQ(store->items()[3].notes.size(), 1u);
  EXPECT_FALSE(files.exists(kFile));
  run("add a");
  EXPECT_EQ(store->items().size(), 5u);
  I18n::setLang("en");
}

TEST_F(StoreLoad, KeepsTheBytesOfAFileItCannotRead) {
  const std::string good = document("A");
  for (const std::string& bytes : {std::string(), good.substr(0, 40), good + '\0', std::string("\xFF\xFE")}) {
    for (const bool hasBackup : {false, true}) {
      files = MemoryFiles();
      if (hasBackup) files.put(kBackups / "today-2026-06-15.json", good);
      files.put(kFile, bytes);
      reopen();
      reopen();
      EXPECT_TRUE(files.read(kFile) == bytes && isBackedUp(bytes) && isBackedUp(good) == hasBackup);
      EXPECT_EQ(files.list(kBackups)->size(), hasBackup ? 2u : 1u) << "the same bytes are kept once";
      run("add a; reopen");
      EXPECT_EQ(store->items().size(), 5u);
      EXPECT_TRUE(isBackedUp(bytes));
    }
  }
}

TEST_F(StoreLoad, NeverWritesOverWhatNoBackupHolds) {
  for (bool MemoryFiles::*fault : {&MemoryFiles::diskFull, &MemoryFiles::unavailable}) {
    const std::string bytes = fault == &MemoryFiles::diskFull ? "broken" : document("A");
    files = MemoryFiles();
    files.put(kFile, bytes);
    files.*fault = true;
    reopen();
    run("add a; wait 1");
    files.*fault = false;
    EXPECT_EQ(files.read(kFile), bytes);
    run("add b; wait 1; add c");
    EXPECT_EQ(store->items().size(), 7u);
    EXPECT_TRUE(isBackedUp(bytes)) << "even where the file came back with its disk";
    EXPECT_EQ(files.list(kBackups)->size(), 1u);
  }
  files = MemoryFiles();
  files.put(kFile / "in a folder of that name", "x");
  reopen();
  run("add a");
  EXPECT_EQ(files.list(kBackups)->size(), 1u);
}

TEST(DataFolder, IsFoundOrMovedOrMade) {
  const Path own = "/support/Brimle", predecessors = "/support/Quorel";
  for (const auto& [isThere, isLeft] :
       {std::pair(false, false), {false, true}, {true, false}, {true, true}}) {
    MemoryFiles files;
    if (isThere) files.createFolders(own);
    if (isLeft) files.put(predecessors / "today.json", "x");
    EXPECT_EQ(locateDataFolder(files, "/support"), own);
    EXPECT_TRUE(files.exists(own));
    EXPECT_EQ(files.exists(own / "today.json"), isLeft && !isThere);
    EXPECT_EQ(files.exists(predecessors), isLeft && isThere) << "an empty folder of its own is used as it is";
  }
}

}  // namespace
}  // namespace brimle
