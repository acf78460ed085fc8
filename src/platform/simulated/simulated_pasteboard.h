// A clipboard in memory.
#pragma once

#include "platform/pasteboard.h"

namespace brimle {

class SimulatedPasteboard : public Pasteboard {
 public:
  std::optional<std::string> text;

  std::optional<std::string> string() const override { return text; }
  void setString(std::string_view value) override { text = std::string(value); }
};

}  // namespace brimle
