#include "app/core/window_rules.h"

#include <algorithm>

namespace brimle {
namespace {

struct Span {
  double start;
  double length;
};

Span within(Span span, Span room) {
  const double length = std::min(span.length, room.length);
  const double start = std::min(span.start, room.start + room.length - length);
  return {std::max(start, room.start), length};
}

}  // namespace

Rect folded(const Rect& frame) {
  return resized(frame, {frame.width, kFoldedHeight});
}

Rect unfolded(const Rect& frame, double expandedHeight) {
  return resized(frame, {frame.width, std::max(expandedHeight, kLeastSize.height)});
}

Rect resized(const Rect& frame, Size size) {
  return {frame.x, frame.y, size.width, size.height};
}

Rect constrainToScreen(const Rect& frame, const std::optional<Rect>& visible) {
  if (!visible) return frame;
  const Span across = within({frame.x, frame.width}, {visible->x, visible->width});
  const Span down = within({frame.y, frame.height}, {visible->y, visible->height});
  return {across.start, down.start, across.length, down.length};
}

}  // namespace brimle
