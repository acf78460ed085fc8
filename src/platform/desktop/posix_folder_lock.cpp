#include "platform/desktop/posix_folder_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <cerrno>

namespace brimle {

FolderLock::FolderLock(const Path& folder)
    : folder_(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  if (folder_ < 0) return;
  if (::flock(folder_, LOCK_EX | LOCK_NB) == 0) {
    result_ = Result::acquired;
  } else if (errno == EWOULDBLOCK) {
    result_ = Result::heldByAnother;
  }
}

FolderLock::~FolderLock() {
  // Closing, not unlocking: a forked copy of this object must not take the lock from its parent.
  if (folder_ >= 0) ::close(folder_);
}

}  // namespace brimle
