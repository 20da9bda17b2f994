#include "terrain/Roads.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <queue>

#include "terrain/Noise.h"

namespace Terrain {

namespace {

constexpr int WayCell = 4;
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
  return std::clamp(static_cast<int>(frame / WayCell), 0, cells - 1);
}

void Smooth(Way& way) {
  for (int pass = 0; pass < 3; ++pass) {
    for (std::size_t i = 1; i + 1 < way.size(); ++i) {
      way[i] = {(way[i - 1].x + 2 * way[i].x + way[i + 1].x) / 4,
                (way[i - 1].y + 2 * way[i].y + way[i + 1].y) / 4};
    }
  }
}

/// Walkers that spread over the cells from a start, the one with the least cost first.
class Search {
 public:
  Search(int width, int height) : cost_(width, height, Impassable), cameBy_(width, height) {}

  /// A walker enters a cell by that step, unless another was there at no higher cost.
  void reach(int x, int y, float cost, const Step* step = nullptr) {
    if (cost < cost_.at(x, y)) {
      cost_.at(x, y) = cost;
      cameBy_.at(x, y) = step;
      walkers_.push({cost, x, y});
    }
  }

  /// The walker to go on from; none where every cell is either settled or out of reach.
  [[nodiscard]] std::optional<Walker> next() {
    while (!walkers_.empty()) {
      const Walker walker = walkers_.top();
      walkers_.pop();
      if (walker.cost <= cost_.at(walker.x, walker.y)) {
        return walker;
      }
    }
    return std::nullopt;
  }

  /// The walker's way from the start, through the middles of cells.
  [[nodiscard]] Way wayTo(Walker walker, Point start) const {
    Way way;
    while (const Step* step = cameBy_.at(walker.x, walker.y)) {
      way.push_back({walker.x * WayCell + 2.0, walker.y * WayCell + 2.0});
      walker.x -= step->x;
      walker.y -= step->y;
    }
    way.push_back(start);
    std::ranges::reverse(way);
    return way;
  }

 private:
  Grid<float> cost_;
  Grid<const Step*> cameBy_;
  std::priority_queue<Walker, std::vector<Walker>, std::greater<>> walkers_;
};

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
    : effort_(FrameWidth / WayCell, FrameHeight / WayCell),
      trodden_(effort_.width(), effort_.height()) {
  for (int y = 0; y < effort_.height(); ++y) {
    for (int x = 0; x < effort_.width(); ++x) {
      effort_.at(x, y) = EffortAt(field, x * WayCell + 2, y * WayCell + 2);
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
  Search search(goals.width(), goals.height());
  search.reach(CellOf(from.x, goals.width()), CellOf(from.y, goals.height()), 0);
  while (const std::optional<Walker> walker = search.next()) {
    if (goals.at(walker->x, walker->y)) {
      return search.wayTo(*walker, from);
    }
    for (const Step& step : Steps) {
      const int x = walker->x + step.x;
      const int y = walker->y + step.y;
      if (goals.contains(x, y)) {
        const float effort = effort_.at(x, y) * (trodden_.at(x, y) ? KnownWay : 1.0F);
        search.reach(x, y, walker->cost + effort * step.length, &step);
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
    if (way.size() < 3 || static_cast<double>(way.size()) * WayCell > LongestBranch) {
      continue;
    }
    tread(way);
    Smooth(way);
    ways.push_back(std::move(way));
  }
  return ways;
}

}  // namespace Terrain
