// The colours: the program's own pairs for light and dark, and the label colours of text.
// Plain values, resolved at drawing time for an appearance; the only state is the paper tone in force.
#pragma once

#include <string>

namespace brimle {

enum class Appearance { light, dark };

/// sRGB components and opacity, 0 to 1.
struct Color {
  double red;
  double green;
  double blue;
  double alpha;

  bool operator==(const Color&) const = default;
};

namespace Palette {

/// The paper tone in force: "plain", or anything else for warm.
const std::string& tone();
void setTone(std::string tone);

Color paper(Appearance appearance);
Color pencilRed(Appearance appearance);
Color highlight(Appearance appearance);
Color selection(Appearance appearance);

/// The ranks of text, each fainter than the one before.
enum class Label { primary, secondary, tertiary, placeholder };
Color label(Label rank, Appearance appearance, bool highContrast);

}  // namespace Palette
}  // namespace brimle
