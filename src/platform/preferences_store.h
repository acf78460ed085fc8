// The port to the user's settings: one string a key, written back at once.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace brimle {

class PreferencesStore {
 public:
  virtual ~PreferencesStore() = default;

  /// False where the settings are there but cannot be opened; settings that are absent are open and empty.
  virtual bool isOpen() const = 0;
  /// The value under a key; nothing where it is absent.
  virtual std::optional<std::string> string(std::string_view key) const = 0;
  virtual void setString(std::string_view key, std::string_view value) = 0;
};

}  // namespace brimle
