#include "map/WorldData.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <optional>

namespace WorldData {

namespace {

std::string Trimmed(std::string_view text) {
  const std::size_t from = text.find_first_not_of(" \t\r");
  if (from == std::string_view::npos) {
    return {};
  }
  return std::string(text.substr(from, text.find_last_not_of(" \t\r") - from + 1));
}

std::optional<Terrain::Point> Position(const std::string& value) {
  int x = 0;
  int y = 0;
  if (std::sscanf(value.c_str(), "%d , %d", &x, &y) != 2) {
    return std::nullopt;
  }
  return Terrain::Point{static_cast<double>(x), static_cast<double>(y)};
}

std::string LinkTarget(const std::string& value) {
  const std::size_t comma = value.find(',');
  if (value.empty() || value.front() != '#' || comma == std::string::npos) {
    return {};
  }
  const std::size_t end = value.find(',', comma + 1);
  return Trimmed(
      std::string_view(value).substr(comma + 1, end == std::string::npos ? end : end - comma - 1));
}

}  // namespace

DataFile::DataFile(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  for (std::string line; std::getline(file, line);) {
    const std::string text = Trimmed(line);
    const std::size_t equals = text.find('=');
    if (text.starts_with('[')) {
      sections_.push_back({text.substr(1, text.find(']') - 1), {}});
    } else if (equals != std::string::npos && !sections_.empty()) {
      sections_.back().entries.emplace_back(Trimmed(text.substr(0, equals)),
                                            Trimmed(text.substr(equals + 1)));
    }
  }
}

const DataFile::Section* DataFile::find(std::string_view name) const {
  const auto found = std::ranges::find(sections_, name, &Section::name);
  return found == sections_.end() ? nullptr : &*found;
}

void DataFile::append(std::vector<Place>& places, const Section& section) const {
  for (const auto& [key, value] : section.entries) {
    if (key.empty() || key.front() == ';') {
      continue;
    }
    std::optional<Terrain::Point> at = Position(value);
    if (const Section* target = at ? nullptr : find(LinkTarget(value))) {
      const auto entry = std::ranges::find(target->entries, key, &Entry::first);
      at = entry == target->entries.end() ? std::nullopt : Position(entry->second);
    }
    if (at) {
      // Windows-1252 and Latin-1 agree on every letter of a German place name.
      const QString name = QString::fromLatin1(key);
      places.push_back({name.startsWith(u'*') ? name.mid(1) : name, *at});
    }
  }
}

std::vector<Place> DataFile::places(std::string_view section) const {
  std::vector<Place> places;
  if (const Section* found = find(section)) {
    append(places, *found);
  }
  return places;
}

std::vector<Place> DataFile::allPlaces() const {
  std::vector<Place> places;
  for (const Section& section : sections_) {
    append(places, section);
  }
  return places;
}

std::vector<std::string> DataFile::values() const {
  std::vector<std::string> values;
  for (const Section& section : sections_) {
    for (const auto& entry : section.entries) {
      values.push_back(entry.second);
    }
  }
  return values;
}

}  // namespace WorldData
