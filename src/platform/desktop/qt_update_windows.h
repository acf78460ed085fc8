// The UpdateWindows port as a dialog of Qt Widgets in the desktop's own look: not modal, above the main
// window, which floats.
#pragma once

#include <QDialog>
#include <memory>

#include "platform/update_windows.h"

namespace brimle {

class QtUpdateWindows : public UpdateWindows {
 public:
  QtUpdateWindows();
  ~QtUpdateWindows() override;

  void show(const UpdateMessage& message) override;
  bool isOpen() const override;
  void bringForward() override;

 private:
  std::unique_ptr<QDialog> dialog_;  ///< the last one shown, open or closed; none before the first
};

}  // namespace brimle
