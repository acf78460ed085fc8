// The clipboard of the desktop.
#pragma once

#include "platform/pasteboard.h"

namespace brimle {

class QtPasteboard : public Pasteboard {
 public:
  std::optional<std::string> string() const override;
  void setString(std::string_view text) override;
};

}  // namespace brimle
