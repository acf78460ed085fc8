#include "views/spring.h"

#include <cmath>
#include <numbers>

namespace brimle {
namespace {

constexpr double kSettled = 0.001;
/// Enough pieces that the cubics through position and speed at their ends lie on the curve to a thousandth.
/// Not more than ten: Qt 6.4 keeps the pieces of an easing curve in an array of ten and writes past its end.
constexpr int kSegments = 10;

/// Where a segment begins, as a share of the duration: they are shorter at the start, where the motion bends
/// most.
double startOf(int segment) {
  return std::pow(static_cast<double>(segment) / kSegments, 1.5);
}

struct Rates {
  double decay;
  double angular;

  explicit Rates(const Spring& spring) {
    const double natural = 2 * std::numbers::pi / spring.response;
    decay = natural * spring.dampingFraction;
    angular = natural * std::sqrt(1 - spring.dampingFraction * spring.dampingFraction);
  }
};

}  // namespace

double Spring::position(double time) const {
  const Rates rate(*this);
  const double phase = rate.angular * time;
  return 1 - std::exp(-rate.decay * time) * (std::cos(phase) + rate.decay / rate.angular * std::sin(phase));
}

double Spring::velocity(double time) const {
  const Rates rate(*this);
  const double stiffness = rate.decay * rate.decay + rate.angular * rate.angular;
  return std::exp(-rate.decay * time) * stiffness / rate.angular * std::sin(rate.angular * time);
}

double Spring::duration() const {
  const Rates rate(*this);
  // The envelope of the motion is exp(-decay t) / sqrt(1 - fraction²).
  const double envelope = 1 / std::sqrt(1 - dampingFraction * dampingFraction);
  return std::log(envelope / kSettled) / rate.decay;
}

std::vector<double> Spring::bezier() const {
  const double whole = duration();
  std::vector<double> points;
  points.reserve(kSegments * 6);
  for (int segment = 0; segment < kSegments; ++segment) {
    const double from = startOf(segment);
    const double to = startOf(segment + 1);
    const double third = (to - from) / 3;
    const double end = segment + 1 == kSegments ? 1 : position(to * whole);
    points.insert(points.end(),
                  {from + third, position(from * whole) + velocity(from * whole) * whole * third, to - third,
                   end - velocity(to * whole) * whole * third, to, end});
  }
  return points;
}

}  // namespace brimle
