// Time on the desktop: the system clock, Qt's event loop as the main queue, and a timer of the kernel that fires at
// local midnight and at once when the clock is set.
#pragma once

#include <QObject>
#include <memory>

#include "platform/time.h"

class QSocketNotifier;

namespace brimle {

class QtTime : public QObject, public Time {
  Q_OBJECT

 public:
  QtTime();
  ~QtTime() override;

  Instant now() const override;
  Day localDay(Instant instant) const override;
  void after(Seconds delay, std::function<void()> action) override;
  Subscription onDayChange(std::function<void()> observer) override;
  Subscription onWake(std::function<void()> observer) override;

 private:
  void armMidnight();
  void timerFired();

  int timer_ = -1;  ///< timerfd on CLOCK_REALTIME, or -1 where the kernel gives none
  std::unique_ptr<QSocketNotifier> notifier_;
  Signal<> dayChange_;
  Signal<> wake_;
};

}  // namespace brimle
