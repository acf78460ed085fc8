// The main window's size and place: folding, the preset sizes, and the frame kept between launches.
#include "app/core/app_delegate.h"
#include "app/core/window_frame.h"
#include "app/core/window_rules.h"

namespace brimle {
namespace {

/// A window that is being dragged is saved once, not at every step.
constexpr Seconds kSaveDelay(0.5);

}  // namespace

/// A lower frame than that of an unfolded window was not kept by the program, and is raised.
void AppDelegate::restoreFrame() {
  const auto frame = readFrame(ports_.preferences.string(kFrameKey).value_or(""));
  if (!frame) return;
  ports_.window.setFrame(ontoAScreen(unfolded(*frame, frame->height), ports_.window.screens()));
}

void AppDelegate::windowFrameChanged() {
  if (std::exchange(frameUnsaved_, true)) return;
  later(kSaveDelay, [this] { saveFrame(); });
}

/// The next launch begins unfolded, so that a folded window is saved as what it unfolds to.
void AppDelegate::saveFrame() {
  if (!std::exchange(frameUnsaved_, false)) return;
  const Rect frame = ports_.window.frame();
  ports_.preferences.setString(kFrameKey,
                               frameText(isCompactNow_ ? unfolded(frame, expandedHeight_) : frame));
}

void AppDelegate::screensChanged() {
  const Rect frame = ports_.window.frame();
  const Rect seen = ontoAScreen(frame, ports_.window.screens());
  if (seen != frame) ports_.window.setFrame(seen);
}

void AppDelegate::willTerminate() {
  saveFrame();
}

void AppDelegate::moveWindow(const Rect& target) {
  const std::vector<Rect> screens = ports_.window.screens();
  ports_.window.setFrame(
      constrainToScreen(target, screens.empty() ? std::nullopt : std::optional(screens.front())));
}

void AppDelegate::applyCompact(bool compact) {
  if (std::exchange(isCompactNow_, compact) == compact) return;
  const Rect frame = ports_.window.frame();
  if (compact) expandedHeight_ = frame.height;
  moveWindow(compact ? folded(frame) : unfolded(frame, expandedHeight_));
}

void AppDelegate::setSize(Size size) {
  ui_.setCompact(false);
  moveWindow(resized(ports_.window.frame(), size));
  expandedHeight_ = size.height;
}

void AppDelegate::sizeCompact() {
  setSize(kCompactSize);
}
void AppDelegate::sizeRegular() {
  setSize(kRegularSize);
}
void AppDelegate::sizeLarge() {
  setSize(kLargeSize);
}

}  // namespace brimle
