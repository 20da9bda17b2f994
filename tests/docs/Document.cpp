#include "docs/Document.h"

#include <fstream>
#include <regex>

namespace {

std::map<std::string, std::string> ReadAttributes(const std::string& fence) {
  static const std::regex attribute(R"re((\w+)=(?:"([^"]*)"|(\S+)))re");
  std::map<std::string, std::string> found;
  for (std::sregex_iterator at(fence.begin(), fence.end(), attribute), end; at != end; ++at)
    found[(*at)[1]] = (*at)[2].matched ? (*at)[2].str() : (*at)[3].str();
  return found;
}

std::string Cell(const std::string& text) {
  const size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos)
    return {};
  return Document::WithoutMarks(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

std::vector<std::string> Cells(const std::string& line) {
  std::vector<std::string> cells;
  for (size_t from = 1, bar = 0; (bar = line.find('|', from)) != std::string::npos; from = bar + 1)
    cells.push_back(Cell(line.substr(from, bar - from)));
  return cells;
}

}  // namespace

std::string Document::WithoutMarks(const std::string& cell) {
  return cell.size() >= 2 && cell.front() == '`' && cell.back() == '`'
             ? cell.substr(1, cell.size() - 2)
             : cell;
}

Document Document::Read(const std::string& name) {
  std::ifstream file(ORVALIS_SOURCES "/docs/" + name);
  Document document;
  std::string heading;
  size_t chapter = 0;
  size_t number = 0;
  bool fenced = false;
  for (std::string line; std::getline(file, line);) {
    ++number;
    if (line.starts_with("```")) {
      fenced = !fenced;
      if (fenced)
        document.blocks.push_back({number, chapter, ReadAttributes(line), {}});
    } else if (fenced) {
      document.blocks.back().body.push_back(line);
    } else if (line.starts_with('#')) {
      chapter += line.starts_with("## ") ? 1 : 0;
      heading = line.substr(line.find(' ') + 1);
    } else if (line.starts_with("|--")) {
      document.rows.pop_back();
    } else if (line.starts_with('|')) {
      document.rows.push_back({heading, Cells(line)});
    }
  }
  return document;
}

std::vector<std::vector<std::string>> Document::Table(const std::string& heading) const {
  std::vector<std::vector<std::string>> table;
  for (const Row& row : rows)
    if (row.heading == heading)
      table.push_back(row.cells);
  return table;
}
