// What the desktop says and does on the side, through Qt and the Settings portal.
#pragma once

#include "platform/desktop.h"
#include "platform/desktop/qt_settings_portal.h"

namespace brimle {

class QtDesktop : public Desktop {
 public:
  /// `settings` must outlive this.
  explicit QtDesktop(const QtSettingsPortal& settings) : settings_(settings) {}

  void beep() override;
  bool reduceMotion() const override { return settings_.reduceMotion(); }

 private:
  const QtSettingsPortal& settings_;
};

}  // namespace brimle
