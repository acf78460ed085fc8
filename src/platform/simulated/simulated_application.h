// The program on a simulated desktop: it has a visible window when the test says so.
#pragma once

#include "platform/application.h"
#include "platform/simulated/journal.h"

namespace brimle {

class SimulatedApplication : public Application {
 public:
  explicit SimulatedApplication(Journal& journal) : journal_(journal) {}

  bool windowIsVisible = false;
  std::optional<bool> forcedDark;

  void activate(const std::string& token) override {
    journal_.push_back(token.empty() ? "activated" : "activated by " + token);
  }
  bool hasVisibleWindow() const override { return windowIsVisible; }
  void forceAppearance(std::optional<bool> dark) override {
    forcedDark = dark;
    journal_.push_back(!dark ? "appearance of the desktop" : *dark ? "dark appearance" : "light appearance");
  }
  void showAbout(const Credits& credits) override {
    journal_.push_back("about: " + credits.text + " at " + std::to_string(static_cast<int>(credits.size)));
  }
  void quit() override { journal_.emplace_back("quit"); }

 private:
  Journal& journal_;
};

}  // namespace brimle
