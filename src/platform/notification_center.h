// The port to local notifications: requests that wait for a day and are then shown to the user.
//
// Requests are kept by identifier, so adding one under an identifier that is there replaces it. Callbacks
// arrive on the main queue, in the order they were asked for, never before the asking call returns.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "base/day.h"

namespace brimle {

struct NotificationRequest {
  /// When a request is due: at this hour (0 to 23, local time) of this day, once.
  struct Trigger {
    Day day;
    int hour = 0;
    bool operator==(const Trigger&) const = default;
  };

  std::string identifier;
  std::string title;
  std::string body;
  /// None: the request waits for something other than a calendar date.
  std::optional<Trigger> trigger;

  bool operator==(const NotificationRequest&) const = default;
};

enum class AuthorizationStatus { notDetermined, denied, authorized, provisional, ephemeral };

class NotificationCenter {
 public:
  virtual ~NotificationCenter() = default;

  virtual void getAuthorizationStatus(std::function<void(AuthorizationStatus)> done) = 0;
  /// Asks the user for alerts and sounds; answers whether they were granted.
  virtual void requestAuthorization(std::function<void(bool granted)> done) = 0;
  virtual void getPendingRequests(std::function<void(std::vector<NotificationRequest>)> done) = 0;
  virtual void removePendingRequests(const std::vector<std::string>& identifiers) = 0;
  virtual void add(NotificationRequest request) = 0;
};

}  // namespace brimle
