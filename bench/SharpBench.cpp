// How near the picture on the map comes to one scaled by areas, each pixel the mean of what it
// covers, from all pixels of the file.

#include "MapWorld.h"
#include "Ratios.h"
#include "mapdata/MapPicture.h"
#include "mapdata/PictureReader.h"

#include <QGuiApplication>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr QSize Map = {1024, 769};
constexpr QSize Screen = {1920, 1080};
constexpr double LeastDecibels = 35;

// One row or column of red, green and blue, reduced or stretched to `to` pixels by areas.
using Line = std::vector<double>;

Line ByAreas(const Line& from, size_t to) {
  const size_t count = from.size() / 3;
  const double step = static_cast<double>(count) / static_cast<double>(to);
  Line line(to * 3);
  for (size_t i = 0; i < to; ++i) {
    const double begin = static_cast<double>(i) * step;
    const double end = begin + step;
    for (auto at = static_cast<size_t>(begin); at < count && static_cast<double>(at) < end; ++at) {
      const double part =
          std::min(end, static_cast<double>(at + 1)) - std::max(begin, static_cast<double>(at));
      for (size_t channel = 0; channel < 3; ++channel)
        line[i * 3 + channel] += from[at * 3 + channel] * part / step;
    }
  }
  return line;
}

std::vector<Line> Rows(const QImage& picture) {
  std::vector<Line> rows(static_cast<size_t>(picture.height()));
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x) {
      const QRgb color = picture.pixel(x, y);
      for (const int value : {qRed(color), qGreen(color), qBlue(color)})
        rows[static_cast<size_t>(y)].push_back(value);
    }
  return rows;
}

std::vector<Line> Turned(const std::vector<Line>& rows) {
  std::vector<Line> columns(rows.front().size() / 3);
  for (size_t x = 0; x < columns.size(); ++x)
    for (const Line& row : rows)
      columns[x].insert(columns[x].end(), row.begin() + static_cast<ptrdiff_t>(x * 3),
                        row.begin() + static_cast<ptrdiff_t>(x * 3 + 3));
  return columns;
}

std::vector<Line> ByAreas(std::vector<Line> rows, const QSize& size) {
  for (Line& row : rows)
    row = ByAreas(row, static_cast<size_t>(size.width()));
  rows = Turned(rows);
  for (Line& column : rows)
    column = ByAreas(column, static_cast<size_t>(size.height()));
  return Turned(rows);
}

double MeanError(const std::vector<Line>& a, const std::vector<Line>& b) {
  double squares = 0;
  for (size_t y = 0; y < a.size(); ++y)
    for (size_t i = 0; i < a[y].size(); ++i)
      squares += (a[y][i] - b[y][i]) * (a[y][i] - b[y][i]);
  return std::sqrt(squares / static_cast<double>(a.size() * a.front().size()));
}

}  // namespace

int main(int, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int onlyName = 1;
  const QGuiApplication forPictures(onlyName, argv);
  const MapWorld world;
  const Text file = world.Picture(0);
  const std::vector<Line> whole = Rows(PictureReader::Read(file));
  const double mostError = 255 / std::pow(10, LeastDecibels / 20);
  bool sharp = true;
  for (const int ratio : {1, 2})
    for (const int percent : {50, 100, 150}) {
      const QSize size = Map * ratio * percent / 100;
      MapPicture picture;
      if (!picture.Load(file, size, (Screen * ratio).expandedTo(size)))
        return 1;
      const double error = MeanError(ByAreas(whole, size), Rows(picture.At(size)));
      std::printf("%d %%, ratio %d: %.1f dB\n", percent, ratio, 20 * std::log10(255 / error));
      std::fflush(stdout);
      const std::string name =
          "ErrorAt" + std::to_string(percent) + "PercentRatio" + std::to_string(ratio);
      sharp = Ratios::Holds({name, "ErrorOf35Decibels", 1}, error / mostError) && sharp;
    }
  return sharp ? 0 : 1;
}
