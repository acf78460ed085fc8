// A status item without a status area; the test clicks on it.
#pragma once

#include <utility>

#include "platform/status_item.h"

namespace brimle {

class SimulatedStatusItem : public StatusItem {
 public:
  Actions actions;  ///< those of a click; none before the item is there
  std::string title, tooltip;

  void install(Actions installed) override { actions = std::move(installed); }
  void setTitle(const std::string& text, const std::string& words) override {
    title = text;
    tooltip = words;
  }
};

}  // namespace brimle
