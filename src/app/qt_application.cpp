#include "app/qt_application.h"

#include <QApplication>
#include <QWindow>
#include <algorithm>

#include "app/about_panel.h"
#include "i18n/i18n.h"
#include "views/qt/convert.h"

namespace brimle {
namespace {

bool isVisible(const QWindow* window) {
  const bool ofItsOwn = window->type() == Qt::Window || window->type() == Qt::Dialog;
  return ofItsOwn && window->isVisible() && !window->windowStates().testFlag(Qt::WindowMinimized);
}

}  // namespace

QtApplication::QtApplication(Theme& theme, QtSettingsPortal& settings, bool desktopLooksDark)
    : theme_(theme),
      settings_(settings),
      desktopLooksDark_(desktopLooksDark),
      following_(settings.observe([this] { follow(); })) {
  follow();
}

void QtApplication::follow() {
  const bool dark = forcedDark_.value_or(settings_.dark().value_or(desktopLooksDark_));
  theme_.setAppearance(dark ? Appearance::dark : Appearance::light);
  theme_.setHighContrast(settings_.highContrast());
  theme_.setReduceMotion(settings_.reduceMotion());
  theme_.setTextScale(settings_.textScale());
}

/// The token goes to whichever window asks for the keyboard next.
void QtApplication::activate(const std::string& token) {
  if (!token.empty()) qputenv("XDG_ACTIVATION_TOKEN", QByteArray::fromStdString(token));
  for (QWindow* window : QGuiApplication::topLevelWindows()) {
    if (!isVisible(window)) continue;
    window->raise();
    window->requestActivate();
  }
}

bool QtApplication::hasVisibleWindow() const {
  const QWindowList windows = QGuiApplication::topLevelWindows();
  return std::any_of(windows.begin(), windows.end(), isVisible);
}

void QtApplication::forceAppearance(std::optional<bool> dark) {
  forcedDark_ = dark;
  follow();
}

void QtApplication::showAbout(const Credits& credits) {
  if (!about_) about_ = makeAboutPanel(theme_, credits);
  about_->setWindowTitle(toQt(I18n::t("About Brimle")));
  about_->show();
}

void QtApplication::quit() {
  QMetaObject::invokeMethod(
      qApp, [] { QCoreApplication::quit(); }, Qt::QueuedConnection);
}

}  // namespace brimle
