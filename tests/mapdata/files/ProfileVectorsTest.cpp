#include "mapdata/files/ProfileFile.h"

#include <fstream>
#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

std::string FromHex(const std::string& hex) {
  std::string bytes;
  for (size_t i = 0; i + 1 < hex.size(); i += 2)
    bytes.push_back(static_cast<char>(std::stoi(hex.substr(i, 2), nullptr, 16)));
  return bytes;
}

// The pairs of quoted strings in a flat object, names and values by turns; no value holds a quote.
std::map<std::string, std::string> Fields(const std::string& json) {
  std::map<std::string, std::string> fields;
  std::vector<std::string> quoted;
  for (size_t open = json.find('"'); open != std::string::npos; open = json.find('"', open)) {
    const size_t close = json.find('"', open + 1);
    quoted.push_back(json.substr(open + 1, close - open - 1));
    open = close + 1;
  }
  for (size_t i = 0; i + 1 < quoted.size(); i += 2)
    fields[quoted[i]] = quoted[i + 1];
  return fields;
}

std::string Answer(const ProfileFile& file, std::map<std::string, std::string>& call) {
  if (call["op"] == "names") {
    std::string names;
    for (const ProfileFile::Section& section : file.Sections())
      names.append(section.name).push_back('\0');
    return names;
  }
  const auto value = file.Value(FromHex(call["section"]), FromHex(call["key"]));
  return value ? std::string(*value) : FromHex(call["default"]);
}

}  // namespace

TEST(ProfileVectors, EveryRecordedAnswer) {
  std::ifstream vectors(ORVALIS_TEST_DATA "/profile/read.jsonl");
  size_t calls = 0;
  for (std::string line; std::getline(vectors, line);) {
    const size_t listStart = line.find("\"calls\"");
    auto head = Fields(line.substr(0, listStart));
    const ProfileFile file(FromHex(head["file"]));
    for (size_t at = line.find('{', listStart); at != std::string::npos;
         at = line.find('{', at + 1)) {
      auto call = Fields(line.substr(at, line.find('}', at) - at));
      EXPECT_EQ(Answer(file, call), FromHex(call["result"]))
          << head["name"] << ": [" << FromHex(call["section"]) << "] " << FromHex(call["key"]);
      ++calls;
    }
  }
  EXPECT_GT(calls, 200U);
}
