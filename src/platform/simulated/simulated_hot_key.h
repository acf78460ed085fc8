// The hot key of a desktop where it is free, or taken when the test says so.
#pragma once

#include <utility>

#include "platform/hot_key.h"

namespace brimle {

class SimulatedHotKey : public HotKey {
 public:
  bool taken = false;
  std::function<void(const std::string& token)> press = [](const auto&) {};

  void install(std::function<void(const std::string& token)> onPress) override {
    if (taken) return;
    press = std::move(onPress);
    setKeyInForce("Ctrl+Alt+T");
  }

  using HotKey::setKeyInForce;
};

}  // namespace brimle
