// The Time port as a virtual clock: nothing happens but by its operations, and nothing waits.
//
// It owns the clock, the queue of delayed calls and, while it lives, the process's time zone (the TZ
// variable), so only one is used at a time. A call asked with `after(0.9)` runs inside `advance(0.9)`, at 0.9
// seconds by now().
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/time.h"

namespace brimle {

class SimulatedTime : public Time {
 public:
  /// Starts at a local time "yyyy-MM-dd HH:mm" of a zone of the system's zone data.
  explicit SimulatedTime(std::string_view local = "2026-06-15 09:00", const std::string& zone = "UTC");
  /// Gives the process its former zone back; calls still pending never run.
  ~SimulatedTime() override;
  SimulatedTime(const SimulatedTime&) = delete;
  SimulatedTime& operator=(const SimulatedTime&) = delete;

  Instant now() const override { return start_ + elapsed_; }
  Day localDay(Instant instant) const override;
  void after(Seconds delay, std::function<void()> action) override;
  [[nodiscard]] Subscription onDayChange(std::function<void()> observer) override;
  [[nodiscard]] Subscription onWake(std::function<void()> observer) override;

  /// The instant of a local time "yyyy-MM-dd HH:mm" in the present zone. A text of another form ends the
  /// program, for it is the test that is wrong.
  Instant at(std::string_view local) const;

  /// Lets time pass: runs what falls due in order of due time, then of asking, each at its own time. Midnight
  /// takes its turn among the calls. Calls that forever ask for more without time passing end the program.
  void advance(Seconds duration);
  /// Runs what is due without letting time pass.
  void runUntilIdle() { advance(Seconds(0)); }
  /// Sleeps and wakes: what fell due meanwhile runs afterwards, then the wake observers.
  void sleep(Seconds duration);
  /// Tells the wake observers.
  void wake() { woke_.notify(); }
  /// Sets the clock by hand, forward or back; pending calls keep the delay that was left to them.
  void setClock(Instant instant);
  /// Moves to another zone, in the same instant.
  void setZone(const std::string& zone);

 private:
  using Elapsed = std::chrono::microseconds;

  void runDue(Elapsed end);
  void meetDay();

  std::optional<std::string> formerZone_;
  Instant start_{};  ///< what the clock would show, as it is set now, where nothing had elapsed
  Elapsed elapsed_{};
  std::multimap<Elapsed, std::function<void()>> calls_;  ///< equal keys stay in the order asked
  Day day_{};
  Instant dayEnd_{};
  Signal<> dayChanged_;
  Signal<> woke_;
};

}  // namespace brimle
