#include "platform/desktop/posix_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <exception>
#include <memory>
#include <utility>

namespace brimle {
namespace {

constexpr std::size_t kSlack = 64;  // what the widest vector unit reads past the end of a JSON text
constexpr int kMostLinks = 40;      // the kernel's own limit
constexpr mode_t kModeBits = 07777;

FileCalls& systemCalls() {
  static FileCalls calls;
  return calls;
}

/// Repeats a system call for as long as signals interrupt it.
template <class Call>
auto retried(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) result = call();
  return result;
}

constexpr std::string_view kBefore = ".", kAfter = ".tmp";  // around a file's name in its temporary's

Path temporaryFor(const Path& target) {
  std::string name(kBefore);
  name += target.filename().string();
  name += kAfter;
  return target.parent_path() / name;
}

/// The pieces that hold bytes, as the system takes them.
std::vector<iovec> vectorOf(std::span<const std::string_view> pieces) {
  std::vector<iovec> vector;
  vector.reserve(pieces.size());
  for (const std::string_view piece : pieces) {
    if (!piece.empty()) vector.push_back({const_cast<char*>(piece.data()), piece.size()});
  }
  return vector;
}

}  // namespace

int FileCalls::stat(const char* path, struct stat* status) {
  return ::stat(path, status);
}
ssize_t FileCalls::readlink(const char* path, char* target, std::size_t size) {
  return ::readlink(path, target, size);
}
int FileCalls::open(const char* path, int flags, mode_t mode) {
  return ::open(path, flags, mode);
}
int FileCalls::fstat(int file, struct stat* status) {
  return ::fstat(file, status);
}
ssize_t FileCalls::read(int file, void* bytes, std::size_t size) {
  return ::read(file, bytes, size);
}
int FileCalls::fchmod(int file, mode_t mode) {
  return ::fchmod(file, mode);
}
ssize_t FileCalls::writev(int file, const iovec* pieces, int count) {
  return ::writev(file, pieces, count);
}
int FileCalls::fdatasync(int file) {
  return ::fdatasync(file);
}
int FileCalls::close(int file) {
  return ::close(file);
}
int FileCalls::rename(const char* from, const char* to) {
  return ::rename(from, to);
}
int FileCalls::unlink(const char* path) {
  return ::unlink(path);
}
int FileCalls::rmdir(const char* path) {
  return ::rmdir(path);
}
int FileCalls::mkdir(const char* path, mode_t mode) {
  return ::mkdir(path, mode);
}
DIR* FileCalls::opendir(const char* path) {
  return ::opendir(path);
}
dirent* FileCalls::readdir(DIR* folder) {
  return ::readdir(folder);
}

PosixFiles::PosixFiles() : calls_(systemCalls()) {}

bool PosixFiles::exists(const Path& path) const {
  struct stat status {};
  return retried([&] { return calls_.stat(path.c_str(), &status); }) == 0 ||
         (errno != ENOENT && errno != ENOTDIR);
}

std::optional<std::string> PosixFiles::read(const Path& path) const {
  // Without O_NONBLOCK, opening a pipe would wait for its writer.
  constexpr int kFlags = O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
  const int file = retried([&] { return calls_.open(path.c_str(), kFlags, 0); });
  if (file < 0) return std::nullopt;
  std::optional<std::string> bytes;
  try {
    bytes = readAll(file);
  } catch (const std::exception&) {
    // The file is larger than memory.
  }
  calls_.close(file);
  return bytes;
}

/// All bytes of an open regular file, which may grow meanwhile or, like those of /proc, tell no size.
std::optional<std::string> PosixFiles::readAll(int file) const {
  struct stat status {};
  if (retried([&] { return calls_.fstat(file, &status); }) != 0 || !S_ISREG(status.st_mode))
    return std::nullopt;
  std::string bytes(static_cast<std::size_t>(status.st_size) + kSlack, '\0');
  std::size_t filled = 0;
  while (true) {
    const ssize_t count =
        retried([&] { return calls_.read(file, bytes.data() + filled, bytes.size() - filled); });
    if (count < 0) return std::nullopt;
    if (count == 0) break;
    filled += static_cast<std::size_t>(count);
    if (bytes.size() - filled < kSlack) bytes.resize(2 * bytes.size());
  }
  bytes.resize(filled);
  return bytes;
}

std::optional<std::vector<std::string>> PosixFiles::list(const Path& folder) const {
  const std::unique_ptr<DIR, int (*)(DIR*)> open(calls_.opendir(folder.c_str()), &::closedir);
  if (!open) return std::nullopt;
  std::vector<std::string> names;
  while (true) {
    errno = 0;
    const dirent* entry = calls_.readdir(open.get());
    if (!entry) break;
    const std::string_view name = entry->d_name;
    if (name != "." && name != "..") names.emplace_back(name);
  }
  if (errno != 0) return std::nullopt;
  return names;
}

bool PosixFiles::createFolders(const Path& folder) {
  Path made;
  for (const Path& part : folder) {
    made /= part;
    if (!isFolder(made) && calls_.mkdir(made.c_str(), 0700) != 0 && errno != EEXIST) return false;
  }
  return isFolder(folder);
}

bool PosixFiles::isFolder(const Path& path) const {
  struct stat status {};
  return retried([&] { return calls_.stat(path.c_str(), &status); }) == 0 && S_ISDIR(status.st_mode);
}

bool PosixFiles::rename(const Path& from, const Path& to) {
  return calls_.rename(from.c_str(), to.c_str()) == 0;
}

bool PosixFiles::remove(const Path& path) {
  return calls_.unlink(path.c_str()) == 0 || calls_.rmdir(path.c_str()) == 0;
}

bool PosixFiles::replace(const Path& path, std::span<const std::string_view> pieces) {
  const std::optional<Path> target = followLinks(path);
  if (!target) return false;
  struct stat old {};
  const bool replaces = retried([&] { return calls_.stat(target->c_str(), &old); }) == 0;
  if (replaces ? !S_ISREG(old.st_mode) : errno != ENOENT) return false;

  const Path temporary = temporaryFor(*target);
  std::vector<iovec> bytes = vectorOf(pieces);
  // From here on nothing needs memory, so that nothing is left half done.
  calls_.unlink(temporary.c_str());  // one that cannot be removed makes the exclusive open fail
  const std::optional<mode_t> mode = replaces ? std::optional(old.st_mode & kModeBits) : std::nullopt;
  if (write(temporary, std::move(bytes), mode) && calls_.rename(temporary.c_str(), target->c_str()) == 0)
    return true;
  calls_.unlink(temporary.c_str());
  return false;
}

void PosixFiles::removeLeftovers(const Path& path) {
  if (const auto target = followLinks(path)) calls_.unlink(temporaryFor(*target).c_str());
}

void PosixFiles::removeLeftoversIn(const Path& folder, std::string_view prefix) {
  const std::string begin = std::string(kBefore).append(prefix);
  for (const std::string& name : list(folder).value_or(std::vector<std::string>{})) {
    if (name.starts_with(begin) && name.ends_with(kAfter)) calls_.unlink((folder / name).c_str());
  }
}

/// Where a path leads through all links, be it to a place still empty; nothing for a ring of links, or where
/// it cannot be told whether a link is there.
std::optional<Path> PosixFiles::followLinks(Path path) const {
  char target[PATH_MAX];
  for (int links = 0; links <= kMostLinks; ++links) {
    const ssize_t length = retried([&] { return calls_.readlink(path.c_str(), target, sizeof target); });
    if (length < 0) return errno == EINVAL || errno == ENOENT ? std::optional(path) : std::nullopt;
    path = path.parent_path() / std::string_view(target, static_cast<std::size_t>(length));
  }
  return std::nullopt;
}

/// Makes a file that is not there yet, and has it on the disk when it returns true.
bool PosixFiles::write(const Path& temporary, std::vector<iovec> bytes, std::optional<mode_t> mode) {
  constexpr int kFlags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
  const int file = retried([&] { return calls_.open(temporary.c_str(), kFlags, 0600); });
  if (file < 0) return false;
  const bool written = (!mode || setMode(file, *mode)) && writeAll(file, std::move(bytes)) &&
                       retried([&] { return calls_.fdatasync(file); }) == 0;
  // An interrupted close has closed: the number may belong to another file by now, and all is synced.
  const bool closed = calls_.close(file) == 0 || errno == EINTR;
  return written && closed;
}

bool PosixFiles::setMode(int file, mode_t mode) {
  struct stat made {};
  if (retried([&] { return calls_.fstat(file, &made); }) != 0) return false;
  // File systems without modes of their own refuse any change but show the same mode for every file.
  if ((made.st_mode & kModeBits) == mode) return true;
  return retried([&] { return calls_.fchmod(file, mode); }) == 0;
}

bool PosixFiles::writeAll(int file, std::vector<iovec> rest) {
  for (std::size_t next = 0; next < rest.size();) {
    const int count = static_cast<int>(std::min<std::size_t>(rest.size() - next, IOV_MAX));
    const ssize_t result = retried([&] { return calls_.writev(file, &rest[next], count); });
    if (result <= 0) return false;
    auto written = static_cast<std::size_t>(result);
    while (next < rest.size() && written >= rest[next].iov_len) written -= rest[next++].iov_len;
    if (written == 0) continue;
    rest[next].iov_base = static_cast<char*>(rest[next].iov_base) + written;
    rest[next].iov_len -= written;
  }
  return true;
}

}  // namespace brimle
