// When reminders are delivered, what happens to those that were missed or failed, and what is kept of them.
#include "platform/local_notification_center.h"

#include <gmock/gmock.h>

#include "platform/simulated/memory_files.h"
#include "platform/simulated/simulated_time.h"

namespace brimle {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using Done = std::function<void(bool)>;

constexpr Day kTomorrow = 2026y / 6 / 16;

NotificationRequest request(const std::string& identifier, Day day = kTomorrow, int hour = 8) {
  return {identifier, "title", "body", NotificationRequest::Trigger{day, hour}};
}

/// Shows by writing down the identifier, while its server is there; it refuses those that begin with an x.
struct Center : LocalNotificationCenter {
  using LocalNotificationCenter::LocalNotificationCenter;
  using LocalNotificationCenter::retry;

  void deliver(NotificationRequest asked, Done done) override {
    ++tries;
    if (holds) return void(held = done);
    const bool shows = serverIsThere && !asked.identifier.starts_with('x');
    if (shows) shown.push_back(asked.identifier);
    done(shows);
  }

  bool serverIsThere = true, holds = false;
  Done held;
  int tries = 0;
  std::vector<std::string> shown;
};

struct LocalNotificationCenterTest : testing::Test {
  void start() { center.emplace(time, files, "/state"); }
  void addAll(std::initializer_list<NotificationRequest> requests) {
    for (const auto& added : requests) center->add(added);
    time.runUntilIdle();
  }
  void advanceTo(std::string_view local) { time.advance(time.at(local) - time.now()); }
  std::string kept() const { return files.read("/state/notifications").value_or("none"); }

  SimulatedTime time{"2026-06-15 09:00"};
  MemoryFiles files;
  std::optional<Center> center{std::in_place, time, files, "/state"};
};

TEST_F(LocalNotificationCenterTest, ARequestIsDeliveredOnceAsItsHourBegins) {
  const std::tuple<const char*, Day, int, const char*, const char*> cases[] = {
      {"Asia/Kathmandu", kTomorrow, 8, "2026-06-15 09:10", "2026-06-16 08:00"},
      {"America/Santiago", 2026y / 9 / 6, 0, "2026-09-05 09:00", "2026-09-06 01:00"},
  };
  for (const auto& [zone, day, hour, from, due] : cases) {
    time.setZone(zone);
    time.setClock(time.at(from));
    start();
    addAll({request("a", day, hour)});
    time.advance(time.at(due) - time.now() - 1us);
    EXPECT_EQ(center->tries, 0) << zone;
    time.advance(1us);
    EXPECT_THAT(center->shown, ElementsAre("a")) << zone;
    time.setClock(time.at(from));
    time.advance(72h);
    EXPECT_EQ(center->tries, 1) << zone << ": the clock set back repeats nothing";
  }
}

TEST_F(LocalNotificationCenterTest, WhatWasMissedIsDeliveredOnItsDayAndDroppedAfterwards) {
  const std::pair<const char*, std::size_t> cases[] = {
      {"2026-06-16 07:00", 0}, {"2026-06-16 23:59", 1}, {"2026-06-17 00:00", 0}};
  for (const auto& [back, shown] : cases) {
    time.setClock(time.at("2026-06-15 09:00"));
    addAll({request("a")});
    center.reset();
    time.setClock(time.at(back));
    start();
    time.runUntilIdle();
    EXPECT_EQ(center->shown.size(), shown) << back;
    EXPECT_EQ(kept().empty(), time.now() > time.at("2026-06-16 08:00")) << back;
  }
}

TEST_F(LocalNotificationCenterTest, WhatFailsIsTriedAgainWhileTheDayLastsAndHoldsUpNothing) {
  const std::pair<const char*, std::function<void()>> chances[] = {{"server", [&] { center->retry(); }},
                                                                   {"wake", [&] { time.wake(); }},
                                                                   {"timer", [&] { time.advance(5min); }}};
  advanceTo("2026-06-16 09:00");
  for (const auto& [identifier, pass] : chances) {
    center->serverIsThere = false;
    addAll({request("x refused"), request(identifier)});
    const int tries = center->tries;
    center->serverIsThere = true;
    time.advance(2min);
    addAll({request("later", 2026y / 6 / 20)});
    EXPECT_EQ(center->tries, tries) << "a change is no chance";
    center->shown = {"nothing"};
    pass();
    time.runUntilIdle();
    EXPECT_EQ(center->shown.back(), identifier);
  }
  const int tries = center->tries;
  advanceTo("2026-06-17 00:00");
  EXPECT_THAT(center->tries - tries, testing::AllOf(testing::Gt(50), testing::Lt(900))) << "slowly";
  EXPECT_EQ(kept(), "2026-06-20 8\tlater\ttitle\tbody\n");
}

TEST_F(LocalNotificationCenterTest, ReplacedAndRemovedRequestsCountAsTheyAreNow) {
  center->holds = true;
  addAll({request("kept"), request("removed"), {"no date", "", "", std::nullopt}});
  advanceTo("2026-06-16 08:00");
  const Done firstDone = center->held;
  std::size_t pending = 0;
  center->getPendingRequests([&](const auto& requests) { pending = requests.size(); });
  center->removePendingRequests({"unknown"});
  addAll({request("kept", 2026y / 6 / 17), request("added meanwhile", 2026y / 6 / 20)});
  EXPECT_EQ(pending, 4u) << "as they are when the answer comes";
  EXPECT_EQ(center->tries, 1) << "one at a time";
  firstDone(true);
  time.runUntilIdle();
  center->removePendingRequests({"removed", "added meanwhile"});
  center->held(false);
  time.advance(1h);
  EXPECT_EQ(center->tries, 2);
  EXPECT_EQ(kept(), "2026-06-17 8\tkept\ttitle\tbody\n-\tno date\t\t\n");
}

TEST_F(LocalNotificationCenterTest, TheFileIsWrittenOnceAChangeAndOnlyForAChange) {
  files.put("/state/notifications", "\xFF garbage");
  start();
  for (const bool diskFull : {true, false, false}) {
    files.diskFull = diskFull;
    time.advance(1h);
    EXPECT_EQ(kept() == "\xFF garbage", files.replaces("/state/notifications") == 0);
    center->removePendingRequests({"1", "2"});
    addAll({request("1"), request("2")});
  }
  EXPECT_EQ(files.replaces("/state/notifications"), 1);
}

TEST_F(LocalNotificationCenterTest, ADelayedRequestIsDueWhenItsDelayIsOverUnlessTheCenterHasGone) {
  center->addIn(5s, {"arrival-test", "", "", std::nullopt});
  time.advance(4.9s);
  EXPECT_EQ(center->tries, 0);
  center->holds = true;
  time.advance(0.1s);
  const Done late = center->held;
  center->addIn(5s, {"b", "", "", std::nullopt});
  center.reset();
  late(true);
  time.advance(1h);
  EXPECT_EQ(kept(), "2026-06-15 0\tarrival-test\t\t\n");

  start();
  center->holds = true;
  time.runUntilIdle();
  center->held(true);
  EXPECT_EQ(kept(), "") << "at once, for the program may end now";
}

}  // namespace
}  // namespace brimle
