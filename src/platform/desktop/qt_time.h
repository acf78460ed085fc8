// Time on the desktop: the system clock, Qt's event loop as the main queue, and what can change the day.
//
// A timer of the kernel fires at local midnight and at once when the clock is set, a watch tells of another
// time zone, and logind tells on the system bus when the computer woke. Each is done without where the system
// has none, and nothing is ever waited for.
#pragma once

#include <QObject>
#include <memory>

#include "platform/desktop/posix_zone_watch.h"
#include "platform/desktop/qt_sleep_watch.h"
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
  std::unique_ptr<QSocketNotifier> whenReadable(int descriptor, void (QtTime::*action)());
  void armMidnight();
  void timerFired();
  void zoneTouched();
  void woke();
  void dayMayHaveChanged();

  int timer_;  ///< timerfd on CLOCK_REALTIME, or -1 where the kernel gives none
  ZoneWatch zone_;
  std::unique_ptr<QSocketNotifier> timerNotifier_;
  std::unique_ptr<QSocketNotifier> zoneNotifier_;
  QtSleepWatch sleep_;
  Signal<> dayChange_;
  Signal<> wake_;
};

}  // namespace brimle
