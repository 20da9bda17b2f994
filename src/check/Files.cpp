#include "check/Checks.h"
#include "check/Edits.h"
#include "check/Words.h"
#include "mapdata/files/IniOps.h"
#include "platform/NativePath.h"
#include "platform/Windows1252.h"

#include <algorithm>
#include <unordered_map>

using ProfileLines::LineKind;
using Rules::Id;
using Texts::Join;
using Words::Count;
using Words::Decoded;
using Words::Number;
using Words::Quoted;

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view Undefined("\x81\x8D\x8F\x90\x9D\0", 6);
constexpr std::string_view Utf16Little = "\xFF\xFE";
constexpr std::string_view Utf16Big = "\xFE\xFF";

bool HasHighByte(std::string_view bytes) {
  return std::ranges::any_of(bytes, [](char byte) { return (byte & 0x80) != 0; });
}

// The text of bytes in UTF-8; none if they are not.
std::optional<Text> FromUtf8(std::string_view bytes) {
  Text text = NativePath::FromBytes(bytes);
  const bool valid =
      std::ranges::none_of(text, [](char16_t unit) { return unit >= 0xDC80 && unit <= 0xDCFF; });
  return valid && text.size() < bytes.size() ? std::optional(std::move(text)) : std::nullopt;
}

// The words of a line around its first high byte, for a message.
std::string_view WordWithHighByte(std::string_view line) {
  const auto high = std::ranges::find_if(line, [](char byte) { return (byte & 0x80) != 0; });
  const auto at = static_cast<size_t>(high - line.begin());
  const size_t begin = line.find_last_of(" =\t.", at) + 1;
  return line.substr(begin, std::min(line.find_first_of(" =\t.", at), line.size()) - begin);
}

class FileCheck {
 public:
  FileCheck(Findings& findings, const Source& source) : findings_(findings), source_(source) {}

  void Check() {
    if (IsUtf16())
      return;
    if (source_.Bytes().starts_with(ByteOrderMark))
      TellByteOrderMark();
    CheckCodePage();
    CheckLines();
    if (source_.kind != Source::Kind::Data)
      CheckTwins();
  }

 private:
  // Telling of a whole file as text that no reader finds anything in.
  bool IsUtf16() {
    const std::string_view bytes = source_.Bytes();
    const bool big = bytes.starts_with(Utf16Big);
    const bool marked = big || bytes.starts_with(Utf16Little);
    const auto nul = static_cast<size_t>(std::ranges::count(bytes, '\0'));
    if (!marked && nul * 3 < bytes.size())
      return false;
    if (bytes.empty())
      return false;
    Finding& finding = findings_.Add(Id::F03, source_, bytes.substr(0, marked ? 2 : 0));
    finding.message = u"this file is in UTF-16";
    finding.consequence = source_.Sections().empty()
                              ? Text(u"no section of it is found")
                              : Join(u"its sections are found under wrong names");
    Text text;
    for (size_t at = marked ? 2 : 0; at + 1 < bytes.size(); at += 2) {
      const auto first = static_cast<unsigned char>(bytes[at]);
      const auto second = static_cast<unsigned char>(bytes[at + 1]);
      text.push_back(static_cast<char16_t>(big ? first * 256 + second : second * 256 + first));
    }
    if (auto encoded = Windows1252::Encode(text))
      finding.edits = {Edits::Replaced(source_, bytes, *std::move(encoded))};
    return true;
  }

  void TellByteOrderMark() {
    const std::string_view mark = source_.Bytes().substr(0, ByteOrderMark.size());
    Finding& finding = findings_.Add(Id::F04, source_, mark);
    finding.message = u"this file begins with a byte order mark";
    finding.edits = {Edits::Replaced(source_, mark, "")};
  }

  void CheckCodePage() {
    std::vector<std::string_view> utf8;
    bool mixed = false;
    for (const Source::Line& line : source_.Lines()) {
      const std::string_view raw = line.text.raw;
      if (FromUtf8(raw)) {
        utf8.push_back(raw);
        continue;
      }
      mixed |= HasHighByte(raw);
      if (const size_t at = raw.find_first_of(Undefined); at != std::string_view::npos)
        TellUndefined(raw.substr(at, 1));
    }
    if (!utf8.empty())
      TellUtf8(utf8, mixed);
  }

  void TellUndefined(std::string_view byte) {
    Finding& finding = findings_.Add(Id::F05, source_, byte);
    finding.message = u"a byte that is no character of Windows-1252";
  }

  void TellUtf8(const std::vector<std::string_view>& lines, bool mixed) {
    std::vector<Edit> edits;
    for (const std::string_view line : lines) {
      const Text text = FromUtf8(line).value_or(Text());
      if (auto bytes = Windows1252::Encode(text))
        edits.push_back(Edits::Replaced(source_, line, *std::move(bytes)));
      else
        TellNoSuchLetter(line, text);
    }
    if (edits.empty())
      return;
    if (!mixed)
      return TellUtf8File(lines.size(), std::move(edits));
    for (Edit& edit : edits) {
      Finding& finding = AddUtf8(source_.Bytes().substr(edit.offset, edit.length),
                                 u"this line is in UTF-8, others of the file in Windows-1252");
      finding.edits = {std::move(edit)};
      finding.isSafe = false;
    }
  }

  void TellUtf8File(size_t lines, std::vector<Edit> edits) {
    const Edit& first = edits.front();
    Finding& finding = AddUtf8(source_.Bytes().substr(first.offset, first.length),
                               Join(u"this file is in UTF-8: ", Count(lines, u"line", u"lines")));
    finding.edits = std::move(edits);
  }

  Finding& AddUtf8(std::string_view line, Text message) {
    const std::string_view word = WordWithHighByte(line);
    Finding& finding = findings_.Add(Id::F01, source_, word);
    finding.message = std::move(message);
    finding.consequence = Join(Quoted(FromUtf8(word).value_or(Text())), u" is shown as ",
                               Quoted(Decoded(word)), u", and is not the same name elsewhere");
    return finding;
  }

  void TellNoSuchLetter(std::string_view line, const Text& text) {
    const auto letter = std::ranges::find_if(
        text, [](char16_t unit) { return !Windows1252::Encode(TextView(&unit, 1)).has_value(); });
    const std::string_view word = WordWithHighByte(line);
    Finding& finding = findings_.Add(Id::F02, source_, word);
    finding.message = Join(u"Windows-1252 has no ", Quoted(Text(1, *letter)));
    finding.consequence = Join(u"shown as ", Quoted(Decoded(word)));
  }

  void CheckLines() {
    for (const Source::Line& line : source_.Lines()) {
      if (line.entry.kind != LineKind::KeyWithValue)
        continue;
      if (line.section == Source::None)
        TellBeforeSection(line);
      if (const size_t length = ProfileLines::Unquoted(line.entry.value).size();
          length > ProfileFile::LongestValue)
        TellTooLong(line, length);
      const std::string_view key = line.entry.key;
      if (key.size() > 1 && key.front() == '"' && key.back() == '"')
        TellQuotedKey(line);
    }
  }

  Finding& Add(Id rule, const Source::Line& line, std::string_view words, Text message) {
    Finding& finding = findings_.Add(rule, source_, words);
    finding.key = Decoded(line.entry.key);
    finding.message = std::move(message);
    if (line.section != Source::None)
      finding.section = Decoded(source_.Sections()[line.section].name);
    return finding;
  }

  void TellBeforeSection(const Source::Line& line) {
    Add(Id::F06, line, line.text.raw, u"this line is of no section");
  }

  void TellTooLong(const Source::Line& line, size_t length) {
    Finding& finding =
        Add(Id::F11, line, line.entry.value, Join(u"a value of ", Number(length), u" characters"));
    finding.consequence =
        Join(u"the last ", Number(length - ProfileFile::LongestValue), u" are cut off");
  }

  void TellQuotedKey(const Source::Line& line) {
    const std::string_view key = line.entry.key;
    Finding& finding = Add(Id::F14, line, key, u"quotes around a key are part of it");
    finding.consequence = Join(u"the name is ", Decoded(key), u" with its quotes");
    finding.edits = {Edits::Replaced(source_, key, std::string(key.substr(1, key.size() - 2)))};
  }

  // Keys that stand twice in a section.
  void CheckTwins() {
    for (const Source::Section& section : source_.Sections()) {
      if (!section.found)
        continue;
      std::unordered_map<std::string, size_t> first;
      for (size_t number = section.line + 1; number < section.end; ++number) {
        const Source::Line& line = source_.Lines()[number];
        if (line.entry.kind != LineKind::KeyWithValue)
          continue;
        const auto [known, isNew] = first.emplace(Words::Folded(line.entry.key), number);
        if (!isNew)
          TellTwin(line, known->second);
      }
    }
  }

  void TellTwin(const Source::Line& line, size_t first) {
    Finding& finding = Add(
        Id::F17, line, line.entry.key,
        Join(Quoted(Decoded(line.entry.key)), u" stands in line ", Number(first + 1), u" already"));
    const bool same = source_.Lines()[first].entry.value == line.entry.value;
    finding.consequence = same ? Text(u"this line is never read, and says the same")
                               : Text(u"only the first of the two is read");
    finding.edits = {Edits::WithoutLine(source_, line)};
  }

  Findings& findings_;
  const Source& source_;
};

}  // namespace

void Checks::Files(Index& index, Findings& findings) {
  for (const Source& source : index.sources)
    FileCheck(findings, source).Check();
}
