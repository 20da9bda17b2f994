#include "mapdata/display/Layout.h"
#include "mapdata/display/Placement.h"
#include "mapdata/display/Plan.h"
#include "support/GermanNames.h"
#include "support/TemporaryFolder.h"

#include <cmath>
#include <utility>

#include <gtest/gtest.h>

using Kind = ViewState::Kind;
using Twips2Pixel_Module::Twips;

namespace {

class PlanTest : public testing::Test {
 protected:
  PlanTest() {
    folder.Write("a.data", "[t]\r\nWolf=100,200,*\r\n;Beta=1,1\r\nRand=1020,9\r\nbad=x,y\r\n");
  }

  MapPlan PlanOf(const ViewState& view) {
    IniOps::Snapshot files(cache);
    return Plan(view, names, files);
  }

  [[nodiscard]] ViewState Hit(const Text& name, const Text& row) const {
    return {Kind::Hit,     u"a.jpg", data, u"t",
            u" Gefunden ", false,    name, ViewState::Found{{7, 8}, row}};
  }

  TemporaryFolder folder;
  Text data = folder.Path(u"a.data");
  IniOps::Cache cache;
  GermanNames names;
};

// Each caption as wide as it is long.
TextWidths Widths(const MapPlan& plan) {
  TextWidths widths;
  for (const MapPlan::Marker& marker : plan.markers)
    widths.captions.push_back(static_cast<int>(marker.caption.size()) * 100);
  widths.heading = 3000;
  return widths;
}

}  // namespace

TEST_F(PlanTest, ShowsACategoryLineByLine) {
  for (const bool onHover : {false, true}) {
    const MapPlan plan =
        PlanOf({Kind::Markers, u"a.jpg", data, u"t", u"&Arvenna: &Lehrer", onHover, {}, {}});
    EXPECT_EQ(plan.heading, u" Arvenna: Lehrer ");
    ASSERT_EQ(plan.markers.size(), 4U);
    EXPECT_TRUE(plan.markers[0].highlighted);
    EXPECT_EQ(plan.markers[0].captionShown, !onHover);
    EXPECT_FALSE(plan.markers[1].shown);
    EXPECT_FALSE(plan.markers[1].captionShown);
    EXPECT_EQ(plan.markers[2].caption, u" Rand ");
    EXPECT_EQ(plan.markers[3].position, (EntityFile::Position{0, 0}));
  }
}

TEST_F(PlanTest, ShowsNothingOrOneInAList) {
  EXPECT_TRUE(PlanOf({}).markers.empty());
  ViewState list = {Kind::List, u"a.jpg", data, u"t", {}, false, {}, {}};
  EXPECT_TRUE(PlanOf(list).markers.empty());
  for (const TextView name : {u"bad", u"nobody"}) {
    list.SelectedEntity = name;
    EXPECT_TRUE(PlanOf(list).markers.empty());
  }
  list.SelectedEntity = u"Wolf";
  const MapPlan plan = PlanOf(list);
  ASSERT_EQ(plan.markers.size(), 1U);
  EXPECT_TRUE(plan.single);
  EXPECT_FALSE(plan.markers[0].highlighted) << "only a category highlights";
  EXPECT_FALSE(plan.markers[0].atPosition);
}

TEST_F(PlanTest, AHitStandsAtItsPointUntilItIsAPick) {
  const MapPlan::Marker unlisted = PlanOf(Hit(u"Wolf", u"")).markers.at(0);
  EXPECT_TRUE(unlisted.atPosition);
  EXPECT_EQ(unlisted.position, (EntityFile::Position{7, 8}));
  EXPECT_EQ(unlisted.caption, u" Wolf ");
  const MapPlan::Marker listed = PlanOf(Hit(u"Wolf", u"Wolf")).markers.at(0);
  EXPECT_FALSE(listed.atPosition);
  EXPECT_EQ(listed.position, (EntityFile::Position{100, 200}));
  EXPECT_EQ(listed.caption, u"  Wolf  ");
  const MapPlan::Marker lost = PlanOf(Hit(u"bad", u"bad")).markers.at(0);
  EXPECT_FALSE(lost.shown);
  EXPECT_TRUE(lost.captionShown);
  ViewState resized = Hit(u"Wolf", u"");
  resized.found.reset();
  const MapPlan plan = PlanOf(resized);
  EXPECT_FALSE(plan.markers.at(0).atPosition);
  EXPECT_EQ(plan.heading, u" Gefunden ");
}

TEST_F(PlanTest, IsLaidOutByTheRulesAndKeepsTheSidesInACloserView) {
  const MapPlan plan = PlanOf({Kind::Markers, {}, data, u"t", {}, false, {}, {}});
  const Viewport whole({15, 15}, {15360, 11520});
  const MapLayout at100 = Layout(plan, whole, Widths(plan));
  EXPECT_EQ(at100.places[0].marker, (Twips{1500 - 65, 3000 - 65}));
  EXPECT_EQ(at100.places[0].caption, (Twips{1435 - 600 - 50, 2935 - 40})) << "even: left";
  EXPECT_EQ(at100.places[3].caption.x, -65 + 160 + 50);
  EXPECT_EQ(at100.headingLeft, 15360 + 90 - 3000 - 120);
  const Viewport closer = whole.ZoomedAt(whole.ToView({1020, 9}), 4);
  const MapLayout zoomed = Layout(plan, closer, Widths(plan));
  EXPECT_EQ(zoomed.headingLeft, at100.headingLeft);
  EXPECT_TRUE(zoomed.places[2].inView);
  EXPECT_FALSE(zoomed.places[0].inView);
  for (const MapLayout::Place& place : at100.places)
    EXPECT_TRUE(place.inView) << "also beyond the map";
}

TEST_F(PlanTest, ANameStandsBesideItsMarkerToThePixelWhileTheViewMoves) {
  const MapPlan plan = PlanOf({Kind::Markers, {}, data, u"t", {}, false, {}, {}});
  for (const double perPixel : {15.0, 12.0, 1440 / 110.0}) {
    const Viewport whole({perPixel, perPixel}, {15360, 11520});
    const auto apart = [&](const MapLayout::Place& place) {
      const auto pixels = [perPixel](int caption, int marker) {
        return std::nearbyint(caption / perPixel) - std::nearbyint(marker / perPixel);
      };
      return std::pair(pixels(place.caption.x, place.marker.x),
                       pixels(place.caption.y, place.marker.y));
    };
    const MapLayout at100 = Layout(plan, whole, Widths(plan));
    for (int step = 0; step < 20; ++step) {
      const Viewport closer = whole.ZoomedAt({5000, 5000}, 3.7).Panned({step, 2 * step});
      const MapLayout layout = Layout(plan, closer, Widths(plan));
      for (size_t i = 0; i < plan.markers.size(); ++i)
        EXPECT_EQ(apart(layout.places[i]), apart(at100.places[i])) << step;
    }
  }
}

TEST_F(PlanTest, PlacesASingleNameByItsOwnRule) {
  const MapPlan plan = PlanOf(Hit(u"Wolf", u""));
  const Viewport whole({15, 15}, {15360, 11520});
  const MapLayout layout = Layout(plan, whole, Widths(plan));
  EXPECT_EQ(layout.places.at(0).marker, (Twips{7 * 15, 8 * 15})) << "its corner, at the point";
  EXPECT_EQ(layout.places.at(0).caption.x, 7 * 15 + 160 + 50);
}
