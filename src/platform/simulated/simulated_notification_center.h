// The NotificationCenter port in memory: the test sets the permission and reads what is pending.
//
// Requests stay pending until removed; none is ever shown. What is pending is told as it was when asked for;
// the status, and the user's answer to the question, are those at the time of the callback.
#pragma once

#include "platform/notification_center.h"
#include "platform/time.h"

namespace brimle {

class SimulatedNotificationCenter : public NotificationCenter {
 public:
  /// `time` delivers the callbacks; this must live as long as it does so.
  explicit SimulatedNotificationCenter(Time& time) : time_(time) {}

  AuthorizationStatus status = AuthorizationStatus::notDetermined;
  /// The user's answer, should the permission question be put: it is while the status is notDetermined.
  bool userGrants = true;
  /// In the order first added.
  std::vector<NotificationRequest> pending;

  int statusAsks = 0;
  int authorizationAsks = 0;
  int pendingAsks = 0;

  void getAuthorizationStatus(std::function<void(AuthorizationStatus)> done) override;
  void requestAuthorization(std::function<void(bool granted)> done) override;
  void getPendingRequests(std::function<void(std::vector<NotificationRequest>)> done) override;
  void removePendingRequests(const std::vector<std::string>& identifiers) override;
  void add(NotificationRequest request) override;

 private:
  bool answer();

  Time& time_;
};

}  // namespace brimle
