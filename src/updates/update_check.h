// What an update check finds, and how it is told. No network and no window: both are values.
#pragma once

#include <optional>
#include <string_view>

#include "platform/build_settings.h"
#include "platform/update_windows.h"
#include "updates/feed.h"

namespace brimle {

enum class CheckResult {
  packaged,       ///< another program keeps this one current
  notConfigured,  ///< the build has no feed
  notLoaded,      ///< the feed or its signature could not be had
  notSigned,      ///< the signature does not fit the feed and the build's key
  notReadable,    ///< signed, but no feed
  upToDate,
  newVersion,
};

struct CheckOutcome {
  CheckResult result;
  std::optional<Feed> feed;  ///< of the new version
  bool operator==(const CheckOutcome&) const = default;
};

/// What this build can tell without a feed; nothing where it has to fetch one.
std::optional<CheckResult> resultWithoutFeed(const BuildSettings& settings);

/// What a fetched feed tells. Nothing in it is looked at before its signature is found right, and a version
/// that is not newer than the running one is never offered.
CheckOutcome judge(std::string_view document, std::string_view signature, const BuildSettings& settings);

/// The window for an outcome, in the interface language.
UpdateMessage messageFor(const CheckOutcome& outcome, const Version& running);

}  // namespace brimle
