#include "platform/simulated/simulated_notification_center.h"

#include <algorithm>
#include <utility>

namespace brimle {

void SimulatedNotificationCenter::getAuthorizationStatus(std::function<void(AuthorizationStatus)> done) {
  ++statusAsks;
  time_.after(Seconds(0), [this, done = std::move(done)] { done(status); });
}

void SimulatedNotificationCenter::requestAuthorization(std::function<void(bool granted)> done) {
  ++authorizationAsks;
  time_.after(Seconds(0), [this, done = std::move(done)] { done(answer()); });
}

void SimulatedNotificationCenter::getPendingRequests(
    std::function<void(std::vector<NotificationRequest>)> done) {
  ++pendingAsks;
  time_.after(Seconds(0), [done = std::move(done), told = pending] { done(told); });
}

void SimulatedNotificationCenter::removePendingRequests(const std::vector<std::string>& identifiers) {
  std::erase_if(pending, [&](const NotificationRequest& request) {
    return std::ranges::find(identifiers, request.identifier) != identifiers.end();
  });
}

void SimulatedNotificationCenter::add(NotificationRequest request) {
  const auto same = std::ranges::find(pending, request.identifier, &NotificationRequest::identifier);
  if (same == pending.end()) {
    pending.push_back(std::move(request));
  } else {
    *same = std::move(request);
  }
}

bool SimulatedNotificationCenter::answer() {
  if (status == AuthorizationStatus::notDetermined) {
    status = userGrants ? AuthorizationStatus::authorized : AuthorizationStatus::denied;
  }
  return status != AuthorizationStatus::denied;
}

}  // namespace brimle
