#include "updates/update_check.h"

#include <algorithm>
#include <string>

#include "i18n/dates.h"
#include "i18n/i18n.h"
#include "updates/signature.h"

namespace brimle {
namespace {

/// English keys of the texts. In both, %1 stands for the version that is told of and %2 for the running one.
struct Wording {
  CheckResult result;
  std::string_view title;
  std::string_view text;
};

constexpr Wording kWordings[] = {
    {CheckResult::packaged, "Updates come from your package manager.", "You have version %1."},
    {CheckResult::notConfigured, "Updates are not configured in this build.", "You have version %1."},
    {CheckResult::notLoaded, "The update check failed", "The update information could not be loaded."},
    {CheckResult::notSigned, "The update check failed",
     "The signature of the update information is not valid."},
    {CheckResult::notReadable, "The update check failed", "The update information has errors."},
    {CheckResult::upToDate, "You're up to date", "You have version %1."},
    {CheckResult::newVersion, "A new version is available", "Version %1 is available. You have %2."},
};

void replace(std::string& text, std::string_view placeholder, const std::string& value) {
  const auto at = text.find(placeholder);
  if (at != text.npos) text.replace(at, placeholder.size(), value);
}

std::string told(std::string_view key, const Version& first, const Version& second) {
  std::string text(I18n::t(key));
  replace(text, "%1", first.string());
  replace(text, "%2", second.string());
  return text;
}

}  // namespace

std::optional<CheckResult> resultWithoutFeed(const BuildSettings& settings) {
  if (settings.packaged) return CheckResult::packaged;
  if (settings.updateFeed.empty()) return CheckResult::notConfigured;
  return std::nullopt;
}

CheckOutcome judge(std::string_view document, std::string_view signature, const BuildSettings& settings) {
  if (!isSigned(document, signature, settings.updateKey)) return {CheckResult::notSigned, {}};
  auto feed = parseFeed(document);
  if (!feed) return {CheckResult::notReadable, {}};
  if (feed->version <= settings.version) return {CheckResult::upToDate, {}};
  return {CheckResult::newVersion, std::move(feed)};
}

UpdateMessage messageFor(const CheckOutcome& outcome, const Version& running) {
  const auto& [result, title, body] = *std::ranges::find(kWordings, outcome.result, &Wording::result);
  if (!outcome.feed) return {I18n::t(title), told(body, running, running), {}, {{I18n::t("OK"), {}}}};
  const Feed& feed = *outcome.feed;
  return {I18n::t(title),
          told(body, feed.version, running) + '\n' + formatDay(feed.date, "dMMMMy"),
          feed.notes,
          {{I18n::t("Download"), feed.address}, {I18n::t("Later"), {}}}};
}

}  // namespace brimle
