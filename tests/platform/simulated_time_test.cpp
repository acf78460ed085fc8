#include "platform/simulated/simulated_time.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimle {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

struct SimulatedTimeTest : testing::Test {
  /// Writes down a name and the milliseconds passed by the clock.
  void note(const std::string& name) {
    seen.push_back(name + '@' + std::to_string((time.now() - start) / 1ms));
  }
  std::function<void()> noting(const std::string& name) {
    return [this, name] { note(name); };
  }

  SimulatedTime time{"2026-06-15 23:59"};
  const Instant start = time.now();
  std::vector<std::string> seen;
  const Subscription day = time.onDayChange([this] { note(dayKey(time.today())); });
  const Subscription wake = time.onWake(noting("wake"));
};

TEST_F(SimulatedTimeTest, CallsRunByDueTimeThenInTheOrderAsked) {
  time.after(0.9s, [&] {
    note("check");
    time.after(0.32s, noting("sweep"));
    time.after(0s, noting("soon"));
  });
  time.after(0.9s, noting("second"));
  time.after(-1s, noting("first"));
  EXPECT_TRUE(seen.empty());
  time.runUntilIdle();
  EXPECT_THAT(seen, ElementsAre("first@0"));
  time.advance(1.22s);
  EXPECT_THAT(seen, ElementsAre("first@0", "check@900", "second@900", "soon@900", "sweep@1220"));
}

TEST_F(SimulatedTimeTest, MidnightTakesItsTurnAmongTheCalls) {
  for (const double delay : {61., 60., 59.}) time.after(Seconds(delay), noting("call"));
  time.advance(120s);
  EXPECT_THAT(seen, ElementsAre("call@59000", "2026-06-16@60000", "call@60000", "call@61000"));
}

TEST_F(SimulatedTimeTest, WhatFellDueInSleepRunsInOrderOnWaking) {
  for (const double delay : {200'000., 100'000., 30.}) time.after(Seconds(delay), noting("call"));
  time.sleep(150'000s);
  EXPECT_THAT(seen,
              ElementsAre("call@150000000", "2026-06-17@150000000", "call@150000000", "wake@150000000"));
}

TEST_F(SimulatedTimeTest, ClockAndZoneSetByHandChangeTheDayAndDelayNoCall) {
  time.after(10s, [&] { seen.push_back("call"); });
  time.advance(4s);
  time.setClock(start + 2h);
  time.setClock(start);
  time.setClock(start - 2h);
  time.setZone("Asia/Tokyo");
  EXPECT_THAT(seen, ElementsAre("2026-06-16@7200000", "2026-06-15@0", "2026-06-16@-7200000"));
  time.advance(5.9s);
  EXPECT_EQ(seen.size(), 3u);
  time.advance(0.1s);
  EXPECT_EQ(seen.back(), "call");
  time.advance(24h);
  EXPECT_EQ(seen.back(), "2026-06-17@" + std::to_string((time.at("2026-06-17 00:00") - start) / 1ms));
}

TEST(SimulatedTime, DaysChangeAtEachZonesOwnMidnight) {
  const struct {
    const char *zone, *noon;
    std::vector<std::string> changes;  ///< in the 40 hours from noon, with the hours passed
  } cases[] = {
      {"Europe/Berlin", "2026-03-28 12:00", {"2026-03-29@12", "2026-03-30@35"}},
      {"Europe/Berlin", "2026-10-24 12:00", {"2026-10-25@12", "2026-10-26@37"}},
      {"America/Sao_Paulo", "2018-11-03 12:00", {"2018-11-04@12", "2018-11-05@35"}},
      {"America/Sao_Paulo", "2018-02-17 12:00", {"2018-02-18@13", "2018-02-19@37"}},
      {"Africa/Cairo", "2024-04-25 12:00", {"2024-04-26@12", "2024-04-27@35"}},
      {"Pacific/Apia", "2011-12-29 12:00", {"2011-12-31@12", "2012-01-01@36"}},
  };
  for (const auto& [zone, noon, changes] : cases) {
    SimulatedTime time(noon, zone);
    std::vector<std::string> seen;
    const auto observing = time.onDayChange([&] {
      seen.push_back(dayKey(time.today()) + '@' + std::to_string((time.now() - time.at(noon)) / 1h));
    });
    time.advance(40h);
    EXPECT_EQ(seen, changes) << zone;
  }
}

TEST(SimulatedTime, EndlessCallsAndBadTextsEndTheProgram) {
  SimulatedTime time;
  std::function<void()> again = [&] { time.after(0s, again); };
  again();
  EXPECT_DEATH(time.runUntilIdle(), "calls keep asking for calls");
  EXPECT_DEATH(time.at("2026-02-30 09:00"), "not a local time: 2026-02-30");
}

TEST(SimulatedTime, GivesTheZoneBack) {
  const SimulatedTime outer("2026-06-15 09:00", "Asia/Tokyo");
  { const SimulatedTime inner("2026-06-15 09:00", "UTC"); }
  EXPECT_EQ(outer.at("2026-06-15 09:00"), Instant(std::chrono::sys_days(2026y / 6 / 15)));
}

}  // namespace
}  // namespace brimle
