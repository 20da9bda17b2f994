#include "mapdata/display/Viewport.h"

#include "mapdata/display/Placement.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>

using EntityFile::Position;
using Twips2Pixel_Module::Screen;
using Twips2Pixel_Module::Twips;

namespace {

constexpr Screen Screens[] = {{15, 15}, {12, 12}, {10, 10}};

// The map's corners lie on the picture.
void ExpectFilled(const Viewport& viewport) {
  const double part = 1 / viewport.Scale();
  EXPECT_GE(viewport.LeftPart(), 0);
  EXPECT_GE(viewport.TopPart(), 0);
  EXPECT_LE(viewport.LeftPart() + part, 1 + 1e-9);
  EXPECT_LE(viewport.TopPart() + part, 1 + 1e-9);
}

}  // namespace

TEST(Viewport, IsAtScaleOneWhatTheScalingFunctionsGive) {
  std::mt19937 random(7);
  for (const Screen& screen : Screens)
    for (int i = 0; i < 2000; ++i) {
      const Twips size = {static_cast<int>(random() % 60000), static_cast<int>(random() % 40000)};
      const Position at = {static_cast<int>(random() % 1200) - 80,
                           static_cast<int>(random() % 900) - 60};
      const Viewport zoomed = Viewport(screen, size).ZoomedAt({100, 100}, 3).ZoomedAt({}, 1.0 / 3);
      for (const Viewport& viewport : {Viewport(screen, size), zoomed.Whole(), zoomed})
        ASSERT_EQ(viewport.ToView(at), Twips2Pixel_Module::PointOnMap(screen, size, at.x, at.y));
    }
}

TEST(Viewport, KeepsThePointThatItZoomsAt) {
  const Viewport whole({15, 15}, {15360, 11520});
  const Position at = {300, 200};
  const Twips before = whole.ToView(at);
  Viewport viewport = whole;
  for (const double factor : {1.25, 2.0, 1.1, 0.9, 1.25}) {
    viewport = viewport.ZoomedAt(before, factor);
    EXPECT_NEAR(viewport.ToView(at).x, before.x, 1);
    EXPECT_NEAR(viewport.ToView(at).y, before.y, 1);
    ExpectFilled(viewport);
  }
  EXPECT_EQ(viewport.ZoomedAt(before, 1e-9), whole);
}

TEST(Viewport, IsNeverLeftWithoutAPicture) {
  constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
  constexpr double Endless = std::numeric_limits<double>::infinity();
  for (const Twips& size : {Twips{15360, 11520}, Twips{15, 15}, Twips{}, Twips{57600, 32400}}) {
    std::mt19937 random(3);
    Viewport viewport({15, 15}, size);
    for (int i = 0; i < 300; ++i) {
      const auto any = [&] { return static_cast<int>(random() % 200000) - 100000; };
      const double factors[] = {0, -2, NaN, Endless, 1e300, 1.25, 3, 0.7};
      viewport = i % 3 == 0   ? viewport.Panned({any(), any()})
                 : i % 7 == 0 ? viewport.Resized({12, 12}, {size.y, size.x})
                              : viewport.ZoomedAt({any(), any()}, factors[random() % 8]);
      ASSERT_GE(viewport.Scale(), 1);
      ASSERT_LE(viewport.Scale(), Viewport::MaximumScale);
      ExpectFilled(viewport);
    }
  }
}

TEST(Viewport, AResizeKeepsScaleAndMiddle) {
  const Viewport before = Viewport({15, 15}, {15360, 11520}).ZoomedAt({9000, 3000}, 4);
  const Viewport after = before.Resized({15, 15}, {6000, 9000});
  EXPECT_EQ(after.Scale(), 4);
  EXPECT_NEAR(after.LeftPart(), before.LeftPart(), 1e-9);
  EXPECT_NEAR(after.TopPart(), before.TopPart(), 1e-9);
}

TEST(Viewport, PansNoFurtherThanAMarkerNeeds) {
  const Viewport viewport = Viewport({15, 15}, {15360, 11520}).ZoomedAt({}, 4);
  const Twips size = {160, 160};
  EXPECT_EQ(viewport.Showing({200, 300}, size), viewport);
  const Viewport right = viewport.Showing({20000, 300}, size);
  EXPECT_NEAR(right.LeftPart() * 4 * 15360, 20160 - 15360, 1);
  EXPECT_EQ(right.TopPart(), 0);
  EXPECT_EQ(right.Showing({-(20160 - 15360), 0}, size).LeftPart(), 0);
}

TEST(Viewport, FindsThePositionWhoseMarkerIsNearest) {
  std::mt19937 random(5);
  for (const double scale : {1.0, 1.7, 8.0}) {
    const Viewport viewport = Viewport({15, 15}, {14000, 9000}).ZoomedAt({7000, 2000}, scale);
    for (int i = 0; i < 200; ++i) {
      const Twips point = {static_cast<int>(random() % 14000), static_cast<int>(random() % 9000)};
      const Position found = viewport.ToFrame(point);
      const auto distance = [&](int x, int y) {
        const Twips corner = Placement::MarkerAt(viewport.ToView({x, y}));
        return std::hypot(corner.x + 80 - point.x, corner.y + 80 - point.y);
      };
      for (const auto& [x, y] : {std::pair(-1, 0), {1, 0}, {0, -1}, {0, 1}, {1, 1}, {-1, -1}})
        ASSERT_LE(distance(found.x, found.y), distance(found.x + x, found.y + y));
    }
  }
}
