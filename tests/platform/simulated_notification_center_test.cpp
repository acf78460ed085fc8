#include "platform/simulated/simulated_notification_center.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/simulated/simulated_time.h"

namespace brimle {
namespace {

using testing::ElementsAre;

TEST(SimulatedNotificationCenter, AnswersLaterInOrderAndKeepsOneRequestAnIdentifier) {
  SimulatedTime time;
  SimulatedNotificationCenter center(time);
  std::vector<std::string> seen;
  const auto note = [&](AuthorizationStatus told) { seen.push_back(std::to_string(static_cast<int>(told))); };
  center.userGrants = false;
  center.getAuthorizationStatus(note);
  const auto noteAnswer = [&](bool granted) { seen.push_back(granted ? "granted" : "refused"); };
  center.requestAuthorization(noteAnswer);
  center.getPendingRequests(
      [&](auto requests) { seen.push_back(std::to_string(requests.size()) + " pending"); });
  center.getAuthorizationStatus(note);
  const NotificationRequest a{"a", "old", "", {}}, b{"b", "", "", {}}, newer{"a", "new", "", {}};
  for (const auto& request : {a, b, newer}) center.add(request);
  EXPECT_TRUE(seen.empty());
  time.runUntilIdle();
  center.userGrants = true;
  center.requestAuthorization(noteAnswer);
  time.runUntilIdle();
  EXPECT_THAT(seen, ElementsAre("0", "refused", "0 pending", "1", "refused"));
  EXPECT_THAT(center.pending, ElementsAre(newer, b));
  center.removePendingRequests({"a", "unknown"});
  EXPECT_THAT(center.pending, ElementsAre(b));
}

}  // namespace
}  // namespace brimle
