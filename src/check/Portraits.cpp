#include "check/Checks.h"
#include "check/Edits.h"
#include "check/Nearest.h"
#include "check/Words.h"
#include "mapdata/files/FileSystem.h"

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

constexpr std::string_view Section = "pics";
constexpr int Box = 105;

class PortraitCheck {
 public:
  PortraitCheck(Index& index, Findings& findings)
      : index_(index), findings_(findings), source_(*index.portraits) {}

  void Check() {
    if (source_.Bytes().empty())
      return;
    const size_t number = source_.FindSection(Section);
    if (number == Source::None) {
      findings_.AddNoSection(Id::G03, source_, u"pics");
      return;
    }
    const Source::Section& section = source_.Sections()[number];
    names_ = FileSystem::Names(index_.paths.picturesFolder);
    for (size_t line = section.line + 1; line < section.end; ++line)
      if (source_.Lines()[line].entry.kind == LineKind::KeyWithValue)
        CheckEntry(source_.Lines()[line]);
    CheckUnused();
  }

 private:
  void CheckEntry(const Source::Line& line) {
    const std::string_view key = line.entry.key;
    const std::string_view value = ProfileLines::Unquoted(line.entry.value);
    if (value.empty())
      return;
    if (!index_.IsName(key) && !index_.IsSwitchedOff(key))
      Tell(Id::G02, line, key, Join(u"no entity is called ", Quoted(Decoded(key))));
    used_.insert(Words::Folded(value));
    CheckPicture(line, value);
  }

  Finding& Tell(Id rule, const Source::Line& line, std::string_view words, Text message) {
    Finding& finding = findings_.Add(rule, source_, words);
    finding.section = u"pics";
    finding.key = Decoded(line.entry.key);
    finding.message = std::move(message);
    return finding;
  }

  void CheckPicture(const Source::Line& line, std::string_view name) {
    const auto [known, isNew] = sizes_.try_emplace(std::string(name));
    if (isNew)
      known->second = index_.pictureOf(Join(index_.paths.picturesFolder, Decoded(name)));
    if (!known->second)
      return TellMissing(line, name);
    const PictureSize& size = *known->second;
    if (isNew && (size.width > Box || size.height > Box))
      Tell(Id::G02, line, name,
           Join(u"a portrait of ", Number(static_cast<size_t>(size.width)), u" x ",
                Number(static_cast<size_t>(size.height)), u" pixels"))
          .consequence = u"only 105 x 105 pixels of it are seen";
  }

  void TellMissing(const Source::Line& line, std::string_view name) {
    const bool there = FileSystem::FileExists(Join(index_.paths.picturesFolder, Decoded(name)));
    Finding& finding = Tell(Id::G01, line, name,
                            there ? Join(Quoted(Decoded(name)), u" is no picture")
                                  : Join(u"there is no file ", Quoted(Decoded(name))));
    finding.consequence = Join(finding.key, u" has the placeholder");
    if (there || !findings_.IsWorthHelp(Id::G01))
      return;
    const Text nearest = Nearest::Of(Decoded(name), names_);
    if (nearest.empty())
      return;
    finding.advice = Join(u"write ", nearest);
    finding.edits = {Edits::Replaced(source_, name, Words::Encoded(nearest))};
  }

  void CheckUnused() {
    std::vector<Text> unused;
    for (const Text& name : names_)
      if (name != u"pic.ini" && !used_.contains(Words::Folded(Words::Encoded(name))) &&
          index_.pictureOf(Join(index_.paths.picturesFolder, name)))
        unused.push_back(name);
    if (unused.empty())
      return;
    Finding& finding = findings_.Add(Id::G02, source_, source_.Bytes().substr(0, 0));
    finding.message = Join(Count(unused.size(), u"picture", u"pictures"), u" without an entry");
    finding.consequence = u"never shown";
    finding.details = std::move(unused);
  }

  Index& index_;
  Findings& findings_;
  const Source& source_;
  std::vector<Text> names_;
  std::unordered_set<std::string> used_;
  std::unordered_map<std::string, std::optional<PictureSize>> sizes_;
};

}  // namespace

void Checks::Portraits(Index& index, Findings& findings) {
  PortraitCheck(index, findings).Check();
}
