// System calls of which one fails as planned, on a disk that keeps for certain only what was synced: a failed
// sync or close loses the file's bytes, and so does a power cut before the sync.
#pragma once

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <string_view>
#include <vector>

#include "platform/desktop/posix_files.h"

namespace brimle {

struct Fault {
  enum class Kind { error, shortWrite, kill, powerCut };

  Kind kind = Kind::error;
  int error = 0;         ///< the errno of a call that fails
  bool lasting = false;  ///< all later calls fail as well
  int at = 0;            ///< which call fails, from 1; 0: none
};

class FaultyCalls : public FileCalls {
 public:
  /// Plans a fault and counts the calls from here on.
  void plan(Fault fault) {
    fault_ = fault;
    count = 0;
    failed = {};
  }

  /// Ends the program as the fault says, whether or not it got to its call.
  void end() {
    if (fault_.kind == Fault::Kind::powerCut) {
      for (const int file : unsynced_) lose(file);
    }
    ::kill(::getpid(), SIGKILL);
  }

  bool fails(std::string_view call) {
    ++count;
    if (!isNow(count) || fault_.kind == Fault::Kind::shortWrite) return false;
    if (fault_.kind != Fault::Kind::error) end();
    if (failed.empty()) failed = call;
    errno = fault_.error;
    return true;
  }

  int stat(const char* path, struct stat* status) override {
    return fails("stat") ? -1 : FileCalls::stat(path, status);
  }
  ssize_t readlink(const char* path, char* target, std::size_t size) override {
    return fails("readlink") ? -1 : FileCalls::readlink(path, target, size);
  }
  int open(const char* path, int flags, mode_t mode) override {
    if (fails("open")) return -1;
    const int file = FileCalls::open(path, flags, mode);
    if (file >= 0 && (flags & O_WRONLY) != 0 && fault_.kind == Fault::Kind::powerCut) {
      unsynced_.push_back(::dup(file));
    }
    return file;
  }
  int fstat(int file, struct stat* status) override {
    return fails("fstat") ? -1 : FileCalls::fstat(file, status);
  }
  ssize_t read(int file, void* bytes, std::size_t size) override {
    return fails("read") ? -1 : FileCalls::read(file, bytes, size);
  }
  int fchmod(int file, mode_t mode) override { return fails("fchmod") ? -1 : FileCalls::fchmod(file, mode); }
  ssize_t writev(int file, const iovec* pieces, int number) override {
    const iovec byte{pieces->iov_base, 1};
    const bool inPart = isNow(count + 1) && fault_.kind != Fault::Kind::error;
    const ssize_t written = inPart ? FileCalls::writev(file, &byte, 1) : 0;
    if (fails("writev")) return -1;
    return inPart ? written : FileCalls::writev(file, pieces, number);
  }
  /// Needs no real one, which would only take time.
  int fdatasync(int file) override {
    const bool fault = fails("fdatasync");
    if (fault && errno != EINTR) lose(file);
    if (!fault) unsynced_.clear();  // one file is written at a time
    return fault ? -1 : 0;
  }
  int close(int file) override {
    const bool fault = fails("close");
    if (fault && errno != EINTR) lose(file);
    const int error = errno;
    const int result = FileCalls::close(file);
    errno = error;
    return fault ? -1 : result;
  }
  int rename(const char* from, const char* to) override {
    return fails("rename") ? -1 : FileCalls::rename(from, to);
  }
  int unlink(const char* path) override { return fails("unlink") ? -1 : FileCalls::unlink(path); }
  int rmdir(const char* path) override { return fails("rmdir") ? -1 : FileCalls::rmdir(path); }
  int mkdir(const char* path, mode_t mode) override {
    return fails("mkdir") ? -1 : FileCalls::mkdir(path, mode);
  }
  DIR* opendir(const char* path) override { return fails("opendir") ? nullptr : FileCalls::opendir(path); }
  dirent* readdir(DIR* folder) override { return fails("readdir") ? nullptr : FileCalls::readdir(folder); }

  int count = 0;
  std::string_view failed;  ///< the first call that failed

 private:
  bool isNow(int call) const {
    return fault_.at > 0 && (call == fault_.at || (fault_.lasting && call > fault_.at));
  }
  static void lose(int file) {
    const int error = errno;
    static_cast<void>(::ftruncate(file, 0) == 0);  // a file that was only read has nothing to lose
    errno = error;
  }

  Fault fault_;
  std::vector<int> unsynced_;  ///< files being written, by numbers of its own, for a power cut
};

}  // namespace brimle
