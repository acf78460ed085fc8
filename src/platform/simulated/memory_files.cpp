#include "platform/simulated/memory_files.h"

#include <algorithm>

namespace brimle {
namespace {

bool isBelow(const Path& path, const Path& folder) {
  return path != folder &&
         std::mismatch(folder.begin(), folder.end(), path.begin(), path.end()).first == folder.end();
}

}  // namespace

void MemoryFiles::put(const Path& path, std::string bytes) {
  makeFolders(path.parent_path());
  files_[path] = std::move(bytes);
}

int MemoryFiles::replaces(const Path& path) const {
  const auto found = replaces_.find(path);
  return found == replaces_.end() ? 0 : found->second;
}

bool MemoryFiles::exists(const Path& path) const {
  return !unavailable && (files_.contains(path) || folders_.contains(path));
}

std::optional<std::string> MemoryFiles::read(const Path& path) const {
  const auto found = files_.find(path);
  if (unavailable || found == files_.end()) return std::nullopt;
  return found->second;
}

std::optional<std::vector<std::string>> MemoryFiles::list(const Path& folder) const {
  if (unavailable || !folders_.contains(folder)) return std::nullopt;
  std::vector<std::string> names;
  const auto addChild = [&](const Path& path) {
    if (path != folder && path.parent_path() == folder) names.push_back(path.filename().string());
  };
  for (const auto& [path, bytes] : files_) addChild(path);
  for (const Path& path : folders_) addChild(path);
  return names;
}

bool MemoryFiles::createFolders(const Path& folder) {
  if (unavailable) return false;
  return diskFull ? folders_.contains(folder) : makeFolders(folder);
}

bool MemoryFiles::rename(const Path& from, const Path& to) {
  if (!exists(from) || !exists(to.parent_path()) || files_.contains(to.parent_path())) return false;
  if (from == to) return true;
  return files_.contains(from) ? renameFile(from, to) : renameFolder(from, to);
}

bool MemoryFiles::remove(const Path& path) {
  if (unavailable) return false;
  if (files_.erase(path) > 0) return true;
  return isEmpty(path) && folders_.erase(path) > 0;
}

bool MemoryFiles::replace(const Path& path, std::span<const std::string_view> pieces) {
  if (diskFull || unavailable) return false;
  if (folders_.contains(path) || !folders_.contains(path.parent_path())) return false;
  std::string bytes;
  for (const std::string_view piece : pieces) bytes += piece;
  ++replaces_[path];
  files_[path] = std::move(bytes);
  return true;
}

bool MemoryFiles::makeFolders(const Path& folder) {
  Path made;
  for (const Path& part : folder) {
    made /= part;
    if (files_.contains(made)) return false;
    folders_.insert(made);
  }
  return true;
}

bool MemoryFiles::isEmpty(const Path& folder) const {
  const auto holds = [&](const Path& path) { return isBelow(path, folder); };
  return std::ranges::none_of(folders_, holds) &&
         std::ranges::none_of(files_, [&](const auto& file) { return holds(file.first); });
}

bool MemoryFiles::renameFile(const Path& from, const Path& to) {
  if (folders_.contains(to)) return false;
  auto file = files_.extract(from);
  files_.insert_or_assign(to, std::move(file.mapped()));
  return true;
}

bool MemoryFiles::renameFolder(const Path& from, const Path& to) {
  if (isBelow(to, from) || files_.contains(to) || !isEmpty(to)) return false;
  const auto moved = [&](const Path& path) {
    if (path == from) return to;
    return isBelow(path, from) ? to / path.lexically_relative(from) : path;
  };
  std::set<Path> folders;
  for (const Path& folder : folders_) folders.insert(moved(folder));
  std::map<Path, std::string> files;
  for (auto& [path, bytes] : files_) files.emplace(moved(path), std::move(bytes));
  folders_ = std::move(folders);
  files_ = std::move(files);
  return true;
}

}  // namespace brimle
