// Who holds a folder, and until when.
#include "platform/desktop/posix_folder_lock.h"

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <optional>

#include "platform/temp_folder.h"

namespace brimle {
namespace {

using Result = FolderLock::Result;

/// What another process is answered: a fork of this one that has let go of its copy of `ours`.
Result resultElsewhere(const Path& folder, std::optional<FolderLock>& ours) {
  const pid_t child = ::fork();
  if (child == 0) {
    ours.reset();
    ::_exit(static_cast<int>(FolderLock(folder).result()));
  }
  int status = 0;
  ::waitpid(child, &status, 0);
  return static_cast<Result>(WEXITSTATUS(status));
}

TEST(FolderLock, IsHeldByOneUntilItEndsAndNeedsAFolder) {
  const TempFolder folder;
  std::optional<FolderLock> ours(folder.path);
  EXPECT_EQ(ours->result(), Result::acquired);
  EXPECT_EQ(resultElsewhere(folder.path, ours), Result::heldByAnother);
  EXPECT_EQ(FolderLock(folder.path).result(), Result::heldByAnother) << "also after a forked copy has ended";
  EXPECT_TRUE(std::filesystem::is_empty(folder.path)) << "no file of its own";
  ours.reset();
  EXPECT_EQ(resultElsewhere(folder.path, ours), Result::acquired);
  EXPECT_EQ(FolderLock(folder.path).result(), Result::acquired) << "dropped by a process that ended";
  EXPECT_EQ(FolderLock(folder.path / "missing").result(), Result::unavailable);
  EXPECT_EQ(FolderLock("/proc/self/status").result(), Result::unavailable) << "a file";
}

}  // namespace
}  // namespace brimle
