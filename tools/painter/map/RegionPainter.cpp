#include "map/RegionPainter.h"

#include <QPainterPath>
#include <algorithm>
#include <array>

#include "map/Lettering.h"
#include "map/Ornament.h"
#include "map/Relief.h"
#include "map/Ruins.h"
#include "map/Settlements.h"
#include "map/Sheet.h"
#include "map/Signs.h"
#include "map/TemplePainter.h"
#include "terrain/Roads.h"

namespace Map {

namespace {

using Terrain::Point;
using WorldData::Place;

QPointF OnPicture(Point at) {
  return {at.x * Scale, at.y * Scale};
}

// The category list of the viewer lies over this corner.
constexpr QRectF ListCorner(1440, 0, 608, 90);

struct Site {
  Place place;
  Landmark kind;
};

class RegionPainter {
 public:
  RegionPainter(const Terrain::Shape& shape, const WorldData::DataFile& world)
      : field_(Terrain::MakeField(shape)),
        style_(StyleOf(shape.name)),
        reserved_(Terrain::FrameWidth, Terrain::FrameHeight),
        everything_(world.allPlaces()) {
    addSites(world, "cities", Landmark::City);
    addSites(world, "places", Landmark::Place);
    addSites(world, "shrines", Landmark::Shrine);
    addSites(world, "caves", Landmark::Cave);
  }

  [[nodiscard]] QImage paint();

 private:
  void addSites(const WorldData::DataFile& world, std::string_view section, Landmark kind) {
    for (Place& place : world.places(section)) {
      sites_.push_back({std::move(place), kind});
    }
  }

  [[nodiscard]] std::vector<Point> pointsOf(Landmark kind) const;
  void layRoads();
  void reserveAround(Point at, double reach);
  void drawWays(QPainter& painter) const;
  void drawSites(QPainter& painter, Lettering& lettering) const;
  [[nodiscard]] QPointF quietCorner(QSizeF size, const Lettering& lettering) const;
  [[nodiscard]] double crowding(const QRectF& area) const;

  Terrain::Field field_;
  const RegionStyle& style_;
  Reserved reserved_;
  std::vector<Place> everything_;
  std::vector<Site> sites_;
  std::vector<Terrain::Way> roads_;
  std::vector<Terrain::Way> trails_;
};

std::vector<Point> RegionPainter::pointsOf(Landmark kind) const {
  std::vector<Point> points;
  for (const Site& site : sites_) {
    if (site.kind == kind) {
      points.push_back(site.place.at);
    }
  }
  return points;
}

void RegionPainter::reserveAround(Point at, double reach) {
  const int range = static_cast<int>(reach) + 1;
  for (int y = -range; y <= range; ++y) {
    for (int x = -range; x <= range; ++x) {
      const int column = static_cast<int>(at.x) + x;
      const int row = static_cast<int>(at.y) + y;
      if (reserved_.contains(column, row) && std::hypot(x, y) <= reach) {
        reserved_.at(column, row) = 1;
      }
    }
  }
}

void RegionPainter::layRoads() {
  Terrain::RoadNetwork network(field_);
  const std::vector<Point> cities = pointsOf(Landmark::City);
  const std::vector<Point> places = pointsOf(Landmark::Place);
  if (cities.size() > 1) {
    roads_ = network.join(cities);
    trails_ = network.branch(places);
  } else {
    trails_ = network.join(places);
  }
  for (const auto* ways : {&roads_, &trails_}) {
    for (const Terrain::Way& way : *ways) {
      for (const Point& at : way) {
        // Trees grow upward from their feet, so those just below a road would hide it.
        reserveAround({at.x, at.y + 3}, 5);
      }
    }
  }
  for (const Site& site : sites_) {
    reserveAround({site.place.at.x, site.place.at.y + 3}, ReachOf(site.kind) / Scale + 5);
  }
}

QPainterPath PathOf(const Terrain::Way& way) {
  QPainterPath path(OnPicture(way.front()));
  for (std::size_t i = 1; i + 1 < way.size(); ++i) {
    path.quadTo(OnPicture(way[i]),
                OnPicture({(way[i].x + way[i + 1].x) / 2, (way[i].y + way[i + 1].y) / 2}));
  }
  path.lineTo(OnPicture(way.back()));
  return path;
}

void RegionPainter::drawWays(QPainter& painter) const {
  painter.setBrush(Qt::NoBrush);
  QPen trail(style_.ink.color(205), 2.6, Qt::CustomDashLine, Qt::RoundCap, Qt::RoundJoin);
  trail.setDashPattern({0.9, 2.3});
  for (const Terrain::Way& way : trails_) {
    painter.setPen(QPen(style_.paper.color(90), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(PathOf(way));
    painter.setPen(trail);
    painter.drawPath(PathOf(way));
  }
  for (const Terrain::Way& way : roads_) {
    painter.setPen(QPen(style_.ink.color(190), 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(PathOf(way));
  }
  for (const Terrain::Way& way : roads_) {
    painter.setPen(QPen(style_.road.color(), 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(PathOf(way));
  }
}

void RegionPainter::drawSites(QPainter& painter, Lettering& lettering) const {
  for (auto site = sites_.rbegin(); site != sites_.rend(); ++site) {
    DrawLandmark(painter, style_, site->kind, OnPicture(site->place.at));
  }
  for (const Site& site : sites_) {
    const double reach = ReachOf(site.kind) - 2;
    const QPointF at = OnPicture(site.place.at);
    lettering.reserve(QRectF(at.x() - reach, at.y() - reach, 2 * reach, 2 * reach));
  }
  for (const Site& site : sites_) {
    const bool city = site.kind == Landmark::City;
    if (city || site.kind == Landmark::Place) {
      const QFont font = city ? MapFont(38, true, false) : MapFont(30, false, true);
      lettering.write(painter, site.place.name, font, OnPicture(site.place.at),
                      ReachOf(site.kind) + 3, city);
    }
  }
}

// What an ornament there would hide: land a little, entities very much.
double RegionPainter::crowding(const QRectF& area) const {
  double sum = 0;
  for (const Place& place : everything_) {
    sum += area.adjusted(-12, -12, 12, 12).contains(OnPicture(place.at)) ? 400 : 0;
  }
  const bool carved = field_.shape->climate == Terrain::Climate::Underground;
  for (double y = area.top(); y < area.bottom(); y += 8) {
    for (double x = area.left(); x < area.right(); x += 8) {
      const int column = static_cast<int>(x / Scale);
      const int row = static_cast<int>(y / Scale);
      const bool solid =
          carved ? field_.floor.clamped(column, row) > -6 : field_.height.clamped(column, row) >= 0;
      sum += solid ? 1 : 0;
    }
  }
  return sum;
}

QPointF RegionPainter::quietCorner(QSizeF size, const Lettering& lettering) const {
  constexpr double Margin = 40;
  QPointF best(Margin, Margin);
  double least = 1e9;
  const double right = Terrain::FrameWidth * Scale - Margin - size.width();
  const double bottom = Terrain::FrameHeight * Scale - Margin - size.height();
  for (double y = bottom; y >= Margin; y -= 24) {
    for (double x = Margin; x <= right; x += 24) {
      const QRectF area(QPointF(x, y), size);
      const double inward = std::min({x, right - x + Margin, y, bottom - y + Margin});
      const double cost = crowding(area) + inward * 0.06;
      if (cost < least && lettering.isFree(area)) {
        least = cost;
        best = area.topLeft();
      }
    }
  }
  return best;
}

QImage RegionPainter::paint() {
  const bool carved = field_.shape->climate == Terrain::Climate::Underground;
  if (!carved) {
    layRoads();
  }
  QImage image = carved ? PaintTemple(field_, style_) : PaintRelief(field_, style_);
  Lettering lettering(style_, image.size());
  lettering.reserve(ListCorner);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  if (!carved) {
    DrawRivers(painter, field_, style_);
    drawWays(painter);
    DrawRuins(painter, field_, style_);
    DrawSigns(painter, field_, style_, reserved_);
  }
  painter.end();
  AgePaper(image, field_.shape->seed);
  painter.begin(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  // Between the temple's halls there is less room than at sea.
  const double titleScale = carved ? 0.74 : 1.0;
  const QSizeF titleSize = CartoucheSize * titleScale;
  const QPointF title = quietCorner(titleSize, lettering);
  lettering.reserve(QRectF(title, titleSize));
  const QPointF compass = quietCorner(CompassSize, lettering);
  lettering.reserve(QRectF(compass, CompassSize));
  DrawCompass(painter, style_,
              compass + QPointF(CompassSize.width() / 2, CompassSize.height() / 2 + 14),
              CompassSize.width() * 0.42);
  drawSites(painter, lettering);
  painter.save();
  painter.translate(title);
  painter.scale(titleScale, titleScale);
  DrawCartouche(painter, style_, QPointF(0, 0));
  painter.restore();
  DrawFrame(painter, style_, image.size());
  return image;
}

}  // namespace

QImage PaintRegion(const Terrain::Shape& shape, const WorldData::DataFile& world) {
  return RegionPainter(shape, world).paint();
}

}  // namespace Map
