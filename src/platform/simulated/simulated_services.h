// Services of a simulated desktop that only write down what they were asked: links, the shortcuts panel, the
// update check.
#pragma once

#include "platform/link_opener.h"
#include "platform/shortcuts_panel.h"
#include "platform/simulated/journal.h"
#include "platform/update_controller.h"

namespace brimle {

class SimulatedLinkOpener : public LinkOpener {
 public:
  explicit SimulatedLinkOpener(Journal& journal) : journal_(journal) {}
  void open(const std::string& link) override { journal_.push_back("open " + link); }

 private:
  Journal& journal_;
};

class SimulatedShortcutsPanel : public ShortcutsPanel {
 public:
  explicit SimulatedShortcutsPanel(Journal& journal) : journal_(journal) {}
  void show(const std::string& title) override { journal_.push_back("panel " + title); }

 private:
  Journal& journal_;
};

class SimulatedUpdateController : public UpdateController {
 public:
  explicit SimulatedUpdateController(Journal& journal) : journal_(journal) {}
  void checkForUpdates() override { journal_.emplace_back("update check"); }

 private:
  Journal& journal_;
};

}  // namespace brimle
