// Which reminders are pending for the tasks of future days.
#include "i18n/i18n.h"
#include "model/store_fixture.h"

namespace brimle {
namespace {

using enum AuthorizationStatus;

class Reminders : public StoreTest {
 protected:
  static NotificationRequest old(std::string identifier, std::string_view day) {
    return {std::move(identifier), "old", "", NotificationRequest::Trigger{*parseDay(dateOf(day)), 8}};
  }

  /// The days and titles of what is pending once all callbacks have come.
  std::string pending() {
    time.runUntilIdle();
    std::string text;
    for (const auto& [identifier, title, body, trigger] : notifications.pending) {
      text += (text.empty() ? "" : " ") + (trigger ? dayOf(dayKey(trigger->day)) : "never") + ":" + title;
    }
    return text;
  }
};

TEST_F(Reminders, AreSetForEightOnTheDay) {
  I18n::setLang("de");
  open(document(""));
  run("add call >20/6; wait 1");
  auto expected = old("arrival-" + store->scheduled().at(0).id.string(), "20");
  expected.title = "call";
  expected.body = I18n::t("On your list today.");
  EXPECT_EQ(notifications.pending, std::vector{expected});
  I18n::setLang("en");
}

TEST_F(Reminders, AskForPermissionOnlyWhereThereIsSomethingToTell) {
  const std::tuple<AuthorizationStatus, bool, const char*, int, const char*> table[] = {
      {notDetermined, true, " | | 16:a 17:b", 1, "16:a 17:b"},
      {notDetermined, false, " | | 16:a", 1, "20:old"},
      {notDetermined, true, " | | 15:a", 0, "20:old"},
      {denied, true, " | | 16:a", 0, "20:old"},
      {authorized, true, "", 0, ""},
      {provisional, true, " | | 16:a", 0, "16:a"},
      {ephemeral, true, " | | 16:a", 0, "16:a"},
  };
  for (const auto& [status, grants, state, asks, expected] : table) {
    notifications.status = status;
    notifications.userGrants = grants;
    notifications.authorizationAsks = 0;
    notifications.pending = {old("arrival-1", "20")};
    open(document(state));
    store->resyncArrivalNotifications();
    EXPECT_EQ(pending(), expected) << state;
    EXPECT_EQ(notifications.authorizationAsks, asks) << state;
  }
}

TEST_F(Reminders, FollowTheScheduledTasksAndLeaveAllOthers) {
  notifications.status = authorized;
  open(document("A | | 15:a 16:b 2026-13-40:c"));
  notifications.pending = {old("arrival-1", "14"),
                           old("arrival-2", "15"),
                           old("arrival-3", "16"),
                           {"arrival-4", "old", "", {}},
                           old("update-5", "20")};
  const std::string others = "14:old 15:old 20:old 16:b";
  const std::pair<const char*, std::string> table[] = {
      {"add c >16/6\nd >17/6", others + " 16:c 17:d"},
      {"undo", others},
      {"redo; undo", others},  // both before the first answer comes
      {"redo", others + " 16:c 17:d"},
      {"wait 57600", others + " 16:c 17:d"},  // what has arrived is still to be told of at eight
  };
  for (const auto& [script, expected] : table) {
    run(script);
    EXPECT_EQ(pending(), expected) << script;
  }
}

}  // namespace
}  // namespace brimle
