// The port to the one key of the program that works in every other program: Option Command T. It knows which
// key of the desktop stands for it, and tells when that changes.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "base/signal.h"

namespace brimle {

class HotKey {
 public:
  virtual ~HotKey() = default;

  /// Claims the key for the life of the process. Where another program owns it, nothing happens. `onPress`
  /// is given the activation token that came with the press; empty where none did.
  virtual void install(std::function<void(const std::string& token)> onPress) = 0;

  /// The key as the user reads it, like "Ctrl+Alt+T"; empty while none is in force or the desktop does not
  /// say which.
  std::string keyInForce() const { return keyInForce_; }
  /// Calls `observer` whenever the key in force changed.
  [[nodiscard]] Subscription observe(std::function<void()> observer) {
    return changed_.subscribe(std::move(observer));
  }

 protected:
  void setKeyInForce(std::string key) {
    if (key == keyInForce_) return;
    keyInForce_ = std::move(key);
    changed_.notify();
  }

 private:
  std::string keyInForce_;
  Signal<> changed_;
};

}  // namespace brimle
