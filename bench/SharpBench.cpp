// How near the picture on the map comes to one scaled by areas, each pixel the mean of what it
// covers, from all pixels of the file.

#include "MapWorld.h"
#include "Ratios.h"
#include "mapdata/windows/MapPicture.h"
#include "platform/windows/PictureReader.h"

#include <QGuiApplication>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr QSize Map = {1024, 769};
constexpr QSize Screen = {1920, 1080};
constexpr double LeastDecibels = 35;

// Calls `add(i, part)` for each of `count` pixels that pixel number `at` of `to` covers, with the
// part of the mean that it makes.
template <typename Add>
void ForCovered(int at, int to, int count, Add add) {
  const double step = static_cast<double>(count) / to;
  const double begin = at * step;
  const double end = begin + step;
  for (int i = static_cast<int>(begin); i < count && i < end; ++i)
    add(i, (std::min(end, i + 1.0) - std::max(begin, 1.0 * i)) / step);
}

// Row y of the picture scaled to the size: red, green and blue by turns.
std::vector<double> RowByAreas(const QImage& whole, int y, const QSize& size) {
  std::vector<double> column(static_cast<size_t>(whole.width()) * 3);
  ForCovered(y, size.height(), whole.height(), [&](int from, double part) {
    const uchar* pixels = whole.constScanLine(from);
    for (size_t x = 0; x < column.size() / 3; ++x)
      for (size_t channel = 0; channel < 3; ++channel)
        column[x * 3 + channel] += pixels[x * 4 + 2 - channel] * part;
  });
  std::vector<double> row(static_cast<size_t>(size.width()) * 3);
  for (int x = 0; x < size.width(); ++x)
    ForCovered(x, size.width(), whole.width(), [&](int from, double part) {
      for (size_t channel = 0; channel < 3; ++channel)
        row[static_cast<size_t>(x) * 3 + channel] +=
            column[static_cast<size_t>(from) * 3 + channel] * part;
    });
  return row;
}

// The root of the mean square of what the picture differs from `whole` scaled to its size.
double MeanError(const QImage& whole, const QImage& picture) {
  double squares = 0;
  for (int y = 0; y < picture.height(); ++y) {
    const auto row = RowByAreas(whole, y, picture.size());
    const uchar* pixels = picture.constScanLine(y);
    for (size_t i = 0; i < row.size(); ++i) {
      const double difference = row[i] - pixels[i / 3 * 4 + 2 - i % 3];
      squares += difference * difference;
    }
  }
  return std::sqrt(squares / (3.0 * picture.width() * picture.height()));
}

// The middle of the picture at this scale, against all pixels of the file in the same place.
bool CloserViewIsSharp(const Text& file, const QImage& whole, int percent, double mostError) {
  const double length = 100.0 / percent;
  const QRectF part((1 - length) / 2, (1 - length) / 2, length, length);
  MapPicture picture;
  if (!picture.Load(file, Screen, Screen))
    return false;
  static_cast<void>(picture.Sharpen(Screen, part));
  const auto painted = [](auto paint) {
    QImage image(Screen, QImage::Format_RGB32);
    QPainter painter(&image);
    paint(painter);
    return image;
  };
  const QImage shown = painted(
      [&](QPainter& painter) { picture.Paint(painter, QRectF({}, QSizeF(Screen)), Screen, part); });
  const QImage best = painted([&](QPainter& painter) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF({}, QSizeF(Screen)), whole,
                      {part.x() * whole.width(), part.y() * whole.height(),
                       part.width() * whole.width(), part.height() * whole.height()});
  });
  const double error = MeanError(best, shown);
  std::printf("%d %%, closer: %.1f dB\n", percent, 20 * std::log10(255 / std::max(error, 1e-6)));
  std::fflush(stdout);
  return Ratios::Holds({"ErrorAt" + std::to_string(percent) + "Percent", "ErrorOf35Decibels", 1},
                       error / mostError);
}

}  // namespace

int main(int, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  int onlyName = 1;
  const QGuiApplication forPictures(onlyName, argv);
  const MapWorld world;
  const Text file = world.Picture(0);
  const QImage whole = PictureReader::Read(file);
  const double mostError = 255 / std::pow(10, LeastDecibels / 20);
  bool sharp = true;
  for (const int ratio : {1, 2})
    for (const int percent : {50, 100, 150}) {
      const QSize size = Map * ratio * percent / 100;
      MapPicture picture;
      if (!picture.Load(file, size, (Screen * ratio).expandedTo(size)))
        return 1;
      const double error = MeanError(whole, picture.At(size));
      std::printf("%d %%, ratio %d: %.1f dB\n", percent, ratio, 20 * std::log10(255 / error));
      std::fflush(stdout);
      const std::string name =
          "ErrorAt" + std::to_string(percent) + "PercentRatio" + std::to_string(ratio);
      sharp = Ratios::Holds({name, "ErrorOf35Decibels", 1}, error / mostError) && sharp;
    }
  for (const int percent : {200, 400, 800})
    sharp = CloserViewIsSharp(file, whole, percent, mostError) && sharp;
  return sharp ? 0 : 1;
}
