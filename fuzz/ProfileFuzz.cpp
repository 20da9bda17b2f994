// Any bytes as a profile file, written to and read back. Input: the section, the key and the value
// to write, a line each, then the file.

#include "Fuzz.h"
#include "mapdata/files/ProfileFile.h"
#include "mapdata/files/ProfileLines.h"

#include <algorithm>
#include <tuple>
#include <vector>

using Fuzz::Require;
using Fuzz::TakeField;
using ProfileLines::Blanks;
using ProfileLines::SameName;
using ProfileLines::Strip;

namespace {

struct Entry {
  std::string section;
  std::string key;
  std::string value;
};

// Names that a file can hold so that they are found again under the same name.
bool CanBeAsked(const Entry& entry) {
  const auto plain = [](std::string_view name) {
    return Strip(name, Blanks) == Strip(name, " ") && name.find('\r') == std::string_view::npos;
  };
  const std::string_view key = Strip(entry.key, " ");
  return plain(entry.section) && plain(entry.key) && entry.section.find(']') == std::string::npos &&
         entry.value.find('\r') == std::string::npos && key.find('=') == std::string_view::npos &&
         !key.starts_with(';') && !key.starts_with('[');
}

std::string_view AsRead(std::string_view value) {
  return ProfileLines::Unquoted(Strip(value, Blanks)).substr(0, ProfileFile::LongestValue);
}

bool Means(const Entry& entry, std::string_view section, std::string_view key) {
  return SameName(Strip(section, " "), Strip(entry.section, " ")) &&
         SameName(Strip(key, " "), Strip(entry.key, " "));
}

// Every question that the file's own names give, with its answer.
auto Answers(const ProfileFile& asked, const ProfileFile& names, const Entry& but) {
  std::vector<std::tuple<std::string, std::string, std::string>> answers;
  for (const ProfileFile::Section& section : names.Sections())
    for (const std::string_view key : names.KeyNames(section.name))
      if (!Means(but, section.name, key))
        answers.emplace_back(section.name, key, asked.Value(section.name, key).value_or("(none)"));
  return answers;
}

// What is left of `before` between what both texts begin and end with lies within one line.
void RequireOneLineChanged(std::string_view before, std::string_view after) {
  const size_t shorter = std::min(before.size(), after.size());
  size_t front = 0;
  while (front < shorter && before[front] == after[front])
    ++front;
  size_t back = 0;
  while (back < shorter - front &&
         before[before.size() - 1 - back] == after[after.size() - 1 - back])
    ++back;
  const std::string_view lost = before.substr(front, before.size() - front - back);
  Require(lost.find_first_of("\r\n") == std::string_view::npos, "other lines keep their bytes");
}

// Every line stands where the file says it does, and nothing is between the lines.
void RequirePlaces(const ProfileFile& file) {
  std::string joined;
  for (const ProfileLines::Line& line : ProfileLines::Lines(file.Bytes()))
    joined.append(line.raw).append(line.end);
  Require(joined == file.Bytes(), "the lines put together are the file");
  size_t line = 0;
  for (const ProfileFile::Section& section : file.Sections()) {
    const auto place = file.PlaceOf(section.header);
    Require(place && place->column == 1 && place->line > line, "headers have lines of their own");
    line = place->line;
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, size_t size) {
  std::string_view input(reinterpret_cast<const char*>(data), size);
  const Entry entry{std::string(TakeField(input)), std::string(TakeField(input)),
                    std::string(TakeField(input))};
  const ProfileFile before{std::string(input)};
  RequirePlaces(before);
  if (!CanBeAsked(entry))
    return 0;
  const std::string written = before.WithValue(entry.section, entry.key, entry.value);
  const ProfileFile after{written};
  RequireOneLineChanged(input, written);
  Require(after.Value(entry.section, entry.key) == AsRead(entry.value), "the value is read back");
  Require(Answers(before, before, entry) == Answers(after, before, entry), "all other values stay");
  Require(after.WithValue(entry.section, entry.key, entry.value) == written,
          "writing the same again changes nothing");
  return 0;
}
