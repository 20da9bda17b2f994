#include "mapdata/files/ProfileFile.h"

#include "mapdata/files/NameHash.h"

#include <algorithm>
#include <functional>
#include <utility>

using ProfileLines::Blanks;
using ProfileLines::Entry;
using ProfileLines::Line;
using ProfileLines::LineKind;
using ProfileLines::Strip;
using ProfileLines::TakeLine;

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

uint32_t HeaderHash(std::string_view header) {
  return NameHash::Of(header, [](unsigned char byte) { return byte; });
}

bool EndsLine(char byte) {
  return byte == '\n' || byte == '\r';
}

// Whether one view lies within the other's memory.
bool IsPartOf(std::string_view text, std::string_view part) {
  const std::less_equal<> upTo;
  return part.data() && upTo(text.data(), part.data()) &&
         upTo(part.data() + part.size(), text.data() + text.size());
}

}  // namespace

ProfileFile::ProfileFile(std::string bytes, ReadState state)
    : bytes_(std::move(bytes)), state_(state) {
  IndexSections();
}

std::string_view ProfileFile::Contents() const {
  const std::string_view bytes = bytes_;
  return bytes.substr(bytes.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0);
}

uint32_t ProfileFile::Offset(std::string_view part) const {
  return static_cast<uint32_t>(part.data() - bytes_.data());
}

std::string_view ProfileFile::Key(const KeyLine& line) const {
  return std::string_view(bytes_).substr(line.key, line.keyLength);
}

// Skips from "[" to "[": most lines of a large file are never looked at.
void ProfileFile::IndexSections() {
  const std::string_view text = Contents();
  for (size_t at = text.find('['); at != std::string_view::npos;) {
    const size_t indent = text.substr(0, at).find_last_not_of(Blanks) + 1;
    if (indent > 0 && !EndsLine(text[indent - 1])) {
      at = text.find('[', at + 1);
      continue;
    }
    std::string_view rest = text.substr(indent);
    const Line line = TakeLine(rest);
    if (!sections_.empty()) {
      auto& body = sections_.back().body;
      body = {body.data(), static_cast<size_t>(line.raw.data() - body.data())};
    }
    sections_.push_back({line.AsEntry().key, line.raw, rest});
    at = text.find('[', text.size() - rest.size());
  }
  keys_.resize(sections_.size());
  sectionNames_.Build(sections_.size(), [this](uint32_t i) { return sections_[i].name; });
  headers_.Reset(sections_.size());
  for (uint32_t i = 0; i < sections_.size(); ++i)
    headers_.Add(HeaderHash(sections_[i].header), i, [this, i](uint32_t other) {
      return sections_[other].header == sections_[i].header;
    });
}

const ProfileFile::KeyIndex& ProfileFile::Keys(size_t section) const {
  KeyIndex& index = keys_[section];
  if (index.built)
    return index;
  index.built = true;
  for (const Line& line : Lines(sections_[section])) {
    const Entry entry = line.AsEntry();
    const bool hasValue = entry.kind == LineKind::KeyWithValue;
    if (hasValue || entry.kind == LineKind::KeyWithoutValue)
      index.lines.push_back({Offset(entry.key), static_cast<uint32_t>(entry.key.size()),
                             hasValue ? Offset(entry.value) : 0,
                             hasValue ? static_cast<uint32_t>(entry.value.size()) : NoValue});
  }
  index.lines.shrink_to_fit();
  index.names.Build(index.lines.size(), [&](uint32_t i) { return Key(index.lines[i]); });
  return index;
}

std::optional<size_t> ProfileFile::FindSection(std::string_view name) const {
  name = Strip(name, " ");
  if (!lastFound_ || sections_[*lastFound_].name != name)
    lastFound_ = sectionNames_.Find(name, [this](uint32_t i) { return sections_[i].name; });
  return lastFound_;
}

const ProfileFile::KeyLine* ProfileFile::FindKey(std::string_view section,
                                                 std::string_view key) const {
  const auto in = FindSection(section);
  if (!in)
    return nullptr;
  const KeyIndex& index = Keys(*in);
  const auto found =
      index.names.Find(Strip(key, " "), [&](uint32_t i) { return Key(index.lines[i]); });
  return found ? &index.lines[*found] : nullptr;
}

std::optional<std::string_view> ProfileFile::Value(std::string_view section,
                                                   std::string_view key) const {
  const KeyLine* line = FindKey(section, key);
  if (!line || line->valueLength == NoValue)
    return std::nullopt;
  const std::string_view value = std::string_view(bytes_).substr(line->value, line->valueLength);
  return ProfileLines::Unquoted(value).substr(0, LongestValue);
}

ProfileLines::Lines ProfileFile::LinesBefore() const {
  const std::string_view text = Contents();
  if (sections_.empty())
    return ProfileLines::Lines(text);
  return ProfileLines::Lines({text.data(), sections_.front().header.data()});
}

ProfileLines::Lines ProfileFile::ListedLines(std::string_view section) const {
  const std::string header = '[' + std::string(section) + ']';
  const auto number =
      headers_.Find(HeaderHash(header), [&](uint32_t i) { return sections_[i].header == header; });
  if (!number)
    return ProfileLines::Lines({});
  const auto found = sections_.begin() + *number;
  const auto next = std::find_if(found + 1, sections_.end(), [](const Section& other) {
    return other.header.starts_with('[');
  });
  const char* const end =
      next == sections_.end() ? bytes_.data() + bytes_.size() : next->header.data();
  return ProfileLines::Lines({found->body.data(), end});
}

std::vector<std::string_view> ProfileFile::KeyNames(std::string_view section) const {
  std::vector<std::string_view> keys;
  for (const Line& line : ListedLines(section))
    if (const auto key = line.ListedKey())
      keys.push_back(*key);
  return keys;
}

std::optional<Place> ProfileFile::PlaceOf(std::string_view part) const {
  const std::string_view text = Contents();
  if (!IsPartOf(text, part))
    return std::nullopt;
  if (lineStarts_.empty()) {
    lineStarts_.push_back(Offset(text));
    for (const Line& line : ProfileLines::Lines(text))
      lineStarts_.push_back(Offset(line.raw) +
                            static_cast<uint32_t>(line.raw.size() + line.end.size()));
  }
  const uint32_t offset = Offset(part);
  const auto behind = std::upper_bound(lineStarts_.begin(), lineStarts_.end(), offset);
  return Place{static_cast<size_t>(behind - lineStarts_.begin()), offset - *(behind - 1) + 1};
}

std::string_view ProfileFile::LineEnd() const {
  const auto lf = bytes_.find('\n');
  if (lf != std::string::npos)
    return lf > 0 && bytes_[lf - 1] == '\r' ? "\r\n" : "\n";
  return bytes_.find('\r') == std::string::npos ? "\r\n" : "\r";
}

std::string ProfileFile::WithLineAt(size_t at, std::string_view lines) const {
  const bool cut = at > 0 && !EndsLine(bytes_[at - 1]);
  std::string changed = bytes_;
  return changed.insert(at, std::string(cut ? LineEnd() : "").append(lines));
}

std::string ProfileFile::WithLineChanged(const KeyLine& line, std::string_view value) const {
  const size_t to = line.valueLength == NoValue ? size_t{line.key} + line.keyLength
                                                : size_t{line.value} + line.valueLength;
  const bool last = bytes_.find_first_of("\r\n", to) == std::string::npos;
  return bytes_.substr(0, line.key + line.keyLength)
      .append("=")
      .append(value)
      .append(bytes_, to)
      .append(last ? LineEnd() : "");
}

std::string ProfileFile::WithValue(std::string_view section, std::string_view key,
                                   std::string_view value) const {
  // Blanks around them would not be read, but the next write would leave some of them.
  key = Strip(key, " ");
  value = Strip(value, Blanks);
  if (const KeyLine* line = FindKey(section, key))
    return WithLineChanged(*line, value);
  const std::string end(LineEnd());
  const std::string entry = std::string(key).append("=").append(value).append(end);
  const auto in = FindSection(section);
  if (!in)
    return WithLineAt(bytes_.size(), '[' + std::string(Strip(section, " ")) + ']' + end + entry);
  size_t after = Offset(sections_[*in].body);
  for (const Line& line : Lines(sections_[*in]))
    if (line.AsEntry().kind != LineKind::Blank)
      after = Offset(line.raw) + line.raw.size() + line.end.size();
  return WithLineAt(after, entry);
}
