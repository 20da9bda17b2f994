#include "mapdata/files/ProfileFile.h"

#include "mapdata/files/ProfileLines.h"

#include <algorithm>
#include <bit>
#include <functional>

using ProfileLines::Blanks;
using ProfileLines::HashName;
using ProfileLines::SameAscii;
using ProfileLines::SameName;
using ProfileLines::Strip;
using ProfileLines::TakeLine;

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr uint32_t Free = 0xFFFFFFFF;

// The number of the first name that is the same but for ASCII case, else of the first that is the
// same but for the case of any letter, else none: a file may hold "Š" and "š" as two keys.
template <typename Slot, typename NameAt>
std::optional<uint32_t> Find(const std::vector<Slot>& slots, std::string_view name, NameAt nameAt) {
  const size_t mask = slots.size() - 1;
  const uint32_t hash = HashName(name);
  std::optional<uint32_t> found;
  for (size_t at = hash & mask; slots[at].number != Free; at = (at + 1) & mask) {
    if (slots[at].hash != hash)
      continue;
    if (SameAscii(nameAt(slots[at].number), name))
      return slots[at].number;
    if (!found && SameName(nameAt(slots[at].number), name))
      found = slots[at].number;
  }
  return found;
}

// Registers the names 0 to count - 1; of names that are the same the first stays.
template <typename Slot, typename NameAt, typename Same>
void BuildSlots(std::vector<Slot>& slots, size_t count, NameAt nameAt, Same same) {
  slots.assign(std::bit_ceil(count * 2 + 2), {Free, 0});
  const size_t mask = slots.size() - 1;
  for (uint32_t i = 0; i < count; ++i) {
    const uint32_t hash = HashName(nameAt(i));
    size_t at = hash & mask;
    while (slots[at].number != Free &&
           (slots[at].hash != hash || !same(nameAt(slots[at].number), nameAt(i))))
      at = (at + 1) & mask;
    if (slots[at].number == Free)
      slots[at] = {i, hash};
  }
}

std::string_view HeaderName(std::string_view strippedLine) {
  strippedLine.remove_prefix(1);
  return Strip(strippedLine.substr(0, strippedLine.find(']')), Blanks);
}

std::string_view Unquoted(std::string_view value) {
  const bool quoted = value.size() >= 2 && value.front() == value.back() &&
                      (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace

ProfileFile::ProfileFile(std::string bytes) : bytes_(std::move(bytes)) {
  IndexSections();
}

std::string_view ProfileFile::Lines() const {
  const std::string_view bytes = bytes_;
  return bytes.substr(bytes.starts_with(ByteOrderMark) ? ByteOrderMark.size() : 0);
}

uint32_t ProfileFile::Offset(std::string_view part) const {
  return static_cast<uint32_t>(part.data() - bytes_.data());
}

std::string_view ProfileFile::Key(const KeyLine& line) const {
  return std::string_view(bytes_).substr(line.key, line.keyLength);
}

// Goes from "[" to "[": most lines of a large file are never looked at.
void ProfileFile::IndexSections() {
  const std::string_view lines = Lines();
  for (size_t at = lines.find('['); at != std::string_view::npos;) {
    const size_t indent = lines.substr(0, at).find_last_not_of(Blanks) + 1;
    if (indent > 0 && lines[indent - 1] != '\n' && lines[indent - 1] != '\r') {
      at = lines.find('[', at + 1);
      continue;
    }
    std::string_view rest = lines.substr(indent);
    const std::string_view line = TakeLine(rest);
    if (!sections_.empty()) {
      auto& body = sections_.back().body;
      body = {body.data(), static_cast<size_t>(line.data() - body.data())};
    }
    sections_.push_back({HeaderName(Strip(line, Blanks)), line, rest, false, {}, {}});
    at = lines.find('[', lines.size() - rest.size());
  }
  BuildSlots(
      sectionSlots_, sections_.size(), [this](uint32_t i) { return sections_[i].name; }, SameAscii);
  BuildSlots(
      headerSlots_, sections_.size(), [this](uint32_t i) { return sections_[i].header; },
      std::equal_to<std::string_view>());
}

void ProfileFile::IndexKeys(const Section& section) const {
  section.indexed = true;
  std::string_view rest = section.body;
  while (!rest.empty()) {
    const std::string_view line = Strip(TakeLine(rest), Blanks);
    if (line.empty() || line.starts_with(';'))
      continue;
    const auto equals = line.find('=');
    const bool hasValue = equals != std::string_view::npos;
    const std::string_view key = Strip(line.substr(0, equals), Blanks);
    const std::string_view value = Strip(line.substr(hasValue ? equals + 1 : line.size()), Blanks);
    section.lines.push_back({Offset(key), static_cast<uint32_t>(key.size()), Offset(value),
                             hasValue ? static_cast<uint32_t>(value.size()) : NoValue});
  }
  section.lines.shrink_to_fit();
  BuildSlots(
      section.slots, section.lines.size(),
      [this, &section](uint32_t i) { return Key(section.lines[i]); }, SameAscii);
}

const ProfileFile::Section* ProfileFile::FindSection(std::string_view name) const {
  name = Strip(name, " ");
  if (lastFound_ && lastFound_->name == name)
    return lastFound_;
  const auto found = Find(sectionSlots_, name, [this](uint32_t i) { return sections_[i].name; });
  lastFound_ = found ? &sections_[*found] : nullptr;
  return lastFound_;
}

const ProfileFile::KeyLine* ProfileFile::FindKey(std::string_view section,
                                                 std::string_view key) const {
  const Section* in = FindSection(section);
  if (!in)
    return nullptr;
  if (!in->indexed)
    IndexKeys(*in);
  const auto found =
      Find(in->slots, Strip(key, " "), [this, in](uint32_t i) { return Key(in->lines[i]); });
  return found ? &in->lines[*found] : nullptr;
}

std::optional<std::string_view> ProfileFile::Value(std::string_view section,
                                                   std::string_view key) const {
  const KeyLine* line = FindKey(section, key);
  if (!line || line->valueLength == NoValue)
    return std::nullopt;
  return Unquoted(std::string_view(bytes_).substr(line->value, line->valueLength));
}

std::vector<std::string_view> ProfileFile::SectionNames() const {
  std::vector<std::string_view> names;
  names.reserve(sections_.size());
  for (const Section& section : sections_)
    names.push_back(section.name);
  return names;
}

// The lines up to the next one that begins with "[": an indented header ends no key list.
std::string_view ProfileFile::LinesBelow(std::string_view header) const {
  const size_t mask = headerSlots_.size() - 1;
  size_t at = HashName(header) & mask;
  while (headerSlots_[at].number != Free && sections_[headerSlots_[at].number].header != header)
    at = (at + 1) & mask;
  if (headerSlots_[at].number == Free)
    return {};
  const auto found = sections_.begin() + headerSlots_[at].number;
  const auto next = std::find_if(found + 1, sections_.end(), [](const Section& section) {
    return section.header.starts_with('[');
  });
  const char* const end =
      next == sections_.end() ? bytes_.data() + bytes_.size() : next->header.data();
  return {found->body.data(), static_cast<size_t>(end - found->body.data())};
}

std::vector<std::string_view> ProfileFile::KeyNames(std::string_view section) const {
  std::vector<std::string_view> keys;
  std::string_view rest = LinesBelow('[' + std::string(section) + ']');
  while (!rest.empty()) {
    const std::string_view line = TakeLine(rest);
    if (!Strip(line, " ").empty())
      keys.push_back(Strip(line.substr(0, line.find('=')), " "));
  }
  return keys;
}

std::string_view ProfileFile::LineEnd() const {
  const auto lf = bytes_.find('\n');
  if (lf != std::string::npos)
    return lf > 0 && bytes_[lf - 1] == '\r' ? "\r\n" : "\n";
  return bytes_.find('\r') == std::string::npos ? "\r\n" : "\r";
}

std::string ProfileFile::WithValue(std::string_view section, std::string_view key,
                                   std::string_view value) const {
  const std::string end(LineEnd());
  // Blanks around them would not be read, but the next write would leave some of them.
  key = Strip(key, " ");
  value = Strip(value, Blanks);
  const std::string entry = std::string(key) + '=' + std::string(value);
  std::string changed = bytes_;
  if (const KeyLine* line = FindKey(section, key)) {
    const size_t to = line->valueLength == NoValue ? size_t{line->key} + line->keyLength
                                                   : size_t{line->value} + line->valueLength;
    return changed.replace(line->key, to - line->key,
                           std::string(Key(*line)) + '=' + std::string(value));
  }
  const auto newLine = [&](size_t at) {
    const bool cut = at > 0 && bytes_[at - 1] != '\n' && bytes_[at - 1] != '\r';
    return (cut ? end : std::string()) + entry + end;
  };
  const Section* in = FindSection(section);
  if (!in) {
    const bool cut = !bytes_.empty() && bytes_.back() != '\n' && bytes_.back() != '\r';
    return changed.append(cut ? end : "") + '[' + std::string(Strip(section, " ")) + ']' + end +
           entry + end;
  }
  size_t after = Offset(in->body);
  std::string_view rest = in->body;
  while (!rest.empty())
    if (!Strip(TakeLine(rest), Blanks).empty())
      after = Offset(rest);
  return changed.insert(after, newLine(after));
}
