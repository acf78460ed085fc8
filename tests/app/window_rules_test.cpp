#include "app/core/window_rules.h"

#include "app/app_fixture.h"

namespace brimle {

namespace {

/// A screen to the left of another one, below a panel of 30 points.
constexpr Rect kScreen{-1000, 30, 1000, 560};

TEST(WindowRules, EveryChangeOfSizeKeepsTheTopLeftCorner) {
  const Rect window{50, 60, 300, 400}, strip{50, 60, 300, 34};
  EXPECT_EQ(folded(window), strip);
  EXPECT_EQ(unfolded(strip, 400), window);
  EXPECT_EQ(unfolded(strip, 150), (Rect{50, 60, 300, 200}));
  EXPECT_EQ(unfolded(strip, 200.5), (Rect{50, 60, 300, 200.5}));
  EXPECT_EQ(resized(window, kCompactSize), (Rect{50, 60, 240, 280}));
  EXPECT_EQ(resized(strip, kRegularSize), window);
  EXPECT_EQ(resized(window, kLargeSize), (Rect{50, 60, 400, 600}));
}

TEST(WindowRules, AFrameIsBroughtOntoTheScreen) {
  struct Row {
    const char* what;
    Rect frame;
    Rect onScreen;
  };
  for (const auto& [what, frame, onScreen] :
       std::initializer_list<Row>{{"inside", {-900, 100, 300, 400}, {-900, 100, 300, 400}},
                                  {"filling it", kScreen, kScreen},
                                  {"half off the right edge", {-150, 100, 300, 400}, {-300, 100, 300, 400}},
                                  {"off the left edge", {-1200, 100, 300, 400}, {-1000, 100, 300, 400}},
                                  {"off the bottom", {-900, 500, 300, 400}, {-900, 190, 300, 400}},
                                  {"under the panel", {-900, 0, 300, 400}, {-900, 30, 300, 400}},
                                  {"too high", {-900, 100, 400, 600}, {-900, 30, 400, 560}},
                                  {"too wide, to the right", {-900, 100, 1200, 400}, {-1000, 100, 1000, 400}},
                                  {"too wide, to the left", {-1300, 100, 1200, 400}, {-1000, 100, 1000, 400}},
                                  {"on another screen", {2000, 2000, 300, 400}, {-300, 190, 300, 400}}}) {
    EXPECT_EQ(constrainToScreen(frame, kScreen), onScreen) << what;
    EXPECT_EQ(constrainToScreen(frame, std::nullopt), frame) << what;
  }
}

}  // namespace
}  // namespace brimle
