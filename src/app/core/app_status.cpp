// The status item: the count of open tasks beside it, and its small menu.
#include "app/core/app_delegate.h"
#include "i18n/counts.h"
#include "i18n/i18n.h"

namespace brimle {

void AppDelegate::installStatusItem() {
  ports_.status.install({.click = [this](const std::string& token) { focusQuickAdd(token); },
                         .menu = [this] { return statusMenu(); }});
  cancellables_.push_back(store_.observe([this](const Store::Changes& changes) {
    if (changes.has(Store::Field::items)) updateStatus();
  }));
  updateStatus();
}

void AppDelegate::updateStatus() {
  const std::size_t open = store_.remaining();
  ports_.status.setTitle(open > 0 ? " " + std::to_string(open) : "", countText());
}

std::string AppDelegate::countText() const {
  const auto open = static_cast<long long>(store_.remaining());
  return open > 0 ? I18n::tasksCount(open) : I18n::t("all done");
}

std::vector<MenuEntry> AppDelegate::statusMenu() {
  const auto item = [](std::string_view title, std::function<void()> action) {
    return MenuEntry{.title = I18n::t(title), .action = std::move(action)};
  };
  const MenuEntry separator;
  return {{.title = countText()},
          separator,
          item("New Task", [this] { newTask(); }),
          separator,
          item("Quit Brimle", [this] { quit(); })};
}

}  // namespace brimle
