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
    files = MemoryFiles();
    files.put(kBackups / "today-2026-06-15.json", good);
    files.put(kFile, bytes);
    reopen();
    reopen();
    EXPECT_TRUE(files.read(kFile) == bytes && isBackedUp(bytes) && isBackedUp(good));
    EXPECT_EQ(files.list(kBackups)->size(), 2u) << "the same bytes are kept once";
    run("add a; reopen");
    EXPECT_EQ(store->items().size(), 5u);
    EXPECT_TRUE(isBackedUp(bytes));
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
  const Path own = "/support/Brimle/today.json", predecessors = "/support/Quorel/today.json";
  for (const auto& [present, moved] :
       {std::pair("", ""), {"Quorel", "Quorel"}, {"Brimle Quorel", "Brimle"}}) {
    MemoryFiles files;
    for (const auto& name : split(present, ' ')) files.put(Path("/support") / name / "today.json", name);
    EXPECT_EQ(locateDataFolder(files, "/support"), own.parent_path());
    EXPECT_TRUE(files.exists(own.parent_path()));
    EXPECT_EQ(files.read(own).value_or(""), moved);
    EXPECT_EQ(files.exists(predecessors), moved == std::string("Brimle"));
  }
}

}  // namespace
}  // namespace brimle
