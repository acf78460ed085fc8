// Arrival reminders: one pending notification for each task scheduled for a future day, at 08:00 on that day.
// A reminder due today stays, so that it still fires after its task has arrived and left the scheduled list.
#include <algorithm>

#include "i18n/i18n.h"
#include "model/store.h"

namespace brimle {
namespace {

constexpr std::string_view kPrefix = "arrival-";
constexpr int kHour = 8;

bool isStale(const NotificationRequest& request, const std::string& today) {
  return request.identifier.starts_with(kPrefix) &&
         (!request.trigger || dayKey(request.trigger->day) > today);
}

void addReminders(NotificationCenter& center, const std::vector<ScheduledItem>& future) {
  const std::string body = I18n::t("On your list today.");
  for (const ScheduledItem& entry : future) {
    const auto day = parseDay(entry.date);
    if (!day) continue;
    center.add({std::string(kPrefix) + entry.id.string(), entry.item.text, body,
                NotificationRequest::Trigger{*day, kHour}});
  }
}

/// Replaces every future reminder. Works only on its copy of the entries, so that it may run at any later
/// time.
void pushArrivalRequests(NotificationCenter& center, Time& time, std::vector<ScheduledItem> future) {
  const std::string today = dayKey(time.today());
  center.getPendingRequests([&center, today, future = std::move(future)](auto pending) {
    std::vector<std::string> stale;
    for (const NotificationRequest& request : pending) {
      if (isStale(request, today)) stale.push_back(request.identifier);
    }
    center.removePendingRequests(stale);
    addReminders(center, future);
  });
}

}  // namespace

void Store::resyncArrivalNotifications() {
  if (loading_) return;
  const std::string today = todayKey();
  std::vector<ScheduledItem> future;
  std::copy_if(scheduled().begin(), scheduled().end(), std::back_inserter(future),
               [&](const ScheduledItem& entry) { return entry.date > today; });

  // An answer that comes after a later resync was asked for would bring back what that one takes away.
  const auto push = [&center = notifications_, &time = time_, future, latest = resyncs_, own = ++*resyncs_] {
    if (own == *latest) pushArrivalRequests(center, time, future);
  };
  notifications_.getAuthorizationStatus([&center = notifications_, push, none = future.empty()](auto status) {
    switch (status) {
      case AuthorizationStatus::denied: return;
      case AuthorizationStatus::notDetermined:
        if (!none)
          center.requestAuthorization([push](bool granted) {
            if (granted) push();
          });
        return;
      case AuthorizationStatus::authorized:
      case AuthorizationStatus::provisional:
      case AuthorizationStatus::ephemeral: push();
    }
  });
}

}  // namespace brimle
