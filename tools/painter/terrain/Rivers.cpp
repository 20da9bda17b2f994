#include "terrain/Rivers.h"

#include <algorithm>
#include <queue>

#include "terrain/Noise.h"

namespace Terrain {

namespace {

constexpr int CellSize = 3;
constexpr std::size_t ShortestRiver = 12;
constexpr double WidestRiver = 6.5;
// What was built stands dry.
constexpr float BuiltUp = 0.4F;

struct Cell {
  int x = -1;
  int y = -1;
};

constexpr Cell Neighbours[] = {{-1, 0},  {1, 0},  {0, -1}, {0, 1},
                               {-1, -1}, {1, -1}, {-1, 1}, {1, 1}};

struct Front {
  float level;
  std::uint32_t order;
  Cell cell;
};

struct Higher {
  bool operator()(const Front& a, const Front& b) const {
    return a.level != b.level ? a.level > b.level : a.order > b.order;
  }
};

class Drainage {
 public:
  explicit Drainage(Field& field)
      : field_(field),
        height_(FrameWidth / CellSize, FrameHeight / CellSize),
        flood_(height_),
        downhill_(height_.width(), height_.height()),
        rain_(height_) {}

  void run();

 private:
  void sample();
  void flood();
  void gather();
  [[nodiscard]] bool isRiver(Cell cell) const;
  [[nodiscard]] bool isSource(Cell cell) const;
  [[nodiscard]] double widthAt(Cell cell) const;
  [[nodiscard]] Point placeOf(Cell cell) const;
  void trace(Cell source, Grid<char>& taken);

  Field& field_;
  Grid<float> height_;
  Grid<float> flood_;
  Grid<Cell> downhill_;
  Grid<float> rain_;
  std::vector<Cell> fromSea_;
};

void Drainage::sample() {
  const std::uint32_t seed = field_.shape->seed + 5000;
  for (int y = 0; y < height_.height(); ++y) {
    for (int x = 0; x < height_.width(); ++x) {
      // A little roughness makes rivers wind where a plain would let them run straight.
      const double rough = 0.018 * GradientNoise(seed, x / 3.1, y / 3.1);
      const bool paved = field_.floor.at(x * CellSize + 1, y * CellSize + 1) > -8;
      const float level =
          field_.height.at(x * CellSize + 1, y * CellSize + 1) + (paved ? BuiltUp : 0.0F);
      height_.at(x, y) = level < 0 ? level : std::max(0.001F, level + static_cast<float>(rough));
    }
  }
}

void Drainage::flood() {
  std::priority_queue<Front, std::vector<Front>, Higher> fronts;
  Grid<char> reached(height_.width(), height_.height());
  std::uint32_t order = 0;
  // In a filled hollow all is level; a little resistance by chance lets rivers wind through it.
  const std::uint32_t seed = field_.shape->seed + 5200;
  const auto resistance = [&](Cell cell) {
    return 0.0035F * static_cast<float>(HashFraction(seed, cell.x, cell.y) +
                                        GradientNoise(seed, cell.x / 6.0, cell.y / 6.0) + 0.7);
  };
  const auto reach = [&](Cell cell, Cell next, float level) {
    reached.at(cell.x, cell.y) = 1;
    downhill_.at(cell.x, cell.y) = next;
    flood_.at(cell.x, cell.y) = level;
    fronts.push({level, order++, cell});
  };
  for (int y = 0; y < height_.height(); ++y) {
    for (int x = 0; x < height_.width(); ++x) {
      const bool edge = x == 0 || y == 0 || x == height_.width() - 1 || y == height_.height() - 1;
      if (edge) {
        reach({x, y}, {}, height_.at(x, y));
      }
    }
  }
  while (!fronts.empty()) {
    const Front front = fronts.top();
    fronts.pop();
    fromSea_.push_back(front.cell);
    for (const Cell& step : Neighbours) {
      const Cell next{front.cell.x + step.x, front.cell.y + step.y};
      if (height_.contains(next.x, next.y) && !reached.at(next.x, next.y)) {
        reach(next, front.cell,
              std::max(front.level, height_.at(next.x, next.y)) + resistance(next));
      }
    }
  }
}

void Drainage::gather() {
  constexpr float CellArea = CellSize * CellSize;
  for (auto cell = fromSea_.rbegin(); cell != fromSea_.rend(); ++cell) {
    float& rain = rain_.at(cell->x, cell->y);
    const Point place = placeOf(*cell);
    rain += CellArea *
            (0.3F + field_.moisture.clamped(static_cast<int>(place.x), static_cast<int>(place.y)));
    const Cell next = downhill_.at(cell->x, cell->y);
    if (next.x >= 0) {
      rain_.at(next.x, next.y) += rain;
    }
  }
}

bool Drainage::isRiver(Cell cell) const {
  return height_.at(cell.x, cell.y) >= 0 &&
         rain_.at(cell.x, cell.y) > static_cast<float>(field_.shape->catchment);
}

bool Drainage::isSource(Cell cell) const {
  if (!isRiver(cell)) {
    return false;
  }
  return std::ranges::none_of(Neighbours, [&](const Cell& step) {
    const Cell above{cell.x + step.x, cell.y + step.y};
    if (!height_.contains(above.x, above.y)) {
      return false;
    }
    const Cell next = downhill_.at(above.x, above.y);
    return next.x == cell.x && next.y == cell.y &&
           (isRiver(above) || height_.at(above.x, above.y) < 0);
  });
}

double Drainage::widthAt(Cell cell) const {
  const double gathered = rain_.at(cell.x, cell.y) / field_.shape->catchment;
  return std::min(WidestRiver, 0.8 + 0.75 * std::sqrt(std::max(0.0, gathered - 1)));
}

Point Drainage::placeOf(Cell cell) const {
  const std::uint32_t seed = field_.shape->seed + 5100;
  return {(cell.x + 0.5 + 0.5 * (HashFraction(seed, cell.x, cell.y) - 0.5)) * CellSize,
          (cell.y + 0.5 + 0.5 * (HashFraction(seed + 1, cell.x, cell.y) - 0.5)) * CellSize};
}

void Drainage::trace(Cell source, Grid<char>& taken) {
  River river;
  std::size_t ownBends = 0;
  for (Cell cell = source; cell.x >= 0; cell = downhill_.at(cell.x, cell.y)) {
    river.bends.push_back({placeOf(cell), widthAt(cell)});
    if (taken.at(cell.x, cell.y) || height_.at(cell.x, cell.y) < 0) {
      break;
    }
    ++ownBends;
    taken.at(cell.x, cell.y) = 1;
  }
  if (ownBends >= ShortestRiver || (ownBends > 2 && river.bends.front().width > 1.5)) {
    field_.rivers.push_back(std::move(river));
  }
}

void SmoothBends(River& river) {
  std::vector<River::Bend>& bends = river.bends;
  for (int pass = 0; pass < 3; ++pass) {
    for (std::size_t i = 1; i + 1 < bends.size(); ++i) {
      bends[i].at.x = (bends[i - 1].at.x + 2 * bends[i].at.x + bends[i + 1].at.x) / 4;
      bends[i].at.y = (bends[i - 1].at.y + 2 * bends[i].at.y + bends[i + 1].at.y) / 4;
    }
  }
}

void MarkCover(Field& field, const River::Bend& bend) {
  const double reach = bend.width / 2 + 0.8;
  const int range = static_cast<int>(reach) + 1;
  const int column = static_cast<int>(bend.at.x);
  const int row = static_cast<int>(bend.at.y);
  for (int y = row - range; y <= row + range; ++y) {
    for (int x = column - range; x <= column + range; ++x) {
      if (field.river.contains(x, y)) {
        const double away = Distance(bend.at, {x + 0.5, y + 0.5});
        const auto cover = static_cast<float>(Clamp01(reach - away));
        field.river.at(x, y) = std::max(field.river.at(x, y), cover);
      }
    }
  }
}

void Drainage::run() {
  sample();
  flood();
  gather();
  Grid<char> taken(height_.width(), height_.height());
  // From the highest source down, so that the longest course keeps its own line.
  for (auto cell = fromSea_.rbegin(); cell != fromSea_.rend(); ++cell) {
    if (isSource(*cell)) {
      trace(*cell, taken);
    }
  }
}

}  // namespace

void FollowRivers(Field& field) {
  Drainage(field).run();
  for (River& river : field.rivers) {
    SmoothBends(river);
    for (std::size_t i = 1; i < river.bends.size(); ++i) {
      const River::Bend& a = river.bends[i - 1];
      const River::Bend& b = river.bends[i];
      for (int part = 0; part < 4; ++part) {
        const double t = part / 4.0;
        MarkCover(field,
                  {{Lerp(a.at.x, b.at.x, t), Lerp(a.at.y, b.at.y, t)}, Lerp(a.width, b.width, t)});
      }
    }
  }
}

}  // namespace Terrain
