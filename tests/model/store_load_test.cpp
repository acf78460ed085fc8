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
  for (const std::string& bytes :
       {std::string(), good.substr(0, 40), good + '\0', std::string("{\"date\":7,\"items\":[]}"),
        std::string("\xFF\xFE"), std::string(200'000, '[')}) {
    for (const bool hasBackup : {false, true}) {
      files = LoggedFiles();
      if (hasBackup) files.put(kBackups / "today-2026-06-15.json", good);
      files.put(kFile, bytes);
      reopen();
      reopen();
      EXPECT_EQ(store->items().size(), 4u);
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
    files = LoggedFiles();
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
  files = LoggedFiles();
  files.put(kFile / "in a folder of that name", "x");
  reopen();
  run("add a");
  EXPECT_EQ(files.list(kBackups)->size(), 1u);
}

TEST(DataFolder, IsFoundOrMovedOrMade) {
  const Path own = "/support/Brimle", predecessors = "/support/Quorel";
  for (const std::string present : {"", "Quorel", "Brimle", "Brimle Quorel"}) {
    MemoryFiles files;
    for (const auto& name : split(present, ' ')) files.put(Path("/support") / name / "today.json", name);
    EXPECT_EQ(locateDataFolder(files, "/support"), own);
    EXPECT_TRUE(files.exists(own));
    EXPECT_EQ(files.read(own / "today.json").value_or(""), present.substr(0, 6));
    EXPECT_EQ(files.exists(predecessors), present == "Brimle Quorel");
  }
  MemoryFiles files;
  files.put(predecessors / "today.json", "Quorel");
  files.createFolders(own);
  locateDataFolder(files, "/support");
  EXPECT_TRUE(files.exists(predecessors)) << "an empty folder of its own is used as it is";
}

}  // namespace
}  // namespace brimle
