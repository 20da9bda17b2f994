#include "check/Edits.h"

#include <algorithm>

namespace {

// From the first byte of one line to the end of the last.
std::string_view Between(const Source& source, size_t firstLine, size_t endLine) {
  const auto& lines = source.Lines();
  const size_t begin = source.Offset(lines[firstLine].text.raw);
  const size_t end =
      endLine < lines.size() ? source.Offset(lines[endLine].text.raw) : source.Bytes().size();
  return source.Bytes().substr(begin, end - begin);
}

bool EndsLine(std::string_view bytes) {
  return bytes.empty() || bytes.back() == '\n' || bytes.back() == '\r';
}

}  // namespace

namespace Edits {

Edit Replaced(const Source& source, std::string_view part, std::string bytes) {
  return {&source, source.Offset(part), part.size(), std::move(bytes)};
}

std::vector<Edit> Merged(const Source& source, const Source::Section& into,
                         const Source::Section& from) {
  size_t end = into.end;
  while (end > into.line + 1 && !source.Lines()[end - 1].isListed)
    --end;
  const std::string_view moved =
      from.line + 1 < from.end ? Between(source, from.line + 1, from.end) : std::string_view();
  const std::string_view above = Between(source, into.line, end);
  const std::string_view lineEnd = source.Lines()[into.line].text.end;
  std::string lines(moved);
  if (!EndsLine(lines))
    lines.append(lineEnd);
  const size_t at = source.Offset(above) + above.size();
  return {{&source, at, 0, std::move(lines)},
          Replaced(source, Between(source, from.line, from.end), "")};
}

Edit WithoutLine(const Source& source, const Source::Line& line) {
  const size_t length = line.text.raw.size() + line.text.end.size();
  return {&source, source.Offset(line.text.raw), length, ""};
}

std::string Applied(const Source& source, std::vector<Edit> edits) {
  std::erase_if(edits, [&source](const Edit& edit) { return edit.source != &source; });
  std::ranges::stable_sort(edits, {}, &Edit::offset);
  std::string bytes;
  size_t at = 0;
  for (const Edit& edit : edits) {
    if (edit.offset < at)
      continue;
    bytes.append(source.Bytes().substr(at, edit.offset - at)).append(edit.bytes);
    at = edit.offset + edit.length;
  }
  return bytes.append(source.Bytes().substr(at));
}

}  // namespace Edits
