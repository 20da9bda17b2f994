#include "map/Signs.h"

#include <QPainterPath>
#include <algorithm>
#include <array>
#include <vector>

#include "map/Relief.h"
#include "map/Strew.h"
#include "terrain/Noise.h"
#include "terrain/Outlines.h"

namespace Map {

namespace {

using Terrain::Point;
using Terrain::Random;

constexpr int Variants = 6;
constexpr int TreeWidth = 26;
constexpr int TreeHeight = 30;

struct Sign {
  enum class Kind { Tree, Peak };
  Kind kind;
  Point at;
  /// Height in picture pixels; variant number for trees.
  double size;
};

void DrawBroadleaf(QPainter& painter, const RegionStyle& style, Random& random) {
  const double radius = random.between(6.2, 7.8);
  const QPointF crown(TreeWidth / 2.0, TreeHeight - radius - 6);
  painter.setPen(QPen(style.ink.color(), 1.6));
  painter.drawLine(QPointF(crown.x(), TreeHeight - 7), QPointF(crown.x(), TreeHeight - 2));
  QPainterPath outline;
  outline.setFillRule(Qt::WindingFill);
  for (int i = 0; i < 6; ++i) {
    const double angle = i * 1.047 + random.between(-0.3, 0.3);
    const double lobe = radius * random.between(0.52, 0.66);
    outline.addEllipse(crown + QPointF(std::cos(angle), std::sin(angle) * 0.8) * radius * 0.55,
                       lobe, lobe);
  }
  outline = outline.simplified();
  QRadialGradient light(crown - QPointF(radius * 0.5, radius * 0.5), radius * 1.7);
  light.setColorAt(0, style.leavesLit.color());
  light.setColorAt(1, style.leaves.color());
  painter.setPen(QPen(style.leaves.towards(style.ink, 0.65).color(200), 0.9));
  painter.setBrush(light);
  painter.drawPath(outline);
}

void DrawFir(QPainter& painter, const RegionStyle& style, Random& random) {
  const double middle = TreeWidth / 2.0;
  const double tall = random.between(18, 23);
  const double wide = random.between(5.6, 7.0);
  const double foot = TreeHeight - 4;
  painter.setPen(QPen(style.ink.color(), 1.6));
  painter.drawLine(QPointF(middle, foot), QPointF(middle, foot + 3));
  for (int tier = 0; tier < 3; ++tier) {
    const double low = foot - tier * tall * 0.27;
    const double half = wide * (1 - tier * 0.24);
    const QPolygonF branch{QPointF(middle - half, low), QPointF(middle, low - tall * 0.46),
                           QPointF(middle + half, low), QPointF(middle, low - 1.6)};
    QLinearGradient light(middle - half, 0, middle + half, 0);
    light.setColorAt(0, style.leavesLit.color());
    light.setColorAt(0.6, style.leaves.color());
    painter.setPen(QPen(style.leaves.towards(style.ink, 0.6).color(210), 0.8));
    painter.setBrush(light);
    painter.drawPolygon(branch);
    painter.setPen(QPen(style.snow.color(215), 1.4));
    painter.drawLine(QPointF(middle - half * 0.75, low - 1.6),
                     QPointF(middle - half * 0.1, low - tall * 0.36));
  }
}

void DrawPalm(QPainter& painter, const RegionStyle& style, Random& random) {
  const double lean = random.between(-3.5, 3.5);
  const QPointF foot(TreeWidth / 2.0, TreeHeight - 3);
  const QPointF top(TreeWidth / 2.0 + lean, TreeHeight - random.between(17, 20));
  QPainterPath trunk(foot);
  trunk.quadTo(QPointF(foot.x() - lean * 0.4, (foot.y() + top.y()) / 2), top);
  painter.setPen(QPen(style.ink.color(), 1.8));
  painter.drawPath(trunk);
  for (int leaf = 0; leaf < 7; ++leaf) {
    const double angle = -2.9 + leaf * 0.46 + random.between(-0.1, 0.1);
    const QPointF tip = top + QPointF(std::cos(angle) * 9, std::sin(angle) * 6 + 4);
    QPainterPath frond(top);
    frond.quadTo(top + QPointF(std::cos(angle) * 6, std::sin(angle) * 7 - 1), tip);
    frond.quadTo(top + QPointF(std::cos(angle) * 4.5, std::sin(angle) * 4), top);
    painter.setPen(QPen(style.leaves.towards(style.ink, 0.5).color(), 0.7));
    painter.setBrush((leaf < 4 ? style.leavesLit : style.leaves).color());
    painter.drawPath(frond);
  }
}

void DrawDeadTree(QPainter& painter, const RegionStyle& style, Random& random) {
  const double middle = TreeWidth / 2.0;
  painter.setPen(
      QPen(style.leaves.towards(style.ink, 0.5).color(), 1.7, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QPointF(middle, TreeHeight - 3), QPointF(middle, TreeHeight - 16));
  painter.setPen(
      QPen(style.leaves.towards(style.ink, 0.4).color(), 1.1, Qt::SolidLine, Qt::RoundCap));
  for (int branch = 0; branch < 5; ++branch) {
    const double side = branch % 2 == 0 ? 1 : -1;
    const QPointF fork(middle, TreeHeight - 9 - branch * 1.8);
    painter.drawLine(fork, fork + QPointF(side * random.between(3, 6), -random.between(3, 6)));
  }
}

/// A mountain's lines in picture pixels: both slopes from west to east, and the ridge that parts
/// its lit face from its shadowed one, from the top down.
struct Peak {
  QPointF foot, top;
  QPolygonF west, east, ridge;
  double tall;
};

Peak MakePeak(const Sign& sign, Random& random) {
  const double tall = sign.size;
  const double half = tall * random.between(0.62, 0.75);
  const QPointF foot(sign.at.x * Scale, sign.at.y * Scale);
  const QPointF top = foot + QPointF(random.between(-0.1, 0.1) * tall, -tall);
  const QPointF left = foot + QPointF(-half, random.between(-1, 3));
  const QPointF right = foot + QPointF(half, random.between(-1, 3));
  const auto jag = [&](QPointF from, QPointF to, double share) {
    return from + (to - from) * share + QPointF(0, random.between(-0.09, 0.05) * tall);
  };
  return {.foot = foot,
          .top = top,
          .west = {left, jag(left, top, 0.35), jag(left, top, 0.7), top},
          .east = {top, jag(top, right, 0.3), jag(top, right, 0.65), right},
          .ridge = {top, foot + QPointF(tall * 0.10, -tall * 0.62),
                    foot + QPointF(-tall * 0.05, -tall * 0.34), foot + QPointF(tall * 0.08, 2)},
          .tall = tall};
}

// Both faces fade into the ground at their feet.
void FillFaces(QPainter& painter, const RegionStyle& style, const Peak& peak) {
  const Tone stone = style.rock.towards(style.high, 0.45);
  QLinearGradient lit(0, peak.top.y(), 0, peak.foot.y());
  lit.setColorAt(0, stone.lit(1.28).color());
  lit.setColorAt(0.55, stone.lit(1.12).color(235));
  lit.setColorAt(1, stone.color(0));
  QLinearGradient dark(0, peak.top.y(), 0, peak.foot.y());
  dark.setColorAt(0, stone.towards(style.ink, 0.52).color());
  dark.setColorAt(0.55, stone.towards(style.ink, 0.36).color(235));
  dark.setColorAt(1, stone.towards(style.ink, 0.2).color(0));
  painter.setPen(Qt::NoPen);
  painter.setBrush(lit);
  painter.drawPolygon(peak.west + peak.ridge);
  QPolygonF upward = peak.ridge;
  std::ranges::reverse(upward);
  painter.setBrush(dark);
  painter.drawPolygon(peak.east + upward);
}

void DrawSnowCap(QPainter& painter, const RegionStyle& style, const Peak& peak) {
  const QPointF top = peak.top;
  const double tall = peak.tall;
  painter.setPen(Qt::NoPen);
  painter.setBrush(style.snow.color(225));
  painter.drawPolygon(
      QPolygonF{top, top + (peak.west[2] - top) * 0.75, top + QPointF(-tall * 0.09, tall * 0.2),
                top + QPointF(tall * 0.03, tall * 0.33), top + QPointF(tall * 0.12, tall * 0.2),
                top + (peak.east[1] - top) * 0.75});
}

void OutlinePeak(QPainter& painter, const RegionStyle& style, const Peak& peak) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(style.ink.color(190), 1.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(peak.west);
  painter.drawPolyline(peak.east);
  painter.setPen(QPen(style.ink.color(120), 1.0));
  painter.drawPolyline(peak.ridge.mid(0, 3));
}

void DrawPeak(QPainter& painter, const RegionStyle& style, const Peak& peak) {
  FillFaces(painter, style, peak);
  if (peak.tall > 34 && style.tree != Tree::Palm && style.tree != Tree::Dead) {
    DrawSnowCap(painter, style, peak);
  }
  OutlinePeak(painter, style, peak);
}

void DrawWave(QPainter& painter, const RegionStyle& style, Point at) {
  const QPointF middle(at.x * Scale, at.y * Scale);
  QPainterPath wave(middle + QPointF(-13, 2));
  wave.quadTo(middle + QPointF(-8, -5), middle + QPointF(-3, 1));
  wave.quadTo(middle + QPointF(2, -5), middle + QPointF(7, 1));
  wave.quadTo(middle + QPointF(10, -3), middle + QPointF(14, 1));
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(style.shallows.lit(1.06).color(150), 1.5, Qt::SolidLine, Qt::RoundCap));
  painter.drawPath(wave);
}

// A pool with reeds behind it.
void DrawPool(QPainter& painter, const RegionStyle& style, Point at, Random& random) {
  const QPointF middle(at.x * Scale, at.y * Scale);
  const double half = random.between(6, 11);
  painter.setPen(QPen(style.ink.color(150), 1.1, Qt::SolidLine, Qt::RoundCap));
  for (double x = -half; x <= half; x += 4) {
    const double tall = random.between(7, 12);
    painter.drawLine(middle + QPointF(x, -1), middle + QPointF(x + 1.5, -tall));
  }
  painter.setBrush(style.deep.towards(style.woods, 0.55).color(225));
  painter.drawEllipse(middle, half, half * 0.42);
}

class Strewer {
 public:
  Strewer(const Terrain::Field& field, const RegionStyle& style, const Reserved& reserved)
      : field_(field), style_(style), reserved_(reserved) {}

  [[nodiscard]] std::vector<Sign> signs() const;
  [[nodiscard]] std::vector<Point> waves() const;
  [[nodiscard]] std::vector<Point> pools() const;

 private:
  [[nodiscard]] static int cell(double at) { return static_cast<int>(at); }

  [[nodiscard]] double heightAt(Point at) const {
    return field_.height.clamped(cell(at.x), cell(at.y));
  }

  [[nodiscard]] bool isFree(Point at) const {
    return !reserved_.clamped(cell(at.x), cell(at.y)) &&
           field_.river.clamped(cell(at.x), cell(at.y)) < 0.2F &&
           field_.river.clamped(cell(at.x), cell(at.y) - 4) < 0.2F;
  }

  [[nodiscard]] bool isBog(Point at) const {
    return Terrain::DiscDepth(field_.shape->bogs, at) > 0;
  }

  [[nodiscard]] double trees(Point at) const;
  [[nodiscard]] double peaks(Point at) const;

  const Terrain::Field& field_;
  const RegionStyle& style_;
  const Reserved& reserved_;
};

double Strewer::trees(Point at) const {
  if (!isFree(at) || heightAt(at) < 0.012) {
    return 0;
  }
  if (style_.tree == Tree::Palm) {
    return 0.9 * Terrain::SmoothStep(0.5, 0.75, field_.moisture.clamped(cell(at.x), cell(at.y)));
  }
  if (isBog(at)) {
    return 0.002;
  }
  // Single trees stand in open land too.
  return std::max(0.0006, 1.0 * field_.forest.clamped(cell(at.x), cell(at.y)));
}

double Strewer::peaks(Point at) const {
  if (!isFree(at) || field_.forest.clamped(cell(at.x), cell(at.y)) > 0.4F ||
      field_.floor.clamped(cell(at.x), cell(at.y)) > -8) {
    return 0;
  }
  return Terrain::SmoothStep(0.5, 0.7, heightAt(at));
}

std::vector<Sign> Strewer::signs() const {
  const std::uint32_t seed = field_.shape->seed;
  Random random(seed + 4000);
  std::vector<Sign> signs;
  for (const Point& at : Strew(seed + 4100, 5.6, [this](Point p) { return trees(p); })) {
    signs.push_back({Sign::Kind::Tree, at, static_cast<double>(random.below(Variants))});
  }
  for (const Point& at : Strew(seed + 4200, 19, [this](Point p) { return peaks(p); })) {
    const double size = 24 + 40 * Terrain::SmoothStep(0.5, 1.0, heightAt(at));
    signs.push_back({Sign::Kind::Peak, at, size * random.between(0.85, 1.1)});
  }
  std::ranges::stable_sort(signs, {}, [](const Sign& sign) { return sign.at.y; });
  return signs;
}

std::vector<Point> Strewer::waves() const {
  return Strew(field_.shape->seed + 4300, 34,
               [this](Point at) { return isFree(at) && heightAt(at) < -0.24 ? 0.5 : 0.0; });
}

std::vector<Point> Strewer::pools() const {
  return Strew(field_.shape->seed + 4500, 11, [this](Point at) {
    return isBog(at) && isFree(at) && heightAt(at) > 0.02 ? 0.7 : 0.0;
  });
}

}  // namespace

QImage TreeSign(const RegionStyle& style, Tree kind, int variant) {
  QImage image(TreeWidth, TreeHeight, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(style.ink.color(60));
  painter.drawEllipse(QPointF(TreeWidth / 2.0 + 3, TreeHeight - 3), 7, 2.4);
  Random random(static_cast<std::uint32_t>(variant) + 77);
  switch (kind) {
    case Tree::Broadleaf:
      DrawBroadleaf(painter, style, random);
      break;
    case Tree::Fir:
      DrawFir(painter, style, random);
      break;
    case Tree::Palm:
      DrawPalm(painter, style, random);
      break;
    case Tree::Dead:
      DrawDeadTree(painter, style, random);
      break;
  }
  return image;
}

void DrawSigns(QPainter& painter, const Terrain::Field& field, const RegionStyle& style,
               const Reserved& reserved) {
  const Strewer strewer(field, style, reserved);
  for (const Point& at : strewer.waves()) {
    DrawWave(painter, style, at);
  }
  Random reeds(field.shape->seed + 4600);
  for (const Point& at : strewer.pools()) {
    DrawPool(painter, style, at, reeds);
  }
  std::array<QImage, Variants> trees;
  for (int i = 0; i < Variants; ++i) {
    trees[static_cast<std::size_t>(i)] = TreeSign(style, style.tree, i);
  }
  Random random(field.shape->seed + 4400);
  for (const Sign& sign : strewer.signs()) {
    if (sign.kind == Sign::Kind::Peak) {
      DrawPeak(painter, style, MakePeak(sign, random));
    } else {
      const QPoint foot(static_cast<int>(sign.at.x * Scale), static_cast<int>(sign.at.y * Scale));
      painter.drawImage(foot - QPoint(TreeWidth / 2, TreeHeight - 3),
                        trees[static_cast<std::size_t>(sign.size)]);
    }
  }
}

}  // namespace Map
