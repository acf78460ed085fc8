// The UpdateWindows port for tests: keeps what was shown and lets the test close it.
#pragma once

#include <vector>

#include "platform/update_windows.h"

namespace brimle {

class SimulatedUpdateWindows : public UpdateWindows {
 public:
  std::vector<UpdateMessage> shown;
  int broughtForward = 0;
  bool open = false;

  void show(const UpdateMessage& message) override {
    shown.push_back(message);
    open = true;
  }
  bool isOpen() const override { return open; }
  void bringForward() override {
    if (open) ++broughtForward;
  }
};

}  // namespace brimle
