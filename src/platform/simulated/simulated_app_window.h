// The main window without a screen: it is where it was last put, and a text field has the keyboard when the
// test says so.
#pragma once

#include <algorithm>

#include "platform/app_window.h"
#include "platform/simulated/journal.h"

namespace brimle {

class SimulatedAppWindow : public AppWindow {
 public:
  explicit SimulatedAppWindow(Journal& journal) : journal_(journal) {}

  Rect at{100, 50, 300, 400};
  std::vector<Rect> visibleAreas{{0, 30, 1920, 1050}};
  /// What the field that has the keyboard takes; empty where none has it.
  std::vector<EditCommand> fieldTakes;

  Rect frame() const override { return at; }
  void setFrame(const Rect& frame) override { at = frame; }
  std::vector<Rect> screens() const override { return visibleAreas; }
  void orderFront() override { journal_.emplace_back("window in front"); }
  void minimise() override { journal_.emplace_back("window minimised"); }
  void refreshPaper() override { journal_.emplace_back("fresh paper"); }
  bool edit(EditCommand command) override {
    if (std::ranges::find(fieldTakes, command) == fieldTakes.end()) return false;
    journal_.emplace_back("field edits");
    return true;
  }

 private:
  Journal& journal_;
};

}  // namespace brimle
