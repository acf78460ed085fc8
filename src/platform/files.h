// The port to the file system: the few operations the day file, its backups and the data folder need.
//
// Paths are absolute. No operation reports why it failed: callers only ask whether it was done. One that runs
// out of memory may throw std::bad_alloc, and has then done nothing. A new file has mode 0600 and a new
// folder 0700; a file that is replaced keeps its mode, and a symbolic link stays one: what it points to is
// replaced.
#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace brimle {

using Path = std::filesystem::path;

class Files {
 public:
  virtual ~Files() = default;

  /// False only where there is certainly nothing: what cannot be told counts as there, so that nothing is
  /// written over it.
  virtual bool exists(const Path& path) const = 0;
  /// All bytes of a regular file; nothing where it cannot be read whole.
  virtual std::optional<std::string> read(const Path& path) const = 0;
  /// The names (last components, in no order) of a folder's entries; nothing where it cannot be listed.
  virtual std::optional<std::vector<std::string>> list(const Path& folder) const = 0;
  /// Makes a folder and its missing parents. True where the folder is there afterwards.
  virtual bool createFolders(const Path& folder) = 0;
  virtual bool rename(const Path& from, const Path& to) = 0;
  virtual bool remove(const Path& path) = 0;
  /// Puts `pieces`, one after the other, in the place of the file at `path` in one durable step: whatever
  /// fails, and whenever the machine stops, the file there is the old one or the new one, whole.
  virtual bool replace(const Path& path, std::span<const std::string_view> pieces) = 0;
  /// Removes what an interrupted `replace` of `path` left behind.
  virtual void removeLeftovers(const Path& path) = 0;
  /// The same for all files of a folder whose names begin with `prefix`.
  virtual void removeLeftoversIn(const Path& folder, std::string_view prefix) = 0;
};

}  // namespace brimle
