// What the real file system adds: faults at every step, links, modes and files that are not files.
#include "platform/desktop/posix_files.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <cerrno>
#include <csignal>

#include "platform/temp_folder.h"

namespace brimle {
namespace {

struct Fault {
  int at;        ///< which call fails, from 1
  int error;     ///< its errno; 0: no failure, but only one byte is written
  bool lasting;  ///< all later calls fail as well
};

struct FaultyCalls : FileCalls {
  explicit FaultyCalls(Fault planned) : fault(planned) {}

  int open(const char* path, int flags, mode_t mode) override {
    return fails("open") ? -1 : FileCalls::open(path, flags, mode);
  }
  int fchmod(int file, mode_t mode) override { return fails("fchmod") ? -1 : FileCalls::fchmod(file, mode); }
  ssize_t writev(int file, const iovec* pieces, int count) override {
    if (fails("writev")) return -1;
    const iovec byte{pieces->iov_base, 1};
    return isNow() ? FileCalls::writev(file, &byte, 1) : FileCalls::writev(file, pieces, count);
  }
  int fdatasync(int file) override { return fails("fdatasync") ? -1 : FileCalls::fdatasync(file); }
  int close(int file) override { return FileCalls::close(file) < 0 || fails("close") ? -1 : 0; }
  int rename(const char* from, const char* to) override {
    return fails("rename") ? -1 : FileCalls::rename(from, to);
  }
  int unlink(const char* path) override { return fails("unlink") ? -1 : FileCalls::unlink(path); }

  bool isNow() const { return calls == fault.at || (fault.lasting && calls > fault.at); }
  bool fails(const char* call) {
    ++calls;
    if (!isNow() || fault.error == 0) return false;
    if (failed.empty()) failed = call;
    errno = fault.error;
    return true;
  }

  Fault fault;
  int calls = 0;
  std::string failed;  ///< the first call that failed
};

struct PosixFilesTest : testing::Test {
  /// Saves over `old` (nothing: for the first time) with a fault. False where the save made too few calls.
  bool saveWith(Fault fault, const std::optional<std::string>& old);

  TempFolder folder;
  PosixFiles files;
  const Path file = folder.path / "day.json";
  const Path leftover = folder.path / ".day.json.tmp";
};

bool PosixFilesTest::saveWith(Fault fault, const std::optional<std::string>& old) {
  files.remove(file);
  if (old) files.replace(file, {{*old}});
  if (old) ::chmod(file.c_str(), 0640);
  const auto descriptors = files.list("/proc/self/fd")->size();
  FaultyCalls calls(fault);

  const bool saved = PosixFiles(calls).replace(file, {{"n", "ew"}});

  // A failed clearing away before the rest does no harm; a rename is never tried twice.
  const bool harmless = calls.failed.empty() || (!fault.lasting && calls.failed == "unlink") ||
                        (fault.error == EINTR && calls.failed != "rename");
  EXPECT_EQ(saved, harmless) << calls.failed;
  EXPECT_EQ(files.read(file), saved ? "new" : old) << calls.failed;
  EXPECT_EQ(files.list("/proc/self/fd")->size(), descriptors) << calls.failed;
  if (fault.lasting) files.removeLeftovers(file);
  EXPECT_FALSE(files.exists(leftover)) << calls.failed;
  return calls.calls >= fault.at;
}

TEST_F(PosixFilesTest, AFaultAtAnyStepLeavesTheOldFileOrTheNewOneWhole) {
  for (const auto& old : {std::optional<std::string>("old"), std::optional<std::string>()}) {
    for (const int error : {ENOSPC, EIO, EDQUOT, EACCES, EROFS, EINTR, 0}) {
      for (const bool lasting : {false, true}) {
        if (error == EINTR && lasting) continue;  // signals do stop
        int step = 1;
        while (saveWith({step, error, lasting}, old)) ++step;
        EXPECT_GT(step, old ? 7 : 6) << "every system call had its fault";
      }
    }
  }
}

TEST_F(PosixFilesTest, AWriteThatTheSystemCutsShortLeavesTheOldFile) {
  files.replace(file, {{"old"}});
  rlimit before{};
  ::getrlimit(RLIMIT_FSIZE, &before);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{4096, before.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &small);
  const bool saved = files.replace(file, {{std::string(100'000, 'x')}});
  ::setrlimit(RLIMIT_FSIZE, &before);
  std::signal(SIGXFSZ, handler);
  EXPECT_FALSE(saved || files.exists(leftover));
  EXPECT_EQ(files.read(file), "old");
}

TEST_F(PosixFilesTest, LinksStayAndWhatTheyPointToIsReplaced) {
  const Path real = folder.path / "real", links = folder.path / "links";
  files.createFolders(real);
  files.createFolders(links);
  const std::pair<const char*, Path> cases[] = {
      {"absolute", real / "day"}, {"relative", "../real/day"}, {"chain", "relative"}};
  for (const auto& [link, target] : cases) {
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
    FaultyCalls calls({cleared ? 0 : 1, EACCES, false});
    EXPECT_EQ(PosixFiles(calls).replace(file, {{"new"}}), cleared);
    EXPECT_EQ(files.read(folder.path / "victim"), "precious");
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
