// Launch, the status item, and what the desktop calls on the program for.
#include "app/app_fixture.h"
#include "app/core/feedback_link.h"

namespace brimle {
namespace {

using testing::HasSubstr;

using AppDelegateTest = AppTest;

TEST_F(AppDelegateTest, LaunchesIntoAnOpenWindowOnTodaysList) {
  preferences.values = {{"testArrival", "Call the bank"}, {"appearance", "dark"}, {"language", "en"}};
  preferences.setString("NSWindow Frame TodayWindow", "5000 60 300 500");
  launch("A B+ C | | 20:party");
  EXPECT_EQ(asked(), (Journal{"window in front", "activated", "dark appearance"}));
  EXPECT_EQ(window.at, (Rect{1620, 60, 300, 500}));
  EXPECT_EQ(status.title, " 2");
  EXPECT_THAT(ticked(), testing::Contains("Dark"));
  EXPECT_THAT(files.read("/state/notifications").value_or(""), HasSubstr("party"));
  time.advance(Seconds(4.9));
  EXPECT_TRUE(asked().empty());
  application.windowIsVisible = true;  // in front, and told all the same
  time.advance(Seconds(0.1));
  EXPECT_EQ(asked(), Journal{"notified arrival-test: Call the bank, On your list today."});
  EXPECT_EQ(preferences.string("testArrival"), "Call the bank");
}

TEST_F(AppDelegateTest, CountsTheTasksThatAreOpenAndDoNotRest) {
  preferences.setString("language", "en");
  const std::tuple<const char*, const char*, const char*, const char*> rows[] = {
      {"A B+ C*# D*%", "20", " 1", "1 task"},  // a Saturday
      {"A B+ C*# D*%", "19", " 2", "2 tasks"},
      {"B+ C*#", "20", "", "all done"}};
  for (const auto& [lists, day, title, count] : rows) {
    launch(lists, day);
    EXPECT_EQ(status.title, title) << lists << " on " << day;
    EXPECT_EQ(status.tooltip, count);
    EXPECT_EQ(status.actions.menu().front().title, count);
  }
  store->addLines("E\nF", false);
  EXPECT_EQ(status.title, " 2");
}

TEST_F(AppDelegateTest, HasAMenuBehindTheStatusItem) {
  launch("A");
  app->perform(Command::setLanguage, "de");
  const auto menu = status.actions.menu();
  EXPECT_FALSE(menu.at(0).action);
  EXPECT_EQ(menu.at(2).title, "Neue Aufgabe");
  asked();
  menu.at(2).action();
  menu.at(4).action();
  EXPECT_EQ(asked(), (Journal{"activated", "window in front", "focus", "quit"}));
}

TEST_F(AppDelegateTest, ComesForwardForAQuickEntryHoweverItIsAsked) {
  launch();
  asked();
  const Journal forward = {"activated by token", "window in front", "focus"};
  const std::function<void()> ways[] = {[&] { hotKey.press("token"); },
                                        [&] { status.actions.click("token"); },
                                        [&] { app->focusQuickAdd("token"); }};
  for (const auto& ask : ways) {
    ask();
    EXPECT_EQ(asked(), forward);
  }
  hotKey = {};
  hotKey.taken = true;
  launch();
  asked();
  hotKey.press("token");
  EXPECT_TRUE(asked().empty());
  EXPECT_TRUE(press("n"));
}

TEST_F(AppDelegateTest, ShowsItsWindowWhenReopenedUnlessOneIsVisible) {
  launch();
  asked();
  app->reopen("token");
  application.windowIsVisible = true;
  app->reopen("");
  EXPECT_EQ(asked(), (Journal{"activated by token", "window in front", "activated"}));
}

TEST_F(AppDelegateTest, OpensTheDayWhenItIsLookedAtAgain) {
  const std::pair<const char*, std::function<void()>> looks[] = {{"active", [&] { app->becameActive(); }},
                                                                 {"awake", [&] { time.wake(); }},
                                                                 {"reopened", [&] { app->reopen(""); }}};
  for (const auto& [what, look] : looks) {
    launch("A");
    time.setClock(time.at("2026-06-16 07:00"));
    EXPECT_EQ(store->storedDate(), "2026-06-15") << what;
    look();
    EXPECT_EQ(store->storedDate(), "2026-06-16") << what;
  }
}

TEST_F(AppDelegateTest, TogglesTheLoginItem) {
  using enum LoginItem::Status;
  struct Row {
    LoginItem::Status before;
    bool refuses;
    LoginItem::Status added;
    const char* asks;
    bool on;
  };
  preferences.setString("language", "en");
  launch();
  for (const auto& [before, refuses, added, asks, on] :
       std::initializer_list<Row>{{notRegistered, false, enabled, "login item added", true},
                                  {enabled, false, enabled, "login item removed", false},
                                  {requiresApproval, false, requiresApproval, "login item added", false},
                                  {notFound, true, enabled, "login item added", false},
                                  {enabled, true, enabled, "login item removed", true}}) {
    loginItem.now = before;
    loginItem.refuses = refuses;
    loginItem.added = added;
    desktop.beeps = 0;
    asked();
    EXPECT_TRUE(menus.choose("0/Start at Login"));
    EXPECT_EQ(asked(), Journal{asks});
    EXPECT_EQ(desktop.beeps, refuses) << asks;
    EXPECT_EQ(ticked(menus.bar.front().items).size(), on) << asks;
  }
}

TEST_F(AppDelegateTest, CallsOnTheDesktopsServices) {
  launch();
  const std::pair<Command, Journal> cases[] = {
      {Command::showAbout, {"about: Your daily list. at 11", "activated"}},
      {Command::checkForUpdates, {"update check"}},
      {Command::sendFeedback, {"open mailto:help@brimle.invalid?subject=Brimle%20feedback"}},
      {Command::showShortcuts, {"panel Raccourcis clavier"}}};
  for (const auto& [command, asks] : cases) {
    asked();
    app->perform(command);
    EXPECT_EQ(asked(), asks);
  }
}

TEST(Feedback, GoesToNoneButAMailAddress) {
  EXPECT_EQ(feedbackLink("a.b+c@brimle.invalid"), "mailto:a.b+c@brimle.invalid?subject=Brimle%20feedback");
  for (const char* address :
       {"", "brimle", "@brimle", "help@", "a@b@c", "help @brimle", "a@b?cc=c", "ä@b", "a@b\n", "a%20@b"}) {
    EXPECT_EQ(feedbackLink(address), std::nullopt) << address;
  }
}

}  // namespace
}  // namespace brimle
