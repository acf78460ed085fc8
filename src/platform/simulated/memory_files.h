// The Files port in memory, with switches that make it fail and a count of what was written.
//
// Paths are compared as they are given, so they carry no "..", no doubled and no trailing slash. There are no
// links and no modes. Only "/" is there at the start.
#pragma once

#include <map>
#include <set>

#include "platform/files.h"

namespace brimle {

class MemoryFiles : public Files {
 public:
  /// Nothing new finds room: no replace is done and no folder made. The rest works.
  bool diskFull = false;
  /// Every operation fails, as on a device that is gone.
  bool unavailable = false;

  /// Puts a file there, with its folders, whatever the switches say; not counted.
  void put(const Path& path, std::string bytes);
  /// How many replaces of a path were done.
  int replaces(const Path& path) const;

  bool exists(const Path& path) const override;
  std::optional<std::string> read(const Path& path) const override;
  std::optional<std::vector<std::string>> list(const Path& folder) const override;
  bool createFolders(const Path& folder) override;
  bool rename(const Path& from, const Path& to) override;
  bool remove(const Path& path) override;
  bool replace(const Path& path, std::span<const std::string_view> pieces) override;
  /// A replace leaves nothing behind here.
  void removeLeftovers(const Path&) override {}
  void removeLeftoversIn(const Path&, std::string_view) override {}

 private:
  bool makeFolders(const Path& folder);
  bool isEmpty(const Path& folder) const;
  bool renameFile(const Path& from, const Path& to);
  bool renameFolder(const Path& from, const Path& to);

  std::map<Path, std::string> files_;
  std::set<Path> folders_{"/"};
  std::map<Path, int> replaces_;  ///< how many were done
};

}  // namespace brimle
