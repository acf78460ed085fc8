// The Files port on plain POSIX calls, every result checked.
//
// A file is replaced by way of ".<name>.tmp" in the real file's own folder: written, synced, renamed over it,
// and removed where any of that fails. Replacing "/d/today.json" writes "/d/.today.json.tmp". Folders are
// never synced, so right after a power cut the file may still be the old one. Nothing is kept between calls.
#pragma once

#include <dirent.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/uio.h>

#include "platform/files.h"

namespace brimle {

/// The system calls behind the port: arguments, results and errno are theirs. A test derives from this to
/// make one of them fail.
class FileCalls {
 public:
  virtual ~FileCalls() = default;

  virtual int stat(const char* path, struct stat* status);
  virtual ssize_t readlink(const char* path, char* target, std::size_t size);
  virtual int open(const char* path, int flags, mode_t mode);
  virtual int fstat(int file, struct stat* status);
  virtual ssize_t read(int file, void* bytes, std::size_t size);
  virtual int fchmod(int file, mode_t mode);
  virtual ssize_t writev(int file, const iovec* pieces, int count);
  virtual int fdatasync(int file);
  virtual int close(int file);
  virtual int rename(const char* from, const char* to);
  virtual int unlink(const char* path);
  virtual int rmdir(const char* path);
  virtual int mkdir(const char* path, mode_t mode);
  virtual DIR* opendir(const char* path);
  virtual dirent* readdir(DIR* folder);
};

class PosixFiles : public Files {
 public:
  PosixFiles();
  /// `calls` is used as long as this lives.
  explicit PosixFiles(FileCalls& calls) : calls_(calls) {}

  bool exists(const Path& path) const override;
  /// The text has room for 64 bytes more, so that a JSON reader which needs padding can work in place. Never
  /// waits: a pipe or a device is not read.
  std::optional<std::string> read(const Path& path) const override;
  std::optional<std::vector<std::string>> list(const Path& folder) const override;
  bool createFolders(const Path& folder) override;
  bool rename(const Path& from, const Path& to) override;
  /// Removes a file, a link (not what it points to) or an empty folder.
  bool remove(const Path& path) override;
  /// Refuses to take the place of anything but a regular file.
  bool replace(const Path& path, std::span<const std::string_view> pieces) override;
  void removeLeftovers(const Path& path) override;
  void removeLeftoversIn(const Path& folder, std::string_view prefix) override;

 private:
  bool isFolder(const Path& path) const;
  std::optional<Path> followLinks(Path path) const;
  std::optional<std::string> readAll(int file) const;
  bool write(const Path& temporary, std::vector<iovec> bytes, std::optional<mode_t> mode);
  bool setMode(int file, mode_t mode);
  bool writeAll(int file, std::vector<iovec> rest);

  FileCalls& calls_;
};

}  // namespace brimle
