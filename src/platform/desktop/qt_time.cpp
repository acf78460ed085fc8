#include "platform/desktop/qt_time.h"

#include <sys/timerfd.h>
#include <unistd.h>

#include <QSocketNotifier>
#include <QTimer>
#include <cstdint>
#include <ctime>

#include "platform/civil.h"

namespace brimle {

QtTime::QtTime()
    : timer_(timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC)),
      timerNotifier_(whenReadable(timer_, &QtTime::timerFired)),
      zoneNotifier_(whenReadable(zone_.descriptor(), &QtTime::zoneTouched)),
      sleep_([this] { woke(); }) {
  armMidnight();
}

QtTime::~QtTime() {
  timerNotifier_.reset();
  if (timer_ >= 0) close(timer_);
}

std::unique_ptr<QSocketNotifier> QtTime::whenReadable(int descriptor, void (QtTime::*action)()) {
  if (descriptor < 0) return nullptr;
  auto notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
  connect(notifier.get(), &QSocketNotifier::activated, this, action);
  return notifier;
}

Instant QtTime::now() const {
  return std::chrono::time_point_cast<std::chrono::microseconds>(std::chrono::system_clock::now());
}

Day QtTime::localDay(Instant instant) const {
  return civilDay(instant);
}

void QtTime::after(Seconds delay, std::function<void()> action) {
  QTimer::singleShot(std::chrono::ceil<std::chrono::milliseconds>(delay), Qt::PreciseTimer, this,
                     std::move(action));
}

Subscription QtTime::onDayChange(std::function<void()> observer) {
  return dayChange_.subscribe(std::move(observer));
}

Subscription QtTime::onWake(std::function<void()> observer) {
  return wake_.subscribe(std::move(observer));
}

void QtTime::armMidnight() {
  const Day tomorrow{std::chrono::sys_days(today()) + std::chrono::days(1)};
  const auto midnight = std::chrono::ceil<std::chrono::seconds>(startOfDay(tomorrow)).time_since_epoch();
  itimerspec due{};
  due.it_value.tv_sec = static_cast<std::time_t>(midnight.count());
  timerfd_settime(timer_, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &due, nullptr);
}

/// Midnight has come, or the clock was set, which the kernel tells by failing the read with ECANCELED.
void QtTime::timerFired() {
  std::uint64_t expirations = 0;
  [[maybe_unused]] const auto length = ::read(timer_, &expirations, sizeof expirations);
  dayMayHaveChanged();
}

void QtTime::zoneTouched() {
  if (zone_.takeChange()) dayMayHaveChanged();
}

void QtTime::woke() {
  dayMayHaveChanged();
  wake_.notify();
}

void QtTime::dayMayHaveChanged() {
  reloadZone();
  armMidnight();
  dayChange_.notify();
}

}  // namespace brimle
