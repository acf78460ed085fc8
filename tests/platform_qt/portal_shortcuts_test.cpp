// The key that a portal of the desktop gives: how it is asked for, what the portal may answer, and whom of
// those that speak on the bus the program believes.
#include <gmock/gmock.h>

#include <QDBusObjectPath>
#include <map>
#include <optional>

#include "platform/desktop/qt_hot_key.h"
#include "platform/desktop/qt_portal_shortcuts.h"
#include "platform/simulated/simulated_preferences_store.h"
#include "platform_qt/neighbour.h"
#include "platform_qt/patience.h"

namespace brimle {
namespace {

using testing::ElementsAre;

constexpr auto kInterface = "org.freedesktop.portal.GlobalShortcuts";
constexpr auto kPath = "/org/freedesktop/portal/desktop";
const std::string kKey = "Press Ctrl+Alt+T";

QVariant listOf(const QString& id, const QString& trigger) {
  return QVariant::fromValue(std::vector<PortalShortcut>{{id, {{"trigger_description", trigger}}}});
}

/// What a request ends with.
struct Answer {
  uint code = 0;
  QVariantMap results;
};

/// By method. A method that is not here succeeds as a desktop's own would; one without an answer fails.
using Manners = std::map<std::string, std::optional<Answer>>;

constexpr uint kNever = 99;  ///< the code of an answer that never comes
const Answer kSuccessAlone{0, {}}, kCancelled{1, {}}, kFailure{2, {}}, kOpen{kNever, {}};
const Answer kNothing{0, {{"shortcuts", QVariant::fromValue(std::vector<PortalShortcut>{})}}};
const Answer kNonsense{0, {{"shortcuts", 7}}};

void press(Neighbour& teller, const QString& session, const QString& id, const QVariant& token) {
  teller.tell(kPath, kInterface, "Activated",
              {QVariant::fromValue(QDBusObjectPath(session)), id, qulonglong(1),
               QVariantMap{{"activation_token", token}}});
}

struct Portal : Neighbour {
  Portal() : Neighbour("org.freedesktop.portal.Desktop") {}

  void appear() override {
    letters += letters.empty() ? "" : " ";
    Neighbour::appear();
  }
  void answer(const QDBusMessage& call) override {
    const std::string method = call.member().toStdString();
    letters += method[0];
    const auto manner = manners.find(method);
    if (method == "Register" || (manner != manners.end() && !manner->second)) return refuse(call);
    const auto options = qdbus_cast<QVariantMap>(call.arguments().last());
    const QString request = pathFor("request", call.service(), options["handle_token"]);
    reply(call, {QVariant::fromValue(QDBusObjectPath(request))});
    if (method == "CreateSession")
      session = pathFor("session", call.service(), options["session_handle_token"]);
    const Answer answer = manner == manners.end() ? Answer{0, usualResults(method)} : *manner->second;
    hasBound = hasBound || (method == "BindShortcuts" && answer.code == 0);
    if (answer.code != kNever)
      tell(request, "org.freedesktop.portal.Request", "Response", {answer.code, answer.results});
  }
  Manners manners;
  bool keepsShortcuts = false;
  std::string letters;  ///< the first of the methods called, with a blank before each life of the portal
  QString session;      ///< the path of the last

 private:
  static QString pathFor(const char* kind, QString client, const QVariant& token) {
    return QStringLiteral("%1/%2/%3/%4")
        .arg(kPath, kind, client.remove(':').replace('.', '_'), token.toString());
  }
  QVariantMap usualResults(const std::string& method) const {
    if (method == "CreateSession") return {{"session_handle", session}};
    const bool isBound = method == "BindShortcuts" || (keepsShortcuts && hasBound);
    return {{"shortcuts", isBound ? listOf("new-task", "Press Ctrl+Alt+T") : listOf("other", "F1")}};
  }

  bool hasBound = false;
};

class HotKeyOfPortal : public testing::Test {
 protected:
  void start() {
    key = std::make_unique<QtPortalShortcuts>(preferences);
    key->install([this](const std::string& token) { tokens.push_back(token); });
  }
  void waitForKey(const std::string& wanted) {
    waitFor([&] { return key->keyInForce() == wanted; });
  }
  /// Returns when the portal was called as often as that and the program has taken in every answer.
  void waitForLetters(std::size_t count) {
    waitFor([&] { return portal->letters.size() >= count; });
    portal->settle(QDBusConnection("brimle-shortcuts"));
  }

  SimulatedPreferencesStore preferences;
  std::optional<Portal> portal{std::in_place};
  std::unique_ptr<HotKey> key;
  std::vector<std::string> tokens;
};

TEST_F(HotKeyOfPortal, IsBoundAtTheFirstStartAndToldWithItsToken) {
  portal->appear();
  start();
  int changes = 0;
  const Subscription observing = key->observe([&] { ++changes; });
  waitForLetters(4);
  EXPECT_EQ(key->keyInForce(), kKey);
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(plainArguments(portal->calls.front()).value(0), "org.brimle.Brimle");
  const QVariantMap details{{"description", "New Task"}, {"preferred_trigger", "CTRL+ALT+t"}};
  const QVariantList wanted{QVariantList{"new-task", details}};
  EXPECT_EQ(plainArguments(portal->calls.back()).value(1).toList(), wanted);

  press(*portal, "/another/session", "new-task", "no");
  press(*portal, portal->session, "another", "no");
  Neighbour forger;
  press(forger, portal->session, "new-task", "forged");
  forger.settle();
  press(*portal, portal->session, "new-task", 7);
  press(*portal, portal->session, "new-task", "token");
  waitFor([&] { return tokens.size() >= 2; });
  EXPECT_THAT(tokens, ElementsAre("", "token"));
}

TEST_F(HotKeyOfPortal, FollowsWhatThePortalTellsOfItsSession) {
  portal->appear();
  start();
  waitForKey(kKey);
  const auto change = [&](const QString& session, const QVariant& list) {
    portal->tell(kPath, kInterface, "ShortcutsChanged",
                 {QVariant::fromValue(QDBusObjectPath(session)), list});
  };
  change("/another/session", listOf("new-task", "F3"));
  change(portal->session, QStringList{"new-task"});
  portal->tell(kPath, kInterface, "ShortcutsChanged", {});
  portal->tell(kPath, kInterface, "Activated", {7});
  std::vector<std::string> keys;
  const Subscription observing = key->observe([&] { keys.push_back(key->keyInForce()); });
  change(portal->session, listOf("new-task", "F4"));
  change(portal->session, listOf("another", "F5"));
  change(portal->session, listOf("new-task", "F6"));
  portal->tell(portal->session, "org.freedesktop.portal.Session", "Closed", {});
  waitFor([&] { return keys.size() >= 4; });
  EXPECT_THAT(keys, ElementsAre("F4", "", "F6", ""));
}

TEST_F(HotKeyOfPortal, AsksTheUserOnce) {
  const struct {
    const char* portalThat;
    Manners manners;
    bool keepsShortcuts;  ///< whether what was bound is listed in later sessions
    std::string key;
    /// What is called at the first start, when the portal came back, and at the next start: Register,
    /// CreateSession, ListShortcuts, BindShortcuts. The last may ask the user.
    std::string calls;
  } kCases[] = {
      {"keeps the shortcut", {}, true, kKey, "RCLB RCL RCL"},
      {"wants it bound each time", {}, false, kKey, "RCLB RCLB RCLB"},
      {"tells success alone", {{"BindShortcuts", kSuccessAlone}}, true, kKey, "RCLBL RCL RCL"},
      {"cannot list", {{"ListShortcuts", std::nullopt}}, false, kKey, "RCLB RCLB RCLB"},
      {"is cancelled", {{"BindShortcuts", kCancelled}}, false, "", "RCLB RCL RCL"},
      {"grants nothing", {{"BindShortcuts", kNothing}}, false, "", "RCLB RCL RCL"},
      {"fails", {{"BindShortcuts", kFailure}}, false, "", "RCLB RCL RCLB"},
      {"cannot bind", {{"BindShortcuts", std::nullopt}}, false, "", "RCLB RCL RCLB"},
      {"goes before the answer", {{"BindShortcuts", kOpen}}, false, "", "RCLB RCL RCLB"},
      {"binds nonsense", {{"BindShortcuts", kNonsense}}, false, "", "RCLB RCL RCLB"},
      {"lists nonsense", {{"ListShortcuts", kNonsense}}, false, kKey, "RCLB RCLB RCLB"},
  };
  for (const auto& [portalThat, manners, keepsShortcuts, expectedKey, calls] : kCases) {
    SCOPED_TRACE(portalThat);
    preferences.values.clear();
    portal.emplace();
    portal->manners = manners;
    portal->keepsShortcuts = keepsShortcuts;
    portal->appear();
    start();
    waitForLetters(calls.find(' '));
    EXPECT_EQ(key->keyInForce(), expectedKey);
    portal->vanish();
    waitForKey("");
    portal->appear();
    waitForLetters(calls.rfind(' '));
    EXPECT_EQ(key->keyInForce(), expectedKey);
    key.reset();
    portal->letters += ' ';
    start();
    waitForLetters(calls.size());
    EXPECT_EQ(key->keyInForce(), expectedKey);
    EXPECT_EQ(portal->letters, calls);
    key.reset();
  }
}

TEST_F(HotKeyOfPortal, IsTheWayOnWaylandAndTakenUpWhenAPortalComesThatMakesSense) {
  qputenv("WAYLAND_DISPLAY", "wayland-0");
  key = hotKeyOfDesktop(preferences);
  qunsetenv("WAYLAND_DISPLAY");
  key->install([](const std::string&) {});
  const std::optional<Answer> sessions[] = {std::nullopt, kCancelled, kSuccessAlone,
                                            Answer{0, {{"session_handle", 7}}},
                                            Answer{0, {{"session_handle", "no path"}}}};
  for (const auto& session : sessions) {
    portal->manners["CreateSession"] = session;
    portal->appear();
    waitForLetters(portal->letters.size() + 2);
    EXPECT_EQ(key->keyInForce(), "");
    portal->vanish();
  }
  portal->manners.clear();
  portal->appear();
  waitForKey(kKey);
  EXPECT_EQ(portal->letters, "RC RC RC RC RC RCLB");
}

}  // namespace
}  // namespace brimle
