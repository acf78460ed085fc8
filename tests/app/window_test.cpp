// The main window: how it folds and is sized, and the frame that is kept of it.
#include "app/app_fixture.h"
#include "app/core/window_frame.h"

namespace brimle {
namespace {

using WindowTest = AppTest;

constexpr Rect kUsual{100, 50, 300, 400}, kScreen{0, 30, 1920, 1050}, kLowScreen{0, 30, 1000, 560};

TEST_F(WindowTest, FoldsAndTakesThePresetSizesWithItsTopLeftCornerKept) {
  struct Row {
    const char* what;
    const char* script;
    Rect before;
    Rect after;
    std::vector<Rect> screens{kScreen};
  };
  for (const auto& [what, script, before, after, screens] : std::initializer_list<Row>{
           {"folds", "fold", kUsual, {100, 50, 300, 34}},
           {"unfolds", "fold unfold", kUsual, kUsual},
           {"unfolds to no less than 200", "fold unfold", {100, 50, 300, 150}, {100, 50, 300, 200}},
           {"folds once", "fold fold unfold", kUsual, kUsual},
           {"unfolded already", "unfold", {100, 50, 300, 150}, {100, 50, 300, 150}},
           {"unfolds at the foot of the screen", "fold drop unfold", kUsual, {100, 680, 300, 400}},
           {"leaves the fold for a preset size", "fold 2", {100, 50, 500, 700}, kUsual},
           {"comes back to the preset size", "fold 3 fold unfold", kUsual, {100, 50, 400, 600}},
           {"is resized by hand", "3 hand fold unfold", kUsual, kUsual},
           {"large on a low screen", "3", kUsual, {100, 30, 400, 560}, {kLowScreen}},
           {"half off the right edge", "1", {1770, 50, 300, 400}, {1680, 50, 240, 280}},
           {"off the left edge, under the panel", "1", {-30, 0, 300, 400}, {0, 30, 240, 280}},
           {"wider than the screen", "fold", {90, 50, 1200, 400}, {0, 50, 1000, 34}, {kLowScreen}},
           {"no screen", "3", {1770, 50, 300, 400}, {1770, 50, 400, 600}, {}}}) {
    window.visibleAreas = screens;
    launch();
    window.at = before;
    for (const auto& step : split(script, ' ')) {
      if (step == "drop") {
        window.at.y = 1040;
      } else if (step == "hand") {
        window.at = kUsual;
      } else if (step.ends_with("fold")) {
        ui->setCompact(step == "fold");
      } else {
        press(step);
        EXPECT_FALSE(ui->compact()) << what;
      }
      time.runUntilIdle();
    }
    EXPECT_EQ(window.at, after) << what;
  }
}

TEST_F(WindowTest, FollowsTheSettingsOnTheMainQueue) {
  launch();
  asked();
  ui->setCompact(true);
  ui->setCompact(false);
  ui->setPaperTone("plain");
  EXPECT_EQ(window.at, kUsual);
  EXPECT_TRUE(asked().empty());
  ui->setTextSize("large");
  time.runUntilIdle();
  EXPECT_EQ(window.at, kUsual);
  EXPECT_EQ(asked(), Journal{"fresh paper"});
  ui->setCompact(true);
  app.reset();
  time.runUntilIdle();
  EXPECT_EQ(window.at, kUsual);
}

TEST_F(WindowTest, ComesBackWhereItWas) {
  const auto kept = [&] { return preferences.string(kFrameKey).value_or("none"); };
  launch();
  EXPECT_EQ(window.at, kUsual);
  app->willTerminate();
  EXPECT_EQ(kept(), "none");
  window.at = {12.5, -40, 310, 420};
  app->windowFrameChanged();
  time.advance(Seconds(0.3));
  window.at.y = 77;
  app->windowFrameChanged();
  EXPECT_EQ(kept(), "none");
  time.advance(Seconds(0.3));
  EXPECT_EQ(kept(), "12.5 77 310 420");
  ui->setCompact(true);
  app->windowFrameChanged();
  time.advance(Seconds(0.5));
  EXPECT_EQ(window.at.height, 34);
  EXPECT_EQ(kept(), "12.5 77 310 420");
  window.at.x = 20;
  app->windowFrameChanged();
  app->willTerminate();
  window.at = kUsual;
  launch();
  EXPECT_EQ(window.at, (Rect{20, 77, 310, 420}));
  preferences.setString(kFrameKey, "20 77 310 1");
  launch();
  EXPECT_EQ(window.at, (Rect{20, 77, 310, 200})) << "high enough to be used";
}

TEST_F(WindowTest, StartsAtItsUsualPlaceWhereTheKeptFrameIsNone) {
  for (const char* broken : {"", "1 2 300", "1 2 300 400 ", "1 2 300 400 5", " 1 2 300 400", "1,2,300,400",
                             "nan 2 300 400", "inf 2 300 400", "1 -1000000000 300 400", "1 2 1e999 400",
                             "1 2 0 400", "1 2 300 -400", "one 2 300 400"}) {
    preferences.setString(kFrameKey, broken);
    launch();
    EXPECT_EQ(window.at, kUsual) << broken;
  }
}

TEST_F(WindowTest, ComesOntoAScreenWhereItIsOnNoneOrLargerThanAll) {
  window.visibleAreas = {kScreen, {-1000, 0, 1000, 600}};
  launch();
  for (const auto& [frame, shown] :
       std::initializer_list<std::pair<Rect, Rect>>{{{-1200, 100, 300, 400}, {-1200, 100, 300, 400}},
                                                    {{1900, 1000, 300, 400}, {1900, 1000, 300, 400}},
                                                    {{1920, 100, 300, 400}, {1620, 100, 300, 400}},
                                                    {{-300, 600, 300, 400}, {0, 600, 300, 400}},
                                                    {{5000, -5000, 3000, 400}, {0, 30, 1920, 400}},
                                                    {{-1000, 100, 2920, 400}, {-1000, 100, 2920, 400}},
                                                    {{-500, 100, 99'999, 400}, {0, 100, 1920, 400}},
                                                    {{-900, 100, 300, 99'999}, {-900, 0, 300, 600}}}) {
    window.at = frame;
    app->screensChanged();
    EXPECT_EQ(window.at, shown);
    EXPECT_EQ(ontoAScreen(frame, {}), frame);
  }
}

}  // namespace
}  // namespace brimle
