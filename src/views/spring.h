// The motion of a spring given by response and damping fraction, as data an animation can play.
//
// A unit mass released at distance 1 with no speed: angular frequency 2π / response, damped by the fraction
// (1 is critical). The curve is the closed form of that motion; nothing is simulated step by step.
#pragma once

#include <vector>

namespace brimle {

struct Spring {
  double response;         ///< seconds: the period of the undamped spring
  double dampingFraction;  ///< above 0 and below 1

  /// How far the motion has come at a time in seconds: 0 at the start, 1 at rest; may pass 1.
  double position(double time) const;
  /// How fast it moves, in distances a second.
  double velocity(double time) const;
  /// Seconds until it stays within a thousandth of the distance from rest.
  double duration() const;

  /// The motion over its duration as cubic Bézier segments on the unit square: for each segment two control
  /// points and the end point, x then y, six numbers. The last point is (1, 1).
  std::vector<double> bezier() const;
};

}  // namespace brimle
