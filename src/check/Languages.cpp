#include "app/MenuTable.h"
#include "check/Checks.h"
#include "check/Edits.h"
#include "check/Nearest.h"
#include "check/Words.h"
#include "i18n/LanguageList.h"
#include "mapdata/files/FileSystem.h"
#include "mapdata/files/StringOps.h"

#include <algorithm>
#include <map>
#include <set>

using ProfileLines::LineKind;
using Rules::Id;
using Texts::Join;
using Texts::Lower;
using Words::Count;
using Words::Decoded;
using Words::Number;
using Words::Quoted;

namespace {

constexpr TextView General = u"general";
constexpr TextView Entities = u"entities";
constexpr TextView Page = u"page";
constexpr TextView Sign = u"%s";
constexpr int FlagSide = 16;

using Key = std::pair<Text, Text>;

Key KeyOf(TextView section, TextView key) {
  return {Lower(section), Lower(key)};
}

// The letter behind "&" in lower case; 0 without one.
char16_t AccessKey(TextView caption) {
  for (size_t at = 0; at + 1 < caption.size(); ++at)
    if (caption[at] == u'&' && caption[++at] != u'&')
      return Lower(caption.substr(at, 1)).front();
  return 0;
}

class LanguageCheck {
 public:
  LanguageCheck(Index& index, Findings& findings, const Index::Language& language)
      : index_(index), findings_(findings), language_(language), source_(*language.file) {
    for (const TextRow& text : index.texts)
      texts_.emplace(KeyOf(text.section, text.key), &text);
  }

  void Check() {
    CheckName();
    CheckHeader();
    for (const Source::Line& line : source_.Lines())
      CheckLine(line);
    CheckSections();
    CheckMissing();
    CheckAccessKeys();
    CheckFlag();
  }

 private:
  Finding& Tell(Id rule, std::string_view words, TextView section, TextView key, Text message) {
    Finding& finding = findings_.Add(rule, source_, words);
    finding.section = section;
    finding.key = key;
    finding.message = std::move(message);
    return finding;
  }

  [[nodiscard]] std::string_view HeaderOf(TextView section) const {
    const size_t number = source_.FindSection(Words::Encoded(section));
    return number == Source::None ? source_.Bytes().substr(0, 0)
                                  : source_.Sections()[number].header;
  }

  [[nodiscard]] Text ValueOf(TextView section, TextView key) const {
    return Decoded(source_.File().Read(Words::Encoded(section), Words::Encoded(key)));
  }

  void CheckName() {
    const auto words = source_.File().Read("general", "language");
    if (language_.name.empty()) {
      Tell(Id::T01, HeaderOf(General), General, u"language", u"this file declares no language");
    } else if (language_.name == LOCAL::German) {
      Tell(Id::T02, words, General, u"language", u"\"Deutsch\" is the built-in language");
    } else if (Lower(language_.name) != Lower(language_.folder)) {
      CheckFolder(words);
    }
  }

  void CheckFolder(std::string_view words) {
    const Text own = Join(index_.paths.languageRoot, language_.folder, u"/info.data");
    if (!FileSystem::FileExists(own))
      return;
    Finding& finding = Tell(Id::T03, words, General, u"language",
                            Join(u"the folder is called ", Quoted(language_.folder),
                                 u", the language ", Quoted(language_.name)));
    finding.consequence =
        Join(u"the descriptions are read from ",
             language_.info ? language_.info->name : Text(u"info.data of the world"));
  }

  // Names are listed under this header alone, letter for letter.
  void CheckHeader() {
    const size_t found = source_.FindSection("entities");
    if (found == Source::None || source_.FindListed("entities") != Source::None)
      return;
    const Source::Section& section = source_.Sections()[found];
    Finding& finding =
        Tell(Id::T04, section.header, Entities, {}, u"names are listed below [entities] alone");
    finding.consequence =
        Join(u"none of its ", Count(section.end - section.line - 1, u"line", u"lines"),
             u" translates a name");
    finding.advice = u"write [entities]";
    finding.edits = {Edits::Replaced(source_, section.header, "[entities]")};
  }

  void CheckLine(const Source::Line& line) {
    if (line.entry.kind != LineKind::KeyWithValue || line.section == Source::None)
      return;
    const Text section = Decoded(source_.Sections()[line.section].name);
    if (Lower(section) == Entities || Lower(section) == Page)
      return;
    const Text key = Decoded(line.entry.key);
    const auto known = texts_.find(KeyOf(section, key));
    if (known == texts_.end())
      return CheckUnknown(line, section, key);
    CheckBlanks(line, section, key);
    CheckSigns(line, *known->second);
    if (Lower(section) == General)
      CheckAddress(line, key);
  }

  void CheckUnknown(const Source::Line& line, const Text& section, const Text& key) {
    std::vector<Text> keys;
    for (const TextRow& text : index_.texts)
      if (Lower(text.section) == Lower(section))
        keys.emplace_back(text.key);
    if (keys.empty())
      return;
    Finding& finding =
        Tell(Id::T07, line.entry.key, section, key, Join(u"no text is called ", Quoted(key)));
    Suggest(finding, line.entry.key, Nearest::Of(key, keys));
  }

  void Suggest(Finding& finding, std::string_view words, const Text& nearest) {
    if (nearest.empty() || !findings_.IsWorthHelp(finding.rule))
      return;
    finding.advice = Join(u"write ", nearest);
    finding.edits = {Edits::Replaced(source_, words, Words::Encoded(nearest))};
  }

  void CheckSections() {
    std::set<Text> known = {Text(Entities), Text(Page)};
    std::vector<Text> names = {Text(Entities)};
    for (const TextRow& text : index_.texts)
      if (known.insert(Lower(text.section)).second)
        names.emplace_back(text.section);
    for (const Source::Section& section : source_.Sections()) {
      const Text name = Decoded(section.name);
      if (known.contains(Lower(name)))
        continue;
      Finding& finding =
          Tell(Id::T07, section.header, name, {}, Join(u"no section is called ", Quoted(name)));
      finding.consequence = Join(
          u"its ", Count(section.end - section.line - 1, u"line is", u"lines are"), u" never read");
      if (const Text nearest = Nearest::Of(name, names); !nearest.empty()) {
        finding.advice = Join(u"write [", nearest, u"]");
        finding.edits = {
            Edits::Replaced(source_, section.header, '[' + Words::Encoded(nearest) + ']')};
      }
    }
  }

  void CheckBlanks(const Source::Line& line, const Text& section, const Text& key) {
    const std::string_view raw = line.text.raw;
    const std::string_view value = line.entry.value;
    if (value.empty())
      return;
    const size_t equals = raw.find('=');
    const size_t leading = source_.Offset(value) - source_.Offset(raw) - equals - 1;
    const size_t behind = raw.size() - equals - 1 - leading - value.size();
    const bool spaced = equals > 0 && raw[equals - 1] == ' ';
    if (behind == 0 && (leading < 2 || spaced))
      return;
    const std::string_view all = raw.substr(equals + 1);
    Finding& finding = Tell(Id::T10, all, section, key, u"blanks at the end of a text");
    finding.consequence =
        Join(Quoted(Decoded(ProfileLines::Unquoted(value))), u" is shown, without them");
    finding.edits = {Edits::Replaced(source_, all, '"' + std::string(all) + '"')};
  }

  void CheckSigns(const Source::Line& line, const TextRow& text) {
    const Text value = Decoded(ProfileLines::Unquoted(line.entry.value));
    if (text.HasPlaceholder()) {
      if (!value.empty() && !StringOps::StrContains(value, Sign))
        Tell(Id::T08, line.entry.value, text.section, text.key, u"%s is lost").consequence =
            Join(Quoted(value), u" does not tell ", Missing(text));
      return;
    }
    for (const TextView sign : {u"%s", u"%d", u"%1", u"{0}", u"{}"})
      if (StringOps::StrContains(value, sign)) {
        Tell(Id::T08, line.entry.value, text.section, text.key,
             Join(sign, u" stands for nothing in this text"))
            .consequence = Join(Quoted(value), u" is shown as it stands");
        return;
      }
  }

  [[nodiscard]] static Text Missing(const TextRow& text) {
    if (text.section == u"ui")
      return u"which file is missing";
    return text.section == u"frmPerks" ? u"the region" : u"what was searched for";
  }

  void CheckAddress(const Source::Line& line, const Text& key) {
    const std::string_view value = ProfileLines::Unquoted(line.entry.value);
    const bool web = Lower(key) == u"website";
    if (!web && Lower(key) != u"email")
      return;
    for (const std::string_view prefix : {"http://", "https://", "mailto:"}) {
      if (!Words::Folded(value).starts_with(prefix) || web == (prefix == "mailto:"))
        continue;
      Finding& finding = Tell(Id::T09, value, General, key,
                              Join(Quoted(Decoded(prefix)), u" is put before it by the program"));
      finding.consequence =
          Join(Quoted(Join(web ? u"http://" : u"mailto:", Decoded(value))), u" is opened");
      finding.edits = {Edits::Replaced(source_, value.substr(0, prefix.size()), "")};
      finding.isSafe = prefix != "https://";
    }
  }

  // Keys that are missing or empty, by section.
  void CheckMissing() {
    std::map<TextView, std::vector<Text>> inEnglish;
    for (const TextRow& text : index_.texts) {
      if (!ValueOf(text.section, text.key).empty() ||
          (text.section == General && text.key == u"language"))
        continue;
      if (!text.english.empty() && text.needed)
        inEnglish[text.section].emplace_back(text.key);
      else if (text.IsSerious() || text.key == u"version" || text.key == u"author")
        TellWithoutDefault(text);
    }
    for (auto& [section, keys] : inEnglish) {
      Finding& finding =
          Tell(Id::T05, HeaderOf(section), section, {},
               Join(Count(keys.size(), u"key", u"keys"), u" of [", section, u"] missing or empty"));
      finding.details = std::move(keys);
    }
  }

  void TellWithoutDefault(const TextRow& text) {
    Finding& finding = Tell(Id::T06, HeaderOf(text.section), text.section, text.key,
                            Join(u"[", text.section, u"] has no ", Quoted(text.key)));
    finding.consequence = text.section == General       ? u"the language dialog shows nothing there"
                          : text.section == u"ui"       ? u"the message for a missing file is empty"
                          : text.section == u"frmPerks" ? u"the map's heading lacks these words"
                          : text.section == u"frmFind"
                              ? u"the message or heading of the search is empty"
                              : u"the label is empty";
    if (text.section == General)
      finding.severity = Rules::Severity::Note;
  }

  // The access keys of the menus, each menu's commands beside each other.
  void CheckAccessKeys() {
    const auto rows = MenuTable::Rows();
    std::map<size_t, std::vector<const MenuRow*>> siblings;
    std::vector<size_t> menus;
    for (size_t i = 0; i < rows.size(); ++i) {
      if (rows[i].kind == MenuRow::Kind::BarDivider)
        continue;
      const auto level = static_cast<size_t>(rows[i].level);
      menus.resize(level);
      siblings[level == 0 ? rows.size() : menus.back()].push_back(&rows[i]);
      menus.push_back(i);
    }
    std::vector<Text> without;
    for (const auto& [menu, commands] : siblings)
      CheckSiblings(commands, without);
    if (without.empty())
      return;
    Finding& finding = Tell(
        Id::T11, HeaderOf(u"menus"), u"menus", {},
        Join(Count(without.size(), u"caption", u"captions"), u" without an access key of its own"));
    finding.details = std::move(without);
  }

  void CheckSiblings(const std::vector<const MenuRow*>& commands,
                     std::vector<Text>& without) const {
    std::map<char16_t, int> german;
    std::map<char16_t, int> own;
    for (const MenuRow* row : commands) {
      ++german[AccessKey(row->caption.german)];
      ++own[AccessKey(ValueOf(u"menus", row->caption.key))];
    }
    for (const MenuRow* row : commands) {
      const Text caption = ValueOf(u"menus", row->caption.key);
      const char16_t key = AccessKey(caption);
      const char16_t before = AccessKey(row->caption.german);
      if (!caption.empty() && before != 0 && german[before] == 1 && (key == 0 || own[key] > 1))
        without.push_back(Join(row->caption.key, u"=", caption));
    }
  }

  void CheckFlag() {
    const Text flag = LanguageList::FlagOf(source_.path);
    const auto size = index_.pictureOf(flag);
    const Text name = flag.substr(index_.base.size());
    if (!size) {
      Finding& finding = findings_.Add(Id::T22, name);
      finding.message =
          FileSystem::FileExists(flag) ? u"the flag is no picture" : u"there is no flag";
      finding.consequence = u"a neutral flag is shown";
    } else if (size->width != FlagSide || size->height != FlagSide) {
      Finding& finding = findings_.Add(Id::T22, name);
      finding.message = Join(u"a flag of ", Number(static_cast<size_t>(size->width)), u" x ",
                             Number(static_cast<size_t>(size->height)), u" pixels");
      finding.consequence = u"it is not shown at its own size";
    }
  }

  Index& index_;
  Findings& findings_;
  const Index::Language& language_;
  const Source& source_;
  std::map<Key, const TextRow*> texts_;
};

void TellNoFile(const Index& index, Findings& findings, const Text& folder) {
  const Text& root = index.paths.languageRoot;
  const bool isFolder = FileSystem::Resolve(Join(root, folder, u"/.")).has_value();
  const Text path = isFolder ? LOCAL::FileOfLanguage(root, folder, u".lng") : Join(root, folder);
  Finding& finding = findings.Add(Id::T01, path.substr(index.base.size()));
  finding.message = isFolder ? Join(u"folder ", Quoted(folder), u" has no language file")
                             : Join(Quoted(folder), u" is no folder of a language");
  if (!isFolder)
    finding.advice = u"only folders of languages belong here";
}

}  // namespace

void Checks::Languages(Index& index, Findings& findings) {
  for (const Index::Language& language : index.languages)
    if (language.file)
      LanguageCheck(index, findings, language).Check();
    else
      TellNoFile(index, findings, language.folder);
}
