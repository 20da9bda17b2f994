#include "check/Checks.h"
#include "check/Edits.h"
#include "check/Nearest.h"
#include "check/Words.h"
#include "i18n/PrefixIndex.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

using ProfileLines::LineKind;
using Rules::Id;
using Texts::Join;
using Texts::Trim;
using Words::Count;
using Words::Decoded;
using Words::Encoded;
using Words::Quoted;

namespace {

constexpr std::string_view LineBlanks = "\t\v\f";

// A name on its way into the language and back.
struct Translated {
  Text name;
  // With the words of the regions in the language.
  Text replaced;
  Text shown;
  Text back;
  // The number of the key that it begins with.
  std::optional<size_t> key;

  [[nodiscard]] bool ComesBack() const { return Texts::Lower(back) == Texts::Lower(Trim(name)); }
};

class TranslationCheck {
 public:
  TranslationCheck(Index& index, Findings& findings, const Index::Language& language)
      : index_(index),
        findings_(findings),
        language_(language),
        source_(*language.file),
        words_(index.paths) {
    // Without its table a language replaces the words of the regions and nothing else.
    words_.Start(index.files, language.folder);
  }

  void Check() {
    ReadKeys();
    ReadNames();
    CheckKeys();
    CheckRoundTrips();
    CheckLength();
    CheckCoverage();
  }

 private:
  // A key and the translations that a name would need to be told from it.
  using Pair = std::pair<std::optional<size_t>, size_t>;

  void ReadKeys() {
    const size_t number = source_.FindListed("entities");
    if (number == Source::None)
      return;
    const Source::Section& section = source_.Sections()[number];
    std::vector<std::string_view> keys;
    for (size_t line = section.line + 1; line < section.listEnd; ++line)
      if (source_.Lines()[line].isListed) {
        keys.push_back(source_.Lines()[line].listed);
        lines_.push_back(&source_.Lines()[line]);
      }
    keys_ = PrefixIndex(keys);
    std::vector<Text> translations;
    for (const std::string_view key : keys) {
      values_.push_back(Decoded(source_.File().Read("entities", key)));
      // As the way back takes them: a blank one would match every name.
      translations.push_back(Trim(values_.back()).empty() ? Text(u";") : values_.back());
    }
    translations_ = PrefixIndex(translations);
  }

  [[nodiscard]] const std::shared_ptr<const ProfileFile>& NameFile() const {
    return index_.files.Shared(words_.LanguageFile());
  }

  void ReadNames() {
    const auto& nameFile = NameFile();
    for (const std::string_view bytes : index_.Names()) {
      Translated& name = names_.emplace_back();
      name.name = Decoded(bytes);
      name.replaced = words_.LocalizeEntityName(nameFile, name.name);
      name.shown = language_.spoken->LocalizeEntityName(nameFile, name.name);
      name.back = language_.spoken->UnlocalizeEntityName(name.shown);
      name.key = keys_.FirstPrefixOf(name.replaced);
    }
    std::ranges::sort(names_, {}, &Translated::replaced);
    for (const Index::Entity& entity : index_.entities)
      if (entity.IsDisabled())
        switchedOff_.insert(Decoded(ProfileLines::Strip(entity.name.substr(1), " ")));
  }

  // The first name, with the words of the regions replaced, that begins with the key.
  [[nodiscard]] const Translated* NameOf(TextView key) const {
    const auto found = std::ranges::lower_bound(names_, key, {}, &Translated::replaced);
    return found != names_.end() && found->replaced.starts_with(key) ? &*found : nullptr;
  }

  Finding& Tell(Id rule, size_t key, Text message) {
    const std::string_view words = lines_[key]->listed;
    Finding& finding = findings_.Add(rule, source_, words);
    finding.section = u"entities";
    finding.key = keys_[key];
    finding.message = std::move(message);
    return finding;
  }

  void CheckKeys() {
    for (size_t key = 0; key < keys_.size(); ++key) {
      if (keys_[key].starts_with(u';') || keys_[key].empty())
        continue;
      if (lines_[key]->listed.find_first_of(LineBlanks) != std::string_view::npos)
        TellTab(key);
      const Translated* name = NameOf(keys_[key]);
      if (!name)
        CheckDead(key);
      else if (Trim(values_[key]).empty())
        CheckEmpty(key);
      else
        CheckShadow(key, *name);
    }
    for (const Translated& name : names_)
      if (name.key)
        CheckDouble(name);
  }

  void TellTab(size_t key) {
    Finding& finding = Tell(Id::F13, key, u"a tab around a name is part of it");
    finding.consequence = u"this key begins no name";
    const std::string_view listed = lines_[key]->listed;
    finding.edits = {Edits::Replaced(
        source_, listed, std::string(ProfileLines::Strip(listed, ProfileLines::Blanks)))};
  }

  void CheckDead(size_t key) {
    const Text word(keys_[key]);
    if (std::ranges::find(Regions, TextView(word), &RegionRow::word) != Regions.end() ||
        IsSwitchedOff(word))
      return;
    dead_.insert(key);
    const Text replaced = words_.LocalizeEntityName(NameFile(), word);
    if (replaced != Trim(word) && NameOf(replaced))
      return TellRegionWord(key, replaced);
    Finding& finding = Tell(Id::T15, key, Join(u"no name begins with ", Quoted(word)));
    if (!findings_.IsWorthHelp(Id::T15))
      return;
    const std::string_view nearest = Nearest::Of(Encoded(word), index_.Names());
    if (nearest.empty())
      return;
    finding.advice = Join(u"write ", Decoded(nearest));
    finding.edits = {Edits::Replaced(source_, lines_[key]->listed, std::string(nearest))};
  }

  [[nodiscard]] bool IsSwitchedOff(TextView key) const {
    const auto found = switchedOff_.lower_bound(Text(key));
    return found != switchedOff_.end() && found->starts_with(key);
  }

  void TellRegionWord(size_t key, const Text& replaced) {
    const Translated& name = *NameOf(replaced);
    Finding& finding =
        Tell(Id::T16, key, u"the words of regions are replaced before keys are looked for");
    finding.consequence = Join(Quoted(name.name), u" is shown as ", Quoted(name.shown));
    finding.advice = Join(u"write ", replaced);
    finding.edits = {Edits::Replaced(source_, lines_[key]->listed, Encoded(replaced))};
  }

  void CheckEmpty(size_t key) {
    const auto longer = std::ranges::find_if(names_, [this, key](const Translated& name) {
      return name.key == key && name.replaced != keys_[key];
    });
    if (longer == names_.end())
      return untranslated_.emplace_back(keys_[key]), void();
    Finding& finding = Tell(Id::T17, key, Join(Quoted(keys_[key]), u" has no translation"));
    finding.consequence = Join(Quoted(longer->name), u" is shown as ", Quoted(longer->shown),
                               u", which counts as no name");
    guilty_.insert(key);
  }

  void CheckShadow(size_t key, const Translated& name) {
    const auto first = keys_.FirstPrefixOf(keys_[key]);
    if (!first || *first >= key || keys_[*first] == keys_[key])
      return;
    const Text meant = Texts::ReplaceAll(name.replaced, keys_[key], values_[key]);
    if (meant == name.shown)
      return;
    Finding& finding =
        Tell(Id::T12, key,
             Join(Quoted(keys_[*first]), u" stands above ", Quoted(keys_[key]), u" and wins"));
    finding.consequence = Join(Quoted(name.name), u" is shown as ", Quoted(name.shown),
                               u" instead of ", Quoted(meant));
    finding.advice = Join(u"move this line above ", Quoted(keys_[*first]));
    const Source::Line& line = *lines_[key];
    finding.edits = {{&source_, source_.Offset(lines_[*first]->text.raw), 0,
                      std::string(line.text.raw) + std::string(lines_[*first]->text.end)},
                     Edits::WithoutLine(source_, line)};
    guilty_.insert(*first);
  }

  void CheckDouble(const Translated& name) {
    const TextView key = keys_[*name.key];
    const size_t second =
        key.empty() ? TextView::npos : TextView(name.replaced).find(key, key.size());
    if (second == TextView::npos || values_[*name.key] == key || !doubled_.insert(*name.key).second)
      return;
    Finding& finding =
        Tell(Id::T18, *name.key, Join(Quoted(key), u" stands twice in ", Quoted(name.name)));
    finding.consequence = Join(u"it is shown as ", Quoted(name.shown));
  }

  // The names that lead to another key, each pair of keys told once.
  void CheckRoundTrips() {
    std::map<Pair, std::vector<const Translated*>> pairs;
    for (const Translated& name : names_) {
      if (name.ComesBack() || (name.key && guilty_.contains(*name.key)))
        continue;
      const auto taken = translations_.FirstPrefixOf(words_.UnlocalizeEntityName(name.shown));
      // A key that begins no name is told of already.
      if (!taken || !dead_.contains(*taken))
        pairs[{name.key, taken.value_or(keys_.size())}].push_back(&name);
    }
    for (const auto& [pair, names] : pairs)
      TellRoundTrip(pair, names);
  }

  void TellRoundTrip(const Pair& pair, const std::vector<const Translated*>& names) {
    const auto& [own, taken] = pair;
    const Translated& first = *names.front();
    const bool same = IsSameInList(first);
    const Text message = Join(Quoted(first.shown), u" leads back to ", Quoted(first.back));
    const Id rule = same ? Id::T14 : Id::T13;
    Finding& finding = own ? Tell(rule, *own, message)
                       : taken < keys_.size()
                           ? Tell(rule, taken, message)
                           : findings_.Add(rule, source_, source_.Bytes().substr(0, 0));
    finding.message = message;
    finding.consequence =
        Join(Quoted(first.name), u" can't be picked, and has no text and no portrait");
    if (names.size() > 1)
      finding.consequence =
          Join(finding.consequence, u"; so ", Count(names.size() - 1, u"other", u"others"));
    if (taken < keys_.size())
      finding.advice =
          Join(u"other translations for ", Quoted(own ? keys_[*own] : TextView(first.name)),
               u" and ", Quoted(keys_[taken]));
    for (const Translated* name : names)
      finding.details.push_back(name->name);
  }

  // Whether a list shows the name and the one that it leads to alike.
  [[nodiscard]] bool IsSameInList(const Translated& name) {
    if (language_.spoken->LocalizeEntityName(NameFile(), name.back) != name.shown)
      return false;
    if (lists_.empty())
      for (const Index::Entity& entity : index_.entities)
        lists_[Decoded(entity.name)].emplace(entity.region, entity.section);
    const auto& own = lists_[name.name];
    const auto& other = lists_[name.back];
    return std::ranges::any_of(own, [&other](const auto& list) { return other.contains(list); });
  }

  void CheckLength() {
    for (const Translated& name : names_)
      if (name.key && name.shown.size() > Checks::LongestName) {
        Finding& finding =
            Tell(Id::T22, *name.key,
                 Join(u"a name of ", Count(name.shown.size(), u"character", u"characters")));
        finding.consequence = Join(Quoted(name.name), u" leaves the window");
      }
  }

  void CheckCoverage() {
    for (const Translated& name : names_)
      if (!name.key && name.shown == Trim(name.name))
        untranslated_.push_back(name.name);
    for (const TextRow& text : index_.texts) {
      const auto value = source_.File().Read(Encoded(text.section), Encoded(text.key));
      if (!text.german.empty() && text.german != text.english && Decoded(value) == text.german)
        untranslated_.push_back(Join(u"[", text.section, u"] ", text.key));
    }
    if (untranslated_.empty())
      return;
    Finding& finding = findings_.Add(Id::T21, source_, source_.Bytes().substr(0, 0));
    finding.message = Join(Count(untranslated_.size(), u"name or caption", u"names and captions"),
                           u" as in German");
    finding.details = std::move(untranslated_);
  }

  Index& index_;
  Findings& findings_;
  const Index::Language& language_;
  const Source& source_;
  LOCAL::Language words_;
  PrefixIndex keys_;
  PrefixIndex translations_;
  std::vector<const Source::Line*> lines_;
  std::vector<Text> values_;
  std::vector<Translated> names_;
  std::set<Text> switchedOff_;
  std::set<size_t> guilty_;
  // The sections that each name stands in.
  std::unordered_map<Text, std::set<std::pair<size_t, size_t>>> lists_;
  std::set<size_t> dead_;
  std::set<size_t> doubled_;
  std::vector<Text> untranslated_;
};

}  // namespace

void Checks::Translations(Index& index, Findings& findings) {
  for (const Index::Language& language : index.languages)
    if (language.spoken && !language.spoken->IsGerman())
      TranslationCheck(index, findings, language).Check();
}
