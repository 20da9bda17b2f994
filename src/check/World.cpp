#include "auxwin/Documents.h"
#include "auxwin/ExtrasTable.h"
#include "check/Checks.h"
#include "check/Edits.h"
#include "check/Nearest.h"
#include "check/Words.h"
#include "mapdata/files/FileSystem.h"
#include "mapdata/world/Settings.h"
#include "platform/NativePath.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>

using ProfileLines::LineKind;
using Rules::Id;
using Texts::Join;
using Texts::Lower;
using Words::Count;
using Words::Decoded;
using Words::Number;
using Words::Quoted;

namespace {

constexpr auto MeanYes =
    std::to_array<TextView>({u"1", u"true", u"ja", u"on", u"y", u"j", u"oui", u"wahr"});
constexpr auto MeanNo = std::to_array<TextView>(
    {u"no", u"0", u"nein", u"off", u"false", u"n", u"aus", u"non", u"never", u"falsch"});

bool IsSame(std::string_view name, TextView other) {
  return Lower(Decoded(name)) == Lower(other);
}

bool IsFolder(TextView path) {
  return FileSystem::Resolve(Join(path, u".")).has_value();
}

class WorldCheck {
 public:
  WorldCheck(Index& index, Findings& findings) : index_(index), findings_(findings) {}

  void Check() {
    CheckRequired();
    CheckPictures();
    for (const Source& source : index_.sources)
      CheckReading(source);
    CheckSettings();
    CheckFolders();
    CheckLanguageSetting();
    CheckDocuments();
    CheckSpellings();
  }

 private:
  [[nodiscard]] Text NameOf(TextView path) const {
    return Text(path.starts_with(index_.base) ? path.substr(index_.base.size()) : path);
  }

  Finding& Tell(Id rule, TextView path, Text message) {
    Finding& finding = findings_.Add(rule, NameOf(path));
    finding.message = std::move(message);
    return finding;
  }

  void CheckRequired() {
    const auto first = index_.world.MissingFile();
    for (const auto file : {&ProgramPaths::RegionFiles::data, &ProgramPaths::RegionFiles::picture})
      for (const ProgramPaths::RegionFiles& region : index_.paths.regions) {
        const Text& path = region.*file;
        if (FileSystem::FileExists(path))
          continue;
        Finding& finding =
            Tell(Id::W01, path,
                 FileSystem::Resolve(path) ? u"this file is empty" : u"this file is missing");
        finding.consequence = path == first
                                  ? Text(u"the program names it and ends")
                                  : Join(u"the program ends already for ", NameOf(*first));
        if (file == &ProgramPaths::RegionFiles::picture)
          finding.advice = u"a picture of 2048 x 1536 pixels";
      }
  }

  void CheckPictures() {
    for (const ProgramPaths::RegionFiles& region : index_.paths.regions)
      if (FileSystem::FileExists(region.picture))
        CheckPicture(region.picture);
    const Text start = Join(index_.base, u"overview.jpg");
    if (FileSystem::Resolve(start) && !index_.pictureOf(start)) {
      Finding& finding = Tell(Id::W02, start, u"no picture that can be shown");
      finding.severity = Rules::Severity::Warning;
      finding.consequence = u"the built-in picture shows at the start";
    }
  }

  void CheckPicture(const Text& path) {
    const auto size = index_.pictureOf(path);
    if (!size) {
      Tell(Id::W02, path, u"no picture that can be shown");
      return;
    }
    if (std::abs(size->width - size->height * 4 / 3) <= 1)
      return;
    Finding& finding =
        Tell(Id::W03, path,
             Join(Number(static_cast<size_t>(size->width)), u" x ",
                  Number(static_cast<size_t>(size->height)), u" pixels are not 4 : 3"));
    finding.consequence = u"it is stretched to the frame of 1024 x 768";
  }

  void CheckReading(const Source& source) {
    const ReadState state = source.File().State();
    if (state != ReadState::TooLarge && state != ReadState::Unreadable)
      return;
    if (source.kind == Source::Kind::Data && !FileSystem::FileExists(source.path))
      return;
    Finding& finding = Tell(Id::W11, source.path,
                            state == ReadState::TooLarge ? u"this file is larger than 1 GB"
                                                         : u"nobody may read this file");
    if (source.kind != Source::Kind::Data)
      finding.consequence = u"it reads as an empty file";
  }

  void CheckSettings() {
    const Source& source = *index_.settings;
    for (const Source::Line& line : source.Lines()) {
      if (line.entry.kind != LineKind::KeyWithValue || line.section == Source::None)
        continue;
      const std::string_view section = source.Sections()[line.section].name;
      const auto known = std::ranges::find_if(Settings::All, [&](const Settings::Entry& entry) {
        return IsSame(section, entry.section) && IsSame(line.entry.key, entry.key);
      });
      if (known == Settings::All.end())
        TellUnknown(line, section);
      else if (known->kind == Settings::Kind::YesNo)
        CheckYes(line, *known);
    }
  }

  void TellUnknown(const Source::Line& line, std::string_view section) {
    const Source& source = *index_.settings;
    Finding& finding = findings_.Add(Id::W05, source, line.entry.key);
    finding.section = Decoded(section);
    finding.key = Decoded(line.entry.key);
    finding.message = Join(u"there is no setting ", Quoted(finding.key), u" in section ",
                           Quoted(finding.section));
    std::vector<Text> keys;
    std::vector<Text> sections;
    for (const Settings::Entry& entry : Settings::All) {
      if (IsSame(section, entry.section))
        keys.emplace_back(entry.key);
      if (IsSame(line.entry.key, entry.key))
        sections.emplace_back(entry.section);
    }
    if (!keys.empty())
      Offer(finding, line.entry.key, Nearest::Of(finding.key, keys));
    else if (!sections.empty())
      finding.advice = Join(u"it belongs to section [", sections.front(), u"]");
  }

  void Offer(Finding& finding, std::string_view words, const Text& better) {
    if (better.empty())
      return;
    finding.advice = Join(u"write ", better);
    finding.edits = {Edits::Replaced(*index_.settings, words, Words::Encoded(better))};
  }

  void CheckYes(const Source::Line& line, const Settings::Entry& entry) {
    const Text value = Lower(Texts::Trim(Decoded(ProfileLines::Unquoted(line.entry.value))));
    if (value.empty() || value == u"yes" ||
        std::ranges::find(MeanNo, TextView(value)) != MeanNo.end())
      return;
    Finding& finding = findings_.Add(Id::W06, *index_.settings, line.entry.value);
    finding.section = entry.section;
    finding.key = entry.key;
    finding.message = Join(Quoted(value), u" counts as no: only \"yes\" switches on");
    finding.consequence = entry.key == Settings::PlayMusic.key ? u"no music plays"
                          : entry.key == Settings::NoLang.key  ? u"the choice of the language stays"
                                                               : u"the menu Extras stays";
    if (std::ranges::find(MeanYes, TextView(value)) != MeanYes.end())
      Offer(finding, line.entry.value, u"yes");
  }

  void CheckFolders() {
    for (const Settings::Entry& entry : Settings::All) {
      if (entry.kind != Settings::Kind::Folder)
        continue;
      const auto value =
          index_.settings->File().Value(Words::Encoded(entry.section), Words::Encoded(entry.key));
      if (!value || value->empty() || IsFolder(Join(index_.base, Decoded(*value), u"/")))
        continue;
      Finding& finding = findings_.Add(Id::W07, *index_.settings, *value);
      finding.section = entry.section;
      finding.key = entry.key;
      finding.message = Join(u"there is no folder ", Quoted(Decoded(*value)));
      finding.consequence =
          entry.key == Settings::PicturesFolder.key ? u"all portraits are the placeholder"
          : entry.key == Settings::LanguageRoot.key ? u"German is the only language"
                                                    : u"no document of the Extras opens";
    }
  }

  void CheckLanguageSetting() {
    const Text chosen = index_.world.ChosenLanguage();
    const auto names = FileSystem::Names(index_.paths.languageRoot);
    for (const Text& name : names)
      if (Lower(name) == Lower(LOCAL::German))
        CheckGermanFolder(name);
    if (chosen == LOCAL::German || std::ranges::find(names, chosen) != names.end() ||
        FileSystem::Resolve(Join(index_.paths.languageRoot, chosen, u"/.")))
      return;
    const auto value = index_.settings->File().Value("general", "language");
    if (!value)
      return;
    Finding& finding = findings_.Add(Id::W09, *index_.settings, *value);
    finding.section = u"general";
    finding.key = u"language";
    finding.message = Join(u"there is no language in a folder ", Quoted(chosen));
    Offer(finding, *value, Nearest::Of(chosen, names));
  }

  void CheckGermanFolder(const Text& folder) {
    const Text path = LOCAL::FileOfLanguage(index_.paths.languageRoot, folder, u".lng");
    const Text name(Texts::Trim(index_.files.IniRead(path, u"general", u"language", u"")));
    if (name.empty() || name == LOCAL::German)
      return;
    Finding& finding =
        Tell(Id::W10, path, Join(u"a folder ", Quoted(folder), u" of the language ", name));
    finding.consequence = Join(name, u" is chosen at start instead of the built-in German");
  }

  void CheckDocuments() {
    const Text sound = Join(index_.base, u"orvalis.wav");
    const auto check = [this](TextView path) {
      if (!Documents::Exists(path))
        Tell(Id::W08, path, u"this document is missing");
    };
    check(Join(index_.base, u"orvalis.chm"));
    check(Join(index_.base, u"readme.html"));
    if (!Settings::IsYes(index_.settings->File(), Settings::NoExtras))
      for (const Extra& extra : ExtrasTable)
        check(Join(index_.paths.extrasFolder, extra.file));
    if (Settings::IsYes(index_.settings->File(), Settings::PlayMusic) &&
        !FileSystem::FileExists(sound))
      Tell(Id::W08, sound, u"the music is missing").consequence = u"the desktop's bell sounds once";
  }

  // Names that the viewer asks for, and that the folder has in several spellings.
  void CheckSpellings() {
    std::map<Text, std::vector<Text>> asked;
    const auto ask = [&asked](const Text& path) {
      const size_t end = path.rfind(u'/');
      asked[path.substr(0, end + 1)].push_back(Lower(path.substr(end + 1)));
    };
    for (const Source& source : index_.sources)
      ask(source.path);
    for (const ProgramPaths::RegionFiles& region : index_.paths.regions)
      ask(region.picture);
    for (const Source::Line& line : index_.portraits->Lines())
      if (line.entry.kind == LineKind::KeyWithValue)
        ask(Join(index_.paths.picturesFolder, Decoded(ProfileLines::Unquoted(line.entry.value))));
    for (auto& [folder, names] : asked)
      CheckFolder(folder, std::move(names));
  }

  void CheckFolder(const Text& folder, std::vector<Text> asked) {
    std::ranges::sort(asked);
    std::map<Text, Text> seen;
    for (const Text& name : FileSystem::Names(folder)) {
      const auto [first, isNew] = seen.emplace(Lower(name), name);
      if (isNew || !std::ranges::binary_search(asked, first->first))
        continue;
      Finding& finding =
          Tell(Id::W04, Join(folder, name), Join(Quoted(first->second), u" stands beside it"));
      finding.consequence = u"which one is taken depends on the system";
    }
  }

  Index& index_;
  Findings& findings_;
};

}  // namespace

void Checks::World(Index& index, Findings& findings) {
  WorldCheck(index, findings).Check();
}
