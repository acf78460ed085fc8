// The system's time zone as it changes under the running program: a watch on the file that the C library
// reads it from, and the way to make the C library read it again.
//
// The watch owns an inotify descriptor on the file's folder, for a zone is set by putting another file or
// link in the old one's place. It never waits, and it changes nothing by itself.
#pragma once

#include "platform/files.h"

namespace brimle {

class ZoneWatch {
 public:
  explicit ZoneWatch(Path zoneFile = "/etc/localtime");
  ~ZoneWatch();
  ZoneWatch(const ZoneWatch&) = delete;
  ZoneWatch& operator=(const ZoneWatch&) = delete;

  /// Readable when there is something to take; -1 where the system grants no watch.
  int descriptor() const { return inotify_; }
  /// Takes what happened in the folder since. True where the zone file was written or replaced and holds zone
  /// data now; a file that is gone or still empty is one that is being replaced.
  bool takeChange();

 private:
  const Path zoneFile_;
  const int inotify_;
};

/// Makes the C library read the present zone's data again, whatever TZ says. Main thread only: for a moment
/// the process has another zone.
void reloadZone();

}  // namespace brimle
