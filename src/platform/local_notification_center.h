// Pending notifications that outlive the program: when each is delivered, and when their file is written.
//
// It owns the file "notifications" in the state folder. How a request is shown is left to the class derived
// from it. A request whose hour passed unseen is delivered once, at the next chance on its day; afterwards it
// is dropped. A delivery that fails is tried again while the day lasts, and holds up no other.
#pragma once

#include <set>

#include "base/lifetime.h"
#include "platform/files.h"
#include "platform/pending_notifications.h"
#include "platform/time.h"

namespace brimle {

class LocalNotificationCenter : public NotificationCenter {
 public:
  /// Reads the file; nothing is delivered before this returns.
  LocalNotificationCenter(Time& time, Files& files, const Path& stateFolder);

  void getAuthorizationStatus(std::function<void(AuthorizationStatus)> done) override;
  void requestAuthorization(std::function<void(bool granted)> done) override;
  /// Tells what is pending at the time of the callback.
  void getPendingRequests(std::function<void(std::vector<NotificationRequest>)> done) override;
  void removePendingRequests(const std::vector<std::string>& identifiers) override;
  void add(NotificationRequest request) override;

  /// Adds a request `delay` from now, due at once; its trigger does not count. Until then it is not pending:
  /// neither told, nor kept in the file, nor removed.
  void addIn(Seconds delay, NotificationRequest request);

 protected:
  /// Shows a request in the place of an earlier one with its identifier. Calls `done` once, at any time;
  /// false asks for another try. One request is under way at a time.
  virtual void deliver(NotificationRequest request, std::function<void(bool shown)> done) = 0;
  /// Tries now what failed, as what shows requests has come.
  void retry();

 private:
  void change();
  void tend();
  void begin(const NotificationRequest& request);
  void end(const NotificationRequest& request, bool shown);
  void retryIn(Seconds delay);
  void save();

  Time& time_;
  Files& files_;
  Path folder_;
  PendingNotifications pending_;
  std::string saved_;             ///< the pending requests as they are in the file
  bool changing_ = false;         ///< a change waits to be tended to
  bool delivering_ = false;       ///< a delivery is under way
  std::set<std::string> failed_;  ///< identifiers that wait for the next retry
  int appointment_ = 0;           ///< the latest call asked of the clock: earlier ones do nothing
  Lifetime life_;
  Subscription dayChange_;
  Subscription wake_;
};

}  // namespace brimle
