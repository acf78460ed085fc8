// The port to the one key of the program that works in every other program: Option Command T.
#pragma once

#include <functional>
#include <string>

namespace brimle {

class HotKey {
 public:
  virtual ~HotKey() = default;

  /// Claims the key for the life of the process. Where another program owns it, nothing happens. `onPress`
  /// is given the activation token that came with the press; empty where none did.
  virtual void install(std::function<void(const std::string& token)> onPress) = 0;
};

}  // namespace brimle
