#include "GeneratedWorld.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <map>

namespace {

constexpr std::array<const char*, 8> Trades = {"H\xE4ndler ", "Schmied ", "J\xE4ger ", "Koch ",
                                               "Alchemist ",  "Druide ",  "Wolf ",     "Truhe "};
constexpr std::array<const char*, 12> Syllables = {"ma", "ra",  "bor", "kel", "in", "tha",
                                                   "ul", "gor", "fen", "dis", "ho", "wen"};
constexpr size_t LinesOfSection = 80;
constexpr size_t LinksOfSection = 16;
constexpr WorldSize Measured = {32'765, 16'000, 200, 5'000};

}  // namespace

GeneratedWorld::GeneratedWorld(const WorldSize& size) {
  for (size_t i = 0; i < Regions.size(); ++i)
    Write(NativePath::ToBytes(Regions[i].stem) + ".data",
          RegionOf((size.records + i) / Regions.size()));
  Write("info.data", Descriptions(size));
  const size_t measured = bytes_;
  Write("LANG/English/English.lng", Language(size));
  bytes_ = measured;
}

std::string GeneratedWorld::NewName() {
  std::string name = Trades[random_() % Trades.size()];
  for (int n = 0; n < 5; ++n)
    name += Syllables[random_() % Syllables.size()];
  return names_.emplace_back(std::move(name));
}

// Each section links to the one before it.
std::string GeneratedWorld::RegionOf(size_t records) {
  std::string region;
  size_t linkable = names_.size();
  for (size_t done = 0; done < records;) {
    const std::string section = "category " + std::to_string(done / LinesOfSection);
    region += '[' + section + "]\r\n";
    const size_t links = done == 0 ? 0 : LinksOfSection;
    const std::string before = "category " + std::to_string(done / LinesOfSection - 1);
    for (size_t i = 0; i < links && done < records; ++i, ++done)
      region += names_[linkable + i] + "=#," + before + "\r\n";
    linkable = names_.size();
    for (size_t i = links; i < LinesOfSection && done < records; ++i, ++done)
      region += NewName() + '=' + std::to_string(random_() % 1024) + ',' +
                std::to_string(random_() % 768) + "\r\n";
  }
  return region;
}

std::string GeneratedWorld::Descriptions(const WorldSize& size) {
  std::string info = "[info]\r\n";
  for (size_t i = 0; i < size.descriptions; ++i) {
    info += names_[i % names_.size()] + '=';
    if (i % 10 == 9) {
      info += '#' + names_[random_() % names_.size()] + "\r\n";
      continue;
    }
    std::string text;
    while (text.size() < size.descriptionLength)
      text.append(Syllables[random_() % Syllables.size()]).append(i % 3 ? " " : ", \\n");
    info += text + "\r\n";
  }
  return info;
}

std::string GeneratedWorld::Language(const WorldSize& size) {
  std::string language = "[general]\r\nlanguage=English\r\n[entities]\r\n";
  for (size_t i = 0; i < size.languageKeys; ++i)
    language += names_[random_() % names_.size()] + "=Person " + std::to_string(i) + "\r\n";
  return language;
}

// Files of a world are old: new ones are read again at each event.
void GeneratedWorld::Write(const std::string& name, const std::string& bytes) {
  folder_.Write(name, bytes);
  const timespec longAgo[2] = {{1'000'000'000, 0}, {1'000'000'000, 0}};
  ::utimensat(AT_FDCWD, folder_.Native(name).c_str(), longAgo, 0);
  bytes_ += bytes.size();
}

const GeneratedWorld& MeasuredWorld() {
  static const GeneratedWorld world(Measured);
  return world;
}

const GeneratedWorld& WorldOf(size_t records) {
  static std::map<size_t, const GeneratedWorld> worlds;
  return worlds.try_emplace(records, WorldSize{records, records / 2, 20, 0}).first->second;
}
