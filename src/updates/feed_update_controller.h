// Updates by a signed feed: asks for the feed and its signature, judges them, opens the window.
//
// It does nothing on its own: no check without the user's command, and nothing is kept between checks.
#pragma once

#include <string>

#include "base/lifetime.h"
#include "platform/build_settings.h"
#include "platform/feed_source.h"
#include "platform/update_controller.h"
#include "platform/update_windows.h"
#include "updates/update_check.h"

namespace brimle {

class FeedUpdateController : public UpdateController {
 public:
  /// `source` and `windows` must outlive this.
  FeedUpdateController(BuildSettings settings, FeedSource& source, UpdateWindows& windows);

  void checkForUpdates() override;

 private:
  void fetch(const std::string& address, std::size_t limit, std::function<void(std::string)> then);
  void tell(const CheckOutcome& outcome);

  BuildSettings settings_;
  FeedSource& source_;
  UpdateWindows& windows_;
  bool checking_ = false;
  Lifetime life_;
};

}  // namespace brimle
