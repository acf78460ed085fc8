// What the desktop says and does on the side, through Qt.
#pragma once

#include "platform/desktop.h"

namespace brimle {

class QtDesktop : public Desktop {
 public:
  void beep() override;
  bool reduceMotion() const override { return reduceMotion_; }

 private:
  bool reduceMotion_ = false;
};

}  // namespace brimle
