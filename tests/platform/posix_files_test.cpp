// What the real file system adds: links, modes, leftovers and files that are not files.
#include "platform/desktop/posix_files.h"

#include <gmock/gmock.h>

#include "platform/faulty_calls.h"
#include "platform/temp_folder.h"

namespace brimle {
namespace {

using testing::Optional;
using testing::UnorderedElementsAre;

struct PosixFilesTest : testing::Test {
  TempFolder folder;
  PosixFiles files;
  const Path file = folder.path / "day.json";
  const Path leftover = folder.path / ".day.json.tmp";
};

TEST_F(PosixFilesTest, LinksStayAndWhatTheyPointToIsReplaced) {
  const Path real = folder.path / "real", links = folder.path / "links";
  files.createFolders(real);
  files.createFolders(links);
  for (const auto& [link, target] : {std::pair<const char*, Path>("absolute", real / "day"),
                                     {"relative", "../real/day"},
                                     {"chain", "relative"}}) {
    std::filesystem::create_symlink(target, links / link);
    files.remove(real / "day");
    for (const char* bytes : {"made", "replaced"}) {
      EXPECT_TRUE(files.replace(links / link, {{bytes}})) << link;
      EXPECT_EQ(files.read(real / "day"), bytes) << link;
    }
    EXPECT_TRUE(std::filesystem::is_symlink(links / link)) << link;
    EXPECT_TRUE(files.rename(real / "day", real / ".day.tmp"));
    files.removeLeftovers(links / link);
    EXPECT_TRUE(std::filesystem::is_empty(real)) << "an unfinished file lies beside the real one";
  }
  std::filesystem::create_symlink("ring", links / "ring");
  EXPECT_FALSE(files.replace(links / "ring", {{"x"}}));
}

TEST_F(PosixFilesTest, ALeftoverIsClearedAwayAndNeverWrittenThrough) {
  files.replace(folder.path / "victim", {{"precious"}});
  for (const bool cleared : {true, false}) {
    std::filesystem::create_symlink("victim", leftover);
    FaultyCalls calls;
    calls.plan({.error = EACCES, .at = cleared ? 0 : 3});
    EXPECT_EQ(PosixFiles(calls).replace(file, {{"new"}}), cleared);
    EXPECT_EQ(files.read(folder.path / "victim"), "precious");
  }
}

TEST_F(PosixFilesTest, LeftoversOfAFolderAreToldFromItsFiles) {
  const char* names[] = {".today-1.json.tmp", ".today-2.json.tmp", ".other.tmp", "today-1.json", ".today-1"};
  for (const char* name : names) files.replace(folder.path / name, {{"x"}});
  files.removeLeftoversIn(folder.path, "today-");
  EXPECT_THAT(files.list(folder.path),
              Optional(UnorderedElementsAre(".other.tmp", "today-1.json", ".today-1")));
}

TEST_F(PosixFilesTest, WhatCannotBeToldCountsAsThere) {
  FaultyCalls calls;
  for (const auto& [error, there] :
       {std::pair(EIO, true), {EACCES, true}, {ENOENT, false}, {ENOTDIR, false}}) {
    calls.plan({.error = error, .at = 1});
    EXPECT_EQ(PosixFiles(calls).exists(file), there) << error;
  }
}

TEST_F(PosixFilesTest, NewThingsArePrivateAndReplacedFilesKeepTheirMode) {
  using std::filesystem::perms;
  const auto modeOf = [](const Path& path) { return std::filesystem::status(path).permissions(); };
  files.replace(file, {{"old"}});
  EXPECT_EQ(modeOf(file), perms(0600));
  for (const perms mode : {perms(0400), perms(0666)}) {
    std::filesystem::permissions(file, mode);
    EXPECT_TRUE(files.replace(file, {{"new"}}));
    EXPECT_EQ(modeOf(file), mode);
  }
  files.createFolders(folder.path / "a" / "b");
  EXPECT_EQ(modeOf(folder.path / "a"), perms(0700));
  EXPECT_EQ(modeOf(folder.path / "a" / "b"), perms(0700));
}

TEST_F(PosixFilesTest, AReadFileHasRoomForPadding) {
  for (const std::size_t size : {0, 1, 64, 1'000'000}) {
    files.replace(file, {{std::string(size, 'x')}});
    const auto text = files.read(file);
    EXPECT_TRUE(text->size() == size && text->capacity() >= size + 64) << size;
  }
  EXPECT_GT(files.read("/proc/self/status")->size(), 64u) << "a file that tells no size";
}

TEST_F(PosixFilesTest, APipeIsNeitherWaitedForNorReplaced) {
  ASSERT_EQ(::mkfifo(file.c_str(), 0600), 0);
  EXPECT_FALSE(files.read(file) || files.replace(file, {{"new"}}));
  EXPECT_TRUE(std::filesystem::is_fifo(file));
}

}  // namespace
}  // namespace brimle
