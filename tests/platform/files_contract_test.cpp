// What every implementation of the Files port does alike.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/desktop/posix_files.h"
#include "platform/simulated/memory_files.h"
#include "platform/temp_folder.h"

namespace brimle {
namespace {

using testing::Optional;
using testing::UnorderedElementsAre;

enum class Kind { onDisk, inMemory };

struct FilesContract : testing::TestWithParam<Kind> {
  FilesContract() { memory.createFolders(root); }
  bool write(const Path& path, std::string_view bytes) { return files.replace(path, {{bytes}}); }

  PosixFiles disk;
  MemoryFiles memory;
  Files& files = GetParam() == Kind::onDisk ? static_cast<Files&>(disk) : memory;
  const TempFolder folder;
  const Path& root = folder.path;
  const Path day = root / "day", a = root / "a", b = a / "b", old = b / "old", to = root / "to";
};

INSTANTIATE_TEST_SUITE_P(Kinds, FilesContract, testing::Values(Kind::onDisk, Kind::inMemory));

TEST_P(FilesContract, AFileIsReplacedWholeWhereItsFolderIs) {
  EXPECT_FALSE(files.exists(day) || files.read(day) || files.read(root));
  EXPECT_FALSE(write(old, "x") || write(root, "x") || files.exists(a));
  std::string whole(2'000'000, '\xff');
  std::vector<std::string_view> pieces{whole, "", std::string_view("\0\n", 2)};
  for (int i = 0; i < 5000; ++i) pieces.push_back(std::string_view("0123456789").substr(0, i % 11));
  std::string joined;
  for (const std::string_view piece : pieces) joined += piece;
  EXPECT_TRUE(files.replace(day, pieces));
  EXPECT_TRUE(files.exists(day) && files.read(day) == joined);
  EXPECT_TRUE(files.replace(day, {}));
  EXPECT_EQ(files.read(day), "");
  EXPECT_THAT(files.list(root), Optional(UnorderedElementsAre("day")));
}

TEST_P(FilesContract, FoldersAreMadeWithTheirParentsUnlessAFileIsInTheWay) {
  EXPECT_FALSE(files.list(b));
  EXPECT_TRUE(files.createFolders(b) && files.createFolders(b) && write(old, "x"));
  EXPECT_THAT(files.list(a), Optional(UnorderedElementsAre("b")));
  EXPECT_FALSE(files.createFolders(old) || files.createFolders(old / "c") || files.list(old));
}

TEST_P(FilesContract, FilesAndWholeFoldersAreRenamedAndRemoved) {
  EXPECT_TRUE(files.createFolders(b) && write(old, "deep") && write(day, "new"));
  const std::pair<Path, Path> refused[] = {
      {to, a}, {a, to / "missing"}, {a, day}, {day, a}, {a, b / "below"}};
  for (const auto& [from, where] : refused) EXPECT_FALSE(files.rename(from, where)) << from << where;
  EXPECT_TRUE(files.rename(a, to) && !files.exists(a));
  EXPECT_EQ(files.read(to / "b" / "old"), "deep");
  EXPECT_TRUE(files.rename(day, to / "b" / "old"));
  EXPECT_EQ(files.read(to / "b" / "old"), "new");
  EXPECT_FALSE(files.remove(to) || files.remove(day));
  EXPECT_TRUE(files.remove(to / "b" / "old") && files.remove(to / "b"));
  EXPECT_THAT(files.list(root), Optional(UnorderedElementsAre("to")));
}

}  // namespace
}  // namespace brimle
