// The port to what the desktop says and does on the side: its alert sound and its accessibility settings.
#pragma once

namespace brimle {

class Desktop {
 public:
  virtual ~Desktop() = default;

  /// The system's alert sound.
  virtual void beep() = 0;
  /// True while the user asks for less animation.
  virtual bool reduceMotion() const = 0;
};

}  // namespace brimle
