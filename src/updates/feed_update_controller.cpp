#include "updates/feed_update_controller.h"

#include <utility>

#include "updates/signature.h"

namespace brimle {

FeedUpdateController::FeedUpdateController(BuildSettings settings, FeedSource& source, UpdateWindows& windows)
    : settings_(std::move(settings)), source_(source), windows_(windows) {}

void FeedUpdateController::checkForUpdates() {
  if (checking_) return;
  if (windows_.isOpen()) return windows_.bringForward();
  if (const auto result = resultWithoutFeed(settings_)) return tell({*result, {}});
  checking_ = true;
  fetch(settings_.updateFeed, kLongestFeed, [this](std::string document) {
    fetch(settings_.updateFeed + ".sig", kLongestSignature,
          [this, document = std::move(document)](const std::string& signature) {
            tell(judge(document, signature, settings_));
          });
  });
}

void FeedUpdateController::fetch(const std::string& address, std::size_t limit,
                                 std::function<void(std::string)> then) {
  source_.fetch(address, limit, life_.guard([this, then = std::move(then)](std::optional<std::string> bytes) {
    if (!bytes) return tell({CheckResult::notLoaded, {}});
    then(std::move(*bytes));
  }));
}

void FeedUpdateController::tell(const CheckOutcome& outcome) {
  checking_ = false;
  windows_.show(messageFor(outcome, settings_.version));
}

}  // namespace brimle
