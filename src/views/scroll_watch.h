// How the header tells the days to come from the past ones while the archive scrolls.
#pragma once

namespace brimle {

/// More than this many points of the future above the boundary, and the header speaks of the future.
inline constexpr double kFutureDistance = 40;

/// `distance`: how far the boundary of today stands below the top of what is visible, in points.
inline bool isViewingFuture(double distance) {
  return distance > kFutureDistance;
}

}  // namespace brimle
