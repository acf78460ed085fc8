// Whether Alt was tapped bare: pressed and released with no other key or button between, which opens the
// menu. Alt held with another key or a click never does.
#pragma once

namespace brimle {

class AltTap {
 public:
  enum class Input { altPressed, altReleased, other };

  /// Takes the next input of the window; whether it ended a bare tap.
  bool ended(Input input) {
    const bool wasAlone = alone_;
    alone_ = input == Input::altPressed;
    return wasAlone && input == Input::altReleased;
  }

 private:
  bool alone_ = false;
};

}  // namespace brimle
