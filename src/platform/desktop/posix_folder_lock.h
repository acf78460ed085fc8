// An exclusive lock on a folder: what tells one running program from the next.
//
// The lock is an flock on the folder itself, so it needs no file of its own, and the system drops it when the
// program ends, however it ends. It keeps nobody out of the folder who does not ask for the lock.
#pragma once

#include "platform/files.h"

namespace brimle {

class FolderLock {
 public:
  enum class Result {
    acquired,
    heldByAnother,
    unavailable,  ///< the folder is missing or cannot be locked; says nothing about others
  };

  /// Tries once, without waiting. A lock that was acquired is held until this is destroyed.
  explicit FolderLock(const Path& folder);
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

  Result result() const { return result_; }

 private:
  int folder_;
  Result result_ = Result::unavailable;
};

}  // namespace brimle
