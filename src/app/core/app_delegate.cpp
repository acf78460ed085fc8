#include "app/core/app_delegate.h"

#include <utility>

#include "app/core/window_rules.h"

namespace brimle {

AppDelegate::AppDelegate(Ports ports, Store& store, UIState& ui, Signal<>& todayFocusAdd,
                         std::string supportAddress)
    : ports_(ports),
      store_(store),
      ui_(ui),
      todayFocusAdd_(todayFocusAdd),
      supportAddress_(std::move(supportAddress)),
      expandedHeight_(kRegularSize.height) {
  installMenu();
}

void AppDelegate::finishedLaunching() {
  store_.resyncArrivalNotifications();
  scheduleTestArrival();
  restoreFrame();
  ports_.window.orderFront();
  ports_.application.activate({});
  seenCompact_ = ui_.compact();
  seenPaperTone_ = ui_.paperTone();
  cancellables_.push_back(ui_.observe([this] { settingsChanged(); }));
  cancellables_.push_back(ports_.time.onWake([this] { store_.rolloverIfNeeded(); }));
  applyAppearance();
  menuWillOpen();
}

void AppDelegate::joinDesktop() {
  ports_.hotKey.install([this](const std::string& token) { focusQuickAdd(token); });
  installStatusItem();
}

/// Reacts on the main queue: whoever assigns a setting finishes first, and a size chosen for a folded window
/// is there before the window unfolds.
void AppDelegate::settingsChanged() {
  if (std::exchange(seenCompact_, ui_.compact()) != ui_.compact()) {
    later(Seconds(0), [this, compact = ui_.compact()] { applyCompact(compact); });
  }
  if (std::exchange(seenPaperTone_, ui_.paperTone()) != ui_.paperTone()) {
    later(Seconds(0), [this] { ports_.window.refreshPaper(); });
  }
}

void AppDelegate::becameActive() {
  store_.rolloverIfNeeded();
}

void AppDelegate::reopen(const std::string& token) {
  store_.rolloverIfNeeded();
  const bool isHidden = !ports_.application.hasVisibleWindow();
  ports_.application.activate(token);
  if (isHidden) ports_.window.orderFront();
}

void AppDelegate::focusQuickAdd(const std::string& token) {
  ports_.application.activate(token);
  ports_.window.orderFront();
  todayFocusAdd_.notify();
}

bool AppDelegate::performKeyEquivalent(const KeyPress& key) {
  const MenuEntry* item = itemFor(menuBar_, key);
  if (!item) return false;
  // A copy, for what it does may replace the menu bar.
  const auto action = item->action;
  action();
  return true;
}

}  // namespace brimle
