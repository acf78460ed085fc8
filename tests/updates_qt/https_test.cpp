// What a user is told of an update feed on a real host, however that host answers.
#include "platform/desktop/qt_feed_source.h"
#include "platform/simulated/simulated_update_windows.h"
#include "platform_qt/patience.h"
#include "updates/feed_signer.h"
#include "updates/feed_source_contract.h"
#include "updates/feed_update_controller.h"
#include "updates_qt/https_host.h"

namespace brimle {
namespace {

using namespace std::chrono_literals;

constexpr Version kRunning{{1, 1, 0}};
/// Far longer than a test may take: whatever ends sooner was ended by something else.
constexpr auto kNever = 1h;

class UpdatesOverHttps : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    host = std::make_unique<HttpsHost>();
    host->publish("new.json", feedOf("1.2.0"));
    host->publish("old.json", feedOf("1.0.0"));
    host->publish("forged.json", feedOf("1.2.0"));
    host->serve("forged.json", feedOf("6.6.6"));
  }
  static void TearDownTestSuite() { host.reset(); }

  /// Whether this is what a user is told of the feed at an address.
  static void expectTold(CheckResult result, const std::string& address, QtFeedSource::Options options) {
    QtFeedSource source(std::move(options));
    SimulatedUpdateWindows windows;
    FeedUpdateController updates({kRunning, address, host->publicKey(), false, ""}, source, windows);
    updates.checkForUpdates();
    waitFor([&] { return windows.open; });
    const bool isNew = result == CheckResult::newVersion;
    const auto told = messageFor({result, isNew ? parseFeed(feedOf("1.2.0")) : std::nullopt}, kRunning);
    EXPECT_EQ(windows.shown, std::vector{told}) << address;
  }

  static inline std::unique_ptr<HttpsHost> host;
};

TEST_F(UpdatesOverHttps, KeepTheContractOfASource) {
  QtFeedSource source({kNever, host->trust()});
  const auto serve = [](const std::string& name, const std::string& bytes) { host->serve(name, bytes); };
  expectFeedSourceContract(source, {host->address("good"), host->plainAddress(), serve, waitFor});
}

TEST_F(UpdatesOverHttps, AreToldByWhatTheHostAnswers) {
  expectTold(CheckResult::newVersion, host->address("good") + "new.json", {kNever, host->trust()});
  expectTold(CheckResult::newVersion, host->address("moved") + "new.json", {kNever, host->trust()});
  expectTold(CheckResult::upToDate, host->address("good") + "old.json", {kNever, host->trust()});
  expectTold(CheckResult::notSigned, host->address("good") + "forged.json", {kNever, host->trust()});
  for (const char* manner :
       {"gone", "partial", "truncated", "endless", "moved-to-http", "moved-to-file", "moved-again"})
    expectTold(CheckResult::notLoaded, host->address(manner) + "new.json", {kNever, host->trust()});
}

TEST_F(UpdatesOverHttps, AreNotWaitedForBeyondTheTimeLimit) {
  for (const char* manner : {"slow", "silent"})
    expectTold(CheckResult::notLoaded, host->address(manner) + "new.json", {200ms, host->trust()});
}

TEST_F(UpdatesOverHttps, AreNotTakenFromAHostThatIsNotTrusted) {
  expectTold(CheckResult::notLoaded, host->address("good") + "new.json", {kNever, {}});
  expectTold(CheckResult::notLoaded, host->address("good", "127.0.0.1") + "new.json",
             {kNever, host->trust()});
}

TEST_F(UpdatesOverHttps, AreDroppedWithTheSource) {
  auto source = std::make_unique<QtFeedSource>(QtFeedSource::Options{kNever, host->trust()});
  bool late = false, next = false;
  source->fetch(host->address("silent") + "new.json", 100, [&](const auto&) { late = true; });
  source->fetch(host->plainAddress() + "new.json", 100, [&](const auto&) { late = true; });
  source = std::make_unique<QtFeedSource>(QtFeedSource::Options{kNever, host->trust()});
  source->fetch(host->address("good") + "new.json", 1000, [&](const auto&) { next = true; });
  waitFor([&] { return next; });
  EXPECT_FALSE(late);
}

}  // namespace
}  // namespace brimle
