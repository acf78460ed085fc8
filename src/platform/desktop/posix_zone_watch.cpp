#include "platform/desktop/posix_zone_watch.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>
#include <utility>

namespace brimle {
namespace {

bool holdsZoneData(const Path& file) {
  std::array<char, 4> start{};
  std::ifstream(file, std::ios::binary).read(start.data(), start.size());
  return start == std::array{'T', 'Z', 'i', 'f'};
}

}  // namespace

ZoneWatch::ZoneWatch(Path zoneFile)
    : zoneFile_(std::move(zoneFile)), inotify_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
  ::inotify_add_watch(inotify_, zoneFile_.parent_path().c_str(), IN_CREATE | IN_MOVED_TO | IN_CLOSE_WRITE);
}

ZoneWatch::~ZoneWatch() {
  if (inotify_ >= 0) ::close(inotify_);
}

bool ZoneWatch::takeChange() {
  bool touched = false;
  alignas(inotify_event) std::array<char, 4096> events;
  for (ssize_t length; (length = ::read(inotify_, events.data(), events.size())) > 0;) {
    const char* const end = events.data() + length;
    for (const char* next = events.data(); next < end;) {
      const auto* event = reinterpret_cast<const inotify_event*>(next);
      touched |= event->len > 0 && zoneFile_.filename() == event->name;
      next += sizeof(inotify_event) + event->len;
    }
  }
  return touched && holdsZoneData(zoneFile_);
}

void reloadZone() {
  const char* present = std::getenv("TZ");
  const std::string zone = present ? present : "";
  // glibc keeps what it read while TZ is the same text, and without TZ while the file has the same inode and
  // time, which a copy may have. A zone that is no file makes it forget.
  ::setenv("TZ", "UTC0", 1);
  ::tzset();
  present ? ::setenv("TZ", zone.c_str(), 1) : ::unsetenv("TZ");
  ::tzset();
}

}  // namespace brimle
