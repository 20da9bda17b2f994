#include "cli/SmallestWorld.h"

#include "mapdata/world/Regions.h"
#include "platform/NativePath.h"
#include "platform/PosixFile.h"

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QString>

#include <array>
#include <filesystem>
#include <string_view>
#include <system_error>

namespace {

constexpr std::string_view Data =
    "; A section is a category of the menus, a line an entity: Name=X,Y\r\n"
    "; in a frame of 1024 across and 768 down the whole picture.\r\n"
    "; Name=X,Y,* is highlighted, Name=#,section stands where that section says.\r\n"
    "[NPC]\r\n"
    "Wanderer=512,384\r\n";

constexpr std::string_view Descriptions =
    "; Name=text, \\n begins a new line; Name=#Other shows the text of Other.\r\n"
    "[info]\r\n"
    "Wanderer=Somebody who is on the way.\r\n";

constexpr std::string_view Portraits =
    "; Name=file, a picture of up to 105 x 105 pixels in this folder.\r\n"
    "[pics]\r\n";

constexpr std::string_view Settings =
    "; What is missing or empty has its default.\r\n"
    "[general]\r\n"
    "language=Deutsch\r\n"
    "\r\n"
    "[special]\r\n"
    "NoExtras=yes\r\n"
    "PlayMusic=no\r\n";

constexpr std::string_view Page =
    "<!DOCTYPE html>\n<html lang=\"en\">\n<meta charset=\"utf-8\">\n<title>A new world</title>\n"
    "<p>Tell your players here what your world is about.</p>\n</html>\n";

struct File {
  std::string_view name;
  std::string_view bytes;
};

constexpr std::array<File, 5> Files = {{{"info.data", Descriptions},
                                        {"PICS/pic.ini", Portraits},
                                        {"orvalis.ini", Settings},
                                        {"orvalis.html", Page},
                                        {"readme.html", Page}}};

// A sheet with a line every 128 units, to be drawn over.
bool WriteSheet(const std::string& path, int hue) {
  constexpr int width = 2048;
  constexpr int height = 1536;
  constexpr int step = 256;
  QImage sheet(width, height, QImage::Format_RGB32);
  sheet.fill(QColor::fromHsv(hue, 40, 225));
  QPainter painter(&sheet);
  painter.setPen(QColor::fromHsv(hue, 60, 170));
  for (int at = step; at < width; at += step)
    painter.drawLine(at, 0, at, height);
  for (int at = step; at < height; at += step)
    painter.drawLine(0, at, width, at);
  painter.end();
  return sheet.save(QString::fromStdString(path), "JPG");
}

}  // namespace

bool SmallestWorld::Write(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder + "/PICS", error);
  std::filesystem::create_directories(folder + "/LANG", error);
  bool written = !error;
  for (const File& file : Files)
    written &= PosixFile::Replace(folder + '/' + std::string(file.name), std::string(file.bytes));
  int hue = 40;
  for (const RegionRow& region : Regions) {
    const std::string stem = folder + '/' + NativePath::ToBytes(region.stem);
    written &= PosixFile::Replace(stem + ".data", std::string(Data));
    written &= WriteSheet(stem + ".jpg", hue);
    hue += 50;
  }
  return written;
}
