#include "terrain/Roads.h"

#include <algorithm>
#include <numeric>
#include <queue>

#include "terrain/Noise.h"

namespace Terrain {

namespace {

constexpr int CellSize = 4;
constexpr float Impassable = 1e6F;
constexpr float KnownWay = 0.35F;
constexpr double LongestBranch = 220;

struct Step {
  int x, y;
  float length;
};

constexpr Step Steps[] = {{-1, 0, 1},       {1, 0, 1},       {0, -1, 1},      {0, 1, 1},
                          {-1, -1, 1.414F}, {1, -1, 1.414F}, {-1, 1, 1.414F}, {1, 1, 1.414F},
                          {-2, -1, 2.236F}, {2, -1, 2.236F}, {-2, 1, 2.236F}, {2, 1, 2.236F},
                          {-1, -2, 2.236F}, {1, -2, 2.236F}, {-1, 2, 2.236F}, {1, 2, 2.236F}};

struct Walker {
  float cost;
  int x, y;

  bool operator>(const Walker& other) const {
    if (cost != other.cost) {
      return cost > other.cost;
    }
    return y != other.y ? y > other.y : x > other.x;
  }
};

float EffortAt(const Field& field, int x, int y) {
  if (field.height.clamped(x, y) < 0.006F) {
    return Impassable;
  }
  const double steepness = Steepness(field, x, y);
  const double rough = 0.6 * GradientNoise(field.shape->seed + 5300, x / 24.0, y / 24.0);
  return static_cast<float>(1.8 + rough + 1.6 * steepness * steepness +
                            1.2 * field.forest.clamped(x, y) + 7 * field.river.clamped(x, y));
}

int CellOf(double frame, int cells) {
  return std::clamp(static_cast<int>(frame / CellSize), 0, cells - 1);
}

void Smooth(Way& way) {
  for (int pass = 0; pass < 3; ++pass) {
    for (std::size_t i = 1; i + 1 < way.size(); ++i) {
      way[i] = {(way[i - 1].x + 2 * way[i].x + way[i + 1].x) / 4,
                (way[i - 1].y + 2 * way[i].y + way[i + 1].y) / 4};
    }
  }
}

struct Pair {
  std::size_t a, b;
  double distance;
};

std::vector<Pair> PairsByDistance(const std::vector<Point>& places) {
  std::vector<Pair> pairs;
  for (std::size_t a = 0; a < places.size(); ++a) {
    for (std::size_t b = a + 1; b < places.size(); ++b) {
      pairs.push_back({a, b, Distance(places[a], places[b])});
    }
  }
  std::ranges::stable_sort(pairs, {}, &Pair::distance);
  return pairs;
}

}  // namespace

RoadNetwork::RoadNetwork(const Field& field)
    : effort_(FrameWidth / CellSize, FrameHeight / CellSize),
      trodden_(effort_.width(), effort_.height()) {
  for (int y = 0; y < effort_.height(); ++y) {
    for (int x = 0; x < effort_.width(); ++x) {
      effort_.at(x, y) = EffortAt(field, x * CellSize + 2, y * CellSize + 2);
    }
  }
}

Way RoadNetwork::find(Point from, Point to) const {
  Grid<char> goals(effort_.width(), effort_.height());
  goals.at(CellOf(to.x, goals.width()), CellOf(to.y, goals.height())) = 1;
  Way way = find(from, goals);
  if (!way.empty()) {
    way.back() = to;
  }
  return way;
}

Way RoadNetwork::find(Point from, const Grid<char>& goals) const {
  Grid<float> cost(effort_.width(), effort_.height(), Impassable);
  Grid<int> cameBy(effort_.width(), effort_.height(), -1);
  std::priority_queue<Walker, std::vector<Walker>, std::greater<>> walkers;
  const int startX = CellOf(from.x, cost.width());
  const int startY = CellOf(from.y, cost.height());
  cost.at(startX, startY) = 0;
  walkers.push({0, startX, startY});
  while (!walkers.empty()) {
    Walker walker = walkers.top();
    walkers.pop();
    if (walker.cost > cost.at(walker.x, walker.y)) {
      continue;
    }
    if (goals.at(walker.x, walker.y)) {
      Way way;
      while (cameBy.at(walker.x, walker.y) >= 0) {
        way.push_back({walker.x * CellSize + 2.0, walker.y * CellSize + 2.0});
        const Step& step = Steps[cameBy.at(walker.x, walker.y)];
        walker.x -= step.x;
        walker.y -= step.y;
      }
      way.push_back(from);
      std::ranges::reverse(way);
      return way;
    }
    for (int i = 0; i < static_cast<int>(std::size(Steps)); ++i) {
      const int x = walker.x + Steps[i].x;
      const int y = walker.y + Steps[i].y;
      if (!cost.contains(x, y)) {
        continue;
      }
      const float effort = effort_.at(x, y) * (trodden_.at(x, y) ? KnownWay : 1.0F);
      const float reached = walker.cost + effort * Steps[i].length;
      if (reached < cost.at(x, y)) {
        cost.at(x, y) = reached;
        cameBy.at(x, y) = i;
        walkers.push({reached, x, y});
      }
    }
  }
  return {};
}

void RoadNetwork::tread(const Way& way) {
  for (const Point& at : way) {
    trodden_.at(CellOf(at.x, trodden_.width()), CellOf(at.y, trodden_.height())) = 1;
  }
}

std::vector<Way> RoadNetwork::join(const std::vector<Point>& settlements) {
  std::vector<std::size_t> group(settlements.size());
  std::iota(group.begin(), group.end(), 0U);
  std::vector<Way> ways;
  for (const Pair& pair : PairsByDistance(settlements)) {
    if (group[pair.a] == group[pair.b]) {
      continue;
    }
    Way way = find(settlements[pair.a], settlements[pair.b]);
    if (way.empty()) {
      continue;
    }
    tread(way);
    Smooth(way);
    ways.push_back(std::move(way));
    std::ranges::replace(group, std::size_t{group[pair.b]}, std::size_t{group[pair.a]});
  }
  return ways;
}

std::vector<Way> RoadNetwork::branch(const std::vector<Point>& places) {
  std::vector<Way> ways;
  for (const Point& place : places) {
    Way way = find(place, trodden_);
    if (way.size() < 3 || static_cast<double>(way.size()) * CellSize > LongestBranch) {
      continue;
    }
    tread(way);
    Smooth(way);
    ways.push_back(std::move(way));
  }
  return ways;
}

}  // namespace Terrain
