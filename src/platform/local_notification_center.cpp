#include "platform/local_notification_center.h"

#include <utility>

#include "platform/civil.h"

namespace brimle {
namespace {

constexpr std::chrono::minutes kRetryDelay(5);
/// Zones differ from UTC by whole quarters of an hour, so that every local hour begins with one.
using Quarters = std::chrono::duration<int, std::ratio<15 * 60>>;

Path fileIn(const Path& folder) {
  return folder / "notifications";
}

Seconds untilNextQuarter(Instant now) {
  return std::chrono::floor<Quarters>(now) + Quarters(1) - now;
}

}  // namespace

LocalNotificationCenter::LocalNotificationCenter(Time& time, Files& files, const Path& stateFolder)
    : time_(time),
      files_(files),
      folder_(stateFolder),
      pending_(files.read(fileIn(stateFolder)).value_or("")),
      saved_(pending_.bytes()),
      dayChange_(time.onDayChange([this] { retry(); })),
      wake_(time.onWake([this] { retry(); })) {
  files_.removeLeftovers(fileIn(folder_));
  retryIn(Seconds(0));
}

void LocalNotificationCenter::getAuthorizationStatus(std::function<void(AuthorizationStatus)> done) {
  // Whatever shows notifications may start on demand, so what is there now tells nothing.
  time_.after(Seconds(0), [done = std::move(done)] { done(AuthorizationStatus::authorized); });
}

void LocalNotificationCenter::requestAuthorization(std::function<void(bool granted)> done) {
  time_.after(Seconds(0), [done = std::move(done)] { done(true); });
}

void LocalNotificationCenter::getPendingRequests(std::function<void(std::vector<NotificationRequest>)> done) {
  time_.after(Seconds(0), life_.guard([this, done = std::move(done)] { done(pending_.requests()); }));
}

void LocalNotificationCenter::removePendingRequests(const std::vector<std::string>& identifiers) {
  pending_.remove(identifiers);
  change();
}

void LocalNotificationCenter::add(NotificationRequest request) {
  pending_.add(std::move(request));
  change();
}

void LocalNotificationCenter::addIn(Seconds delay, NotificationRequest request) {
  time_.after(delay, life_.guard([this, request = std::move(request)] {
    NotificationRequest now = request;
    now.trigger = {time_.today(), 0};
    add(std::move(now));
  }));
}

void LocalNotificationCenter::retry() {
  failed_.clear();
  tend();
}

/// Many changes of one moment are tended to, and saved, as one.
void LocalNotificationCenter::change() {
  if (std::exchange(changing_, true)) return;
  time_.after(Seconds(0), life_.guard([this] {
    changing_ = false;
    tend();
  }));
}

/// Does what there is to do now: drops, saves, and begins the next delivery or asks the clock for a call.
void LocalNotificationCenter::tend() {
  const Instant now = time_.now();
  const Day today = time_.localDay(now);
  pending_.dropBefore(today);
  save();
  if (delivering_) return;
  if (const NotificationRequest* request = pending_.due({today, civilHour(now)}, failed_)) {
    begin(*request);
  } else if (failed_.empty() && pending_.waitsFor(today)) {
    retryIn(untilNextQuarter(now));
  }
}

void LocalNotificationCenter::begin(const NotificationRequest& request) {
  delivering_ = true;
  deliver(request, life_.guard([this, request](bool shown) { end(request, shown); }));
}

void LocalNotificationCenter::end(const NotificationRequest& request, bool shown) {
  delivering_ = false;
  if (shown) {
    pending_.remove(request);
    save();  // at once: the program may end before the next turn, and would show it again
  } else {
    if (failed_.empty()) retryIn(kRetryDelay);
    failed_.insert(request.identifier);
  }
  change();
}

void LocalNotificationCenter::retryIn(Seconds delay) {
  time_.after(delay, life_.guard([this, appointment = ++appointment_] {
    if (appointment == appointment_) retry();
  }));
}

void LocalNotificationCenter::save() {
  std::string bytes = pending_.bytes();
  if (bytes == saved_) return;
  files_.createFolders(folder_);
  if (files_.replace(fileIn(folder_), {{bytes}})) saved_ = std::move(bytes);
}

}  // namespace brimle
