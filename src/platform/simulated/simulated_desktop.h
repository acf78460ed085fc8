// The Desktop port for tests: counts beeps and lets the test decide on motion.
#pragma once

#include "platform/desktop.h"

namespace brimle {

class SimulatedDesktop : public Desktop {
 public:
  int beeps = 0;
  bool motionReduced = false;

  void beep() override { ++beeps; }
  bool reduceMotion() const override { return motionReduced; }
};

}  // namespace brimle
