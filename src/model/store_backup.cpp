// Copies of the day file beside it, in the folder Backups: one a day key, the newest seven kept, never read
// back; and day files that could not be read, kept for good.
#include <algorithm>

#include "model/store.h"

namespace brimle {
namespace {

constexpr std::size_t kKeptBackups = 7;
constexpr std::string_view kPrefix = "today-", kUnreadablePrefix = "unreadable-";

bool copy(Files& files, const Path& from, const Path& to) {
  const auto bytes = files.read(from);
  return bytes && files.replace(to, {{*bytes}});
}

/// Removes all but the greatest names, which are the newest days.
void prune(Files& files, const Path& folder) {
  auto names = files.list(folder);
  if (!names) return;
  std::erase_if(*names, [](const std::string& name) { return !name.starts_with(kPrefix); });
  std::sort(names->begin(), names->end());
  for (std::size_t index = 0; index + kKeptBackups < names->size(); ++index) {
    files.remove(folder / (*names)[index]);
  }
}

/// Whether a backup has these bytes; what an interrupted copy left behind is none, for it will be removed.
bool holdsCopyOf(Files& files, const Path& folder, const std::string& bytes) {
  const auto names = files.list(folder).value_or(std::vector<std::string>{});
  return std::any_of(names.begin(), names.end(), [&](const std::string& name) {
    const bool isBackup = name.starts_with(kPrefix) || name.starts_with(kUnreadablePrefix);
    return isBackup && files.read(folder / name) == bytes;
  });
}

/// A moment as "20260615T090000Z" (ISO 8601, basic form, UTC).
std::string stampOf(Instant instant) {
  const auto day = std::chrono::floor<std::chrono::days>(instant);
  const std::chrono::hh_mm_ss time(std::chrono::floor<std::chrono::seconds>(instant - day));
  std::string stamp = dayKey(Day(day));
  std::erase(stamp, '-');
  const auto append = [&](auto count) {
    stamp += static_cast<char>('0' + count / 10);
    stamp += static_cast<char>('0' + count % 10);
  };
  stamp += 'T';
  append(time.hours().count());
  append(time.minutes().count());
  append(time.seconds().count());
  return stamp + 'Z';
}

}  // namespace

/// Removes what a save or a copy left behind that ended with the program.
void Store::removeLeftovers() {
  files_.removeLeftovers(fileURL_);
  for (const auto prefix : {kPrefix, kUnreadablePrefix})
    files_.removeLeftoversIn(folder_ / "Backups", prefix);
}

void Store::backupIfNeeded(const std::string& stamp) {
  const Path folder = folder_ / "Backups";
  files_.createFolders(folder);
  const Path target = folder / (std::string(kPrefix) + stamp + ".json");
  if (files_.exists(target) || !files_.exists(fileURL_)) return;
  copy(files_, fileURL_, target);
  prune(files_, folder);
}

Path Store::unreadablePath() const {
  return folder_ / "Backups" / (std::string(kUnreadablePrefix) + stampOf(time_.now()) + ".json");
}

/// Keeps the bytes of a day file that is no document, where today's backup does not hold them already. Tells
/// whether a backup holds them now.
bool Store::keepUnreadable(const std::string& bytes) {
  return holdsCopyOf(files_, folder_ / "Backups", bytes) || files_.replace(unreadablePath(), {{bytes}});
}

/// Before a save over bytes that no backup holds (a day file that could not be read or copied, or that came
/// back with its disk after the start): copies them to the backups, or moves there what cannot be read. False
/// where that fails, so that nothing is written over them.
bool Store::setAsideUnkept() {
  if (!unkept_ || !files_.exists(fileURL_)) return true;
  files_.createFolders(folder_ / "Backups");
  const auto bytes = files_.read(fileURL_);
  return bytes ? keepUnreadable(*bytes) : files_.rename(fileURL_, unreadablePath());
}

}  // namespace brimle
