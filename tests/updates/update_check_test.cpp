// Which feeds are believed, what a user is told of them, and when they are asked for at all.
#include "updates/update_check.h"

#include <gmock/gmock.h>

#include "i18n/i18n.h"
#include "platform/simulated/simulated_feed_source.h"
#include "platform/simulated/simulated_update_windows.h"
#include "updates/feed_signer.h"
#include "updates/feed_source_contract.h"
#include "updates/feed_update_controller.h"

namespace brimle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string kAddress = "https://brimle.example/feed.json";

class UpdateCheck : public testing::Test {
 protected:
  void publish(const std::string& document, const std::string& signature) {
    source.documents = {{kAddress, document}, {kAddress + ".sig", signature}};
  }

  FeedSigner maintainer;
  BuildSettings settings{{{1, 1, 0}}, kAddress, maintainer.publicKey(), false, ""};
  SimulatedFeedSource source;
  SimulatedUpdateWindows windows;
};

TEST_F(UpdateCheck, BelievesOnlyWhatIsSignedAndOffersOnlyWhatIsNewer) {
  const FeedSigner stranger;
  const std::string newer = feedOf("1.2.0");
  const std::string good = maintainer.sign(newer);
  std::string forged = newer;
  forged.replace(forged.find("1.2.0"), 5, "6.6.6");
  std::string bent = good;
  bent.front() = bent.front() == 'A' ? 'B' : 'A';
  const struct {
    const char* what;
    std::string document;
    std::string signature;
    CheckResult result;
  } cases[] = {
      {"newer", newer, good, CheckResult::newVersion},
      {"line ending behind the signature", newer, good + "\r\n", CheckResult::newVersion},
      {"equal", feedOf("1.1.0"), maintainer.sign(feedOf("1.1.0")), CheckResult::upToDate},
      {"downgraded", feedOf("1.0.99"), maintainer.sign(feedOf("1.0.99")), CheckResult::upToDate},
      {"forged", forged, good, CheckResult::notSigned},
      {"one byte more", newer + "\n", good, CheckResult::notSigned},
      {"truncated", newer.substr(0, newer.size() - 1), good, CheckResult::notSigned},
      {"somebody else's", newer, stranger.sign(newer), CheckResult::notSigned},
      {"bent signature", newer, bent, CheckResult::notSigned},
      {"no signature", newer, "", CheckResult::notSigned},
      {"long signature", newer, good.substr(0, 86) + "AA==", CheckResult::notSigned},
      {"signature that is no base64", newer, std::string(88, '*'), CheckResult::notSigned},
      {"endless signature", newer, good + std::string(100, '\n'), CheckResult::notSigned},
      {"signed but no JSON", "1.2.0", maintainer.sign("1.2.0"), CheckResult::notReadable},
  };
  for (const auto& [what, document, signature, result] : cases) {
    const CheckOutcome outcome = judge(document, signature, settings);
    EXPECT_EQ(outcome.result, result) << what;
    EXPECT_EQ(outcome.feed.has_value(), result == CheckResult::newVersion) << what;
  }
}

TEST_F(UpdateCheck, BelievesNothingWithoutAKey) {
  const std::string feed = feedOf("1.2.0");
  const std::string zeros = std::string(43, 'A') + "=";
  for (const std::string& key : {std::string(), zeros, settings.updateKey.substr(4), settings.updateKey + "A",
                                 FeedSigner().publicKey()}) {
    settings.updateKey = key;
    EXPECT_EQ(judge(feed, maintainer.sign(feed), settings).result, CheckResult::notSigned) << key;
    EXPECT_EQ(judge(feed, std::string(86, 'A') + "==", settings).result, CheckResult::notSigned) << key;
  }
}

TEST_F(UpdateCheck, TellsWhatItFoundInTheInterfaceLanguage) {
  I18n::setLang("de");
  const UpdateMessage isNew{"Eine neue Version ist verfügbar",
                            "Version 1.2.0 ist verfügbar. Du hast 1.1.0.\n15. Juni 2026",
                            "Faster.",
                            {{"Herunterladen", "https://brimle.example/new"}, {"Später", ""}}};
  EXPECT_EQ(messageFor({CheckResult::newVersion, parseFeed(feedOf("1.2.0"))}, settings.version), isNew);
  const UpdateMessage isNot{"Du bist auf dem neuesten Stand", "Du hast Version 1.1.0.", "", {{"OK", ""}}};
  EXPECT_EQ(messageFor({CheckResult::upToDate, {}}, settings.version), isNot);
  I18n::setLang("en");
}

TEST_F(UpdateCheck, RunsOnCommandOnceAtATimeAndOpensOneWindow) {
  publish(feedOf("1.2.0"), maintainer.sign(feedOf("1.2.0")));
  FeedUpdateController updates(settings, source, windows);
  EXPECT_THAT(source.asked, IsEmpty());
  updates.checkForUpdates();
  updates.checkForUpdates();
  source.deliver();
  updates.checkForUpdates();
  EXPECT_THAT(windows.shown, IsEmpty());
  source.deliverAll();
  EXPECT_THAT(source.asked, ElementsAre(kAddress, kAddress + ".sig"));
  ASSERT_EQ(windows.shown.size(), 1u);
  EXPECT_EQ(windows.shown[0].title, "A new version is available");

  updates.checkForUpdates();
  EXPECT_EQ(source.asked.size(), 2u);
  EXPECT_EQ(windows.broughtForward, 1);
  windows.open = false;
  updates.checkForUpdates();
  source.deliverAll();
  EXPECT_EQ(windows.shown.size(), 2u);
}

TEST_F(UpdateCheck, FailsWhereEitherFileCannotBeHadAndCanBeRepeated) {
  const std::string feed = feedOf("1.2.0");
  const std::map<std::string, std::string> answers[] = {
      {},
      {{kAddress, feed}},
      {{kAddress + ".sig", maintainer.sign(feed)}},
      {{kAddress, std::string(kLongestFeed + 1, ' ')}, {kAddress + ".sig", maintainer.sign(feed)}},
  };
  FeedUpdateController updates(settings, source, windows);
  for (const auto& documents : answers) {
    source.documents = documents;
    windows.open = false;
    updates.checkForUpdates();
    source.deliverAll();
    ASSERT_FALSE(windows.shown.empty());
    EXPECT_EQ(windows.shown.back(), messageFor({CheckResult::notLoaded, {}}, settings.version));
  }
  EXPECT_EQ(windows.shown.size(), std::size(answers));
}

TEST_F(UpdateCheck, AsksNobodyWherePackagedOrWithoutAFeed) {
  settings.packaged = true;
  FeedUpdateController(settings, source, windows).checkForUpdates();
  EXPECT_EQ(windows.shown.back().title, "Updates come from your package manager.");
  windows.open = settings.packaged = false;
  settings.updateFeed.clear();
  FeedUpdateController(settings, source, windows).checkForUpdates();
  EXPECT_EQ(windows.shown.back().title, "Updates are not configured in this build.");
  EXPECT_THAT(source.asked, IsEmpty());
}

TEST_F(UpdateCheck, IsForgottenWhenTheProgramEnds) {
  auto updates = std::make_unique<FeedUpdateController>(settings, source, windows);
  updates->checkForUpdates();
  updates.reset();
  source.deliverAll();
  EXPECT_THAT(windows.shown, IsEmpty());
}

TEST(SimulatedFeedSource, KeepsTheContractOfASource) {
  SimulatedFeedSource source;
  const auto serve = [&](const std::string& name, const std::string& bytes) {
    for (const char* scheme : {"https://a/", "http://a/"}) source.documents[scheme + name] = bytes;
  };
  expectFeedSourceContract(source,
                           {"https://a/", "http://a/", serve, [&](const auto&) { source.deliverAll(); }});
}

}  // namespace
}  // namespace brimle
