// Which reminders are pending for the tasks of future days.
#include "i18n/i18n.h"
#include "model/store_fixture.h"

namespace brimle {
namespace {

using enum AuthorizationStatus;

class Reminders : public StoreTest {
 protected:
  static NotificationRequest request(const char* day, const std::string& id, const std::string& title = "old",
                                     const std::string& body = "") {
    return {id, title, body, NotificationRequest::Trigger{*parseDay(dateOf(day)), 8}};
  }

  /// The days and titles of what is pending once all callbacks have come.
  std::string pending() {
    time.runUntilIdle();
    std::string text;
    for (const auto& [identifier, title, body, trigger] : notifications.pending) {
      text += (trigger ? dayOf(dayKey(trigger->day)) : "never") + ":" + title + " ";
    }
    return text;
  }
};

TEST_F(Reminders, AskForPermissionOnlyWhereThereIsSomethingToTell) {
  const std::tuple<AuthorizationStatus, bool, const char*, int, const char*> table[] = {
      {notDetermined, true, " | | 16:a 17:b", 1, "16:a 17:b "},
      {notDetermined, false, " | | 16:a", 1, "20:old "},
      {notDetermined, true, " | | 15:a", 0, "20:old "},
      {denied, true, " | | 16:a", 0, "20:old "},
      {authorized, true, "", 0, ""},
      {provisional, true, " | | 16:a", 0, "16:a "},
  };
  for (const auto& [status, grants, state, asks, expected] : table) {
    notifications.status = status;
    notifications.userGrants = grants;
    notifications.authorizationAsks = 0;
    notifications.pending = {request("20", "arrival-1")};
    open(document(state));
    run("remind");
    EXPECT_EQ(pending(), expected) << state;
    EXPECT_EQ(notifications.authorizationAsks, asks) << state;
  }
}

TEST_F(Reminders, AreSetForEightOnTheDayAndLeaveAllOthers) {
  I18n::setLang("de");
  open(document(" | | 15:a 16:b 2026-13-40:c"));
  const auto update = request("20", "update-5"), today = request("15", "arrival-2");
  notifications.pending = {request("16", "arrival-3"), {"arrival-4", "old", "", {}}, today, update};
  const auto expected =
      request("16", "arrival-" + idOf("16:b").string(), "b", std::string(I18n::t("On your list today.")));
  run("remind; wait 1");
  EXPECT_EQ(notifications.pending, (std::vector{today, update, expected}));
  I18n::setLang("en");
  const std::string before = "15:old 20:old 16:b ", after = before + "16:c 17:d ";
  run("add c >16/6\nd >17/6");
  EXPECT_EQ(pending(), after);
  run("undo; wait 0; redo; undo");  // these two before an answer comes
  EXPECT_EQ(pending(), before);
  run("redo; wait 57600");
  EXPECT_EQ(pending(), after) << "what has arrived is still to be told of at eight";
}

}  // namespace
}  // namespace brimle
