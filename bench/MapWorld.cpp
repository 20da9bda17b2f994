#include "MapWorld.h"

#include "platform/Windows1252.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <random>

namespace {

constexpr size_t DataBytes = 1'000'000;
constexpr size_t InfoEntries = 20'000;
constexpr size_t InfoBytes = 3'400'000;
constexpr int JpegQuality = 85;

constexpr std::array<TextView, MapWorld::Regions> Stems = {u"arvenna", u"skaldor", u"sarrakh",
                                                           u"ostrakh", u"ancestors"};

QImage Noise(const QSize& cells, std::mt19937& random) {
  QImage noise(cells, QImage::Format_RGB32);
  for (int y = 0; y < cells.height(); ++y)
    for (int x = 0; x < cells.width(); ++x)
      noise.setPixel(x, y, static_cast<QRgb>(random()) | 0xFF000000U);
  return noise.scaled(MapWorld::PictureSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

// Noise of several scales, as in a painted landscape.
QByteArray Painted() {
  std::mt19937 random(11);
  QImage picture = Noise({16, 12}, random);
  double opacity = 1;
  for (int scale = 4; scale <= 64; scale *= 4) {
    QPainter painter(&picture);
    painter.setOpacity(opacity /= 2.5);
    painter.drawImage(0, 0, Noise({16 * scale, 12 * scale}, random));
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  picture.save(&buffer, "jpeg", JpegQuality);
  return bytes;
}

std::string DataFile(const std::string& category) {
  std::mt19937 random(7);
  const auto position = [&random] {
    return '=' + std::to_string(random() % 1024) + ',' + std::to_string(random() % 768) + "\r\n";
  };
  std::string data = '[' + category + "]\r\n";
  for (size_t i = 0; i < MapWorld::Entities; ++i)
    data += MapWorld::EntityName(i) + "=#,all\r\n";
  for (size_t section = 0; data.size() < DataBytes * 2 / 3; ++section) {
    data += "[other " + std::to_string(section) + "]\r\n";
    for (size_t i = 0; i < 50; ++i)
      data += MapWorld::EntityName(random() % 100'000) + position();
  }
  data += "[all]\r\n";
  for (size_t i = 0; data.size() < DataBytes; ++i)
    data += MapWorld::EntityName(i) + position();
  return data;
}

std::string Descriptions() {
  std::string info = "[info]\r\n";
  for (size_t i = 0; i < InfoEntries; ++i) {
    info += MapWorld::EntityName(i) + '=';
    const size_t end = InfoBytes * (i + 1) / InfoEntries;
    while (info.size() + 2 < end)
      info += "steht am Weg und wartet "[info.size() % 24];
    info += "\r\n";
  }
  return info;
}

}  // namespace

MapWorld::MapWorld() {
  const std::string picture = Painted().toStdString();
  for (int region = 0; region < Regions; ++region) {
    const std::string stem = *Windows1252::Encode(Stems[static_cast<size_t>(region)]);
    Write(stem + ".jpg", picture);
    Write(stem + ".data", DataFile(*Windows1252::Encode(Measured(region).category)));
  }
  Write("info.data", Descriptions());
}

Text MapWorld::Picture(int region) const {
  return folder_.Path(Texts::Join(Stems[static_cast<size_t>(region)], u".jpg"));
}

Text MapWorld::Data(int region) const {
  return folder_.Path(Texts::Join(Stems[static_cast<size_t>(region)], u".data"));
}

const MenuRow& MapWorld::Measured(int region) {
  const auto rows = MenuTable::Rows();
  return *std::find_if(rows.begin(), rows.end(), [region](const MenuRow& row) {
    return row.kind == MenuRow::Kind::Category && row.region == static_cast<Region>(region) &&
           row.mode == DisplayMode::Labels;
  });
}

std::string MapWorld::EntityName(size_t number) {
  return "Wanderer Nummer " + std::to_string(number);
}

void MapWorld::Touch(const Text& path) const {
  const timespec time[2] = {{++touched_, 0}, {touched_, 0}};
  ::utimensat(AT_FDCWD, NativePath::ToBytes(path).c_str(), time, 0);
}

void MapWorld::Write(const std::string& name, const std::string& bytes) const {
  folder_.Write(name, bytes);
  const timespec longAgo[2] = {{1'000'000'000, 0}, {1'000'000'000, 0}};
  ::utimensat(AT_FDCWD, folder_.Native(name).c_str(), longAgo, 0);
}
