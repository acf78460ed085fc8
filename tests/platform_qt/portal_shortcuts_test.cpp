#include <gtest/gtest.h>

#include <QDBusConnectionInterface>
#include <QTest>

#include "platform/desktop/qt_hot_key.h"
#include "platform/simulated/simulated_preferences_store.h"
#include "platform_qt/mock_portal.h"

namespace brimle {
namespace {

constexpr int kPatience = 60'000;  // milliseconds
constexpr auto kInterface = "org.freedesktop.portal.GlobalShortcuts";
constexpr auto kPortalPath = "/org/freedesktop/portal/desktop";
const std::string kKey = "Press Ctrl+Alt+T";

class HotKeyOfPortal : public testing::Test {
 protected:
  void start() {
    key = std::make_unique<QtPortalShortcuts>(preferences);
    key->install([this](const std::string& token) { tokens.push_back(token); });
  }
  static void waitFor(const std::function<bool()>& condition) {
    ASSERT_TRUE(QTest::qWaitFor(condition, kPatience));
  }
  void waitForKey(const std::string& wanted) {
    waitFor([&] { return key->keyInForce() == wanted; });
  }
  /// Somebody else on the bus says that the portal's key was pressed.
  void forgePress() {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    auto message = QDBusMessage::createTargetedSignal(portal.client, kPortalPath, kInterface, "Activated");
    message << QVariant::fromValue(QDBusObjectPath(portal.session)) << "new-task" << qulonglong(1)
            << QVariantMap{{"activation_token", "forged"}};
    bus.send(message);
    bus.interface()->isServiceRegistered(kInterface);  // once this is answered the signal is on its way
  }
  /// Returns when the portal was called as often as that and the program has taken in every answer.
  void waitForCalls(std::size_t count) {
    waitFor([&] { return portal.calls.size() >= count && int(tokens.size()) >= portal.reported; });
    portal.settle();
  }

  SimulatedPreferencesStore preferences;
  MockPortal portal;
  std::unique_ptr<HotKey> key;
  std::vector<std::string> tokens;
};

TEST_F(HotKeyOfPortal, IsBoundAtTheFirstStartAndToldWithItsToken) {
  portal.appear();
  start();
  int changes = 0;
  const Subscription observing = key->observe([&] { ++changes; });
  waitForCalls(4);
  EXPECT_EQ(portal.asked, "org.brimle.Brimle new-task|New Task|CTRL+ALT+t");
  EXPECT_EQ(key->keyInForce(), kKey);
  EXPECT_EQ(changes, 1);

  tokens.clear();
  portal.press("/another/session", "new-task", {{"activation_token", "no"}});
  portal.press(portal.session, "another", {{"activation_token", "no"}});
  forgePress();
  portal.press(portal.session, "new-task", {{"activation_token", 7}});
  portal.press(portal.session, "new-task", {{"activation_token", "token"}});
  waitFor([&] { return tokens.size() >= 2; });
  EXPECT_EQ(tokens, (std::vector<std::string>{"", "token"}));
}

TEST_F(HotKeyOfPortal, FollowsWhatThePortalTellsOfItsSession) {
  portal.appear();
  start();
  waitForKey(kKey);
  const auto change = [&](const QString& session, const QVariant& list) {
    portal.tell(kPortalPath, kInterface, "ShortcutsChanged",
                {QVariant::fromValue(QDBusObjectPath(session)), list});
  };
  change("/another/session", MockPortal::listOf("new-task", "F3"));
  change(portal.session, QStringList{"new-task"});
  portal.tell(kPortalPath, kInterface, "ShortcutsChanged", {});
  portal.tell(kPortalPath, kInterface, "Activated", {7});
  std::vector<std::string> keys;
  const Subscription observing = key->observe([&] { keys.push_back(key->keyInForce()); });
  change(portal.session, MockPortal::listOf("new-task", "F4"));
  waitForKey("F4");
  change(portal.session, MockPortal::listOf("another", "F5"));
  waitForKey("");
  change(portal.session, MockPortal::listOf("new-task", "F6"));
  waitForKey("F6");
  portal.tell(portal.session, "org.freedesktop.portal.Session", "Closed", {});
  waitForKey("");
  EXPECT_EQ(keys, (std::vector<std::string>{"F4", "", "F6", ""}));
}

struct Manners {
  const char* name;
  std::map<std::string, std::optional<Answer>> answers;
  bool keepsShortcuts;
  std::string key;
  /// What is called at the first start, when the portal came back, and at the next start: Register,
  /// CreateSession, ListShortcuts, BindShortcuts. The last may ask the user.
  std::string calls;
};
void PrintTo(const Manners& manners, std::ostream* out) {
  *out << manners.name;
}

class HotKeyOfPortalThat : public HotKeyOfPortal, public testing::WithParamInterface<Manners> {};

TEST_P(HotKeyOfPortalThat, AsksTheUserOnce) {
  const auto& [name, answers, keepsShortcuts, expectedKey, expectedCalls] = GetParam();
  const std::size_t comesBack = expectedCalls.find(' '), nextStart = expectedCalls.rfind(' ');
  portal.manners = answers;
  portal.keepsShortcuts = keepsShortcuts;
  portal.appear();
  start();
  waitForCalls(comesBack);
  EXPECT_EQ(key->keyInForce(), expectedKey);
  portal.vanish();
  waitForKey("");
  portal.appear();
  waitForCalls(nextStart);
  EXPECT_EQ(key->keyInForce(), expectedKey);
  key.reset();
  portal.calls += ' ';
  start();
  waitForCalls(expectedCalls.size());
  EXPECT_EQ(key->keyInForce(), expectedKey);
  EXPECT_EQ(portal.calls, expectedCalls);
}

const Answer kSuccessAlone{0, {}}, kCancelled{1, {}}, kFailure{2, {}}, kOpen{MockPortal::kNever, {}};
const Answer kNothing{0, {{"shortcuts", QVariant::fromValue(std::vector<PortalShortcut>{})}}};
const Answer kNonsense{0, {{"shortcuts", 7}}};

INSTANTIATE_TEST_SUITE_P(
    Desktops, HotKeyOfPortalThat,
    testing::Values(
        Manners{"keeps the shortcut", {}, true, kKey, "RCLB RCL RCL"},
        Manners{"wants it bound each time", {}, false, kKey, "RCLB RCLB RCLB"},
        Manners{"tells success alone", {{"BindShortcuts", kSuccessAlone}}, true, kKey, "RCLBL RCL RCL"},
        Manners{"cannot list", {{"ListShortcuts", std::nullopt}}, false, kKey, "RCLB RCLB RCLB"},
        Manners{"is cancelled", {{"BindShortcuts", kCancelled}}, false, "", "RCLB RCL RCL"},
        Manners{"grants nothing", {{"BindShortcuts", kNothing}}, false, "", "RCLB RCL RCL"},
        Manners{"fails", {{"BindShortcuts", kFailure}}, false, "", "RCLB RCL RCLB"},
        Manners{"cannot bind", {{"BindShortcuts", std::nullopt}}, false, "", "RCLB RCL RCLB"},
        Manners{"goes before the answer", {{"BindShortcuts", kOpen}}, false, "", "RCLB RCL RCLB"},
        Manners{"binds nonsense", {{"BindShortcuts", kNonsense}}, false, "", "RCLB RCL RCLB"},
        Manners{"lists nonsense", {{"ListShortcuts", kNonsense}}, false, kKey, "RCLB RCLB RCLB"}));

TEST_F(HotKeyOfPortal, IsTheWayOnWaylandAndTakenUpWhenAPortalComesThatMakesSense) {
  qputenv("WAYLAND_DISPLAY", "wayland-0");
  key = hotKeyOfDesktop(preferences);
  qunsetenv("WAYLAND_DISPLAY");
  key->install([](const std::string&) {});
  const std::optional<Answer> sessions[] = {std::nullopt, kCancelled, kSuccessAlone,
                                            Answer{0, {{"session_handle", 7}}},
                                            Answer{0, {{"session_handle", "no path"}}}};
  for (const auto& session : sessions) {
    portal.manners["CreateSession"] = session;
    portal.appear();
    waitForCalls(portal.calls.size() + 2);
    EXPECT_EQ(key->keyInForce(), "");
    portal.vanish();
  }
  portal.manners.clear();
  portal.appear();
  waitForKey(kKey);
  EXPECT_EQ(portal.calls, "RC RC RC RC RC RCLB");
}

}  // namespace
}  // namespace brimle
