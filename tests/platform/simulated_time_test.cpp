// In what order the virtual clock runs calls and midnights, awake, asleep and when it is set by hand.
#include "platform/simulated/simulated_time.h"

namespace brimle {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

struct SimulatedTimeTest : testing::Test {
  /// Writes down a name and the seconds passed by the clock.
  void note(const std::string& name) {
    seen.push_back(name + '@' + std::to_string((time.now() - start) / 1s));
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

TEST_F(SimulatedTimeTest, CallsAndMidnightRunByDueTimeThenInTheOrderAsked) {
  time.after(60s, noting("third"));
  time.after(59s, [&] {
    note("first");
    time.after(10s, noting("fourth"));
    time.after(0s, noting("soon"));
  });
  time.after(59s, noting("second"));
  time.after(-1s, noting("now"));
  EXPECT_TRUE(seen.empty());
  time.runUntilIdle();
  EXPECT_THAT(seen, ElementsAre("now@0"));
  time.advance(69s);
  EXPECT_THAT(seen, ElementsAre("now@0", "first@59", "second@59", "soon@59", "2026-06-16@60", "third@60",
                                "fourth@69"));
}

TEST_F(SimulatedTimeTest, WhatFellDueInSleepRunsInOrderOnWaking) {
  for (const double delay : {200'000., 100'000., 30.}) time.after(Seconds(delay), noting("call"));
  time.sleep(150'000s);
  EXPECT_THAT(seen, ElementsAre("call@150000", "2026-06-17@150000", "call@150000", "wake@150000"));
}

TEST_F(SimulatedTimeTest, ClockAndZoneSetByHandChangeTheDayAndDelayNoCall) {
  time.after(10s, [&] { seen.push_back("call"); });
  time.advance(4s);
  time.setClock(start + 2h);
  time.setClock(start);
  time.setClock(start - 2h);
  time.setZone("Asia/Tokyo");
  EXPECT_THAT(seen, ElementsAre("2026-06-16@7200", "2026-06-15@0", "2026-06-16@-7200"));
  time.advance(5.9s);
  EXPECT_EQ(seen.size(), 3u);
  time.advance(0.1s);
  EXPECT_EQ(seen.back(), "call");
}

}  // namespace
}  // namespace brimle
