// A login item in memory, which the desktop may refuse to change or want approved.
#pragma once

#include "platform/login_item.h"
#include "platform/simulated/journal.h"

namespace brimle {

class SimulatedLoginItem : public LoginItem {
 public:
  explicit SimulatedLoginItem(Journal& journal) : journal_(journal) {}

  Status now = Status::notRegistered;
  /// What adding leads to.
  Status added = Status::enabled;
  bool refuses = false;

  Status status() const override { return now; }
  bool add() override { return change("login item added", added); }
  bool remove() override { return change("login item removed", Status::notRegistered); }

 private:
  bool change(const char* what, Status status) {
    journal_.emplace_back(what);
    if (!refuses) now = status;
    return !refuses;
  }

  Journal& journal_;
};

}  // namespace brimle
