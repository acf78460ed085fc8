// Pending notifications as values: which requests wait, which of them are due, and the bytes they are kept
// as.
//
// One request an identifier. The bytes hold a line a request, its fields parted by tabs: the trigger ("-"
// where there is none), identifier, title and body; a backslash, tab or newline within a field is \\, \t or
// \n. Example: "2026-06-16 8<tab>arrival-1B4E28BA-…<tab>Call the bank<tab>On your list today.<newline>"
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/notification_center.h"

namespace brimle {

class PendingNotifications {
 public:
  PendingNotifications() = default;
  /// Reads any bytes; a line of another form is left out.
  explicit PendingNotifications(std::string_view bytes);

  std::string bytes() const;
  /// In the order first added.
  const std::vector<NotificationRequest>& requests() const { return requests_; }

  /// Adds a request, in the place of one with the same identifier.
  void add(NotificationRequest request);
  void remove(const std::vector<std::string>& identifiers);
  /// Removes a request; one that has taken its place since then stays.
  void remove(const NotificationRequest& request);
  /// Removes what was due on days before `today`.
  void dropBefore(Day today);

  /// The first request that is due in the hour `now`, those named in `except` left aside; nothing where there
  /// is none. Valid until the next change.
  const NotificationRequest* due(NotificationRequest::Trigger now, const std::set<std::string>& except) const;
  /// True where a request is due at some hour of `day`.
  bool waitsFor(Day day) const;

 private:
  std::vector<NotificationRequest> requests_;
};

}  // namespace brimle
