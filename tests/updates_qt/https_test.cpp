#include <gtest/gtest.h>

#include <QTest>

#include "platform/desktop/qt_feed_source.h"
#include "platform/simulated/simulated_update_windows.h"
#include "updates/feed_signer.h"
#include "updates/feed_source_contract.h"
#include "updates/feed_update_controller.h"
#include "updates/signature.h"
#include "updates_qt/https_host.h"

namespace brimle {
namespace {

using namespace std::chrono_literals;

constexpr int kPatience = 60'000;  // milliseconds
constexpr Version kRunning{{1, 1, 0}};
/// Far longer than a test may take: whatever ends sooner was ended by something else.
constexpr auto kNever = 1h;

void waitFor(const std::function<bool()>& condition) {
  ASSERT_TRUE(QTest::qWaitFor(condition, kPatience));
}

class UpdatesOverHttps : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    host = std::make_unique<HttpsHost>();
    host->publish("new.json", feedOf("1.2.0"));
    host->publish("old.json", feedOf("1.0.0"));
    host->publish("forged.json", feedOf("1.2.0"));
    host->serve("forged.json", feedOf("6.6.6"));
    host->publish("cut.json", feedOf("1.2.0"));
    host->serve("cut.json", feedOf("1.2.0").substr(0, 20));
    host->publish("huge.json", feedOf("1.2.0") + std::string(kLongestFeed, ' '));
    host->serve("unsigned.json", feedOf("1.2.0"));
    host->publish("oversigned.json", feedOf("1.2.0"));
    host->serve("oversigned.json.sig", std::string(kLongestSignature + 1, 'A'));
  }
  static void TearDownTestSuite() { host.reset(); }

  /// What a user is told of the feed at an address.
  static UpdateMessage check(const std::string& address, QtFeedSource::Options options) {
    QtFeedSource source(std::move(options));
    SimulatedUpdateWindows windows;
    FeedUpdateController updates({kRunning, address, host->publicKey(), false, ""}, source, windows);
    updates.checkForUpdates();
    waitFor([&] { return windows.open; });
    return windows.open ? windows.shown.back() : UpdateMessage();
  }

  static UpdateMessage told(CheckResult result) {
    const bool isNew = result == CheckResult::newVersion;
    return messageFor({result, isNew ? parseFeed(feedOf("1.2.0")) : std::nullopt}, kRunning);
  }

  static inline std::unique_ptr<HttpsHost> host;
};

TEST_F(UpdatesOverHttps, KeepTheContractOfASource) {
  QtFeedSource source({kNever, host->trust()});
  const auto serve = [](const std::string& name, const std::string& bytes) { host->serve(name, bytes); };
  expectFeedSourceContract(source, {host->address("good"), host->plainAddress(), serve, waitFor});
}

TEST_F(UpdatesOverHttps, AreToldByWhatTheHostAnswers) {
  const struct {
    const char* manner;
    const char* feed;
    CheckResult result;
  } cases[] = {
      {"good", "new.json", CheckResult::newVersion},
      {"moved", "new.json", CheckResult::newVersion},
      {"good", "old.json", CheckResult::upToDate},
      {"good", "forged.json", CheckResult::notSigned},
      {"good", "cut.json", CheckResult::notSigned},
      {"good", "huge.json", CheckResult::notLoaded},
      {"good", "unsigned.json", CheckResult::notLoaded},
      {"good", "oversigned.json", CheckResult::notLoaded},
      {"gone", "new.json", CheckResult::notLoaded},
      {"partial", "new.json", CheckResult::notLoaded},
      {"truncated", "new.json", CheckResult::notLoaded},
      {"endless", "new.json", CheckResult::notLoaded},
      {"endless-error", "new.json", CheckResult::notLoaded},
      {"moved-to-http", "new.json", CheckResult::notLoaded},
      {"moved-to-file", "new.json", CheckResult::notLoaded},
      {"moved-again", "new.json", CheckResult::notLoaded},
  };
  for (const auto& [manner, feed, result] : cases) {
    EXPECT_EQ(check(host->address(manner) + feed, {kNever, host->trust()}), told(result))
        << manner << '/' << feed;
  }
}

TEST_F(UpdatesOverHttps, AreNotWaitedForBeyondTheTimeLimit) {
  for (const char* manner : {"slow", "silent"}) {
    EXPECT_EQ(check(host->address(manner) + "new.json", {200ms, host->trust()}), told(CheckResult::notLoaded))
        << manner;
  }
}

TEST_F(UpdatesOverHttps, AreNotTakenFromAHostThatIsNotTrusted) {
  const std::string byName = host->address("good") + "new.json";
  EXPECT_EQ(check(byName, {kNever, {}}), told(CheckResult::notLoaded));
  const std::string byNumber = host->addressByNumber() + "new.json";
  EXPECT_EQ(check(byNumber, {kNever, host->trust()}), told(CheckResult::notLoaded));
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
