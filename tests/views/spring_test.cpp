// How a spring moves, and that a curve of a few segments traces it.
#include "views/spring.h"

#include <gtest/gtest.h>

#include <numbers>

namespace brimle {
namespace {

constexpr Spring kSprings[] = {{0.3, 0.8}, {0.25, 0.6}, {2, 0.9}};

TEST(Spring, MovesAsAMassOnADampedSpringAndSettles) {
  for (const Spring& spring : kSprings) {
    const double omega = 2 * std::numbers::pi / spring.response;
    const double step = spring.duration() / 100'000;
    double position = 0, velocity = 0;
    for (int count = 1; count <= 200'000; ++count) {
      velocity += step * omega * (omega * (1 - position) - 2 * spring.dampingFraction * velocity);
      position += step * velocity;
      ASSERT_NEAR(spring.position(count * step), position, 2e-4);
      ASSERT_NEAR(position, 1, count > 100'000 ? 0.0012 : 2) << "does not settle";
    }
  }
}

TEST(Spring, IsTracedByFewBezierSegmentsToItsEnd) {
  for (const Spring& spring : kSprings) {
    std::vector<double> points = spring.bezier();
    ASSERT_LE(points.size(), 60u) << "more than an easing curve holds";
    EXPECT_EQ(std::pair(points.end()[-2], points.back()), std::pair(1.0, 1.0));
    points.insert(points.begin(), {0, 0});
    for (auto p = points.begin(); p + 2 != points.end(); p += 6) {
      for (double u = 0; u <= 1; u += 1.0 / 64) {
        const auto cubic = [p, u, v = 1 - u](int axis) {
          return v * v * v * p[axis] + 3 * v * v * u * p[axis + 2] + 3 * v * u * u * p[axis + 4] +
                 u * u * u * p[axis + 6];
        };
        EXPECT_NEAR(cubic(1), spring.position(cubic(0) * spring.duration()), 0.003) << cubic(0);
      }
    }
  }
}

}  // namespace
}  // namespace brimle
