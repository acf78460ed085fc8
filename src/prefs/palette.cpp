#include "prefs/palette.h"

#include <array>
#include <utility>

namespace brimle::Palette {
namespace {

struct Pair {
  Color light;
  Color dark;

  const Color& in(Appearance appearance) const { return appearance == Appearance::dark ? dark : light; }
};

constexpr Color grey(double level, double alpha) {
  return {level, level, level, alpha};
}

constexpr Pair kPlainPaper{grey(0.99, 1), grey(0.115, 1)};
constexpr Pair kWarmPaper{{0.984, 0.973, 0.918, 1}, {0.125, 0.12, 0.11, 1}};
constexpr Pair kPencilRed{{0.7, 0.29, 0.21, 1}, {0.85, 0.47, 0.38, 1}};
constexpr Pair kHighlight{{1.0, 0.87, 0.3, 0.45}, {0.95, 0.75, 0.25, 0.32}};
constexpr Pair kSelection{grey(0, 0.09), grey(1, 0.16)};

/// Opacities of the label ranks: on light, on dark, and where the desktop asks for high contrast.
struct LabelOpacity {
  double light;
  double dark;
  double highContrast;
};
constexpr std::array<LabelOpacity, 4> kLabels{{
    {0.85, 0.85, 1.0},   // primary
    {0.50, 0.55, 0.75},  // secondary
    {0.26, 0.25, 0.6},   // tertiary
    {0.25, 0.25, 0.6},   // placeholder
}};

std::string& currentTone() {
  static std::string tone = "warm";
  return tone;
}

}  // namespace

const std::string& tone() {
  return currentTone();
}
void setTone(std::string tone) {
  currentTone() = std::move(tone);
}

Color paper(Appearance appearance) {
  return (tone() == "plain" ? kPlainPaper : kWarmPaper).in(appearance);
}
Color pencilRed(Appearance appearance) {
  return kPencilRed.in(appearance);
}
Color highlight(Appearance appearance) {
  return kHighlight.in(appearance);
}
Color selection(Appearance appearance) {
  return kSelection.in(appearance);
}

Color label(Label rank, Appearance appearance, bool highContrast) {
  const LabelOpacity& opacity = kLabels[static_cast<std::size_t>(rank)];
  const bool dark = appearance == Appearance::dark;
  return grey(dark ? 1 : 0, highContrast ? opacity.highContrast : dark ? opacity.dark : opacity.light);
}

}  // namespace brimle::Palette
