#include "app/core/window_frame.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "app/core/window_rules.h"

namespace brimle {
namespace {

/// In points; farther out, or larger, than this is no desktop's.
constexpr double kFarthest = 100'000;

/// A number, or nothing, from the front of `text`, which it takes away.
std::optional<double> takeNumber(std::string_view& text) {
  double number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || !(std::abs(number) <= kFarthest)) return std::nullopt;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return number;
}

bool overlap(const Rect& a, const Rect& b) {
  return a.x < b.right() && b.x < a.right() && a.y < b.bottom() && b.y < a.bottom();
}

/// Whether a frame is no larger than all screens together.
bool fitsOn(std::span<const Rect> screens, const Rect& frame) {
  const double left = std::ranges::min(screens, {}, &Rect::x).x;
  const double top = std::ranges::min(screens, {}, &Rect::y).y;
  const double right = std::ranges::max(screens, {}, &Rect::right).right();
  const double bottom = std::ranges::max(screens, {}, &Rect::bottom).bottom();
  return frame.width <= right - left && frame.height <= bottom - top;
}

}  // namespace

std::string frameText(const Rect& frame) {
  std::string text;
  for (const double number : {frame.x, frame.y, frame.width, frame.height}) {
    std::array<char, 32> digits;
    const auto end = std::to_chars(digits.begin(), digits.end(), number).ptr;
    if (!text.empty()) text += ' ';
    text.append(digits.begin(), end);
  }
  return text;
}

std::optional<Rect> readFrame(std::string_view text) {
  std::array<double, 4> numbers;
  for (std::size_t at = 0; at < numbers.size(); ++at) {
    if (at > 0 && !text.starts_with(' ')) return std::nullopt;
    if (at > 0) text.remove_prefix(1);
    const auto number = takeNumber(text);
    if (!number) return std::nullopt;
    numbers[at] = *number;
  }
  const Rect frame{numbers[0], numbers[1], numbers[2], numbers[3]};
  const bool isFrame = text.empty() && frame.width >= 1 && frame.height >= 1;
  return isFrame ? std::optional(frame) : std::nullopt;
}

Rect ontoAScreen(const Rect& frame, std::span<const Rect> screens) {
  if (screens.empty()) return frame;
  const auto seen = std::ranges::find_if(screens, [&](const Rect& screen) { return overlap(frame, screen); });
  if (seen == screens.end()) return constrainToScreen(frame, screens.front());
  return fitsOn(screens, frame) ? frame : constrainToScreen(frame, *seen);
}

}  // namespace brimle
