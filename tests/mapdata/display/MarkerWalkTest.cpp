#include "mapdata/display/MarkerWalk.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <random>
#include <set>
#include <vector>

using MarkerWalk::Direction;
using MarkerWalk::Next;
using MarkerWalk::Point;

namespace {

constexpr std::array Directions = {Direction::Left, Direction::Right, Direction::Up,
                                   Direction::Down};

// The steps from the first point; -1 where there is none.
std::vector<int> StepsFromFirst(const std::vector<Point>& points) {
  std::vector<int> steps;
  for (const Direction direction : Directions) {
    const auto next = Next(points, 0, direction);
    steps.push_back(next ? static_cast<int>(*next) : -1);
  }
  return steps;
}

size_t Reached(const std::vector<Point>& points) {
  std::set<size_t> seen = {0};
  std::vector<size_t> open = {0};
  while (!open.empty()) {
    const size_t from = open.back();
    open.pop_back();
    for (const Direction direction : Directions)
      if (const auto next = Next(points, from, direction); next && seen.insert(*next).second)
        open.push_back(*next);
  }
  return seen.size();
}

}  // namespace

TEST(MarkerWalk, GoesToTheNearestInTheDirectionPressed) {
  constexpr int most = std::numeric_limits<int>::max();
  using Steps = std::vector<int>;
  EXPECT_EQ(StepsFromFirst({{5, 5}}), (Steps{-1, -1, -1, -1})) << "alone";
  EXPECT_EQ(StepsFromFirst({{5, 5}, {1, 5}, {9, 5}, {5, 1}, {5, 9}}), (Steps{1, 2, 3, 4}));
  EXPECT_EQ(StepsFromFirst({{0, 0}, {9, 0}, {4, 3}, {2, 7}}), (Steps{-1, 2, -1, 3}))
      << "near beats straight";
  EXPECT_EQ(StepsFromFirst({{0, 0}, {1, 2}, {50, 9}}), (Steps{-1, 2, -1, 1}))
      << "within the cone beats near";
  EXPECT_EQ(StepsFromFirst({{0, 0}, {1, 9}, {2, 30}}), (Steps{-1, 1, -1, 1}))
      << "what lies beside the cone when the cone is empty";
  EXPECT_EQ(StepsFromFirst({{0, 0}, {3, 3}}), (Steps{-1, 1, -1, 1})) << "on the cone's edge";
  EXPECT_EQ(StepsFromFirst({{0, 0}, {0, 4}}), (Steps{-1, -1, -1, 1})) << "level is no side";
  EXPECT_EQ(StepsFromFirst({{-most, -most}, {most, most}}), (Steps{-1, 1, -1, 1}));
}

TEST(MarkerWalk, PassesMarkersAtOnePointInTheirOrder) {
  const std::vector<Point> points = {{0, 0}, {5, 5}, {5, 5}, {5, 5}, {9, 5}};
  EXPECT_EQ(Next(points, 1, Direction::Right), 2U);
  EXPECT_EQ(Next(points, 2, Direction::Down), 3U);
  EXPECT_EQ(Next(points, 3, Direction::Right), 4U);
  EXPECT_EQ(Next(points, 3, Direction::Left), 2U);
  EXPECT_EQ(Next(points, 1, Direction::Up), 0U);
}

TEST(MarkerWalk, LeadsEverywhereOnOrdinaryMaps) {
  std::mt19937 random(7);
  const auto below = [&random](int limit) { return static_cast<int>(random() % limit); };
  for (int map = 0; map < 50; ++map) {
    std::vector<Point> points;
    for (int i = 0; i < 81; ++i)
      points.push_back({below(1024), below(768)});
    EXPECT_EQ(Reached(points), points.size()) << "map " << map;
  }
}
