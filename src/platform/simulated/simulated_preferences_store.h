// Settings in memory.
#pragma once

#include <map>

#include "platform/preferences_store.h"

namespace brimle {

class SimulatedPreferencesStore : public PreferencesStore {
 public:
  std::map<std::string, std::string, std::less<>> values;
  bool open = true;

  bool isOpen() const override { return open; }
  std::optional<std::string> string(std::string_view key) const override {
    const auto found = values.find(key);
    return found == values.end() ? std::nullopt : std::optional(found->second);
  }
  void setString(std::string_view key, std::string_view value) override {
    values.insert_or_assign(std::string(key), std::string(value));
  }
};

}  // namespace brimle
