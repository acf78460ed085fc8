// What the program asks of the desktop beyond its window: the clipboard, mail, the login item, notifications.
#include "app/core/app_delegate.h"
#include "app/core/feedback_link.h"
#include "i18n/i18n.h"

namespace brimle {
namespace {

constexpr Seconds kTestDelay(5);

}  // namespace

void AppDelegate::scheduleTestArrival() {
  if (const auto title = ports_.preferences.string("testArrival")) {
    ports_.notifications.addIn(kTestDelay, {.identifier = "arrival-test",
                                            .title = *title,
                                            .body = I18n::t("On your list today."),
                                            .trigger = std::nullopt});
  }
}

void AppDelegate::copyDay() {
  ports_.pasteboard.setString(store_.dayAsText());
}

void AppDelegate::pasteTasks() {
  if (const auto text = ports_.pasteboard.string()) store_.addLines(*text, false);
}

void AppDelegate::showAbout() {
  ports_.application.showAbout({.text = "Your daily list.", .size = 11});
  ports_.application.activate({});
}

void AppDelegate::toggleLoginItem() {
  LoginItem& item = ports_.loginItem;
  const bool done = item.status() == LoginItem::Status::enabled ? item.remove() : item.add();
  if (!done) ports_.desktop.beep();
  updateMarks({MarkGroup::login});
}

void AppDelegate::showShortcuts() {
  ports_.shortcuts.show(I18n::t("Shortcuts"));
}

void AppDelegate::sendFeedback() {
  if (const auto link = feedbackLink(supportAddress_)) ports_.links.open(*link);
}

}  // namespace brimle
