// The program as the desktop sees it, on Qt: all of its windows, and the appearance in force.
#pragma once

#include <QDialog>
#include <QPointer>
#include <optional>

#include "platform/application.h"
#include "platform/desktop/qt_settings_portal.h"
#include "views/qt/theme.h"

namespace brimle {

class QtApplication : public Application {
 public:
  /// The theme follows the portal from now on, and where that tells no preference, `desktopLooksDark`. Both
  /// references must outlive this.
  QtApplication(Theme& theme, QtSettingsPortal& settings, bool desktopLooksDark);

  void activate(const std::string& token) override;
  bool hasVisibleWindow() const override;
  void forceAppearance(std::optional<bool> dark) override;
  void showAbout(const Credits& credits) override;
  void quit() override;

 private:
  void follow();

  Theme& theme_;
  QtSettingsPortal& settings_;
  const bool desktopLooksDark_;
  std::optional<bool> forcedDark_;
  QPointer<QDialog> about_;
  Subscription following_;
};

}  // namespace brimle
