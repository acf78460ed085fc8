// Rectangles of the desktop, in points: device-independent pixels, x growing to the right and y downward, so
// that the origin is the top left corner.
#pragma once

namespace brimle {

struct Size {
  double width = 0;
  double height = 0;

  bool operator==(const Size&) const = default;
};

struct Rect {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;

  double right() const { return x + width; }
  double bottom() const { return y + height; }
  bool operator==(const Rect&) const = default;
};

}  // namespace brimle
