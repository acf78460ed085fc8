// The port to time: the clock, the local calendar, delayed calls and the events that can change the day.
//
// All calls come from, and all callbacks arrive on, the main thread. Which day an instant falls on is the C
// library's answer, from the system's own zone data.
#pragma once

#include <chrono>
#include <functional>

#include "base/day.h"
#include "base/signal.h"

namespace brimle {

/// A moment of the wall clock, UTC, in microseconds.
using Instant = std::chrono::sys_time<std::chrono::microseconds>;
using Seconds = std::chrono::duration<double>;

class Time {
 public:
  virtual ~Time() = default;

  virtual Instant now() const = 0;
  /// The day an instant falls on in the user's time zone.
  virtual Day localDay(Instant instant) const = 0;
  /// Calls `action` once from the main queue, `delay` from now; never before this call returns.
  virtual void after(Seconds delay, std::function<void()> action) = 0;
  /// Observes that the calendar day may have changed: midnight, a clock set, another zone.
  [[nodiscard]] virtual Subscription onDayChange(std::function<void()> observer) = 0;
  /// Observes that the computer woke from sleep.
  [[nodiscard]] virtual Subscription onWake(std::function<void()> observer) = 0;

  Day today() const { return localDay(now()); }
};

}  // namespace brimle
